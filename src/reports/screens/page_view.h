#pragma once

#include <QImage>
#include <QScrollArea>
#include <QWidget>

#include "platform/print/document.h"

namespace tendo {

/// One page of a document on the workspace's ground, at a zoom in percent of its paper size. A left
/// click asks for more zoom, a right click for less; so does the wheel with Ctrl.
class PageView : public QWidget {
    Q_OBJECT
  public:
    explicit PageView(QWidget* parent = nullptr);

    /// The document must outlive its being shown. `page` counts from 0.
    void ShowPage(const Document* document, int page);
    void SetZoom(int percent);
    int Zoom() const { return zoom_; }
    QSize sizeHint() const override;

  Q_SIGNALS:
    void ZoomWanted(int change);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QRect PaperRect() const;
    void Refresh();

    const Document* document_ = nullptr;
    int page_ = 0;
    int zoom_ = 100;
    QImage image_;  // the page as last painted; empty when it must be painted anew
};

}  // namespace tendo

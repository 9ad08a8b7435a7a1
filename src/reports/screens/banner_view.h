#pragma once

#include <QImage>
#include <QWidget>

#include "platform/print/document.h"

namespace tendo {

/// The head of a page, where the banner stands, as wide as there is room for it.
class BannerView : public QWidget {
    Q_OBJECT
  public:
    BannerView(const QString& name, QWidget* parent);

    void ShowDocument(Document document);
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    Document document_;
    QImage image_;  // as last painted; null when it must be painted anew
};

}  // namespace tendo

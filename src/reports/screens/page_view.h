#pragma once

#include <QCache>
#include <QImage>
#include <QWidget>

#include "platform/print/document.h"

namespace tendo {

/// One page of a document on the workspace's ground, at a zoom in percent of its paper size. A left
/// click asks for more zoom, a right click for less; dragging moves the page.
class PageView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int zoom READ Zoom)
    Q_PROPERTY(int marks READ MarkCount)
  public:
    explicit PageView(QWidget* parent = nullptr);

    /// Shows no page of another document's drawings; the document must outlive its being shown.
    void ShowDocument(const Document* document);
    /// `page` counts from 0; pages stay drawn for the next time they are shown.
    void ShowPage(int page);
    void SetZoom(int percent);
    int Zoom() const { return zoom_; }

    /// Places to stand out on the page, in twips of its printable area; `current` counts into them,
    /// several boxes can belong to the current one. -1: none is.
    struct Mark {
        QRectF box;
        bool current = false;
    };
    void ShowMarks(std::vector<Mark> marks);
    int MarkCount() const { return static_cast<int>(marks_.size()); }
    /// The current mark in the widget's coordinates; empty without one.
    QRect CurrentMark() const;

    QRect PaperRect() const;
    /// Paper and the ground around it.
    QSize sizeHint() const override { return SizeAt(zoom_); }
    static QSize SizeAt(int percent);
    /// The paper at 100 percent, and the ground on all sides together, in pixels.
    static QSizeF PaperSize();
    static QSize Ground();

  Q_SIGNALS:
    void ZoomWanted(int change, QPoint at);
    void Dragged(QPoint by);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    /// A part of a page as it was drawn, `part` in device pixels of the paper.
    struct Drawn {
        QRect part;
        QImage image;
    };
    bool HasPage() const;
    const Drawn& DrawnAround(const QRect& seen, double ratio);
    Drawn Draw(const QRect& part, double ratio) const;
    QRectF Placed(const QRectF& box) const;
    void PaintGround(QPainter& painter) const;
    void PaintMarks(QPainter& painter) const;
    void Refresh();

    const Document* document_ = nullptr;
    int page_ = 0;
    int zoom_ = 100;
    std::vector<Mark> marks_;
    QCache<QString, Drawn> drawn_;
    QPoint pressedAt_, draggedTo_;
    Qt::MouseButton pressed_ = Qt::NoButton;  // the button of the click under way
    bool dragging_ = false;
};

}  // namespace tendo

#pragma once

#include <QElapsedTimer>
#include <QScrollArea>

namespace tendo {

class PageView;

/// How a page is fitted into its window.
enum class PageFit { None, Width, Page };

/// Scrolls one page. The wheel turns the page where it ends, and zooms with Ctrl.
class PageScroller : public QScrollArea {
    Q_OBJECT
  public:
    PageScroller(PageView* view, QWidget* parent);

    /// Zooms and leaves the point `at` of the view where it is on the screen.
    void ZoomTo(int percent, QPoint at);
    /// The zoom at which the page fits.
    int ZoomOfFit(PageFit fit) const;
    /// The part of a page that is left when it can be scrolled on down (1) or up (-1); false at its
    /// end, with nothing moved. `by` in pixels; 0: nearly a window.
    bool Scroll(Qt::Orientation orientation, int direction, int by = 0);
    void GoToTop();
    void GoToFoot();
    void BringIntoView(const QRect& place);
    /// The middle of what is seen, in the view's coordinates.
    QPoint Middle() const;
    /// Gives the view the room it asks for.
    void Arrange();

  Q_SIGNALS:
    void TurnWanted(int pages);
    void ZoomWanted(int change, QPoint at);
    void Resized();

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// The keys are the screen's.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ZoomByWheel(const QWheelEvent& event);
    void TurnByWheel(int angle, bool touchPad);

    PageView* view_;
    int zoomAngle_ = 0, turnAngle_ = 0;  // of the wheel, in eighths of a degree, not yet acted on
    QElapsedTimer sinceScroll_;
    bool arranging_ = false;
};

}  // namespace tendo

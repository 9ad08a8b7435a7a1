#pragma once

#include <QMdiArea>
#include <QPixmap>

namespace tendo {

/// The area behind the screens, painted in a colour or with the wallpaper.
class WorkspaceArea : public QMdiArea {
    Q_OBJECT
  public:
    explicit WorkspaceArea(QWidget* parent);

    /// Reads section "Miscellaneous" and paints anew.
    void DrawBackground();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    enum class Mode { Center, Tile, Stretch, Fit };

    QRect PictureBox() const;

    QColor color_;
    QPixmap picture_;
    Mode mode_ = Mode::Center;
};

}  // namespace tendo

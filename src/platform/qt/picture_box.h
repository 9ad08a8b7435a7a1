#pragma once

#include <QLabel>
#include <string>

namespace tendo {

/// A picture file on a screen, in its own proportions on white paper. Without a file it says that
/// there is none.
class PictureBox : public QLabel {
    Q_OBJECT
  public:
    /// `largest`: the widest and highest the picture may be.
    PictureBox(const QString& name, const QString& spoken, QSize largest, QWidget* parent);

    /// Loads a file; an empty path empties the box.
    void ShowFile(const std::string& path);

  Q_SIGNALS:
    void DoubleClicked();

  protected:
    void mouseDoubleClickEvent(QMouseEvent*) override { Q_EMIT DoubleClicked(); }

  private:
    QSize largest_;
};

}  // namespace tendo

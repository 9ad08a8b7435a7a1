#pragma once

#include <QWidget>
#include <functional>
#include <string>

class QLabel;
class QPushButton;

namespace tendo {

class PictureBox;
class TextField;

/// The file of a picture: its path, a dialog that finds it, and the picture itself below.
class PictureChoice : public QWidget {
    Q_OBJECT
  public:
    /// Names of the controls and the field's label.
    struct Names {
        const char *field, *button, *picture, *caption;
        /// A path that stands for the program's own picture; null without one.
        const char* own = nullptr;
    };
    PictureChoice(const Names& names, QWidget* parent);

    /// Shows a path; it can be changed only while `enabled`.
    void ShowFile(const std::string& file, bool enabled);

    /// Runs when the user gave another path.
    std::function<void(const std::string&)> Chosen;

  private:
    void Browse();
    /// The picture of the path as it stands in the field, or why there is none.
    void ShowPicture();

    QString own_;
    TextField* text_ = nullptr;
    QPushButton* browse_ = nullptr;
    PictureBox* picture_ = nullptr;
    QLabel* note_ = nullptr;
};

}  // namespace tendo

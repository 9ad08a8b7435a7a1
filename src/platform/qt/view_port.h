#pragma once

#include <QScrollArea>

namespace tendo {

/// Holds a screen inside its window of the main window ("View_Port"): a screen that is larger than
/// the window gets the bars "View_Hscr" and "View_Vscr", which move its content. What takes the
/// focus is brought into view.
class ViewPort : public QScrollArea {
    Q_OBJECT
  public:
    explicit ViewPort(const QString& title);
    /// Takes the screen in. It comes last, when the port stands in its window and the window in the
    /// workspace: each of these moves would give all controls of the screen their style anew.
    void Show(QWidget* screen);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    /// Asks the screen, which may refuse.
    void closeEvent(QCloseEvent* event) override;

  private:
    void ShowFocus(QWidget* focus);
};

}  // namespace tendo

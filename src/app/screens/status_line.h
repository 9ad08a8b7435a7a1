#pragma once

#include <QStatusBar>

class QLabel;

namespace tendo {

class TextField;

/// The status bar: on the left the field in focus with its range and unit, then the panel of the
/// autosave, on the right the project's file and when it and its working copy were last written.
class StatusLine : public QStatusBar {
    Q_OBJECT
  public:
    explicit StatusLine(QWidget* parent);

    /// nullptr: no field has the focus.
    void ShowField(const TextField* field);
    /// Looks at the files again.
    void ShowFiles();

  private:
    QLabel* AddPanel(const char* name, bool right);

    QLabel* field_;
    QLabel* range_;
    QLabel* unit_;
    QLabel* file_;
    QLabel* written_;
};

}  // namespace tendo

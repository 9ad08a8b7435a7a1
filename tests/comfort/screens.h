#pragma once

#include <QWidget>
#include <functional>

#include "running_program.h"

namespace tendo {

/// The program with the sample job open; walks all its screens.
class Screens : public RunningProgram {
  protected:
    void SetUp() override;

    /// Shows each screen that is entered in the screen table, and those that commands bring up
    /// without it, one after the other, and hands it to the check.
    void ForEachScreen(const std::function<void(Form&)>& check);

    /// Turns to each page of the screen's tab controls; runs once when it has none.
    static void ForEachPage(Form& form, const std::function<void()>& check);

  private:
    void Visit(const QString& name, const std::function<void()>& open,
               const std::function<void(Form&)>& check);
};

/// What a person can work with on a screen and sees at present, in no order: fields, buttons,
/// lists, tabs; no parts of other controls.
QList<QWidget*> ControlsOf(const Form& form);

/// The control is the screen's own and not that of a screen within it.
bool IsOf(const QWidget* widget, const Form& form);

/// "txtName (the text of its label)", for messages.
std::string Told(const QWidget* control);

/// The place of a control on its screen.
QRect PlaceOn(const QWidget* control, const QWidget* screen);

}  // namespace tendo

#include "app/screens/screen_colors.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextEdit>

#include "app/color_handler.h"
#include "platform/files/ini_file_handler.h"
#include "platform/qt/form.h"

namespace tendo {
namespace {

constexpr const char* coloredFlag = "colored";

QString ColorText(std::int32_t color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF).name();
}

bool IsHelpCaption(const QWidget* widget) {
    return widget->objectName().startsWith("lblHelpCaption");
}

bool BelongsTo(const QWidget* widget, ControlClass controls) {
    switch (controls) {
        case ControlClass::lblDefault:
            return qobject_cast<const QLabel*>(widget) && !IsHelpCaption(widget);
        case ControlClass::LblHelpCaptionText:
        case ControlClass::LblHelpCaptionBackground:
            return IsHelpCaption(widget);
        case ControlClass::Frame:
            return qobject_cast<const QGroupBox*>(widget);
        case ControlClass::Check:
        case ControlClass::SSCheck:
            return qobject_cast<const QCheckBox*>(widget);
        case ControlClass::Option:
        case ControlClass::SSOption:
            return qobject_cast<const QRadioButton*>(widget);
        case ControlClass::TextText:
            return qobject_cast<const QLineEdit*>(widget) ||
                   qobject_cast<const QPlainTextEdit*>(widget) ||
                   qobject_cast<const QTextEdit*>(widget);
    }
    return false;
}

class ScreenAsColoredForm : public ColoredForm {
  public:
    explicit ScreenAsColoredForm(Form& form) : form_(form) {}

    void SetClassColor(ControlClass controls, std::int32_t color) override {
        if (color < 0) return;  // one of the desktop's own colours, which the screens have anyhow
        const char* what =
            controls == ControlClass::LblHelpCaptionBackground ? "background" : "color";
        for (QWidget* widget : form_.findChildren<QWidget*>())
            if (BelongsTo(widget, controls))
                widget->setStyleSheet(widget->styleSheet() +
                                      QString("%1: %2;").arg(what, ColorText(color)));
    }

  private:
    Form& form_;
};

}  // namespace

void ColorNewScreens() {
    if (Ini().MyGetAppProfileBoolean("Colors", "ShowDefaultColors", true)) return;
    for (Form* form : Form::Loaded()) {
        if (form->FormPlace() == Form::Place::Main || form->property(coloredFlag).toBool())
            continue;
        form->setProperty(coloredFlag, true);
        ScreenAsColoredForm colored(*form);
        Colors().SetFormColorsCLASS(colored);
    }
}

}  // namespace tendo

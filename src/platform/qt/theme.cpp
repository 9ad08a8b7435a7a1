#include "platform/qt/theme.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QWidget>

namespace tendo {
namespace {

ThemeColors current;

double BodyPoints() {
    static const double points = [] {
        const double desktop = QApplication::font().pointSizeF();
        return desktop > 10 ? desktop : 10.0;
    }();
    return points;
}

}  // namespace

const ThemeColors& Theme() {
    return current;
}

void SetThemeColors(const ThemeColors& colors) {
    current = colors;
}

QFont BodyFont() {
    QFont font("Liberation Sans");
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(BodyPoints());
    return font;
}

QFont HeadingFont() {
    QFont font = BodyFont();
    font.setPointSizeF(BodyPoints() * 0.9);
    font.setWeight(QFont::DemiBold);
    return font;
}

QFont TotalFont() {
    QFont font = BodyFont();
    font.setPointSizeF(BodyPoints() * 1.5);
    font.setWeight(QFont::Bold);
    return font;
}

void SetStyleFlag(QWidget* widget, const char* flag, bool on) {
    if (widget->property(flag).toBool() == on) return;
    widget->setProperty(flag, on);
    // The first polish, on the way to the screen, reads the flags that stand by then.
    if (!widget->testAttribute(Qt::WA_WState_Polished)) return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

}  // namespace tendo

#pragma once

#include <QColor>
#include <QString>

class QFont;
class QWidget;

namespace tendo {

/// The colours of one set. Two sets, light and dark, follow the desktop.
struct ThemeColors {
    QColor window;     // a screen's ground
    QColor workspace;  // behind the screens
    QColor field;      // what can be typed in
    QColor figure;     // what is computed
    QColor line;       // borders and rules
    QColor text;
    QColor secondary;                // labels, headings
    QColor accent;                   // focus ring, primary button, current system
    QColor accentText;               // on the accent colour
    QColor selection;                // the current row of a grid
    QColor fresh;                    // figures that the last edit changed
    QColor negative;                 // money and margins below zero
    QColor accessory;                // lines that don't count into the price
    QColor cooling, heating, water;  // the three sides of a system, everywhere
    bool dark = false;
};

/// The set in use.
const ThemeColors& Theme();

/// Puts a set in use; `ApplyTheme` does the rest.
void SetThemeColors(const ThemeColors& colors);

/// Fonts by use: body 10, secondary 9, headings 9 semibold, the one total of a screen 15 points,
/// all relative to the desktop's font size.
QFont BodyFont();
QFont HeadingFont();
QFont TotalFont();

/// A style property by which the style sheet tells widgets apart ("figure", "fresh", "primary",
/// "heading", "card"), set and shown at once.
void SetStyleFlag(QWidget* widget, const char* flag, bool on);

}  // namespace tendo

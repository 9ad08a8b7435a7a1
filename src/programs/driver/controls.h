#pragma once

#include <QString>
#include <string>

#include "programs/driver/compare.h"

class QAbstractItemModel;
class QWidget;

namespace tendo::driver {

/// A control, or a tool on a screen's own bar, told by "FORM.CONTROL" with an optional ".PROPERTY".
struct ControlPath {
    std::string form, control, property;
};
ControlPath PathOf(const std::string& text);

/// A loaded screen by its name (the main window is "frmMDI"); throws when it isn't loaded.
QWidget* ScreenOf(const std::string& form);
/// A control of a loaded screen; throws when there is none of the name.
QWidget* ControlOf(const ControlPath& path);

/// text, memo, rich, label, button, check, option, combo, list, grid, tree, tab, picture, frame,
/// toolbar.
std::string KindOf(const QWidget* control);

/// One property: text (the default), kind, checked, enabled, visible, items, items[n], index, rows,
/// columns, row, caption, readonly, tooltip, name.
Json PropertyOf(QWidget* control, const std::string& property);

/// What `dump` shows of a control.
Json DumpOf(QWidget* control);
/// Controls of a screen in the order of their making, internal parts of compound controls left out.
Json DumpForm(QWidget* form);

/// The model behind a grid, list or tree; nullptr for other controls.
QAbstractItemModel* ModelOf(QWidget* control);
/// Shown text of a cell; throws outside the grid.
std::string CellOf(QWidget* grid, int row, int column);
std::string HeadOf(QWidget* grid, int column);

}  // namespace tendo::driver

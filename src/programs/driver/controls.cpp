#include "programs/driver/controls.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeView>
#include <stdexcept>

#include "platform/qt/form.h"
#include "platform/qt/mnemonics.h"

namespace tendo::driver {
namespace {

template <class Widget>
bool Is(const QWidget* widget) {
    return qobject_cast<const Widget*>(widget) != nullptr;
}

bool IsPicture(const QWidget* widget) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label && !label->pixmap(Qt::ReturnByValue).isNull();
}

/// Kinds by widget class; the first row that fits counts.
struct KindRow {
    const char* kind;
    bool (*fits)(const QWidget*);
};
const KindRow kindRows[] = {
    {"text", Is<QLineEdit>},
    {"memo", Is<QPlainTextEdit>},
    {"rich", Is<QTextEdit>},
    {"text", Is<QAbstractSpinBox>},
    {"check", Is<QCheckBox>},
    {"option", Is<QRadioButton>},
    {"button", Is<QAbstractButton>},
    {"combo", Is<QComboBox>},
    {"list", Is<QListView>},
    {"grid", Is<QTableView>},
    {"tree", Is<QTreeView>},
    {"tab", Is<QTabWidget>},
    {"tab", Is<QTabBar>},
    {"toolbar", Is<QToolBar>},
    {"picture", IsPicture},
    {"label", Is<QLabel>},
    {"frame", [](const QWidget*) { return true; }},
};

std::string S(const QString& text) {
    return text.toStdString();
}

Json ItemsOf(QWidget* control) {
    Json items = Json::array();
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        for (int i = 0; i < combo->count(); ++i)
            items.push_back(S(combo->itemText(i)));
    } else if (auto* tabs = qobject_cast<QTabWidget*>(control)) {
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->isTabVisible(i)) items.push_back(S(tabs->tabText(i)));
    } else if (auto* bar = qobject_cast<QTabBar*>(control)) {
        for (int i = 0; i < bar->count(); ++i)
            if (bar->isTabVisible(i)) items.push_back(S(bar->tabText(i)));
    } else if (auto* model = ModelOf(control)) {
        for (int i = 0; i < model->rowCount(); ++i)
            items.push_back(S(model->index(i, 0).data().toString()));
    }
    return items;
}

Json IndexOf(QWidget* control) {
    if (auto* combo = qobject_cast<QComboBox*>(control)) return combo->currentIndex();
    if (auto* tabs = qobject_cast<QTabWidget*>(control)) return tabs->currentIndex();
    if (auto* bar = qobject_cast<QTabBar*>(control)) return bar->currentIndex();
    if (auto* view = qobject_cast<QAbstractItemView*>(control)) return view->currentIndex().row();
    return nullptr;
}

std::string TextOfControl(QWidget* control) {
    if (auto* edit = qobject_cast<QLineEdit*>(control)) return S(edit->text());
    if (auto* memo = qobject_cast<QPlainTextEdit*>(control)) return S(memo->toPlainText());
    if (auto* rich = qobject_cast<QTextEdit*>(control)) return S(rich->toPlainText());
    if (auto* spin = qobject_cast<QAbstractSpinBox*>(control)) return S(spin->text());
    if (Is<QCheckBox>(control) || Is<QRadioButton>(control))
        return qobject_cast<QAbstractButton*>(control)->isChecked() ? "1" : "0";
    if (auto* button = qobject_cast<QAbstractButton*>(control)) return S(OwnCaption(button));
    if (auto* combo = qobject_cast<QComboBox*>(control)) return S(combo->currentText());
    if (auto* label = qobject_cast<QLabel*>(control)) return S(OwnCaption(label));
    if (auto* group = qobject_cast<QGroupBox*>(control)) return S(group->title());
    if (auto* tabs = qobject_cast<QTabWidget*>(control))
        return S(tabs->tabText(tabs->currentIndex()));
    if (auto* bar = qobject_cast<QTabBar*>(control)) return S(bar->tabText(bar->currentIndex()));
    if (auto* bar = qobject_cast<QScrollBar*>(control)) return std::to_string(bar->value());
    if (auto* progress = qobject_cast<QProgressBar*>(control)) return S(progress->text());
    if (auto* view = qobject_cast<QAbstractItemView*>(control))
        return S(view->currentIndex().data().toString());
    if (control->property("caption").isValid()) return S(control->property("caption").toString());
    return S(control->windowTitle());
}

/// Parts of compound controls, which the script has no names for.
bool IsInternal(const QWidget* widget) {
    const QString name = widget->objectName();
    return name.isEmpty() || name.startsWith("qt_") || name == "ScrollLeftButton" ||
           name == "ScrollRightButton";
}

Json IndexedItem(QWidget* control, const std::string& property) {
    const std::size_t at = static_cast<std::size_t>(std::stoul(property.substr(6)));
    const Json items = ItemsOf(control);
    if (at >= items.size())
        throw std::runtime_error("there are " + std::to_string(items.size()) + " items only");
    return items[at];
}

}  // namespace

ControlPath PathOf(const std::string& text) {
    ControlPath path;
    const std::size_t first = text.find('.');
    path.form = text.substr(0, first);
    if (first == std::string::npos) return path;
    const std::size_t second = text.find('.', first + 1);
    path.control =
        text.substr(first + 1, second == std::string::npos ? second : second - first - 1);
    if (second != std::string::npos) path.property = text.substr(second + 1);
    return path;
}

QWidget* ScreenOf(const std::string& form) {
    const QString name = QString::fromStdString(form);
    if (Form* found = Form::Find(name)) return found;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName().compare(name, Qt::CaseInsensitive) == 0) return widget;
    throw std::runtime_error("the form " + form + " is not loaded");
}

QWidget* ControlOf(const ControlPath& path) {
    QWidget* form = ScreenOf(path.form);
    if (path.control.empty()) throw std::runtime_error("a control is to be named as FORM.CONTROL");
    const QString name = QString::fromStdString(path.control);
    const auto* screen = qobject_cast<Form*>(form);
    QWidget* found = nullptr;
    // The window around a screen holds its scroll bars. Of two controls of a name, such as the
    // tools of two editors, the one in sight is meant.
    for (QWidget* place : {form, screen ? static_cast<QWidget*>(screen->SubWindow()) : nullptr})
        for (QWidget* widget : place ? place->findChildren<QWidget*>() : QList<QWidget*>()) {
            if (widget->objectName().compare(name, Qt::CaseInsensitive) != 0) continue;
            if (widget->isVisible()) return widget;
            if (!found) found = widget;
        }
    if (found) return found;
    throw std::runtime_error(path.form + " has no control " + path.control);
}

std::string KindOf(const QWidget* control) {
    for (const KindRow& row : kindRows)
        if (row.fits(control)) return row.kind;
    return "frame";
}

QAbstractItemModel* ModelOf(QWidget* control) {
    auto* view = qobject_cast<QAbstractItemView*>(control);
    return view ? view->model() : nullptr;
}

Json PropertyOf(QWidget* control, const std::string& property) {
    QAbstractItemModel* model = ModelOf(control);
    // The text of a tick box or an option is its state.
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && property == "caption")
        return S(OwnCaption(button));
    if (property.empty() || property == "text" || property == "caption")
        return TextOfControl(control);
    if (property == "kind") return KindOf(control);
    if (property == "enabled") return control->isEnabled();
    if (property == "visible") return control->isVisible();
    if (property == "items") return ItemsOf(control);
    if (property.starts_with("items[")) return IndexedItem(control, property);
    if (property == "index") return IndexOf(control);
    if (property == "tooltip") return S(control->toolTip());
    if (property == "name") return S(control->accessibleName());
    if (property == "rows" && model) return model->rowCount();
    if (property == "columns" && model) return model->columnCount();
    if (property == "row" && model) return IndexOf(control);
    if (property == "checked") {
        if (auto* button = qobject_cast<QAbstractButton*>(control)) return button->isChecked();
        if (auto* group = qobject_cast<QGroupBox*>(control)) return group->isChecked();
    }
    if (property == "readonly") {
        if (auto* edit = qobject_cast<QLineEdit*>(control)) return edit->isReadOnly();
        if (auto* memo = qobject_cast<QPlainTextEdit*>(control)) return memo->isReadOnly();
    }
    const QVariant value = control->property(property.c_str());
    if (!value.isValid()) throw std::runtime_error("no property " + property);
    if (value.typeId() == QMetaType::Bool) return value.toBool();
    return S(value.toString());
}

Json DumpOf(QWidget* control) {
    Json dump;
    dump["name"] = S(control->objectName());
    dump["kind"] = KindOf(control);
    dump["text"] = TextOfControl(control);
    dump["enabled"] = control->isEnabled();
    dump["visible"] = control->isVisible();
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && button->isCheckable())
        dump["checked"] = button->isChecked();
    const std::string kind = dump["kind"];
    if (kind == "combo" || kind == "list" || kind == "tab") {
        dump["items"] = ItemsOf(control);
        dump["index"] = IndexOf(control);
    }
    if (QAbstractItemModel* model = ModelOf(control)) {
        dump["rows"] = model->rowCount();
        dump["columns"] = model->columnCount();
    }
    return dump;
}

Json DumpForm(QWidget* form) {
    Json controls = Json::array();
    for (QWidget* widget : form->findChildren<QWidget*>())
        if (!IsInternal(widget)) controls.push_back(DumpOf(widget));
    return {{"caption", S(form->windowTitle())}, {"controls", controls}};
}

std::string CellOf(QWidget* grid, int row, int column) {
    QAbstractItemModel* model = ModelOf(grid);
    if (!model) throw std::runtime_error("not a grid");
    const QModelIndex index = model->index(row, column);
    if (!index.isValid()) throw std::runtime_error("the grid has no such cell");
    return S(index.data().toString());
}

std::string HeadOf(QWidget* grid, int column) {
    QAbstractItemModel* model = ModelOf(grid);
    if (!model) throw std::runtime_error("not a grid");
    if (column < 0 || column >= model->columnCount())
        throw std::runtime_error("the grid has no such column");
    return S(model->headerData(column, Qt::Horizontal).toString());
}

}  // namespace tendo::driver

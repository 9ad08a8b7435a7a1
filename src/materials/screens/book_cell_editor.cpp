#include "materials/screens/book_cell_editor.h"

#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include "platform/qt/icons.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int chevronSize = 14;
constexpr const char* lineSheet = "QLineEdit { border-radius: 0; min-height: 0; padding: 0 7px; }";

}  // namespace

BookCellEditor::BookCellEditor(const PriceBook& book, QObject* parent)
    : QStyledItemDelegate(parent), book_(book) {}

QWidget* BookCellEditor::MakeCategoryEditor(QWidget* parent) const {
    auto* combo = new QComboBox(parent);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    for (const std::string& name : book_.Categories())
        combo->addItem(QString::fromStdString(name));
    combo->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    auto* self = const_cast<BookCellEditor*>(this);
    connect(combo, &QComboBox::activated, self, [self] {
        if (!self->closesByKey_) self->Finish();
    });
    return combo;
}

QWidget* BookCellEditor::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                      const QModelIndex& index) const {
    closesByKey_ = false;
    if (index.column() == CategoryColumn) {
        editor_ = MakeCategoryEditor(parent);
    } else {
        auto* line = new QLineEdit(parent);
        line->setStyleSheet(lineSheet);
        line->setAlignment(static_cast<Qt::Alignment>(index.data(Qt::TextAlignmentRole).toInt()));
        editor_ = line;
    }
    const BookColumn& column = BookColumns.at(static_cast<std::size_t>(index.column()));
    editor_->setObjectName(QStringLiteral("txtCell"));
    editor_->setAccessibleName(column.heading);
    return editor_;
}

void BookCellEditor::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findText(text, Qt::MatchFixedString));
        combo->setEditText(text);
        combo->lineEdit()->selectAll();
    } else if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        line->setText(text);
    }
}

void BookCellEditor::setModelData(QWidget* editor, QAbstractItemModel* model,
                                  const QModelIndex& index) const {
    if (auto* combo = qobject_cast<QComboBox*>(editor))
        model->setData(index, combo->currentText());
    else if (auto* line = qobject_cast<QLineEdit*>(editor))
        model->setData(index, line->text());
}

void BookCellEditor::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                          const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

/// The ground is painted in `paint`: the style sheet would leave it out.
void BookCellEditor::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->backgroundBrush = QBrush();
}

/// The current cell of a category shows that it drops down.
void BookCellEditor::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    const QVariant ground = index.data(Qt::BackgroundRole);
    const bool selected = option.state & QStyle::State_Selected;
    if (ground.isValid() && !selected) painter->fillRect(option.rect, ground.value<QColor>());
    QStyledItemDelegate::paint(painter, option, index);
    if (index.column() != CategoryColumn || !selected) return;
    const double ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(option.rect.right() - chevronSize - 4,
                        option.rect.center().y() - chevronSize / 2 + 1,
                        LinePixmap("chevron-down", Theme().secondary, chevronSize, ratio));
}

bool BookCellEditor::eventFilter(QObject* editor, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        closesByKey_ = key == Qt::Key_Return || key == Qt::Key_Enter;
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

void BookCellEditor::Finish() {
    if (!editor_) return;
    QWidget* editor = editor_;
    editor_.clear();
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, NoHint);
}

}  // namespace tendo

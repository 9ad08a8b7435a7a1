#include "app/screens/command_search.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <utility>

#include "app/command_table.h"
#include "app/screens/bar.h"
#include "app/screens/command_dispatch.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr const char* shortcutText = "Ctrl+Shift+P";
constexpr int toolRole = Qt::UserRole + 1;

/// "File › Save As"
QString EntryText(const Command& command, const ActiveBar::Tool& tool) {
    QString caption = QString::fromStdString(tool.caption);
    caption.remove('&');
    if (caption.endsWith("...")) caption.chop(3);
    return QString("%1 \u203A %2").arg(QString::fromLatin1(command.band), caption);
}

}  // namespace

CommandSearch::CommandSearch(QWidget* parent) : QLineEdit(parent) {
    setObjectName("txtSearchCommands");
    setAccessibleName("Search commands");
    setPlaceholderText("Search commands");
    constexpr int edges = 32;
    setMinimumWidth(fontMetrics().horizontalAdvance("Search commands") + edges);
    setMaximumWidth(fontMetrics().horizontalAdvance("Search commands  Ctrl+Shift+P") + 2 * edges);
    setFocusPolicy(Qt::ClickFocus);
    auto* completer = new QCompleter(&model_, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setMaxVisibleItems(12);
    setCompleter(completer);
    connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
            [this](const QString& entry) { RunEntry(entry); });
    connect(this, &QLineEdit::returnPressed, this, [this] {
        if (!text().isEmpty() && this->completer()->completionCount() > 0)
            RunEntry(this->completer()->currentCompletion());
    });
}

void CommandSearch::Refill() {
    model_.clear();
    for (const Command& command : Commands()) {
        if (!*command.procedure || !MainBar().CanUse(command.tool)) continue;
        auto* item = new QStandardItem(EntryText(command, *MainBar().Find(command.tool)));
        item->setData(QString::fromLatin1(command.tool), toolRole);
        item->setSizeHint(QSize(0, fontMetrics().height() + 12));
        item->setEditable(false);
        model_.appendRow(item);
    }
}

void CommandSearch::RunEntry(const QString& entry) {
    const QList<QStandardItem*> found = model_.findItems(entry);
    if (found.isEmpty()) return;
    // Return may tell the choice twice, by the box and by its list; the list's is the later one.
    const bool waits = !chosenTool_.empty();
    chosenTool_ = found.front()->data(toolRole).toString().toStdString();
    if (waits) return;
    // The completer still writes its choice into the box when this returns.
    QTimer::singleShot(0, this, [this] {
        clear();
        clearFocus();
        ActiveBar_Click(std::exchange(chosenTool_, {}));
    });
}

void CommandSearch::focusInEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason) Refill();
    QLineEdit::focusInEvent(event);
}

void CommandSearch::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        clear();
        clearFocus();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void CommandSearch::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!text().isEmpty() || hasFocus()) return;
    QPainter painter(this);
    painter.setPen(Theme().secondary);
    painter.drawText(rect().adjusted(0, 0, -10, 0), Qt::AlignRight | Qt::AlignVCenter,
                     shortcutText);
}

}  // namespace tendo

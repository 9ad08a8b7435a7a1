#include "reports/screens/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "reports/screens/preview_tools.h"

namespace tendo {

FindBar::FindBar(QWidget* parent) : QWidget(parent) {
    setObjectName("fraFind");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 8, 8);
    row->setSpacing(4);
    txtFind_ = new QLineEdit(this);
    txtFind_->setObjectName("txtFind");
    txtFind_->setFixedWidth(fontMetrics().averageCharWidth() * 36);
    txtFind_->setClearButtonEnabled(false);
    txtFind_->installEventFilter(this);
    auto* label = new QLabel("F&ind:", this);
    label->setProperty("quiet", true);
    label->setBuddy(txtFind_);
    lblFindCount_ = new QLabel(this);
    lblFindCount_->setObjectName("lblFindCount");
    lblFindCount_->setMinimumWidth(fontMetrics().horizontalAdvance("Nothing found  "));
    btnFindPrevious_ = MakeTool({"btnFindPrevious", "previous", "Previous place (Shift+F3)"}, this);
    btnFindNext_ = MakeTool({"btnFindNext", "next", "Next place (F3)"}, this);
    auto* close = MakeTool({"btnFindClose", "close", "Close the search (Esc)"}, this);
    for (QWidget* part : {static_cast<QWidget*>(label), static_cast<QWidget*>(txtFind_)})
        row->addWidget(part);
    for (QWidget* part : {btnFindPrevious_, btnFindNext_})
        row->addWidget(part);
    row->addWidget(lblFindCount_);
    row->addStretch(1);
    row->addWidget(close);
    connect(txtFind_, &QLineEdit::textChanged, this, &FindBar::WantedChanged);
    connect(btnFindPrevious_, &QToolButton::clicked, this, [this] { Q_EMIT StepWanted(-1); });
    connect(btnFindNext_, &QToolButton::clicked, this, [this] { Q_EMIT StepWanted(1); });
    connect(close, &QToolButton::clicked, this, &FindBar::Closed);
    ShowCount(-1, 0);
}

void FindBar::Open() {
    show();
    txtFind_->setFocus(Qt::ShortcutFocusReason);
    txtFind_->selectAll();
}

QString FindBar::Wanted() const {
    return txtFind_->text();
}

void FindBar::ShowCount(int current, int count) {
    QString text;
    if (count > 0) text = QString("%1 of %2").arg(current + 1).arg(count);
    if (count == 0 && !Wanted().trimmed().isEmpty()) text = "Nothing found";
    const bool changed = lblFindCount_->text() != text;
    lblFindCount_->setText(text);
    if (changed && !text.isEmpty()) SpeakOf(lblFindCount_);
    btnFindPrevious_->setEnabled(count > 0);
    btnFindNext_->setEnabled(count > 0);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtFind_ || event->type() != QEvent::KeyPress) return false;
    const auto* press = static_cast<const QKeyEvent*>(event);
    if (press->key() != Qt::Key_Return && press->key() != Qt::Key_Enter) return false;
    Q_EMIT StepWanted(press->modifiers() & Qt::ShiftModifier ? -1 : 1);
    return true;
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return Q_EMIT Closed();
    QWidget::keyPressEvent(event);
}

}  // namespace tendo

#include "equipment/screens/system_form.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace tendo {

QVBoxLayout* SystemForm::MakeColumn() {
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(this);
    content_ = new QWidget;
    auto* column = new QVBoxLayout(content_);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(14);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content_);
    frame->addWidget(scroll);
    setMinimumSize(520, 320);
    return column;
}

QSize SystemForm::sizeHint() const {
    constexpr int scrollBar = 24;
    return {content_->minimumSizeHint().width() + scrollBar, content_->sizeHint().height()};
}

void SystemForm::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    if (watchesActivation_ || !SubWindow()) return;
    watchesActivation_ = true;
    connect(SubWindow(), &QMdiSubWindow::aboutToActivate, this, &SystemForm::Refill);
}

void RefillSystemForm(const QString& name) {
    if (auto* form = qobject_cast<SystemForm*>(Form::Find(name))) form->Refill();
}

}  // namespace tendo

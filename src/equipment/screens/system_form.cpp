#include "equipment/screens/system_form.h"

#include <QVBoxLayout>

#include "platform/qt/scroll_content.h"

namespace tendo {

QVBoxLayout* SystemForm::MakeColumn() {
    content_ = new QWidget;
    auto* column = new QVBoxLayout(content_);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(14);
    ScrollContent(this, content_);
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

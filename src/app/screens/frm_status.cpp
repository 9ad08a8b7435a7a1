#include "app/screens/frm_status.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tendo {
namespace {

/// What a user does to a window.
bool IsInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::ContextMenu:
        case QEvent::Drop:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

}  // namespace

frmStatus::frmStatus()
    : Form("frmStatus", "Converting...", Place::Child),
      lblStatus_(new QLabel("Converting...", this)),
      ProgressBar_(new QProgressBar(this)),
      btnCancel_(new QPushButton("Cancel", this)) {
    constexpr int width = 320;
    lblStatus_->setObjectName("lblStatus");
    lblStatus_->setTextFormat(Qt::PlainText);
    ProgressBar_->setObjectName("ProgressBar");
    ProgressBar_->setAccessibleName("Progress");
    ProgressBar_->setMinimumWidth(width);
    ProgressBar_->setValue(0);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 20, 24, 24);
    rows->setSpacing(12);
    rows->addWidget(lblStatus_);
    rows->addWidget(ProgressBar_);
    btnCancel_->setObjectName("btnCancel");
    btnCancel_->setShortcut(Qt::Key_Escape);
    btnCancel_->hide();
    connect(btnCancel_, &QPushButton::clicked, this, &frmStatus::btnCancel_Click);
    rows->addWidget(btnCancel_, 0, Qt::AlignRight);
}

void frmStatus::OfferCancel() {
    btnCancel_->show();
}

void frmStatus::btnCancel_Click() {
    cancelled_ = true;
    btnCancel_->setEnabled(false);
}

/// Closing the window asks for a stop as well; the conversion closes it when it has ended.
bool frmStatus::QueryUnload() {
    if (showing_) btnCancel_Click();
    return !showing_;
}

/// While a conversion runs, only this window is open to the user.
bool frmStatus::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || !IsInput(event->type())) return false;
    return widget != this && !isAncestorOf(widget) && widget != SubWindow();
}

bool frmStatus::ShowProgress(const std::string& what, int done, int whole) {
    lblStatus_->setText(QString::fromStdString(what));
    ProgressBar_->setRange(0, whole);
    ProgressBar_->setValue(done);
    if (btnCancel_->isHidden()) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        return true;
    }
    showing_ = true;
    qApp->installEventFilter(this);
    QApplication::processEvents();
    qApp->removeEventFilter(this);
    showing_ = false;
    return !cancelled_;
}

}  // namespace tendo

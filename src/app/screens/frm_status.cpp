#include "app/screens/frm_status.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace tendo {

frmStatus::frmStatus()
    : Form("frmStatus", "Converting...", Place::Child),
      lblStatus_(new QLabel("Converting...", this)),
      ProgressBar_(new QProgressBar(this)) {
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
}

void frmStatus::ShowProgress(const std::string& what, int done, int whole) {
    lblStatus_->setText(QString::fromStdString(what));
    ProgressBar_->setRange(0, whole);
    ProgressBar_->setValue(done);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace tendo

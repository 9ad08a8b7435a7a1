#include "app/screens/frm_splash.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "app/screens/pointer.h"
#include "platform/qt/icons.h"
#include "platform/qt/theme.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int logoWait = 1000;  // milliseconds
constexpr QSize designSize(440, 260);

/// The logo from the program directory: as it is named, or in a form that every desktop can draw.
QPixmap LogoPicture() {
    const QString named = QString::fromStdString(State().ProgramDirectory + State().LogoFileName);
    QPixmap picture(named);
    for (const char* extension : {"svg", "png"})
        if (picture.isNull()) picture = QPixmap(named.section('.', 0, -2) + "." + extension);
    return picture;
}

QLabel* AddLine(QVBoxLayout* column, const char* name, const QString& text, const QFont& font) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    column->addWidget(label);
    return label;
}

}  // namespace

frmSplash::frmSplash(std::function<void()> endOfWait)
    : Form("frmSplash", "TENDO", Place::Free),
      endOfWait_(std::move(endOfWait)),
      tmrLetUserSeeLogo_(new QTimer(this)) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 32, 32, 24);
    column->addStretch();
    const QPixmap picture = LogoPicture();
    auto* logo = new QLabel;
    logo->setObjectName("imgLogo");
    logo->setAlignment(Qt::AlignCenter);
    logo->setPixmap(picture.isNull() ? LinePixmap("tendo", Theme().accent, 72, devicePixelRatioF())
                                     : picture);
    column->addWidget(logo);
    QFont title = TotalFont();
    title.setPointSizeF(title.pointSizeF() * 1.5);
    AddLine(column, "lblTitle", "TENDO", title);
    AddLine(column, "lblSubTitle", "HVAC Estimating and Sales Proposal Program", BodyFont());
    column->addStretch();
    AddLine(column, "lblVersion", "Version " + QString::fromStdString(State().ProgramVersionText),
            BodyFont())
        ->setProperty("quiet", true);
    setMinimumSize(picture.isNull() ? designSize : designSize.expandedTo(picture.size()));
    tmrLetUserSeeLogo_->setObjectName("tmrLetUserSeeLogo");
    tmrLetUserSeeLogo_->setInterval(logoWait);
    connect(tmrLetUserSeeLogo_, &QTimer::timeout, this, &frmSplash::EndWait);
}

void frmSplash::ShowLogo() {
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    ShowForm();
    repaint();
    NormalPointer();
    if (waiting_) tmrLetUserSeeLogo_->start();
}

void frmSplash::EndWait() {
    if (!waiting_) return;
    waiting_ = false;
    tmrLetUserSeeLogo_->stop();
    endOfWait_();
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    EndWait();
}

void frmSplash::mousePressEvent(QMouseEvent*) {
    EndWait();
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Theme().field);
    painter.setPen(Theme().line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.fillRect(QRect(0, 0, width(), 4), Theme().accent);
}

}  // namespace tendo

#include "app/screens/frm_splash.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

#include "app/screens/pointer.h"
#include "platform/qt/icons.h"
#include "platform/qt/painter_picture.h"
#include "platform/qt/picture_store.h"
#include "platform/qt/theme.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int logoWait = 1000;  // milliseconds
constexpr QSize designSize(440, 260);
constexpr QSize largestLogo(420, 240);
// Logos are drawn for paper, so the screen is white in both sets of colours.
const QColor paper("#ffffff");
constexpr const char* paperText = "color: #1c2530";
constexpr const char* paperQuietText = "color: #5c6a79";

/// The picture of a file, no larger than there is room for; null when there is none to be shown.
/// A metafile has no size of its own and fills the room.
QPixmap PictureOf(const std::string& file) {
    const auto picture = LoadPicture(file);
    if (!picture || !picture->problem.isEmpty() || picture->size.isEmpty()) return {};
    QSize size = picture->size.toSize();
    if (!picture->metafile.empty() || size != size.boundedTo(largestLogo))
        size.scale(largestLogo, Qt::KeepAspectRatio);
    QPixmap shown(size);
    shown.fill(paper);
    QPainter painter(&shown);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPicture(painter, file, shown.rect(), 1);
    return shown;
}

/// The logo from the program directory: as it is named, or the drawing that comes with the program.
QPixmap LogoPicture() {
    const std::string named = State().ProgramDirectory + State().LogoFileName;
    const std::string stem = named.substr(0, named.rfind('.'));
    for (const std::string& file : {named, stem + ".svg", stem + ".png"})
        if (QPixmap picture = PictureOf(file); !picture.isNull()) return picture;
    return {};
}

QLabel* AddLine(QVBoxLayout* column, const char* name, const QString& text, const char* style) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setStyleSheet(style);
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
    if (picture.isNull()) AddLine(column, "lblTitle", "TENDO", paperText)->setFont(TotalFont());
    AddLine(column, "lblSubTitle", "HVAC Estimating and Sales Proposal Program", paperText);
    column->addStretch();
    AddLine(column, "lblVersion", "Version " + QString::fromStdString(State().ProgramVersionText),
            paperQuietText);
    setMinimumSize(designSize);
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
    // The main window unloads this screen while it loads, so nothing of it may be needed by then.
    const auto endOfWait = std::move(endOfWait_);
    endOfWait();
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    EndWait();
}

void frmSplash::mousePressEvent(QMouseEvent*) {
    EndWait();
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), paper);
    painter.setPen(Theme().line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tendo

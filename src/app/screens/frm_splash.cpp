#include "app/screens/frm_splash.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>
#include <QVBoxLayout>
#include <QtEndian>
#include <utility>

#include "app/screens/pointer.h"
#include "platform/qt/icons.h"
#include "platform/qt/painter_metafile.h"
#include "platform/qt/theme.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int logoWait = 1000;  // milliseconds
constexpr qint64 largestMetafile = 1 << 20;
constexpr QSize designSize(440, 260);
constexpr QSize largestLogo(420, 240);
// Logos are drawn for paper, so the screen is white in both sets of colours.
const QColor paper("#ffffff");
constexpr const char* paperText = "color: #1c2530";
constexpr const char* paperQuietText = "color: #5c6a79";

/// A Windows metafile in the proportions that its header tells; null when the file is none.
QPixmap MetafilePicture(const QString& fileName) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.read(largestMetafile);
    const auto corner = [&](int place) {
        return place + 2 <= bytes.size() ? qFromLittleEndian<qint16>(bytes.constData() + place) : 0;
    };
    const QSize size(std::abs(corner(10) - corner(6)), std::abs(corner(12) - corner(8)));
    if (size.isEmpty()) return {};
    QPixmap picture(size.scaled(largestLogo, Qt::KeepAspectRatio));
    picture.fill(paper);
    QPainter painter(&picture);
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return PaintMetafile(painter, content, picture.rect()) ? picture : QPixmap();
}

/// A drawing at the size it is shown at; null when the file is none. Drawn here: a pixmap that
/// reads its file would first have every plug-in for pictures loaded.
QPixmap DrawingPicture(const QString& fileName) {
    if (!QFile::exists(fileName)) return {};
    QSvgRenderer drawing(fileName);
    QSize size = drawing.defaultSize();
    if (!drawing.isValid() || size.isEmpty()) return {};
    if (size != size.boundedTo(largestLogo)) size.scale(largestLogo, Qt::KeepAspectRatio);
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    return picture;
}

/// The logo from the program directory: as it is named, or the drawing that comes with the program.
QPixmap LogoPicture() {
    const QString named = QString::fromStdString(State().ProgramDirectory + State().LogoFileName);
    const QString stem = named.section('.', 0, -2);
    QPixmap picture = MetafilePicture(named);
    if (picture.isNull() && QFile::exists(named)) picture = QPixmap(named);
    if (picture.isNull()) picture = DrawingPicture(stem + ".svg");
    if (picture.isNull()) picture = QPixmap(stem + ".png");
    const QSize size = picture.size();
    const bool large = size.width() > largestLogo.width() || size.height() > largestLogo.height();
    return large ? picture.scaled(largestLogo, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                 : picture;
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

#include "app/screens/workspace.h"

#include <QPainter>

#include "platform/files/ini_file_handler.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr const char* section = "Miscellaneous";
constexpr auto appWorkspace = static_cast<std::int32_t>(0x8000000C);

/// A colour as the profile keeps it: 0xBBGGRR, or the desktop's colour behind windows.
QColor StoredColor(const char* key) {
    const std::int32_t color = Ini().MyGetAppProfileLong(section, key, appWorkspace);
    if (color < 0) return Theme().workspace;
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

}  // namespace

WorkspaceArea::WorkspaceArea(QWidget* parent) : QMdiArea(parent), color_(Theme().workspace) {
    setObjectName("Workspace");
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setOption(DontMaximizeSubWindowOnActivation);
}

void WorkspaceArea::DrawBackground() {
    picture_ = QPixmap();
    color_ = Theme().workspace;
    switch (Ini().MyGetAppProfileLong(section, "WallpaperPictureOrColorOption", 0)) {
        case 0:
            color_ = StoredColor("MostRecentBackgroundColorWhetherCustomOrDefault");
            break;
        case 1:
            color_ = StoredColor("WallpaperLastCustomColorSelected");
            break;
        case 2: {
            picture_ = QPixmap(QString::fromStdString(
                Ini().MyGetAppProfileString(section, "WallpaperPictureFilename", "")));
            const std::int32_t mode =
                Ini().MyGetAppProfileLong(section, "WallPaperCenterTileStretchOrFit", 0);
            if (mode < 0 || mode > 3)
                ShowMessage("TENDO", "not supported yet.");
            else
                mode_ = static_cast<Mode>(mode);
            break;
        }
        default:
            ShowMessage("TENDO", "Bad case.");
    }
    viewport()->update();
}

QRect WorkspaceArea::PictureBox() const {
    const QRect room = viewport()->rect();
    QRect box(QPoint(0, 0), picture_.deviceIndependentSize().toSize());
    if (mode_ == Mode::Stretch) return room;
    if (mode_ == Mode::Fit) box.setSize(box.size().scaled(room.size(), Qt::KeepAspectRatio));
    box.moveCenter(room.center());
    return box;
}

void WorkspaceArea::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), color_);
    if (picture_.isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (mode_ == Mode::Tile)
        painter.drawTiledPixmap(viewport()->rect(), picture_);
    else
        painter.drawPixmap(PictureBox(), picture_);
}

}  // namespace tendo

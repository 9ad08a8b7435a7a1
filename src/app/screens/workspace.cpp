#include "app/screens/workspace.h"

#include <QMdiSubWindow>
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

/// What can be done while nothing is open.
void DrawHint(QPainter& painter, const QRect& room) {
    struct Line {
        const char* what;
        const char* how;
    };
    constexpr Line lines[] = {{"New project", "Ctrl+N"},
                              {"Open a project", "Ctrl+O"},
                              {"Find a command", "Ctrl+Shift+P"}};
    painter.setFont(BodyFont());
    painter.setPen(Theme().secondary);
    const QFontMetrics metrics = painter.fontMetrics();
    const int height = metrics.height() + 12;
    const int gap = 24;
    int y = room.center().y() - height * 2;
    for (const Line& line : lines) {
        painter.drawText(QRect(room.left(), y, room.width() / 2 - gap / 2, height),
                         Qt::AlignRight | Qt::AlignVCenter, line.what);
        painter.drawText(QRect(room.center().x() + gap / 2, y, room.width() / 2, height),
                         Qt::AlignLeft | Qt::AlignVCenter, line.how);
        y += height;
    }
    painter.drawText(QRect(room.left(), y, room.width(), height), Qt::AlignCenter,
                     "or drop a project file here");
}

}  // namespace

WorkspaceArea::WorkspaceArea(QWidget* parent) : QMdiArea(parent), color_(Theme().workspace) {
    setObjectName("Workspace");
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setOption(DontMaximizeSubWindowOnActivation);
    connect(this, &QMdiArea::subWindowActivated, this, [this] { viewport()->update(); });
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
    if (picture_.isNull()) {
        if (subWindowList().isEmpty() && color_ == Theme().workspace)
            DrawHint(painter, viewport()->rect());
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (mode_ == Mode::Tile)
        painter.drawTiledPixmap(viewport()->rect(), picture_);
    else
        painter.drawPixmap(PictureBox(), picture_);
}

}  // namespace tendo

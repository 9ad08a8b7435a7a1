#include "platform/qt/painter_page.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>
#include <optional>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/icons.h"
#include "platform/qt/painter_picture.h"
#include "platform/qt/text_measurer_qt.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

constexpr double TwipsPerInch = 1440, TwipsPerPoint = 20;
constexpr QColor IconColor(0x1C, 0x25, 0x30);

QPen PenOf(Rgb color, int width) {
    QPen pen(QColor::fromRgb(color));
    pen.setWidthF(width);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

QRectF RectOf(const auto& item) {
    return QRectF(QPointF(item.left, item.top), QPointF(item.right, item.bottom)).normalized();
}

/// Edges of boxes and level lines fall on whole dots of a screen or picture, where smoothing would
/// make two grey ones of each. Files and printers take no notice.
class WholeDots {
  public:
    explicit WholeDots(QPainter& painter) : painter_(painter) {
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }
    ~WholeDots() { painter_.setRenderHint(QPainter::Antialiasing, true); }
    WholeDots(const WholeDots&) = delete;
    WholeDots& operator=(const WholeDots&) = delete;

  private:
    QPainter& painter_;
};

void Paint(QPainter& painter, const BoxItem& box) {
    const WholeDots edges(painter);
    painter.setPen(box.outline ? PenOf(*box.outline, box.penWidth) : QPen(Qt::NoPen));
    painter.setBrush(box.fill ? QBrush(QColor::fromRgb(*box.fill)) : QBrush(Qt::NoBrush));
    painter.drawRect(RectOf(box));
}

void Paint(QPainter& painter, const LineItem& line) {
    painter.setPen(PenOf(line.color, line.penWidth));
    std::optional<WholeDots> edges;
    if (line.x1 == line.x2 || line.y1 == line.y2) edges.emplace(painter);
    painter.drawLine(QPointF(line.x1, line.y1), QPointF(line.x2, line.y2));
}

void Paint(QPainter& painter, const PictureItem& picture) {
    const QRectF box = RectOf(picture);
    if (box.isEmpty()) return;
    if (picture.path == ProgramIconPicture) {
        QSvgRenderer(LineDrawing(QStringLiteral("tendo"), IconColor)).render(&painter, box);
        return;
    }
    PaintPicture(painter, picture.path, box, TwipsPerPoint);
}

void Paint(QPainter& painter, const TextItem& text, const std::vector<FontSpec>& fonts,
           LetterSetter* letters) {
    const FontSpec& font = fonts.at(static_cast<std::size_t>(text.font));
    painter.setPen(QColor::fromRgb(text.color));
    if (letters && letters->Draw(painter, QPointF(text.x, text.y), font, text.text)) return;
    painter.setFont(DocumentFont(font));
    painter.drawText(QPointF(text.x, text.y), QString::fromStdString(text.text));
}

void SavePng(const QImage& image, const std::string& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) ThrowError(error_number::PermissionDenied);
    ReplaceFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace

void PaintPage(QPainter& painter, const Document& document, int page, double scale,
               LetterSetter* letters) {
    const Page& contents = document.pages.at(static_cast<std::size_t>(page));
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    painter.translate(page_geometry::PaperMargin, page_geometry::PaperMargin);
    for (const Shape& shape : contents.shapes)
        std::visit([&](const auto& item) { Paint(painter, item); }, shape);
    for (const TextItem& text : contents.texts)
        Paint(painter, text, document.fonts, letters);
    painter.restore();
}

QImage PageImage(const Document& document, int page, double dpi) {
    const double scale = dpi / TwipsPerInch;
    const auto pixels = [&](int twips) { return static_cast<int>(std::lround(twips * scale)); };
    QImage image(pixels(page_geometry::PaperWidth), pixels(page_geometry::PaperHeight),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintPage(painter, document, page, scale);
    return image;
}

std::string PagePngName(const std::string& path, int page) {
    return DirectoryOf(path) + StemOf(path) + "-" + std::to_string(page + 1) + ExtensionOf(path);
}

void WritePagePng(const Document& document, int page, const std::string& path, double dpi) {
    SavePng(PageImage(document, page, dpi), path);
}

void WritePng(const Document& document, const std::string& path, double dpi) {
    const bool single = document.pages.size() == 1;
    for (int page = 0; page < static_cast<int>(document.pages.size()); ++page)
        WritePagePng(document, page, single ? path : PagePngName(path, page), dpi);
}

}  // namespace tendo

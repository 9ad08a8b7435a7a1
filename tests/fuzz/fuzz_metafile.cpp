#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdint>
#include <string>

#include "platform/qt/painter_metafile.h"

/// Paints any bytes as a logo. The head is put in front, so that records are reached at once.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static int count = 1;
    static char name[] = "fuzz_metafile";
    static char* words[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, words);
    std::string bytes("\xD7\xCD\xC6\x9A\0\0\0\0\0\0\x64\0\x64\0", 14);
    bytes.resize(40);
    bytes.append(reinterpret_cast<const char*>(data), size);
    QImage image(32, 32, QImage::Format_RGB32);
    QPainter painter(&image);
    tendo::PaintMetafile(painter, bytes, QRectF(0, 0, 32, 32));
    return 0;
}

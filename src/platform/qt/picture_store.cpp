#include "platform/qt/picture_store.h"

#include <QDateTime>
#include <QFileInfo>
#include <algorithm>
#include <vector>

#include "platform/files/safe_file.h"
#include "platform/print/picture_check.h"
#include "platform/print/picture_kind.h"
#include "platform/print/picture_size.h"
#include "platform/qt/drawing_cleaner.h"
#include "platform/qt/metafile_converter.h"
#include "platform/qt/pixel_picture.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

constexpr std::uint64_t LargestFile = 64 << 20, LargestDrawing = 16 << 20;
constexpr std::size_t MostKept = 6;
constexpr qsizetype MostKeptBytes = 64 << 20;

/// A picture as it was read from a file in a certain state.
struct KeptPicture {
    std::string path;
    qint64 bytes = 0;
    QDateTime changed, status;
    std::shared_ptr<const LoadedPicture> picture;
    bool IsOf(const KeptPicture& other) const {
        return path == other.path && bytes == other.bytes && changed == other.changed &&
               status == other.status;
    }
};

/// The newest stands last.
std::vector<KeptPicture>& Kept() {
    static std::vector<KeptPicture> kept;
    return kept;
}

bool IsDrawn(PictureKind kind) {
    return kind == PictureKind::Drawing || kind == PictureKind::PlaceableMetafile ||
           kind == PictureKind::Metafile || kind == PictureKind::EnhancedMetafile;
}

void TakeDrawing(LoadedPicture& picture, const QByteArray& clean) {
    auto drawing = std::make_shared<QSvgRenderer>(clean);
    if (clean.isEmpty() || !drawing->isValid()) {
        picture.problem = QStringLiteral("is damaged");
        return;
    }
    if (picture.size.isEmpty()) picture.size = drawing->defaultSize();
    picture.drawing = std::move(drawing);
}

/// The header that a metafile without one lacks; its window's records tell the rest.
std::string PlaceableHeader(PictureSize size) {
    std::string header("\xD7\xCD\xC6\x9A");
    for (const int word : {0, 0, 0, size.width, size.height, 0, 0, 0, 0}) {
        header += static_cast<char>(word & 0xFF);
        header += static_cast<char>(word >> 8 & 0xFF);
    }
    return header;
}

void TakePixels(LoadedPicture& picture, std::string_view bytes) {
    if (HasTooManyPixels(bytes)) {
        picture.problem = QStringLiteral("is too large: %L1 by %L2 points")
                              .arg(static_cast<int>(picture.size.width()))
                              .arg(static_cast<int>(picture.size.height()));
        return;
    }
    picture.pixels = DecodePixels(bytes);
    picture.photograph = PictureKindOf(bytes) == PictureKind::Jpeg;
    if (picture.pixels.isNull()) picture.problem = QStringLiteral("is damaged");
}

void TakeBytes(LoadedPicture& picture, std::string_view bytes) {
    const PictureKind kind = PictureKindOf(bytes);
    const PictureSize size = PictureSizeOf(bytes).value_or(PictureSize{});
    picture.size = QSizeF(size.width, size.height);
    if (kind == PictureKind::None) {
        picture.problem = QStringLiteral("is not a picture");
    } else if (IsDrawn(kind) && bytes.size() > LargestDrawing) {
        picture.problem = QStringLiteral("is too large");
    } else if (!PictureIsWhole(bytes)) {
        picture.problem = QStringLiteral("is damaged");
    } else if (kind == PictureKind::Drawing) {
        TakeDrawing(picture, CleanDrawing(bytes));
    } else if (kind == PictureKind::PlaceableMetafile) {
        picture.metafile = bytes;
    } else if (kind == PictureKind::Metafile && !picture.size.isEmpty()) {
        picture.metafile = PlaceableHeader(size) + std::string(bytes);
    } else if (IsDrawn(kind)) {
        const ConvertedMetafile converted = ConvertMetafile(bytes);
        picture.problem = converted.problem;
        if (picture.problem.isEmpty()) TakeDrawing(picture, converted.drawing);
    } else {
        TakePixels(picture, bytes);
    }
}

std::shared_ptr<const LoadedPicture> ReadPicture(const QFileInfo& file) {
    auto picture = std::make_shared<LoadedPicture>();
    picture->name = file.fileName();
    try {
        TakeBytes(*picture, ReadWholeFile(file.filePath().toStdString(), LargestFile));
    } catch (const RuntimeError&) {
        picture->problem = file.size() > static_cast<qint64>(LargestFile)
                               ? QStringLiteral("is too large")
                               : QStringLiteral("cannot be read");
    }
    return picture;
}

qsizetype BytesOf(const LoadedPicture& picture) {
    return picture.pixels.sizeInBytes() + static_cast<qsizetype>(picture.metafile.size());
}

/// The newest picture always stays.
void ForgetOldest() {
    auto& kept = Kept();
    qsizetype bytes = 0;
    auto oldest = kept.end();
    while (oldest != kept.begin()) {
        bytes += BytesOf(*std::prev(oldest)->picture);
        const bool newest = oldest == kept.end();
        if (!newest && bytes > MostKeptBytes) break;
        --oldest;
    }
    kept.erase(kept.begin(), oldest);
    if (kept.size() > MostKept) kept.erase(kept.begin(), kept.end() - MostKept);
}

}  // namespace

std::shared_ptr<const LoadedPicture> LoadPicture(const std::string& path) {
    const QFileInfo file(QString::fromStdString(path));
    if (!file.isFile()) return nullptr;
    KeptPicture wanted{path, file.size(), file.lastModified(), file.metadataChangeTime(), nullptr};
    auto& kept = Kept();
    const auto found = std::find_if(kept.begin(), kept.end(),
                                    [&](const KeptPicture& entry) { return entry.IsOf(wanted); });
    if (found != kept.end()) {
        std::rotate(found, found + 1, kept.end());
        return kept.back().picture;
    }
    wanted.picture = ReadPicture(file);
    std::erase_if(kept, [&](const KeptPicture& entry) { return entry.path == path; });
    kept.push_back(std::move(wanted));
    ForgetOldest();
    return kept.back().picture;
}

}  // namespace tendo

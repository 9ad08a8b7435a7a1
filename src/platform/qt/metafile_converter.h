#pragma once

#include <QByteArray>
#include <QString>
#include <string_view>

namespace tendo {

/// What a converter made of a metafile: a clean drawing (SVG), or why there is none.
struct ConvertedMetafile {
    QByteArray drawing;
    QString problem;
};

/// Converts a 16-bit or an enhanced Windows metafile by the system's own programs, `wmf2svg` and
/// `emf2svg-conv`, when they are installed. They run alone in a folder of their own, without a
/// shell, and are ended when they take too long, write too much or want too much memory.
ConvertedMetafile ConvertMetafile(std::string_view bytes);

}  // namespace tendo

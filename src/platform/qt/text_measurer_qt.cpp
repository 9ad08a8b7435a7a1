#include "platform/qt/text_measurer_qt.h"

#include <QFontDatabase>

#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/text/text.h"

namespace tendo {

namespace {

/// Families of old files and the free ones that stand in for them, with equal or near widths.
struct FamilyPair {
    const char* name;
    const char* replacement;
};
constexpr std::array Families = {FamilyPair{"Arial", "Liberation Sans"},
                                 FamilyPair{"Helvetica", "Liberation Sans"},
                                 FamilyPair{"MS Sans Serif", "Liberation Sans"},
                                 FamilyPair{"Tahoma", "Liberation Sans"},
                                 FamilyPair{"Verdana", "Liberation Sans"},
                                 FamilyPair{"System", "Liberation Sans"},
                                 FamilyPair{"Times New Roman", "Liberation Serif"},
                                 FamilyPair{"Times", "Liberation Serif"},
                                 FamilyPair{"MS Serif", "Liberation Serif"},
                                 FamilyPair{"Courier New", "Liberation Mono"},
                                 FamilyPair{"Courier", "Liberation Mono"},
                                 FamilyPair{"Arial Narrow", "Liberation Sans Narrow"}};

QString Family(const std::string& name) {
    for (const FamilyPair& pair : Families)
        if (EqualsNoCase(pair.name, name)) return QString::fromLatin1(pair.replacement);
    return QString::fromStdString(name);
}

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

bool DocumentFontsInstalled() {
    return QFontDatabase::hasFamily("Liberation Sans");
}

QFont DocumentFont(const FontSpec& spec) {
    QFont font(QStringList{Family(spec.family), QStringLiteral("Liberation Sans")});
    font.setPixelSize(std::max(spec.sizeTwips, 1));
    font.setBold(spec.bold);
    font.setItalic(spec.italic);
    font.setUnderline(spec.underline);
    font.setStrikeOut(spec.strike);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

const QFontMetricsF& QtTextMeasurer::For(const FontSpec& font) {
    for (const auto& [spec, metrics] : fonts_)
        if (spec == font) return *metrics;
    fonts_.emplace_back(font, std::make_unique<QFontMetricsF>(DocumentFont(font)));
    return *fonts_.back().second;
}

double QtTextMeasurer::Width(const FontSpec& font, std::string_view text) {
    return For(font).horizontalAdvance(ToQString(text));
}

FontMetrics QtTextMeasurer::Metrics(const FontSpec& font) {
    const QFontMetricsF& metrics = For(font);
    const auto twips = [](double value) { return static_cast<int>(std::lround(value)); };
    return {twips(metrics.ascent()), twips(metrics.descent()), twips(metrics.lineSpacing()),
            twips(metrics.capHeight())};
}

}  // namespace tendo

#include "platform/qt/letter_setter.h"

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <array>
#include <cmath>
#include <limits>

#include "platform/qt/text_measurer_qt.h"

namespace tendo {

namespace {

constexpr std::size_t Letters = 256;  // Latin-1
constexpr unsigned char Blank = ' ';

/// The text as Latin-1; false for other letters and for those that aren't printed as they stand.
bool ToLatin(std::string_view text, std::vector<unsigned char>& letters) {
    letters.clear();
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto letter = static_cast<unsigned char>(text[i]);
        if (letter == 0xC2 || letter == 0xC3) {
            if (++i == text.size()) return false;
            letter = static_cast<unsigned char>((letter == 0xC3 ? 0x40 : 0) +
                                                static_cast<unsigned char>(text[i]));
            constexpr unsigned char noBreakSpace = 0xA0, softHyphen = 0xAD;
            if (letter <= noBreakSpace || letter == softHyphen) return false;
        } else if (letter < Blank || letter >= 0x7F) {
            return false;
        }
        letters.push_back(letter);
    }
    return true;
}

}  // namespace

class LetterSetter::FontLetters {
  public:
    explicit FontLetters(const FontSpec& font)
        : font_(DocumentFont(font)),
          raw_(QRawFont::fromFont(font_)),
          isPlain_(!font.underline && !font.strike && raw_.isValid()),
          steps_(Letters * Letters, Unknown) {
        QString all;
        for (std::size_t letter = 0; letter < Letters; ++letter)
            all += QChar(static_cast<char16_t>(letter));
        const QList<quint32> glyphs = raw_.glyphIndexesForString(all);
        const QList<QPointF> advances = raw_.advancesForGlyphIndexes(glyphs);
        isPlain_ = isPlain_ && glyphs.size() == qsizetype{Letters};
        for (std::size_t letter = 0; isPlain_ && letter < Letters; ++letter) {
            glyphs_[letter] = glyphs[static_cast<qsizetype>(letter)];
            advances_[letter] = advances[static_cast<qsizetype>(letter)].x();
        }
    }

    bool Draw(QPainter& painter, QPointF baseLine, std::string_view text) {
        if (!isPlain_ || !ToLatin(text, letters_) || !Set()) return false;
        if (run_.empty()) return true;
        QGlyphRun run;
        run.setRawFont(raw_);
        run.setRawData(run_.data(), places_.data(), static_cast<int>(run_.size()));
        painter.drawGlyphRun(baseLine, run);
        return true;
    }

  private:
    static constexpr float Unknown = -1, Joined = std::numeric_limits<float>::infinity();

    /// Glyphs and places of the letters; false when some join or are missing from the font. A blank
    /// is a gap only: readers tell words by their distance, and a sixth of a file is spared.
    bool Set() {
        run_.clear();
        places_.clear();
        double x = 0;
        for (std::size_t i = 0; i < letters_.size(); ++i) {
            if (glyphs_[letters_[i]] == 0) return false;
            if (letters_[i] != Blank) {
                run_.push_back(glyphs_[letters_[i]]);
                places_.emplace_back(std::round(x), 0);
            }
            x += i + 1 < letters_.size() ? Step(letters_[i], letters_[i + 1]) : 0;
            if (x == double{Joined}) return false;
        }
        return true;
    }

    /// From one letter to the next. Beside a blank there is no kerning: the layout measures words.
    double Step(unsigned char first, unsigned char second) {
        if (first == Blank || second == Blank) return advances_[first];
        float& step = steps_[first * Letters + second];
        if (step == Unknown) step = ShapedStep(first, second);
        return double{step};
    }

    float ShapedStep(unsigned char first, unsigned char second) const {
        QTextLayout layout(QString(QChar(first)) + QChar(second), font_);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        const QList<QGlyphRun> runs = layout.glyphRuns();
        if (runs.size() != 1 || runs[0].rawFont() != raw_ ||
            runs[0].glyphIndexes() != QList<quint32>{glyphs_[first], glyphs_[second]})
            return Joined;
        return static_cast<float>(runs[0].positions()[1].x() - runs[0].positions()[0].x());
    }

    QFont font_;
    QRawFont raw_;
    bool isPlain_;
    std::array<quint32, Letters> glyphs_{};
    std::array<double, Letters> advances_{};
    std::vector<float> steps_;  // by first letter and second
    // Of the text being drawn.
    std::vector<unsigned char> letters_;
    std::vector<quint32> run_;
    std::vector<QPointF> places_;
};

LetterSetter::LetterSetter() = default;

LetterSetter::~LetterSetter() = default;

LetterSetter::FontLetters& LetterSetter::For(const FontSpec& font) {
    for (const auto& [spec, letters] : fonts_)
        if (spec == font) return *letters;
    return *fonts_.emplace_back(font, std::make_unique<FontLetters>(font)).second;
}

bool LetterSetter::Draw(QPainter& painter, QPointF baseLine, const FontSpec& font,
                        std::string_view text) {
    return For(font).Draw(painter, baseLine, text);
}

}  // namespace tendo

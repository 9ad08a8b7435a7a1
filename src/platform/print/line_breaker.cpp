#include "platform/print/line_breaker.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace tendo {

namespace {

constexpr int DefaultTab = 720;
constexpr std::size_t LongestMeasured = 200;  // bytes; no word of a language is longer

struct Piece {
    std::string_view text;
    int font = 0;
    Rgb color = 0;
    double width = 0;
    int rise = 0;
};

/// A tab under way whose text is moved to its stop when it is known.
struct OpenTab {
    TabStop stop;
    double start = 0;
    std::size_t firstFragment = 0;
    StyledRun run;
};

/// Bytes of the first character; a broken byte counts as one.
std::size_t CharacterBytes(std::string_view text) {
    std::size_t bytes = 1;
    while (bytes < text.size() && bytes < 4 &&
           (static_cast<unsigned char>(text[bytes]) & 0xC0) == 0x80)
        ++bytes;
    return bytes;
}

/// True when a text begins with an accent that stands on the character before it (U+0300 to
/// U+036F).
bool BeginsWithAccent(std::string_view text) {
    if (text.size() < 2) return false;
    const auto first = static_cast<unsigned char>(text[0]);
    return first == 0xCC || (first == 0xCD && static_cast<unsigned char>(text[1]) < 0xB0);
}

/// Bytes of the first character and its accents.
std::size_t LetterBytes(std::string_view text) {
    std::size_t bytes = CharacterBytes(text);
    while (BeginsWithAccent(text.substr(bytes)))
        bytes += CharacterBytes(text.substr(bytes));
    return bytes;
}

/// A comma within a number parts nothing.
bool PartsNumber(std::string_view text, std::size_t at) {
    return text[at] == ',' && at + 1 < text.size() && text[at + 1] >= '0' && text[at + 1] <= '9';
}

/// Bytes up to and with the first sign behind which a long word may be broken.
std::size_t SyllableBytes(std::string_view text) {
    constexpr const char* Signs = "-/,_@";
    std::size_t sign = text.find_first_of(Signs, 1);
    while (sign != std::string_view::npos && PartsNumber(text, sign))
        sign = text.find_first_of(Signs, sign + 1);
    return sign == std::string_view::npos ? text.size() : sign + 1;
}

class LineBreaker {
  public:
    LineBreaker(FontTable& fonts, const LineShape& shape) : fonts_(fonts), shape_(shape) {
        StartLine(shape.firstIndent);
    }

    void Add(const StyledRun& run) {
        font_ = run.font;
        std::string_view rest = run.text;
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find_first_of(" \t\r\n"), rest.size());
            if (end > 0) AddWord(rest.substr(0, end), run);
            if (end < rest.size()) AddBreak(rest[end], run);
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    std::vector<TextLine> Finish() {
        FlushWord();
        EndLine();
        return std::move(lines_);
    }

  private:
    /// A text without blanks may be megabytes long; it is measured in pieces.
    void AddWord(std::string_view word, const StyledRun& run) {
        while (word.size() > LongestMeasured) {
            std::size_t bytes = 0;
            while (bytes < LongestMeasured)
                bytes += CharacterBytes(word.substr(bytes));
            AddWordPart({word.substr(0, bytes), run.font, run.color, 0, run.rise});
            word.remove_prefix(bytes);
        }
        AddWordPart({word, run.font, run.color, 0, run.rise});
    }

    void AddWordPart(Piece piece) {
        piece.width = fonts_.WordWidth(piece.font, piece.text);
        wordWidth_ += piece.width;
        word_.push_back(piece);
    }

    void AddBreak(char character, const StyledRun& run) {
        FlushWord();
        if (character == ' ') {
            blanks_.push_back({" ", run.font, run.color, fonts_.SpaceWidth(run.font), run.rise});
        } else if (character == '\t') {
            PlaceBlanks();
            CloseTab();
            StartTab(run);
        } else if (character == '\n') {
            EndLine();
            StartLine(shape_.restIndent);
        }
    }

    void StartLine(double x) { x_ = start_ = x; }
    bool IsStarted() const { return x_ > start_; }

    TabStop NextTab() const {
        for (const TabStop& tab : shape_.tabs)
            if (tab.position > x_) return tab;
        if (x_ < shape_.restIndent) return {shape_.restIndent};
        return {static_cast<int>(std::floor(x_ / DefaultTab) + 1) * DefaultTab};
    }

    void StartTab(const StyledRun& run) {
        const TabStop stop = NextTab();
        tab_ = {stop, x_, line_.fragments.size(), run};
        if (stop.align != TabAlign::Left) return;
        x_ = stop.position;
        AddLeader(x_);
        tab_.reset();
    }

    /// What stands behind the tab moves to its stop, as far as there is room.
    void CloseTab() {
        if (!tab_) return;
        const double width = x_ - tab_->start;
        const double before = tab_->stop.align == TabAlign::Right    ? width
                              : tab_->stop.align == TabAlign::Center ? width / 2
                                                                     : WidthBeforePoint(width);
        const double shift = std::max(tab_->stop.position - before - tab_->start, 0.0);
        for (std::size_t i = tab_->firstFragment; i < line_.fragments.size(); ++i)
            line_.fragments[i].x += shift;
        x_ += shift;
        if (line_.fragments.size() > tab_->firstFragment) line_.width += shift;
        AddLeader(tab_->start + shift);
        tab_.reset();
    }

    double WidthBeforePoint(double width) const {
        for (std::size_t i = tab_->firstFragment; i < line_.fragments.size(); ++i) {
            const LineFragment& fragment = line_.fragments[i];
            const std::size_t point = fragment.text.rfind('.');
            if (point == std::string::npos) continue;
            const std::string_view behind = std::string_view(fragment.text).substr(point);
            return fragment.x + fragment.width - fonts_.TextWidth(fragment.font, behind) -
                   tab_->start;
        }
        return width;
    }

    /// Leaders stand in columns, whatever the texts before them.
    void AddLeader(double end) {
        if (tab_->stop.leader == '\0') return;
        const std::string sign(1, tab_->stop.leader);
        const double width = std::max(fonts_.WordWidth(tab_->run.font, sign), 1.0);
        const double first = std::ceil(tab_->start / width + 0.5) * width;
        const double count = std::floor((end - first) / width - 0.5);
        if (count < 1) return;
        const auto place =
            line_.fragments.begin() + static_cast<std::ptrdiff_t>(tab_->firstFragment);
        line_.fragments.insert(place, {first, count * width, tab_->run.font, tab_->run.color,
                                       std::string(static_cast<std::size_t>(count), sign[0]), 0});
        line_.width = std::max(line_.width, first + count * width);
    }

    void FlushWord() {
        if (word_.empty()) return;
        double blankWidth = 0;
        for (const Piece& blank : blanks_)
            blankWidth += blank.width;
        if (IsStarted() && x_ + blankWidth + wordWidth_ > shape_.width) {
            EndLine();
            StartLine(shape_.restIndent);
        }
        PlaceBlanks();
        if (x_ + wordWidth_ <= shape_.width)
            for (const Piece& piece : word_)
                Place(piece);
        else
            PlaceBroken();
        word_.clear();
        wordWidth_ = 0;
    }

    void PlaceBlanks() {
        for (const Piece& blank : blanks_)
            Place(blank);
        blanks_.clear();
    }

    /// A word wider than the line: broken behind hyphens and the like, and where that doesn't do,
    /// as many characters as fit, at least one a line.
    void PlaceBroken() {
        for (const Piece& piece : word_)
            ForEachPart(piece, SyllableBytes, [this](const Piece& syllable) {
                if (syllable.width <=
                    shape_.width - std::max(shape_.restIndent, shape_.firstIndent))
                    PlacePart(syllable, false);
                else
                    ForEachPart(syllable, LetterBytes,
                                [this](const Piece& letter) { PlacePart(letter, true); });
            });
    }

    template <class Place>
    void ForEachPart(const Piece& piece, std::size_t (*bytesOfFirst)(std::string_view),
                     Place&& place) {
        std::string_view rest = piece.text;
        while (!rest.empty()) {
            const std::string_view part = rest.substr(0, bytesOfFirst(rest));
            place(Piece{part, piece.font, piece.color, fonts_.WordWidth(piece.font, part),
                        piece.rise});
            rest.remove_prefix(part.size());
        }
    }

    void PlacePart(const Piece& part, bool letter) {
        if (IsStarted() && x_ + part.width > shape_.width) {
            line_.torn = letter;
            EndLine();
            StartLine(shape_.restIndent);
        }
        Place(part);
    }

    void Place(const Piece& piece) {
        if (line_.fragments.size() > (tab_ ? tab_->firstFragment : 0)) {
            LineFragment& last = line_.fragments.back();
            if (last.font == piece.font && last.color == piece.color && last.rise == piece.rise &&
                last.x + last.width == x_) {
                last.text += piece.text;
                last.width += piece.width;
                x_ = last.x + last.width;
                if (piece.text != " ") line_.width = x_;
                return;
            }
        }
        line_.fragments.push_back(
            {x_, piece.width, piece.font, piece.color, std::string(piece.text), piece.rise});
        x_ += piece.width;
        if (piece.text != " ") line_.width = x_;
    }

    void EndLine() {
        blanks_.clear();
        CloseTab();
        const auto grow = [&](int font, int rise) {
            const FontMetrics& metrics = fonts_.Metrics(font);
            line_.ascent = std::max(line_.ascent, metrics.ascent + rise);
            line_.height = std::max(line_.height, metrics.lineHeight + std::abs(rise));
        };
        for (const LineFragment& fragment : line_.fragments)
            grow(fragment.font, fragment.rise);
        if (line_.fragments.empty()) grow(font_, 0);
        lines_.push_back(std::move(line_));
        line_ = {};
    }

    FontTable& fonts_;
    const LineShape& shape_;
    std::vector<TextLine> lines_;
    TextLine line_;
    std::vector<Piece> word_, blanks_;
    std::optional<OpenTab> tab_;
    double wordWidth_ = 0;
    double x_ = 0, start_ = 0;
    int font_ = 0;
};

}  // namespace

std::vector<StyledRun> StyledRuns(FontTable& fonts, const RichParagraph& paragraph) {
    std::vector<StyledRun> runs;
    for (const RichRun& run : paragraph.runs)
        runs.push_back({run.text, fonts.Id(run.font), run.color, run.rise});
    return runs;
}

std::vector<TextLine> BreakLines(FontTable& fonts, std::span<const StyledRun> runs,
                                 const LineShape& shape) {
    LineBreaker breaker(fonts, shape);
    for (const StyledRun& run : runs)
        breaker.Add(run);
    return breaker.Finish();
}

}  // namespace tendo

#include "platform/print/rich_builder.h"

#include <algorithm>
#include <utility>

#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t MostCells = 64;
constexpr std::size_t DeepestNote = 8;

bool SameFormat(const RichRun& a, const RichRun& b) {
    return a.color == b.color && a.rise == b.rise && a.font == b.font;
}

bool IsEmpty(const std::vector<RichRun>& runs) {
    return std::all_of(runs.begin(), runs.end(),
                       [](const RichRun& run) { return run.text.empty(); });
}

/// Broken letters become the sign for them. Control characters and the places to break a word (soft
/// hyphens, blanks of no width) are taken out: they would be printed.
void DropUnseen(std::vector<RichRun>& runs) {
    for (RichRun& run : runs) {
        if (!IsUtf8(run.text)) run.text = FromCodePoints(ToCodePoints(run.text));
        std::erase_if(run.text, [](char c) { return c >= 0 && c < ' ' && c != '\n' && c != '\t'; });
        for (const std::string_view unseen : {"\u00AD", "\u200B", "\uFEFF"})
            if (Contains(run.text, unseen)) run.text = Replaced(run.text, unseen, "");
    }
}

/// The mark of a list is as large as its text; many writers give it no size.
void SizeListMark(std::vector<RichRun>& runs) {
    const auto holdsTab = [](const RichRun& run) { return Contains(run.text, "\t"); };
    const auto tab = std::find_if(runs.begin(), runs.end(), holdsTab);
    if (tab == runs.end() || tab + 1 == runs.end()) return;
    for (auto run = runs.begin(); run <= tab; ++run)
        run->font.sizeTwips = (tab + 1)->font.sizeTwips;
}

/// Line ends at the end of a cell say nothing; a tab within it would part it in two.
void TidyCell(std::vector<RichRun>& runs) {
    for (RichRun& run : runs)
        std::replace(run.text.begin(), run.text.end(), '\t', ' ');
    while (!runs.empty()) {
        std::string& text = runs.back().text;
        while (EndsWith(text, "\n"))
            text.pop_back();
        if (!text.empty()) return;
        runs.pop_back();
    }
}

void Append(std::vector<RichRun>& to, std::vector<RichRun>&& from) {
    to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
    from.clear();
}

}  // namespace

void RichBuilder::AddText(std::string_view text, const RichRun& format) {
    if (runs_.empty() || !SameFormat(runs_.back(), format)) {
        runs_.push_back(format);
        runs_.back().text.clear();
    }
    runs_.back().text += text;
}

void RichBuilder::EndParagraph(const RichParagraph& format, const RichRun& base, bool inTable) {
    if (inTable) {
        cellAlign_ = format.align;
        return AddText("\n", base);
    }
    EndRow();
    DropUnseen(runs_);
    if (listText_) SizeListMark(runs_);
    RichParagraph paragraph = format;
    if (runs_.empty()) AddText("", base);
    paragraph.runs = std::move(runs_);
    runs_.clear();
    paragraph.bullet = listText_ && StartsWith(paragraph.runs.front().text, "\u2022");
    paragraph.pageBefore = paragraph.pageBefore || pageNext_;
    listText_ = pageNext_ = false;
    paragraphs_.push_back(std::move(paragraph));
}

bool RichBuilder::NeedsListMark() const {
    if (!listText_ || IsEmpty(runs_)) return false;
    const std::size_t first = runs_.front().text.find_first_not_of(' ');
    return first != std::string::npos && runs_.front().text[first] == '\t';
}

void RichBuilder::AddListMark(const std::string& mark) {
    std::string& text = runs_.front().text;
    text = mark + std::string(TrimmedLeft(text));
}

void RichBuilder::BreakPage(const RichParagraph& format, const RichRun& base) {
    if (!rowCells_.empty()) return;
    if (!runs_.empty()) EndParagraph(format, base, false);
    pageNext_ = true;
}

void RichBuilder::ResetRow() {
    edges_.clear();
    rowLeft_ = 0;
}

void RichBuilder::AddCellEdge(int right, unsigned lines) {
    if (edges_.size() < MostCells)
        edges_.push_back({std::max(right - rowLeft_, 0), RichAlign::Inherit, lines});
}

void RichBuilder::EndCell(const RichParagraph& format) {
    listText_ = false;
    const bool ended = !runs_.empty() && EndsWith(runs_.back().text, "\n");
    const RichAlign align = ended ? cellAlign_ : format.align;
    DropUnseen(runs_);
    TidyCell(runs_);
    if (rowCells_.size() < MostCells) {
        if (!rowCells_.empty()) {
            rowRuns_.push_back(runs_.empty() ? rowRuns_.back() : runs_.front());
            rowRuns_.back().text = "\t";
        } else if (runs_.empty()) {
            rowRuns_.emplace_back();
        }
        rowCells_.push_back({0, align, 0});
    }
    Append(rowRuns_, std::move(runs_));
}

/// Cells beyond the row's edges are kept when they hold something.
void RichBuilder::EndRow() {
    if (rowCells_.empty()) return;
    if (!IsEmpty(runs_)) EndCell({});
    RichParagraph row;
    while (rowCells_.size() > std::max<std::size_t>(edges_.size(), 1) &&
           EndsWith(rowRuns_.back().text, "\t")) {
        rowRuns_.back().text.pop_back();
        if (rowRuns_.back().text.empty()) rowRuns_.pop_back();
        rowCells_.pop_back();
    }
    for (std::size_t i = 0; i < std::min(edges_.size(), rowCells_.size()); ++i) {
        rowCells_[i].right = edges_[i].right;
        rowCells_[i].lines = edges_[i].lines;
    }
    row.leftIndent = std::max(rowLeft_, 0);
    row.cells = std::move(rowCells_);
    row.runs = std::move(rowRuns_);
    row.pageBefore = pageNext_;
    pageNext_ = false;
    rowCells_.clear();
    rowRuns_.clear();
    runs_.clear();
    paragraphs_.push_back(std::move(row));
}

void RichBuilder::BeginNote() {
    if (outer_.size() >= DeepestNote) return;
    outer_.push_back({std::exchange(paragraphs_, {}), std::exchange(runs_, {}),
                      std::exchange(rowRuns_, {}), std::exchange(rowCells_, {})});
}

void RichBuilder::EndNote(const RichParagraph& format, const RichRun& base) {
    if (outer_.empty()) return;
    EndRow();
    if (!runs_.empty()) EndParagraph(format, base, false);
    notes_.insert(notes_.end(), std::make_move_iterator(paragraphs_.begin()),
                  std::make_move_iterator(paragraphs_.end()));
    paragraphs_ = std::move(outer_.back().paragraphs);
    runs_ = std::move(outer_.back().runs);
    rowRuns_ = std::move(outer_.back().rowRuns);
    rowCells_ = std::move(outer_.back().rowCells);
    outer_.pop_back();
}

RichText RichBuilder::Take(const RichParagraph& format, const RichRun& base) {
    while (InNote())
        EndNote(format, base);
    EndRow();
    if (!runs_.empty() || paragraphs_.empty()) EndParagraph(format, base, false);
    paragraphs_.insert(paragraphs_.end(), std::make_move_iterator(notes_.begin()),
                       std::make_move_iterator(notes_.end()));
    return {std::move(paragraphs_)};
}

}  // namespace tendo

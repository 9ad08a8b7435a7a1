#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/print/rich_model.h"

namespace tendo {

/// Puts a rich text together: paragraphs, the rows of tables, and the notes that stand behind all
/// else. The texts of nested tables stand in their outer cell.
class RichBuilder {
  public:
    void AddText(std::string_view text, const RichRun& format);
    /// A paragraph in the given format; within a table just a new line of the cell.
    void EndParagraph(const RichParagraph& format, const RichRun& base, bool inTable);
    /// The paragraph begun has the mark of a list.
    void MarkListText() { listText_ = true; }
    /// True when a list's mark was announced for the paragraph begun but is blank.
    bool NeedsListMark() const;
    void AddListMark(const std::string& mark);
    /// What follows begins on a new page.
    void BreakPage(const RichParagraph& format, const RichRun& base);

    void ResetRow();
    void SetRowLeft(int twips) { rowLeft_ = twips; }
    /// The edge of the next cell of the rows that follow.
    void AddCellEdge(int right, unsigned lines);
    void EndCell(const RichParagraph& format);
    void EndRow();

    /// The text of a note follows until `EndNote`; the number of the last note is `Notes()`.
    void BeginNote();
    void EndNote(const RichParagraph& format, const RichRun& base);
    int Notes() const { return noteCount_; }
    void CountNote() { ++noteCount_; }
    bool InNote() const { return !outer_.empty(); }

    RichText Take(const RichParagraph& format, const RichRun& base);

  private:
    /// A text under work.
    struct Part {
        std::vector<RichParagraph> paragraphs;
        std::vector<RichRun> runs, rowRuns;
        std::vector<RichCell> rowCells;
    };

    std::vector<RichParagraph> paragraphs_, notes_;
    std::vector<RichRun> runs_, rowRuns_;
    std::vector<RichCell> rowCells_, edges_;
    std::vector<Part> outer_;
    int rowLeft_ = 0;
    RichAlign cellAlign_ = RichAlign::Inherit;  // of the last paragraph ended in the cell begun
    int noteCount_ = 0;
    bool listText_ = false;
    bool pageNext_ = false;
};

}  // namespace tendo

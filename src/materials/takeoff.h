#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "materials/takeoff_line.h"

namespace tendo {

/// What the page of a takeoff walks through.
enum class TakeoffView : std::uint8_t { All, Materials, Accessories, Both };

/// Choosing from a price book: a page of fifteen rows that moves over the whole catalogue or over
/// what was selected in it, however many rows there are. Edits go from the page's lines to the
/// catalogue when a field is left, when the page moves and when the takeoff is stored; lines that
/// weren't edited write nothing. Rows and positions count from 0.
class Takeoff {
  public:
    static constexpr int PageRows = 15;
    static constexpr int SelectedRows = 100;  // a selected view shows no more

    /// `caption` begins every title ("Select Material Costs"); `keepsTitle`: the titles while the
    /// user moves through the rows are spelled as those of the views. The catalogue isn't owned.
    Takeoff(std::vector<MaterialRow>& catalogue, std::string caption, bool keepsTitle = false);

    /// Called when lines of the page were filled anew.
    std::function<void()> PageFilled;
    /// Called when the title changed.
    std::function<void()> TitleChanged;

    /// Starts at the top of the whole catalogue, which was replaced; edits of the page are dropped.
    void Reset();
    /// Fills the page anew from rows that were changed behind it; edits of the page are dropped.
    void Refill();
    /// Puts what the page holds into the rows.
    void Store();

    /// Builds a view and shows it from its top. Does nothing while one is building.
    void Show(TakeoffView view);
    TakeoffView View() const { return view_; }
    const std::vector<MaterialRow>& Catalogue() const { return catalogue_; }
    /// Rows of the view.
    int Count() const;
    const MaterialRow& Row(int position) const;
    const std::string& Title() const { return title_; }

    TakeoffLine& Line(int row) { return lines_.at(static_cast<std::size_t>(row)); }
    const TakeoffLine& Line(int row) const { return lines_.at(static_cast<std::size_t>(row)); }
    /// Leaves a field of the page; what changed goes into the row at once.
    bool Leave(int row, TakeoffField field);

    int Top() const { return top_; }
    /// The last top row; 0 when the view fits the page.
    int ScrollRange() const;
    void ScrollTo(int top);
    /// The row of the page that the user is in.
    int CurrentRow() const { return current_; }
    int Position() const { return top_ + current_; }
    void SetCurrentRow(int row);
    /// Moves by rows, and the page with them at its edges; by 15 the page turns.
    void Step(int rows);
    void TurnPage(int pages) { ScrollTo(top_ + pages * PageRows); }
    /// Puts the page at a row, as far as its fifteen rows stay inside, and makes that the current
    /// one.
    void GoTo(int position);

    /// Goes to the first material of a category; false when there is none.
    bool GoToCategory(const std::string& category);
    /// Goes to the next material behind the current one whose description holds the text, in any
    /// case; false when there is none.
    bool FindNext(const std::string& text);
    /// The same from the first row on.
    bool FindFirst(const std::string& text);
    /// Goes to the first material whose description begins with the text, in any case, else to the
    /// first that holds it; false when none does.
    bool JumpTo(const std::string& text);

    /// Takes quantity, tax and accessory mark from every row of the catalogue. Prices stay.
    void ClearSelections();

  private:
    MaterialRow& RowBehind(int position);
    void BuildSelected();
    void FillPage();
    void StoreLine(int row);
    bool Find(const std::string& text, int from);
    void ShowCount();
    void ShowPosition();
    void SetTitle(std::string title);

    std::vector<MaterialRow>& catalogue_;
    std::string caption_;
    bool keepsTitle_;
    TakeoffView view_ = TakeoffView::All;
    std::vector<MaterialRow> selectedView_;  // at most 100 rows; empty in the whole list
    std::vector<std::int32_t> places_;       // of the selected rows in the catalogue
    std::array<TakeoffLine, PageRows> lines_;
    int top_ = 0, current_ = 0;
    bool building_ = false;
    std::string title_;
};

/// The rows of the catalogue with a quantity, in order: the whole takeoff.
std::vector<MaterialRow> SelectedMaterials(const std::vector<MaterialRow>& catalogue);

}  // namespace tendo

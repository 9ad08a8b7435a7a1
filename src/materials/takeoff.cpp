#include "materials/takeoff.h"

#include <algorithm>

namespace tendo {
namespace {

struct ViewPlan {
    bool (*takes)(const MaterialRow& row);
    const char* countTitle;  // of a view that was just built
    const char* countUnit;
    const char* positionTitle;  // while the user moves through the rows
};
// Two titles have no blank before their hyphen when a view is built, and have it afterwards.
const ViewPlan plans[] = {
    {[](const MaterialRow&) { return true; }, " - Viewing All Materials and Accessories - ",
     " Materials", " - Viewing All Materials and Accessories - "},
    {[](const MaterialRow& row) { return row.ItemQty > 0 && row.Accessory == 0; },
     " - Viewing Selected Materials - ", " Selected", " - Viewing Selected Materials - "},
    {[](const MaterialRow& row) { return row.ItemQty > 0 && row.Accessory != 0; },
     " - Viewing Selected Accessories- ", " Selected", " - Viewing Selected Accessories - "},
    {[](const MaterialRow& row) { return row.ItemQty > 0; },
     " - Viewing Selected Materials and Accessories- ", " Selected",
     " - Viewing Selected Materials and Accessories - "}};

const ViewPlan& PlanOf(TakeoffView view) {
    return plans[static_cast<std::size_t>(view)];
}

}  // namespace

Takeoff::Takeoff(std::vector<MaterialRow>& catalogue, std::string caption, bool keepsTitle)
    : catalogue_(catalogue), caption_(std::move(caption)), keepsTitle_(keepsTitle) {
    Reset();
}

void Takeoff::Reset() {
    view_ = TakeoffView::All;
    selectedView_.clear();
    places_.clear();
    top_ = current_ = 0;
    FillPage();
    ShowCount();
}

void Takeoff::Refill() {
    if (view_ != TakeoffView::All) BuildSelected();
    top_ = std::clamp(top_, 0, ScrollRange());
    current_ = std::clamp(current_, 0, std::max(0, std::min(PageRows, Count()) - 1));
    FillPage();
    ShowCount();
}

void Takeoff::Show(TakeoffView view) {
    if (building_) return;
    building_ = true;
    Store();
    view_ = view;
    BuildSelected();
    top_ = current_ = 0;
    FillPage();
    ShowCount();
    building_ = false;
}

void Takeoff::BuildSelected() {
    selectedView_.clear();
    places_.clear();
    if (view_ == TakeoffView::All) return;
    for (std::size_t i = 0; i < catalogue_.size() && selectedView_.size() < SelectedRows; ++i) {
        if (!PlanOf(view_).takes(catalogue_[i])) continue;
        selectedView_.push_back(catalogue_[i]);
        places_.push_back(static_cast<std::int32_t>(i));
    }
}

int Takeoff::Count() const {
    return static_cast<int>(view_ == TakeoffView::All ? catalogue_.size() : selectedView_.size());
}

const MaterialRow& Takeoff::Row(int position) const {
    const auto at = static_cast<std::size_t>(position);
    return view_ == TakeoffView::All ? catalogue_.at(at) : selectedView_.at(at);
}

/// The row of the catalogue; two materials of one description stay two.
MaterialRow& Takeoff::RowBehind(int position) {
    const auto at = static_cast<std::size_t>(position);
    return catalogue_.at(view_ == TakeoffView::All ? at : static_cast<std::size_t>(places_.at(at)));
}

void Takeoff::FillPage() {
    for (int row = 0; row < PageRows; ++row) {
        if (top_ + row < Count())
            Line(row).Show(Row(top_ + row));
        else
            Line(row).Blank();
    }
    if (PageFilled) PageFilled();
}

void Takeoff::StoreLine(int row) {
    if (!Line(row).IsEdited() || top_ + row >= Count()) return;
    const auto at = static_cast<std::size_t>(top_) + static_cast<std::size_t>(row);
    // A catalogue that was loaded anew may be shorter than the view that was built on it.
    if (view_ != TakeoffView::All && static_cast<std::size_t>(places_.at(at)) >= catalogue_.size())
        return;
    MaterialRow& behind = RowBehind(top_ + row);
    Line(row).Store(behind);
    if (view_ != TakeoffView::All) selectedView_.at(at) = behind;
}

void Takeoff::Store() {
    for (int row = 0; row < PageRows; ++row)
        StoreLine(row);
}

bool Takeoff::Leave(int row, TakeoffField field) {
    const bool changed = Line(row).Leave(field);
    StoreLine(row);
    return changed;
}

int Takeoff::ScrollRange() const {
    return std::max(0, Count() - PageRows);
}

void Takeoff::ScrollTo(int top) {
    top = std::clamp(top, 0, ScrollRange());
    if (top == top_) return;
    Store();
    top_ = top;
    FillPage();
    ShowPosition();
}

void Takeoff::SetCurrentRow(int row) {
    row = std::clamp(row, 0, std::max(0, std::min(PageRows, Count() - top_) - 1));
    if (row == current_) return;
    current_ = row;
    ShowPosition();
}

void Takeoff::Step(int rows) {
    const int wanted = current_ + rows;
    const int last = std::max(0, std::min(PageRows, Count()) - 1);
    if (wanted < 0) ScrollTo(top_ + wanted);
    if (wanted > last) ScrollTo(top_ + wanted - last);
    SetCurrentRow(std::clamp(wanted, 0, last));
}

void Takeoff::GoTo(int position) {
    if (position < 0 || position >= Count()) return;
    ScrollTo(position);
    SetCurrentRow(position - top_);
}

void Takeoff::ClearSelections() {
    Store();
    for (MaterialRow& row : catalogue_)
        row.ItemQty = row.Tax = row.Accessory = 0;
    Refill();
}

void Takeoff::ShowCount() {
    const ViewPlan& plan = PlanOf(view_);
    SetTitle(caption_ + plan.countTitle + std::to_string(Count()) + plan.countUnit);
}

void Takeoff::ShowPosition() {
    if (Count() == 0) return;
    const ViewPlan& plan = PlanOf(view_);
    SetTitle(caption_ + (keepsTitle_ ? plan.countTitle : plan.positionTitle) +
             std::to_string(Position() + 1) + " of " + std::to_string(Count()) + " Materials");
}

void Takeoff::SetTitle(std::string title) {
    if (title == title_) return;
    title_ = std::move(title);
    if (TitleChanged) TitleChanged();
}

std::vector<MaterialRow> SelectedMaterials(const std::vector<MaterialRow>& catalogue) {
    std::vector<MaterialRow> rows;
    std::copy_if(catalogue.begin(), catalogue.end(), std::back_inserter(rows),
                 [](const MaterialRow& row) { return row.ItemQty > 0; });
    return rows;
}

}  // namespace tendo

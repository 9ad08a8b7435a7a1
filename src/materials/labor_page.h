#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// The fields of a labor line, in the order of the eye.
enum class LaborField {
    QtyHrs,
    LaborDescription,
    LaborPerHour,
    LaborCost,
    GrossMargin,
    PriceMarkup,
    LaborPrice
};
inline constexpr int LaborFieldCount = 7;
/// A project or a list has as many lines as stand on the one screen.
inline constexpr int LaborLineCount = SavedLaborRowCount;

struct LaborFieldDescription {
    const char* name;          // of the control array: "txtQtyHrs"
    float LaborRow::*value;    // nullptr for the description
    std::string_view picture;  // how the value stands
};
const LaborFieldDescription& Describe(LaborField field);

/// The 15 labor lines as their screen shows them: texts, and what runs when one changes or is left.
/// All values pass through the texts, so the display's rounding is part of the arithmetic. Serves
/// the project's labor and a labor list under edit alike.
///
/// Changes and commits don't throw: a failure ends the step and is told through `ShowMessage`.
class LaborPage {
  public:
    /// `rows`: at least 15, and as long-lived as the page.
    explicit LaborPage(std::vector<LaborRow>& rows);
    LaborPage(const LaborPage&) = delete;
    LaborPage& operator=(const LaborPage&) = delete;

    /// Called after a text changed; lines count from 0.
    std::function<void(int line, LaborField)> TextChanged;
    /// A message box: title and text.
    std::function<void(const std::string&, const std::string&)> ShowMessage;

    const std::string& Text(int line, LaborField field) const;
    /// The number that a field's text reads as.
    float Value(int line, LaborField field) const;

    /// Records to texts. A line without hours is blank, whatever else it holds.
    void ShowRows();
    /// The same for lines read from a list, which keeps no costs: each is hours times rate.
    void ShowListRows();
    /// Texts to records.
    void StoreRows() const;

    /// What typing does to a field: its text, then its change event.
    void SetText(int line, LaborField field, const std::string& text);
    /// What leaving a field does.
    void Commit(int line, LaborField field);
    /// Blank descriptions and rates, "0.0" hours, "$0.00" money on all lines.
    void Clear();

  private:
    /// Where the percentages of a line come from. They show one decimal, which must not be taken
    /// back as input when nothing was typed.
    struct Percentages {
        bool typed = false;  // one of them, since the price gave both
        float costThen = 0;  // the line's cost when the price gave them
    };
    struct Line {
        std::array<std::string, LaborFieldCount> texts;
        Percentages percentages;
    };

    std::string& Held(int line, LaborField field);
    void Write(int line, LaborField field, std::string text);
    void Show(int line, LaborField field, float value, std::string_view picture);
    void ShowRow(int line);
    void RunCommit(int line, LaborField field);
    void CommitHours(int line);
    void CommitRate(int line);
    void CommitPercentage(int line, LaborField field);
    bool HasNoRate(int line) const;
    float ExactPercentage(int line, LaborField field) const;
    void ShowCost(int line);
    void ShowPercentages(int line);
    void Guard(LaborField field, const char* event, const std::function<void()>& step);

    std::vector<LaborRow>& rows_;
    std::array<Line, LaborLineCount> lines_;
};

}  // namespace tendo

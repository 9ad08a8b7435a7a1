#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "pricing/price_fields.h"
#include "project/project_records.h"

namespace tendo {

/// Numbers of the price table's rows.
namespace price_row {
inline constexpr int None = 0;  // tax and profit only
inline constexpr int Model = 1, TaxMat = 2, NonTax = 3, Labor = 4, Total = 5;
}  // namespace price_row

/// Numbers of what was edited before a recalculation.
namespace price_field {
inline constexpr int Nothing = 0, DealerCost = 1, DealerOverride = 2, GrossMargin = 3,
                     PriceMarkup = 4, ListDiscount = 5, SalePrice = 6;
}  // namespace price_field

/// How a sale price came about.
enum class PriceOrigin : std::uint8_t {
    Filled,  // from the project: saved, or left by the model, material and labor screens
    Entered,
    FromMargin,
    FromMarkup,
    FromDiscount,
    FromDefaultMargin,
    FromRows,     // the total: all rows and the tax
    FromSubTotal  // the total: a zero one filled in
};

/// A sale price's origin, and what it was calculated from when it was: the cost, list base or taxed
/// sub-total in dollars, and the exact percentage.
struct PriceTrace {
    PriceOrigin origin = PriceOrigin::Filled;
    float base = 0;
    float percent = 0;
};

/// The project's price table as the screen shows it: the texts of all its fields, and what runs
/// when one changes or is left. All values pass through the texts, so the display's rounding is
/// part of the arithmetic. A text written again as it stands causes nothing; that ends the
/// cascades.
///
/// No function here throws: what fails is told through `ShowMessage`, and the next step runs.
class PriceTable {
  public:
    explicit PriceTable(ProjectRecords& records);
    PriceTable(const PriceTable&) = delete;
    PriceTable& operator=(const PriceTable&) = delete;

    /// Called after a field's text changed, before the rest of its cascade.
    std::function<void(TableField)> TextChanged;
    /// A message box: title and text.
    std::function<void(const std::string&, const std::string&)> ShowMessage;

    const std::string& Text(TableField field) const;
    /// The number that a price field's text reads as.
    float Value(TableField field) const;

    /// How the sale price of a row (1 to 5) came about.
    const PriceTrace& TraceOf(int priceRow) const;
    /// What the list discount of a row (1 to 4) is measured against, in dollars.
    float ListBaseOf(int priceRow) const;

    /// What typing and code do to a field: its text, then its change event.
    void SetText(TableField field, const std::string& text);
    /// What leaving a field does.
    void Commit(TableField field);

    /// Opening the screen shows the saved total and profit, whatever the rows add up to; the exact
    /// values begin at 0. Closing stores the texts.
    void Open();
    void Close();
    bool IsOpen() const { return open_; }

    /// Records to texts; nothing when the screen is closed or `FieldChanged` isn't set.
    void SetSystemTendos();
    /// Shows the current system's models as another screen left them. That is no edit of this one.
    void FollowModels();
    /// Texts to records, the current system's models included; nothing when the screen is closed.
    void GetSystemTendos();
    void DoAllMiddleItemsAtLoadTime();

    /// The models of the next system, behind the last one the first; all five count.
    void NextSystem();
    void PreviousSystem();

    /// Recalculates a row after an edit, then tax, total and profit. Numbers: price_field,
    /// price_row.
    void TendoCalculations(int priceField, int priceRow);

    void RecalcSubTotalSalePrice();
    void RecalcTax();
    void RecalcTotalDealerCost();
    void RecalcTotalDealerOverride();
    void RecalcTotalSalePrice();
    void RecalcProfit();

    /// Set by a change of a price text; the material and labor screens set it before a refill.
    bool FieldChanged = false;
    bool LoadInProgress = false;
    int CurrentPriceRow = price_row::None;

    /// The exact percentages behind the one decimal shown, by row number less 1.
    std::array<float, 5> EditedGrossMargin{};
    std::array<float, 4> EditedPriceMarkup{};
    std::array<float, 4> EditedListDiscount{};

  private:
    using Result = std::function<float()>;

    // Texts and their change events (price_table.cpp).
    void Write(TableField field, std::string text);
    void Show(TableField field, float value, std::string_view picture);
    void ShowMoney(TableField field, double value);
    void RunChange(TableField field);
    void MarkChanged(TableField field);
    void KeepExact(TableField field);
    void ProfitChanged();
    float& Exact(TableField field);
    void Trace(int priceRow, const PriceTrace& trace);

    // Leaving a field (price_commit.cpp).
    void RunCommit(TableField field);
    void WriteSameOrMoney(TableField cost, TableField override);
    void WriteSame(TableField cost, TableField override);
    void CommitOverride(TableField field);
    void CommitPercentage(TableField field);
    void CommitSalePrice(TableField field);
    void CommitTotal(TableField field);
    void CommitTaxPercentage();
    void CommitModelNumber(TableField field);

    // The row's and the Total row's arithmetic (price_calculations.cpp).
    void CalculateRow(int priceField, int priceRow);
    void CalculateTotalRow(int priceField);
    void RebuildModelDealerCost();
    void CalculateFromOverride(int row, float cost);
    void TakeDefaultMargin(int row, float cost);
    void ShowMargin(int row, float cost);
    void ShowMarkup(int row, float cost);
    void ShowDiscount(int row);
    void ShowResult(TableField field, std::string_view picture, const Result& result);
    float& ListBase(int row);

    // Records to texts and back (price_screen.cpp).
    void WriteOverrides();
    void WriteSalePrice(TableField field);
    void WriteSalePrices();
    void ShowModels();
    void StoreModelTexts();
    void MoveSystem(int step);

    /// Runs one statement; a failure is shown as "In SUB, Error #N = DESCRIPTION".
    void Attempt(const char* sub, const std::function<void()>& statement);
    /// Runs a whole procedure; a failure is shown in the common form.
    void Guard(const std::string& sub, const std::function<void()>& procedure);

    ProjectRecords& records_;
    std::array<std::string, TableFieldCount> texts_;
    std::array<float, TableFieldCount> values_{};
    std::array<bool, TableFieldCount> modelTextEdited_{};
    std::array<PriceTrace, 5> traces_{};
    bool open_ = false;
};

/// Brings the totals of a project up to date whose price table isn't open, after its materials or
/// labor changed.
void RecalcClosedPriceTable(ProjectRecords& records);

}  // namespace tendo

#include <utility>

#include "pricing/price_reason_details.h"
#include "pricing/priced_models.h"
#include "pricing/relations.h"

namespace tendo {

namespace {

using Part = PriceReason::Part;
using Origin = PriceOrigin;

constexpr const char* EarlierCalculation = "stands from an earlier calculation";
constexpr const char* FollowsFromPrice = "follows from cost and sale price";

/// Where the figures of a row come from.
struct RowSources {
    const char* cost;
    const char* costRule;
    const char* override;
    const char* price;  // one that was neither entered nor calculated
    const char* list;
};
constexpr RowSources Sources[] = {
    {"the models of all systems, times their quantities",
     "Every model's dealer cost times its quantity, added up over all five systems",
     "entered, or the models' own overrides added up",
     "saved, or the list prices of the chosen models", "the models' price at the last refill"},
    {"the taxable materials", "Unit cost times quantity, added up over the taxable materials",
     "entered for this row", "saved, or the materials' sale prices added up",
     "the materials' sale price when their screen was closed"},
    {"the materials that are not taxed",
     "Unit cost times quantity, added up over the materials that are not taxed",
     "entered for this row", "saved, or the materials' sale prices added up",
     "the materials' sale price when their screen was closed"},
    {"the labor lines", "The labor costs of all labor lines, added up", "entered for this row",
     "saved, or the labor lines' prices added up", "the labor cost when its screen was closed"}};

/// One row of the table, asked for its reasons.
class RowReason {
  public:
    RowReason(const PriceTable& table, const ProjectRecords& records, int row)
        : table_(table), records_(records), row_(row), sources_(Sources[row - 1]) {}

    PriceReason Of(FieldKind column) const;

  private:
    TableField Field(FieldKind column) const { return RowField(row_, column); }
    float Value(FieldKind column) const { return table_.Value(Field(column)); }
    float Cost() const {
        return EffectiveCost(Value(FieldKind::DealerCost), Value(FieldKind::DealerOverride));
    }
    float Sale() const { return Value(FieldKind::SalePrice); }
    float List() const { return table_.ListBaseOf(row_); }
    bool Shows(FieldKind column, float percent) const {
        return ShowsPercent(table_, Field(column), percent);
    }

    bool IsCause(FieldKind column) const;
    bool IsDefault() const;
    bool IsSetByTaxableMarkup() const;
    bool FollowsNow(FieldKind column) const;
    WorkedFormula Follows(FieldKind column) const;
    WorkedFormula PriceFormula() const;

    std::string OverrideSource() const;
    std::string PercentageSource(FieldKind column) const;
    std::vector<Part> Parts() const;

    void TellCost(PriceReason& reason) const;
    void TellModelCosts(PriceReason& reason) const;
    void TellOverride(PriceReason& reason) const;
    void TellPercentage(PriceReason& reason, FieldKind column) const;
    void TellStaleMargin(PriceReason& reason) const;
    void TellPrice(PriceReason& reason) const;
    void TellModelPrices(PriceReason& reason) const;
    void TellCostSince(PriceReason& reason) const;

    const PriceTable& table_;
    const ProjectRecords& records_;
    int row_;
    const RowSources& sources_;
};

/// The sale price follows from this percentage, and the field still shows it.
bool RowReason::IsCause(FieldKind column) const {
    const PriceTrace& trace = table_.TraceOf(row_);
    return trace.origin == CauseOf(column) &&
           !IsPercentEdit(table_.Value(Field(column)), trace.percent);
}

bool RowReason::IsDefault() const {
    const PriceTrace& trace = table_.TraceOf(row_);
    return trace.origin == Origin::FromDefaultMargin &&
           Shows(FieldKind::GrossMargin, trace.percent);
}

/// The markup of taxable materials sets the models' margin, from the models' price and its own
/// cost.
bool RowReason::IsSetByTaxableMarkup() const {
    if (row_ != price_row::Model) return false;
    if (table_.TraceOf(price_row::TaxMat).origin != Origin::FromMarkup) return false;
    const RowReason taxable(table_, records_, price_row::TaxMat);
    return Shows(FieldKind::GrossMargin, GrossMarginFromSale(taxable.Cost(), Sale()));
}

bool RowReason::FollowsNow(FieldKind column) const {
    switch (column) {
        case FieldKind::PriceMarkup:
            return Shows(column, MarkupFromSale(Cost(), Sale()));
        case FieldKind::ListDiscount:
            return Shows(column, ListDiscountFromSale(List(), Sale()));
        default:
            return Shows(column, GrossMarginFromSale(Cost(), Sale()));
    }
}

WorkedFormula RowReason::Follows(FieldKind column) const {
    if (column == FieldKind::PriceMarkup) return MarkupFormula(Cost(), Sale());
    if (column == FieldKind::ListDiscount) return ListDiscountFormula(List(), Sale());
    return GrossMarginFormula(Cost(), Sale());
}

WorkedFormula RowReason::PriceFormula() const {
    const PriceTrace& trace = table_.TraceOf(row_);
    switch (trace.origin) {
        case Origin::FromMarkup:
            return SaleFromMarkupFormula(trace.base, trace.percent);
        case Origin::FromDiscount:
            return SaleFromDiscountFormula(trace.base, trace.percent);
        default:
            return SaleFromMarginFormula(trace.base, trace.percent);
    }
}

std::string RowReason::OverrideSource() const {
    return Value(FieldKind::DealerOverride) == 0 ? "none, so the dealer cost counts"
                                                 : sources_.override;
}

std::string RowReason::PercentageSource(FieldKind column) const {
    if (IsCause(column)) return "entered";
    if (column == FieldKind::GrossMargin && IsDefault()) return "your default, from the options";
    if (FollowsNow(column)) {
        return column == FieldKind::ListDiscount ? "follows from list price and sale price"
                                                 : FollowsFromPrice;
    }
    if (column == FieldKind::GrossMargin && IsSetByTaxableMarkup())
        return "set by the markup of taxable materials";
    return EarlierCalculation;
}

std::vector<Part> RowReason::Parts() const {
    const auto part = [&](const char* name, FieldKind column, std::string source) {
        return Part{name, table_.Text(Field(column)), std::move(source)};
    };
    const auto percentage = [&](const char* name, FieldKind column) {
        return part(name, column, PercentageSource(column));
    };
    return {part("Dealer cost", FieldKind::DealerCost, sources_.cost),
            part("Override", FieldKind::DealerOverride, OverrideSource()),
            percentage("Gross margin", FieldKind::GrossMargin),
            percentage("Price markup", FieldKind::PriceMarkup),
            percentage("List discount", FieldKind::ListDiscount),
            part("Sale price", FieldKind::SalePrice,
                 PriceSourceOf(table_.TraceOf(row_).origin, sources_.price)),
            {"List price", MoneyText(List()), List() == 0 ? "none" : sources_.list}};
}

void RowReason::TellCost(PriceReason& reason) const {
    reason.rule = sources_.costRule;
    if (row_ == price_row::Model) return TellModelCosts(reason);
    reason.note = row_ == price_row::Labor ? "Filled in when the Labor Costs screen is closed."
                                           : "Filled in when the Material Costs screen is closed.";
    reason.parts = Parts();
}

void RowReason::TellModelCosts(PriceReason& reason) const {
    double sum = 0;
    for (const PricedModel& model : PricedModels(records_)) {
        const std::string term =
            std::to_string(model.quantity) + " × " + MoneyText(model.dealerCost);
        reason.worked += (reason.worked.empty() ? "" : " + ") + term;
        reason.parts.push_back({model.title, term, model.database});
        sum += static_cast<double>(model.dealerCost) * model.quantity;
    }
    const std::string counted = MoneyText(sum);
    if (!reason.worked.empty()) reason.worked += " = " + counted;
    if (counted != reason.figure)
        reason.note = "The figure stands from before; it becomes " + counted +
                      " when a price of this row is next edited.";
}

void RowReason::TellOverride(PriceReason& reason) const {
    const std::string cost = table_.Text(Field(FieldKind::DealerCost));
    if (Value(FieldKind::DealerOverride) == 0) {
        reason.rule = "No override: the row is calculated with its dealer cost, " + cost;
    } else {
        reason.rule = "It takes the place of the dealer cost, " + cost;
        if (row_ != price_row::Model)
            reason.note = std::string("It lasts until the ") +
                          (row_ == price_row::Labor ? "Labor" : "Material") +
                          " Costs screen is next closed.";
    }
    reason.parts = Parts();
}

void RowReason::TellPercentage(PriceReason& reason, FieldKind column) const {
    reason.parts = Parts();
    const bool isDefault = column == FieldKind::GrossMargin && IsDefault();
    if (IsCause(column) || isDefault) {
        const WorkedFormula price = PriceFormula();
        reason.rule = std::string(isDefault ? "Your default margin" : "Entered") +
                      "; the sale price follows from it: " + price.words;
        reason.worked = price.figures;
        return TellCostSince(reason);
    }
    const WorkedFormula formula = Follows(column);
    reason.rule = formula.words;
    reason.worked = formula.figures;
    if (FollowsNow(column)) return;
    if (column == FieldKind::GrossMargin) return TellStaleMargin(reason);
    reason.note = reason.figure.find('$') == std::string::npos
                      ? "The figure stands from an earlier calculation."
                      : "As saved, and shown as money until the next calculation.";
}

void RowReason::TellStaleMargin(PriceReason& reason) const {
    if (IsSetByTaxableMarkup()) {
        const RowReason taxable(table_, records_, price_row::TaxMat);
        const WorkedFormula crossing = GrossMarginFormula(taxable.Cost(), Sale());
        reason.rule =
            "Set by the markup of taxable materials, from their cost and the models' sale price: " +
            crossing.words;
        reason.worked = crossing.figures;
    } else if (row_ == price_row::TaxMat && table_.TraceOf(row_).origin == Origin::FromMarkup) {
        reason.note = "Stands as it was: the markup of this row sets the margin of the models.";
    } else {
        reason.note = "The figure stands from an earlier calculation.";
    }
}

void RowReason::TellPrice(PriceReason& reason) const {
    reason.parts = Parts();
    switch (table_.TraceOf(row_).origin) {
        case Origin::Entered:
            reason.rule = "Entered; margin, markup and discount follow from it";
            return;
        case Origin::Filled:
            reason.rule = std::string("From the project: ") + sources_.price;
            if (row_ == price_row::Model) TellModelPrices(reason);
            return;
        default:
            break;
    }
    const WorkedFormula formula = PriceFormula();
    reason.rule = formula.words;
    reason.worked = formula.figures;
    TellCostSince(reason);
}

void RowReason::TellModelPrices(PriceReason& reason) const {
    double sum = 0;
    std::string terms;
    for (const PricedModel& model : PricedModels(records_)) {
        terms += (terms.empty() ? "" : " + ") + MoneyText(model.salePrice);
        sum += model.salePrice;
    }
    if (terms.empty() || MoneyText(sum) != reason.figure) return;
    reason.rule = "The prices of the chosen models, added up";
    reason.worked = terms + " = " + MoneyText(sum);
}

void RowReason::TellCostSince(PriceReason& reason) const {
    const PriceTrace& trace = table_.TraceOf(row_);
    const bool ofList = trace.origin == Origin::FromDiscount;
    const float base = ofList ? List() : Cost();
    if (base == trace.base) return;
    reason.note = std::string(ofList ? "The list price" : "The cost") + " has changed to " +
                  MoneyText(base) + " since; the sale price stayed.";
}

PriceReason RowReason::Of(FieldKind column) const {
    PriceReason reason{.title = FieldTitle(Field(column)), .figure = table_.Text(Field(column))};
    if (column == FieldKind::DealerCost) TellCost(reason);
    if (column == FieldKind::DealerOverride) TellOverride(reason);
    if (column == FieldKind::SalePrice) TellPrice(reason);
    if (column == FieldKind::GrossMargin || column == FieldKind::PriceMarkup ||
        column == FieldKind::ListDiscount)
        TellPercentage(reason, column);
    return reason;
}

}  // namespace

PriceReason WhyRowPrice(const PriceTable& table, const ProjectRecords& records, TableField field) {
    return RowReason(table, records, Describe(field).row).Of(Describe(field).kind);
}

}  // namespace tendo

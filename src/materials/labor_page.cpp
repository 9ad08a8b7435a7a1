#include "materials/labor_page.h"

#include <optional>
#include <utility>

#include "platform/text/arithmetic.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "pricing/relations.h"

namespace tendo {
namespace {

constexpr std::string_view ratePicture = "$#,##0.00";
constexpr std::string_view defaultRatePicture = "$##0.00";
constexpr std::string_view pricedPicture = "$###,###,##0.00";  // of a price that a percentage gave
constexpr const char* noMoney = "$0.00";
constexpr const char* noPercentage = "0.0";

const LaborFieldDescription descriptions[LaborFieldCount] = {
    {"txtQtyHrs", &LaborRow::QtyHrs, PercentPicture},
    {"txtLaborDescription", nullptr, ""},
    {"txtLaborPerHour", &LaborRow::LaborPerHour, ratePicture},
    {"txtLaborCost", &LaborRow::LaborCost, MoneyPicture},
    {"txtGrossMargin", &LaborRow::GrossMargin, PercentPicture},
    {"txtPriceMarkup", &LaborRow::PriceMarkup, PercentPicture},
    {"txtLaborPrice", &LaborRow::LaborPrice, MoneyPicture},
};

/// How a percentage follows from cost and price, and how it gives a price.
struct PercentageRelations {
    float (*fromSale)(float cost, float sale);
    float (*sale)(float cost, float percentage);
};

PercentageRelations RelationsOf(LaborField field) {
    if (field == LaborField::GrossMargin) return {GrossMarginFromSale, SaleFromGrossMargin};
    return {MarkupFromSale, SaleFromMarkup};
}

bool IsPercentage(LaborField field) {
    return field == LaborField::GrossMargin || field == LaborField::PriceMarkup;
}

/// A number, or a simple expression of numbers; 0 for anything else.
float HoursOfText(const std::string& text) {
    const std::optional<double> computed = EvaluateArithmetic(text);
    return computed ? StoreSingle(*computed) : ValueOfText(text);
}

float TimesRate(float hours, float rate) {
    return StoreSingle(static_cast<double>(hours) * static_cast<double>(rate));
}

}  // namespace

const LaborFieldDescription& Describe(LaborField field) {
    return descriptions[static_cast<std::size_t>(field)];
}

LaborPage::LaborPage(std::vector<LaborRow>& rows) : rows_(rows) {}

const std::string& LaborPage::Text(int line, LaborField field) const {
    return lines_.at(static_cast<std::size_t>(line)).texts[static_cast<std::size_t>(field)];
}

std::string& LaborPage::Held(int line, LaborField field) {
    return lines_.at(static_cast<std::size_t>(line)).texts[static_cast<std::size_t>(field)];
}

float LaborPage::Value(int line, LaborField field) const {
    return ValueOfText(Text(line, field));
}

void LaborPage::ShowRows() {
    for (int line = 0; line < LaborLineCount; ++line)
        ShowRow(line);
}

void LaborPage::ShowListRows() {
    ShowRows();
    for (int line = 0; line < LaborLineCount; ++line)
        if (Value(line, LaborField::QtyHrs) != 0)
            Guard(LaborField::LaborCost, "_Change", [&] {
                ShowCost(line);
                lines_[static_cast<std::size_t>(line)].percentages.costThen =
                    Value(line, LaborField::LaborCost);
            });
}

/// The texts alone: the percentages are the record's, and don't follow from the price here.
void LaborPage::ShowRow(int line) {
    const LaborRow& row = rows_.at(static_cast<std::size_t>(line));
    lines_[static_cast<std::size_t>(line)].percentages = {false, row.LaborCost};
    for (int i = 0; i < LaborFieldCount; ++i) {
        const auto field = static_cast<LaborField>(i);
        const LaborFieldDescription& description = Describe(field);
        std::string text;
        if (row.QtyHrs != 0)
            text = description.value ? FormatNumber(row.*description.value, description.picture)
                                     : row.LaborDescription.Trimmed();
        if (Text(line, field) == text) continue;
        Held(line, field) = std::move(text);
        if (TextChanged) TextChanged(line, field);
    }
}

void LaborPage::StoreRows() const {
    for (int line = 0; line < LaborLineCount; ++line) {
        LaborRow& row = rows_.at(static_cast<std::size_t>(line));
        row.LaborDescription = Text(line, LaborField::LaborDescription);
        for (int i = 0; i < LaborFieldCount; ++i) {
            const auto field = static_cast<LaborField>(i);
            if (Describe(field).value) row.*Describe(field).value = Value(line, field);
        }
    }
}

void LaborPage::SetText(int line, LaborField field, const std::string& text) {
    if (IsPercentage(field) && text != Text(line, field))
        lines_.at(static_cast<std::size_t>(line)).percentages.typed = true;
    Guard(field, "_Change", [&] { Write(line, field, text); });
}

void LaborPage::Write(int line, LaborField field, std::string text) {
    std::string& held = Held(line, field);
    if (held == text) return;
    held = std::move(text);
    if (TextChanged) TextChanged(line, field);
    if (field == LaborField::LaborPrice) ShowPercentages(line);
}

void LaborPage::Show(int line, LaborField field, float value, std::string_view picture) {
    Write(line, field, FormatNumber(value, picture));
}

void LaborPage::ShowPercentages(int line) {
    const float cost = Value(line, LaborField::LaborCost);
    const float price = Value(line, LaborField::LaborPrice);
    for (const LaborField field : {LaborField::GrossMargin, LaborField::PriceMarkup}) {
        if (cost == 0 || price == 0)
            Write(line, field, noPercentage);
        else
            Show(line, field, RelationsOf(field).fromSale(cost, price), PercentPicture);
    }
    lines_[static_cast<std::size_t>(line)].percentages = {false, cost};
}

void LaborPage::Commit(int line, LaborField field) {
    Guard(field, "_LostFocus", [&] { RunCommit(line, field); });
}

void LaborPage::RunCommit(int line, LaborField field) {
    switch (field) {
        case LaborField::QtyHrs:
            return CommitHours(line);
        case LaborField::LaborPerHour:
            return CommitRate(line);
        case LaborField::GrossMargin:
        case LaborField::PriceMarkup:
            return CommitPercentage(line, field);
        case LaborField::LaborPrice:
            return Show(line, field, Value(line, field), MoneyPicture);
        default:
            return;
    }
}

void LaborPage::CommitHours(int line) {
    Show(line, LaborField::QtyHrs, HoursOfText(Text(line, LaborField::QtyHrs)), PercentPicture);
    if (HasNoRate(line)) {
        Show(line, LaborField::LaborPerHour, Project().GPDProjectFormat.LaborRate,
             defaultRatePicture);
        Write(line, LaborField::LaborCost, noMoney);
        Write(line, LaborField::LaborPrice, noMoney);
    }
    ShowCost(line);
}

/// A rate of 0 on a line that has a price was meant: a permit, or somebody else's work.
bool LaborPage::HasNoRate(int line) const {
    if (Trimmed(Text(line, LaborField::LaborPerHour)).empty()) return true;
    return Value(line, LaborField::LaborPerHour) == 0 && Value(line, LaborField::LaborPrice) == 0;
}

void LaborPage::CommitRate(int line) {
    Show(line, LaborField::LaborPerHour, Value(line, LaborField::LaborPerHour), ratePicture);
    ShowCost(line);
}

void LaborPage::ShowCost(int line) {
    Show(line, LaborField::LaborCost,
         TimesRate(Value(line, LaborField::QtyHrs), Value(line, LaborField::LaborPerHour)),
         MoneyPicture);
}

/// The price follows, and from it both percentages; that shows this one in its format too. A line
/// that is merely passed through keeps its price.
void LaborPage::CommitPercentage(int line, LaborField field) {
    const Percentages& percentages = lines_.at(static_cast<std::size_t>(line)).percentages;
    const float cost = Value(line, LaborField::LaborCost);
    if (!percentages.typed && cost == percentages.costThen) return;
    const float percentage = percentages.typed ? Value(line, field) : ExactPercentage(line, field);
    Show(line, LaborField::LaborPrice, RelationsOf(field).sale(cost, percentage), pricedPicture);
    ShowPercentages(line);
}

/// Behind the one decimal, while the percentage stands as the price gave it.
float LaborPage::ExactPercentage(int line, LaborField field) const {
    const float costThen = lines_.at(static_cast<std::size_t>(line)).percentages.costThen;
    const float exact = RelationsOf(field).fromSale(costThen, Value(line, LaborField::LaborPrice));
    return FormatNumber(exact, PercentPicture) == Text(line, field) ? exact : Value(line, field);
}

void LaborPage::Clear() {
    for (int line = 0; line < LaborLineCount; ++line) {
        Write(line, LaborField::LaborDescription, "");
        Write(line, LaborField::LaborPerHour, "");
        Write(line, LaborField::QtyHrs, noPercentage);
        Write(line, LaborField::LaborCost, noMoney);
        Write(line, LaborField::LaborPrice, noMoney);
    }
}

void LaborPage::Guard(LaborField field, const char* event, const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError&) {
        if (ShowMessage)
            ShowMessage("Tendo", std::string("TENDO encountered an error while in Sub ") +
                                     Describe(field).name + event);
    }
}

}  // namespace tendo

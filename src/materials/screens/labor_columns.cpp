#include "materials/screens/labor_columns.h"

namespace tendo {
namespace {

constexpr const char* moneyRange = "0.00 to 9,999,999.99";
constexpr const char* percentRange = "-999,999.9 to 999,999.9";
constexpr double greatestMoney = 9'999'999.99;
constexpr double greatestPercentage = 999'999.9;
constexpr int descriptionLength = 50;

const LaborColumn columns[] = {
    {LaborField::QtyHrs, "Hours", "Hours", "btnHelpQtyHrs", EntryKind::Money, "99,999.9",
     "0.0 to 99,999.9", "hours; arithmetic is understood: 2*7.5", "Labor Hours Help",
     "Enter the number of hours that this item takes.  An item that has no rate yet gets the labor "
     "rate of the project.  Items without hours are not kept: for a subcontract, a permit or "
     "another item that is no work by the hour, enter 1 hour and its cost as the rate.",
     "Please Enter the Hours:"},
    {LaborField::LaborDescription, "Description", "Description", "btnHelpLaborDescription",
     EntryKind::Text, "Recover refrigerant and remove old condenser", "", "",
     "Labor Description Help",
     "Enter what is done, in up to 50 characters.  A line may also stand for a subcontract, a "
     "permit or another unusual item of the job: enter what it is, 1 hour, and what it costs you "
     "as the rate.",
     nullptr},
    {LaborField::LaborPerHour, "Rate", "Rate", "btnHelpLaborPerHour", EntryKind::Money,
     "$99,999.99", moneyRange, "dollars an hour", "Labor Rate Help",
     "Enter what an hour of this work costs you, in dollars.  The default rate of the project is "
     "set on the general project data.",
     "Please Enter your Labor Rate:"},
    {LaborField::LaborCost, "Cost", "Cost", "btnHelpLaborCost", EntryKind::Figure, "$9,999,999.99",
     "", "dollars", "Labor Cost Help", "What this item costs you: its hours times its rate.",
     nullptr},
    {LaborField::GrossMargin, "Margin %", "Gross margin", "btnHelpGrossMargin", EntryKind::Percent,
     "-999.9", percentRange, "percent", "Gross Margin Help",
     "The part of the sale price that is left over the cost, in percent of the sale price: a cost "
     "of $750 sold at $1,000 has a margin of 25.  The sale price follows from it.",
     "Please Enter Gross Margin:"},
    {LaborField::PriceMarkup, "Markup %", "Price markup", "btnHelpPriceMarkup", EntryKind::Percent,
     "-999.9", percentRange, "percent", "Price Markup Help",
     "What is put on the cost, in percent of the cost: a cost of $750 sold at $1,000 has a markup "
     "of 33.3.  The sale price follows from it.",
     "Please Enter Price Markup:"},
    {LaborField::LaborPrice, "Sale price", "Sale price", "btnHelpLaborPrice", EntryKind::Money,
     "$9,999,999.99", moneyRange, "dollars", "Labor Sale Price Help",
     "What the customer pays for this item, before tax.  Margin and markup follow from it.",
     "Please Enter Sale Price:"},
};

}  // namespace

std::span<const LaborColumn> LaborColumns() {
    return columns;
}

std::shared_ptr<InputValidator> ValidatorOf(const LaborColumn& column) {
    auto validator = std::make_shared<InputValidator>();
    switch (column.kind) {
        case EntryKind::Figure:
            return nullptr;
        case EntryKind::Percent:
            validator->MinNumberValue = -greatestPercentage;
            validator->MaxNumberValue = greatestPercentage;
            validator->NumberOfDecimalPlaces = 4;
            validator->NumberField = true;
            break;
        case EntryKind::Money:
            validator->MaxNumberValue = greatestMoney;
            validator->NumberOfDecimalPlaces = 2;
            validator->NumberField = column.field != LaborField::QtyHrs;
            validator->AllowableCharacters = validator->NumberField ? "" : "0123456789.+-*/() ";
            break;
        default:
            validator->MaxTextLength = descriptionLength;
    }
    return validator;
}

}  // namespace tendo

#include "pricing/screens/price_help.h"

#include "platform/qt/dialogs.h"

namespace tendo {
namespace {

struct KindHelp {
    FieldKind kind;
    PriceHelp help;
};

constexpr KindHelp helps[] = {
    {FieldKind::DealerCost,
     {"Dealer Cost",
      "What the goods or the work of this row cost you, added up from the models, the materials or "
      "the labor. To calculate with another cost, enter an override.",
      nullptr}},
    {FieldKind::DealerOverride,
     {"Dealer Override",
      "A cost that takes the place of the dealer cost, such as a special price for this job. Enter "
      "0 to go back to the dealer cost; the field then reads \"same\". The sale price stays, and "
      "margin, markup and discount follow.",
      "Please Enter Dealer Override:"}},
    {FieldKind::GrossMargin,
     {"Gross Margin",
      "The part of the sale price that is left over the cost, in percent of the sale price: a cost "
      "of $750 sold at $1,000 has a margin of 25. The sale price follows from it.",
      "Please Enter Gross Margin:"}},
    {FieldKind::PriceMarkup,
     {"Price Markup",
      "What is put on the cost, in percent of the cost: a cost of $750 sold at $1,000 has a markup "
      "of 33.3. The sale price follows from it.",
      "Please Enter Price Markup:"}},
    {FieldKind::ListDiscount,
     {"List Discount",
      "What the customer is let off the list price, in percent of the list price. The sale price "
      "follows from it.",
      "Please Enter List Discount:"}},
    {FieldKind::SalePrice,
     {"Sale Price",
      "What the customer pays for this row, before tax. Margin, markup and discount follow from "
      "it.",
      "Please Enter Sale Price:"}},
    {FieldKind::TaxDealerCost, {"Tax", "The sales tax on the taxable amount, as a cost.", nullptr}},
    {FieldKind::TaxDealerOverride,
     {"Tax", "The sales tax on the taxable amount, as a cost.", nullptr}},
    {FieldKind::TaxSalePrice,
     {"Tax",
      "The sales tax on the taxable amount, rounded to cents. It is neither cost nor profit.",
      nullptr}},
    {FieldKind::TotalDealerCost,
     {"Total Dealer Cost", "The dealer costs of models, materials and labor together.", nullptr}},
    {FieldKind::TotalDealerOverride,
     {"Total Dealer Override",
      "The costs that the prices are calculated with: each row's override, or its dealer cost "
      "where "
      "it has none.",
      nullptr}},
    {FieldKind::TotalGrossMargin,
     {"Total Gross Margin",
      "An extra margin on top of sub-total plus tax, in percent. What it brings shows as extra "
      "profit; the prices of the rows stay.",
      "Please Enter Total Gross Margin:"}},
    {FieldKind::TotalSalePrice,
     {"Total Sale Price",
      "What the customer pays for the whole job. A total that you enter stands until a row is "
      "edited; what it exceeds sub-total plus tax by shows as extra profit.",
      "Please Enter Total Sale Price:"}},
    {FieldKind::SubTotalSalePrice,
     {"Sub-total", "The sale prices of models, materials and labor together, before tax.",
      nullptr}},
    {FieldKind::TaxableAmount,
     {"Taxable Amount",
      "The sale prices that tax is taken on: models, taxable materials, and labor where the "
      "project "
      "says so (General Project Data).",
      nullptr}},
    {FieldKind::TaxPercentage,
     {"Tax Percentage", "The rate of the sales tax, in percent of the taxable amount.",
      "Please Enter Tax Percentage:"}},
    {FieldKind::Profit, {"Profit", "The sub-total less all costs.", nullptr}},
    {FieldKind::SuperProfit,
     {"Extra Profit", "The part of the total that exceeds sub-total plus tax.", nullptr}},
    {FieldKind::ModelDB,
     {"Database", "The manufacturer's model database that this model comes from.",
      "Please Enter Database:"}},
    {FieldKind::ModelNum,
     {"Model Number",
      "The manufacturer's number of the model. An emptied number takes the model out of the "
      "system.",
      "Please Enter Model Number:"}},
    {FieldKind::ModelQty,
     {"Quantity", "How many of this model the system has. The cost counts each of them.",
      "Please Enter Quantity:"}},
    {FieldKind::ModelText,
     {"Model", "What the proposal says of this model.", "Please Enter the Text:"}},
};

}  // namespace

const PriceHelp& HelpOf(TableField field) {
    const FieldKind kind = Describe(field).kind;
    for (const KindHelp& row : helps)
        if (row.kind == kind) return row.help;
    return helps[0].help;
}

std::optional<std::string> AskWithHelp(const PriceHelp& help, const PriceReason& reason,
                                       const std::string& text) {
    std::string told = help.text;
    if (!reason.rule.empty()) told += "\n\n" + reason.figure + " now: " + reason.rule;
    for (const std::string* line : {&reason.worked, &reason.note})
        if (!line->empty()) told += "\n" + *line;
    if (help.prompt) return Dialogs().Input({help.title, told + "\n\n" + help.prompt, text});
    ShowMessage(help.title, told, MessageIcon::Information);
    return std::nullopt;
}

}  // namespace tendo

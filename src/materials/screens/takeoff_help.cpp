#include "materials/screens/takeoff_help.h"

#include "project/screens/frm_help_info.h"

namespace tendo {
namespace {

struct HelpEntry {
    const char* title;  // the description goes behind it
    const char* text;
    const char* check = "";
};
// In the order of TakeoffHelp.
constexpr HelpEntry helps[] = {
    {"Quantity Help for ",
     "How many of this material the job takes, as a whole number. Simple arithmetic is worked out: "
     "3*12+4 becomes 40.\n\nEntering '0' causes TENDO to remove this item from the takeoff list."},
    {"Accessory Help for ",
     "An accessory is a material that does not appear on the sales proposal but is still needed to "
     "complete the job. Its cost and its price enter no total of the project. It is printed on the "
     "Optional Accessories Report and on the installer's lists.\n\nA material needs a quantity "
     "before it can be an accessory.",
     "Select Material as an Accessory"},
    {"Tax Help for ",
     "Taxable materials go into the price table's row of taxable materials, and their sale price "
     "is taxed. A material is taxable when it gets its first quantity; clear the mark for a "
     "permit, a fee and whatever else bears no sales tax.",
     "Material is Taxable"},
    {"Gross Margin Help for ",
     "The part of the sale price that is left over the cost of the whole line, in percent of the "
     "sale price: a line that costs $75 and is sold at $100 has a margin of 25. The sale price "
     "follows from it."},
    {"Price Markup Help for ",
     "What is put on the cost of the whole line, in percent of the cost: a line that costs $75 and "
     "is sold at $100 has a markup of 33.3. The sale price follows from it."},
    {"List Discount Help for ",
     "What the customer is let off the list price of the whole line, in percent of the list price. "
     "The sale price follows from it."},
    {"Sale Price Help for ",
     "What the customer pays for the whole line, not for one piece. Margin, markup and discount "
     "follow from it. It stays when the quantity changes."},
};

}  // namespace

TakeoffHelp HelpOf(TakeoffField field) {
    switch (field) {
        case TakeoffField::GrossMargin:
            return TakeoffHelp::GrossMargin;
        case TakeoffField::PriceMarkup:
            return TakeoffHelp::PriceMarkup;
        case TakeoffField::ListDiscount:
            return TakeoffHelp::ListDiscount;
        case TakeoffField::SalePrice:
            return TakeoffHelp::SalePrice;
        default:
            return TakeoffHelp::Quantity;
    }
}

bool ShowTakeoffHelp(TakeoffHelp help, const TakeoffLine& line, bool& accessory, bool& tax) {
    const HelpEntry& entry = helps[static_cast<std::size_t>(help)];
    HelpInfo info{.title = entry.title + line.Text(TakeoffField::ItemDesc),
                  .text = entry.text,
                  .checkCaption = entry.check};
    bool* const mark = help == TakeoffHelp::Accessory ? &accessory
                       : help == TakeoffHelp::Tax     ? &tax
                                                      : nullptr;
    info.checked = mark && *mark;
    if (!ShowHelpInfo(info)) return false;
    if (mark) *mark = info.checked;
    return mark;
}

}  // namespace tendo

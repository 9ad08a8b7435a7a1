#include "pricing/screens/system_card.h"

#include "platform/text/number_text.h"
#include "pricing/system_models.h"

namespace tendo {
namespace {

/// Its quantity when there are several, its number, and what tells it from others.
std::string ModelLine(int quantity, const std::string& number, const std::string& figure) {
    std::string line = quantity > 1 ? std::to_string(quantity) + " × " : "";
    line += number.empty() ? "no number" : number;
    if (!figure.empty()) line += " · " + figure;
    return line;
}

bool Holds(const SystemModelTexts& texts) {
    return !texts.ModelNum.empty() || !texts.ModelDesc.empty() || !texts.ModelType.empty();
}

}  // namespace

SystemCard SystemCardOf(const ProjectRecords& records, int system) {
    SystemCard card;
    const auto slot = static_cast<std::size_t>(system);
    const SystemModelTexts cooling = CoolingTexts(records, system);
    const SystemModelTexts heating = HeatingTexts(records, system);
    const WHModelRecord& water = records.WHModelData.at(slot);
    if (Holds(cooling))
        card.models.push_back(
            {SystemCard::Side::Cooling,
             ModelLine(records.CLGModelData[slot].ModelQty, cooling.ModelNum, cooling.Cap)});
    if (Holds(heating))
        card.models.push_back(
            {SystemCard::Side::Heating,
             ModelLine(records.HTGModelData[slot].ModelQty, heating.ModelNum, heating.EFF)});
    if (!water.ModelNum.IsBlank())
        card.models.push_back(
            {SystemCard::Side::Water, ModelLine(water.ModelQty, water.ModelNum.Trimmed(), "")});
    const ModelInfoRecord& info = records.ModelInfo.at(slot);
    const double price =
        static_cast<double>(info.CLGSalePrice) + info.HTGSalePrice + info.WHSalePrice;
    const bool empty = card.models.empty() && price == 0;
    card.price = empty ? "empty" : FormatNumber(price, MoneyPicture);
    return card;
}

}  // namespace tendo

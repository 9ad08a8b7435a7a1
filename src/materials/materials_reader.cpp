#include "materials/materials_reader.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <map>
#include <string_view>

#include "platform/database/database.h"
#include "platform/database/statement.h"
#include "platform/jet/general_order.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr const char* TableName = "Materials";

bool IsNull(const jet::ValueView& value) {
    return std::holds_alternative<std::monostate>(value);
}

/// Books of other makers may have other types of columns.
std::string TextOf(const jet::ValueView& value, jet::ColumnType type) {
    const auto* text = std::get_if<std::string_view>(&value);
    const bool plain = type == jet::ColumnType::Text || type == jet::ColumnType::Memo;
    return text && plain ? std::string(*text) : TextOfValue(ValueOfView(value), type);
}

float SingleOf(const jet::ValueView& value, jet::ColumnType type) {
    const double number = NumberOfValue(ValueOfView(value), type);
    if (std::abs(number) > static_cast<double>(FLT_MAX)) ThrowError(error_number::Overflow);
    return static_cast<float>(number);
}

}  // namespace

void MaterialsReader::FindColumns() {
    if (!reader_->HasTable(TableName)) ThrowError(error_number::TableNotFound);
    const std::vector<jet::Column>& columns = reader_->Table(TableName).columns;
    const std::pair<const char*, Column*> wanted[] = {{"Description", &description_},
                                                      {"Category", &category_},
                                                      {"Part Number", &partNumber_},
                                                      {"UnitCst", &unitCost_},
                                                      {"ListCst", &listCost_}};
    for (std::size_t i = 0; i < columns.size(); ++i)
        for (const auto& [name, column] : wanted)
            if (EqualsNoCase(columns[i].name, name))
                *column = {static_cast<int>(i), columns[i].type};
    if (description_.place < 0 || category_.place < 0) ThrowError(error_number::TooFewParameters);
}

void MaterialsReader::Read(int& location) {
    FindColumns();
    const int reading = location;
    reader_->ReadRows(TableName, [&](std::span<const jet::ValueView> values) {
        location = 5;
        ReadRow(values);
        location = reading;
        return true;
    });
    RankCategories();
    // Places of equal rows stay in order by their row numbers, so that no stable sort is needed.
    std::sort(places_.begin(), places_.end(),
              [this](const Place& a, const Place& b) { return Before(a, b); });
}

void MaterialsReader::ReadRow(std::span<const jet::ValueView> values) {
    const auto valueOf = [&values](const Column& column) {
        return column.place < 0 ? jet::ValueView() : values[static_cast<std::size_t>(column.place)];
    };
    Place place{.row = static_cast<std::uint32_t>(rows_.size())};
    MaterialRow& row = rows_.emplace_back();
    place.key = static_cast<std::uint32_t>(keys_.size());
    if (const auto value = valueOf(description_); !IsNull(value)) {
        const std::string text = TextOf(value, description_.type);
        keys_ += jet::GeneralSortKey(text);
        row.Description = text;
    }
    place.keyEnd = static_cast<std::uint32_t>(keys_.size());
    if (const auto value = valueOf(category_); !IsNull(value)) {
        const std::string text = TextOf(value, category_.type);
        const auto number = static_cast<std::uint32_t>(categories_.size() + 1);
        place.category = categories_.emplace(text, number).first->second;
        row.Category = text;
    }
    if (const auto value = valueOf(partNumber_); !IsNull(value))
        row.PartNumber = TextOf(value, partNumber_.type);
    if (const auto value = valueOf(unitCost_); !IsNull(value))
        row.UnitCst = SingleOf(value, unitCost_.type);
    if (const auto value = valueOf(listCost_); !IsNull(value))
        row.SalePrice = row.ListCst = SingleOf(value, listCost_.type);
    places_.push_back(place);
}

/// Categories that differ in case only are one in the order.
void MaterialsReader::RankCategories() {
    std::map<std::string, std::vector<std::uint32_t>> numbersByKey;
    for (const auto& [name, number] : categories_)
        numbersByKey[jet::GeneralSortKey(name)].push_back(number);
    std::vector<std::uint32_t> ranks(categories_.size() + 1);
    std::uint32_t rank = 0;
    for (const auto& [key, numbers] : numbersByKey) {
        ++rank;
        for (const std::uint32_t number : numbers)
            ranks[number] = rank;
    }
    for (Place& place : places_)
        place.category = ranks[place.category];
}

bool MaterialsReader::Before(const Place& a, const Place& b) const {
    if (a.category != b.category) return a.category < b.category;
    const std::string_view keys = keys_;
    const int difference =
        keys.substr(a.key, a.keyEnd - a.key).compare(keys.substr(b.key, b.keyEnd - b.key));
    return difference != 0 ? difference < 0 : a.row < b.row;
}

void MaterialsReader::MoveInto(std::vector<MaterialRow>& catalogue) {
    if (places_.empty()) return;
    if (partNumber_.place < 0 || unitCost_.place < 0 || listCost_.place < 0) {
        catalogue.front() = rows_[places_.front().row];
        ThrowError(error_number::ItemNotFound);
    }
    for (std::size_t i = 0; i < places_.size(); ++i)
        catalogue[i] = std::move(rows_[places_[i].row]);
}

}  // namespace tendo

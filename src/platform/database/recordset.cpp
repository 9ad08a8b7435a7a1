#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <utility>

#include "platform/database/database.h"
#include "platform/database/recordset_state.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr int BookmarkNotValid = 3159;
constexpr double CurrencyUnits = 10000;

/// The nearest whole number, halves to the even one; RuntimeError 6 out of range.
template <class Whole>
Whole WholeOf(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<Whole>::min() &&
          rounded <= std::numeric_limits<Whole>::max()))
        ThrowError(error_number::Overflow);
    return static_cast<Whole>(rounded);
}

}  // namespace

double NumberOfValue(const jet::Value& value, jet::ColumnType type) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (std::holds_alternative<std::string>(value)) ThrowError(error_number::TypeMismatch);
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (!whole) return 0;
    const auto number = static_cast<double>(*whole);
    return type == jet::ColumnType::Currency ? number / CurrencyUnits : number;
}

Recordset::Recordset(std::unique_ptr<State> state) : state_(std::move(state)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

int Recordset::RecordCount() const {
    state_->CheckOpen();
    return state_->Count();
}

bool Recordset::BOF() const {
    state_->CheckOpen();
    return !state_->onDeleted && (state_->Count() == 0 || state_->position < 0);
}

bool Recordset::EOF_() const {
    state_->CheckOpen();
    return !state_->onDeleted && state_->position >= state_->Count();
}

void Recordset::MoveFirst() {
    MoveTo(0);
}

void Recordset::MoveLast() {
    MoveTo(RecordCount() - 1);
}

void Recordset::MoveNext() {
    state_->CheckOpen();
    if (EOF_()) ThrowError(error_number::NoCurrentRecord);
    state_->GoTo(state_->onDeleted ? state_->position : state_->position + 1);
}

void Recordset::MovePrevious() {
    state_->CheckOpen();
    if (BOF()) ThrowError(error_number::NoCurrentRecord);
    state_->GoTo(state_->position - 1);
}

void Recordset::MoveTo(int position) {
    state_->CheckOpen();
    if (position < 0 || position >= state_->Count()) ThrowError(error_number::NoCurrentRecord);
    state_->GoTo(position);
}

int Recordset::AbsolutePosition() const {
    state_->CheckOpen();
    return state_->HasRow() ? state_->position : -1;
}

void Recordset::FindFirst(std::string_view criteria) {
    state_->Find(criteria, 0);
}

void Recordset::FindNext(std::string_view criteria) {
    state_->Find(criteria, state_->onDeleted ? state_->position : state_->position + 1);
}

bool Recordset::NoMatch() const {
    return state_->noMatch;
}

/// The row's key; where several tables make a row, whose rows never change, its position.
std::int64_t Recordset::Bookmark() const {
    state_->NeedRow();
    if (state_->sources() > 1) return state_->position;
    return state_->keys[static_cast<std::size_t>(state_->position)];
}

void Recordset::SetBookmark(std::int64_t bookmark) {
    state_->CheckOpen();
    std::int64_t position = bookmark;
    if (state_->sources() == 1) {
        const auto& keys = state_->keys;
        position = std::find(keys.begin(), keys.end(), bookmark) - keys.begin();
    }
    if (position < 0 || position >= state_->Count())
        throw RuntimeError(BookmarkNotValid, "Not a valid bookmark: the row is gone.");
    state_->GoTo(static_cast<int>(position));
}

void Recordset::AddNew() {
    state_->BeginAdd();
}

void Recordset::Edit() {
    state_->BeginEdit();
}

void Recordset::Set(std::string_view field, const jet::Value& value) {
    state_->SetValue(field, value);
}

void Recordset::Update() {
    state_->Update();
}

void Recordset::CancelUpdate() {
    state_->CancelUpdate();
}

void Recordset::Delete() {
    state_->DeleteCurrent();
}

const std::vector<jet::Column>& Recordset::Fields() const {
    return state_->fields;
}

bool Recordset::HasField(std::string_view field) const {
    return state_->PlaceOf(field) >= 0;
}

jet::Value Recordset::Get(std::string_view field) const {
    return state_->ValueAt(state_->NeedField(field));
}

jet::Value Recordset::Get(int field) const {
    if (field < 0 || field >= static_cast<int>(state_->fields.size()))
        ThrowError(error_number::ItemNotFound);
    return state_->ValueAt(field);
}

bool Recordset::IsNull(std::string_view field) const {
    return std::holds_alternative<std::monostate>(Get(field));
}

std::string Recordset::Text(std::string_view field) const {
    const int place = state_->NeedField(field);
    return TextOfValue(Get(place), state_->fields[static_cast<std::size_t>(place)].type);
}

double Recordset::Double(std::string_view field) const {
    const int place = state_->NeedField(field);
    return NumberOfValue(Get(place), state_->fields[static_cast<std::size_t>(place)].type);
}

float Recordset::Single(std::string_view field) const {
    const double number = Double(field);
    if (std::abs(number) > FLT_MAX) ThrowError(error_number::Overflow);
    return static_cast<float>(number);
}

std::int16_t Recordset::Integer(std::string_view field) const {
    return WholeOf<std::int16_t>(Double(field));
}

std::int32_t Recordset::Long(std::string_view field) const {
    return WholeOf<std::int32_t>(Double(field));
}

bool Recordset::Boolean(std::string_view field) const {
    return Double(field) != 0;
}

void Recordset::Close() {
    state_->released = true;
}

}  // namespace tendo

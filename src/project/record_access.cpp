#include "project/record_access.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/project_records.h"

namespace tendo {

namespace {

using nlohmann::json;

/// "ProjectMaterials[3].ItemQty" in its three pieces.
struct Path {
    std::string record;
    std::optional<std::size_t> index;
    std::string field;
};

[[noreturn]] void ThrowUnknown(std::string_view path) {
    throw RuntimeError(error_number::ItemNotFound, ErrorDescription(error_number::ItemNotFound) +
                                                       " (" + std::string(path) + ")");
}

Path ReadPath(std::string_view text) {
    Path path;
    const std::size_t point = text.find('.');
    std::string_view record = text.substr(0, point);
    if (point != std::string_view::npos) path.field = text.substr(point + 1);
    if (const std::size_t bracket = record.find('['); bracket != std::string_view::npos) {
        const std::string_view digits = record.substr(bracket + 1);
        std::size_t index = 0;
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), index);
        if (error != std::errc{} || std::string_view(end, digits.end()) != "]") ThrowUnknown(text);
        path.index = index;
        record = record.substr(0, bracket);
    }
    path.record = record;
    return path;
}

template <std::size_t Width>
json JsonOf(const FixedText<Width>& field) {
    return field.WithoutPadding();
}
json JsonOf(const std::string& field) {
    return field;
}
json JsonOf(std::int16_t field) {
    return field;
}
json JsonOf(bool field) {
    return field;
}

/// The double whose shortest text is the float's shortest text: 0.1 stays 0.1.
json JsonOf(float field) {
    char digits[32];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), field);
    double number = 0;
    std::from_chars(std::begin(digits), written.ptr, number);
    return number;
}

template <class Record>
json JsonOfRecord(const Record& record) {
    json object = json::object();
    Record::ForEachField(
        record, [&](const char* name, const auto& field) { object[name] = JsonOf(field); });
    return object;
}

double NumberOf(std::string_view text) {
    double number = 0;
    if (!ReadNumber(text, number)) ThrowError(error_number::TypeMismatch);
    return number;
}

template <std::size_t Width>
void SetField(FixedText<Width>& field, std::string_view text) {
    field = text;
}
void SetField(std::string& field, std::string_view text) {
    field = text;
}
void SetField(float& field, std::string_view text) {
    const double number = NumberOf(text);
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
        ThrowError(error_number::Overflow);
    }
    field = static_cast<float>(number);
}
void SetField(std::int16_t& field, std::string_view text) {
    const double number = std::nearbyint(NumberOf(text));
    using Limits = std::numeric_limits<std::int16_t>;
    if (number < Limits::min() || number > Limits::max()) ThrowError(error_number::Overflow);
    field = static_cast<std::int16_t>(number);
}
void SetField(bool& field, std::string_view text) {
    if (EqualsNoCase(text, "true")) {
        field = true;
    } else if (EqualsNoCase(text, "false")) {
        field = false;
    } else {
        field = NumberOf(text) != 0;
    }
}

/// Calls `visit(name, value)` for each member of the records.
template <class Self, class Visit>
void ForEachMember(Self& records, Visit&& visit) {
    visit("GPDProjectFormat", records.GPDProjectFormat);
    visit("GPDClientFormat", records.GPDClientFormat);
    visit("GPDCompanyFormat", records.GPDCompanyFormat);
    visit("SystemTendos", records.SystemTendos);
    visit("ModelInfo", records.ModelInfo);
    visit("SystemInfo", records.SystemInfo);
    visit("CLGModelData", records.CLGModelData);
    visit("HTGModelData", records.HTGModelData);
    visit("WHModelData", records.WHModelData);
    visit("ProjectMaterials", records.ProjectMaterials);
    visit("ProjectLabor", records.ProjectLabor);
    visit("ProjectFootNotes", records.ProjectFootNotes);
    visit("gvNumOfFootnotes", records.gvNumOfFootnotes);
    visit("ProjectAccRptFootNotes", records.ProjectAccRptFootNotes);
    visit("NumOfAccRptFootnotes", records.NumOfAccRptFootnotes);
}

template <class T>
concept IsList = requires(const T& value) {
    value.size();
};

bool InUse(const MaterialRow& row) {
    return row.ItemQty != 0 || !row.Description.IsBlank() || !row.PartNumber.IsBlank() ||
           row.UnitCst != 0 || row.ListCst != 0 || row.SalePrice != 0;
}

/// How many rows of a list are shown.
template <class Row, std::size_t Size>
std::size_t ShownRows(const ProjectRecords&, const std::array<Row, Size>&) {
    return Size;
}
std::size_t ShownRows(const ProjectRecords&, const std::vector<LaborRow>& rows) {
    return rows.size();
}
std::size_t ShownRows(const ProjectRecords&, const std::vector<MaterialRow>& rows) {
    const auto last = std::find_if(rows.rbegin(), rows.rend(), InUse);
    return static_cast<std::size_t>(rows.rend() - last);
}
std::size_t ShownRows(const ProjectRecords& records, const std::vector<FootNoteRow>& rows) {
    const bool ofProposal = &rows == &records.ProjectFootNotes;
    const int count = ofProposal ? records.gvNumOfFootnotes : records.NumOfAccRptFootnotes;
    return std::min(rows.size(), static_cast<std::size_t>(std::max(count, 0)));
}

template <class List>
json JsonOfList(const ProjectRecords& records, const List& list) {
    json array = json::array();
    const std::size_t shown = ShownRows(records, list);
    for (std::size_t i = 0; i < shown; ++i)
        array.push_back(JsonOfRecord(list[i]));
    return array;
}

template <class Record>
json JsonOfRecordAt(const Record& record, const Path& path) {
    json object = JsonOfRecord(record);
    if (path.field.empty()) return object;
    return object.contains(path.field) ? object[path.field] : json();
}

/// The value at a path below one member; null when there is none.
template <class Member>
json JsonBelow(const ProjectRecords& records, const Member& member, const Path& path) {
    if constexpr (std::is_same_v<Member, std::int16_t>) {
        return path.index || !path.field.empty() ? json() : json(member);
    } else if constexpr (IsList<Member>) {
        if (!path.index) return path.field.empty() ? JsonOfList(records, member) : json();
        return *path.index < member.size() ? JsonOfRecordAt(member[*path.index], path) : json();
    } else {
        return path.index ? json() : JsonOfRecordAt(member, path);
    }
}

template <class Record>
bool SetFieldOf(Record& record, const std::string& fieldName, std::string_view text) {
    bool found = false;
    Record::ForEachField(record, [&](const char* name, auto& field) {
        if (fieldName != name) return;
        SetField(field, text);
        found = true;
    });
    return found;
}

/// The row to set; null beyond the end of a list that doesn't grow.
template <class List>
auto* RowToSet(ProjectRecords&, List& list, std::size_t index) {
    return index < list.size() ? &list[index] : nullptr;
}
FootNoteRow* RowToSet(ProjectRecords& records, std::vector<FootNoteRow>& rows, std::size_t index) {
    constexpr std::size_t Most = std::numeric_limits<std::int16_t>::max();
    if (index >= Most) return nullptr;
    const bool ofProposal = &rows == &records.ProjectFootNotes;
    std::int16_t& count = ofProposal ? records.gvNumOfFootnotes : records.NumOfAccRptFootnotes;
    count = std::max(count, static_cast<std::int16_t>(index + 1));
    if (index >= rows.size()) rows.resize(index + 1);
    return &rows[index];
}

/// False when there is no such field.
template <class Member>
bool SetBelow(ProjectRecords& records, Member& member, const Path& path, std::string_view text) {
    if constexpr (std::is_same_v<Member, std::int16_t>) {
        if (path.index || !path.field.empty()) return false;
        SetField(member, text);
        return true;
    } else if constexpr (IsList<Member>) {
        if (!path.index || path.field.empty()) return false;
        auto* row = RowToSet(records, member, *path.index);
        return row != nullptr && SetFieldOf(*row, path.field, text);
    } else {
        return !path.index && SetFieldOf(member, path.field, text);
    }
}

}  // namespace

json RecordsAsJson(const ProjectRecords& records) {
    json object = json::object();
    ForEachMember(records, [&](const char* name, const auto& member) {
        object[name] = JsonBelow(records, member, Path{});
    });
    return object;
}

json RecordAt(const ProjectRecords& records, std::string_view path) {
    const Path wanted = ReadPath(path);
    json found;
    ForEachMember(records, [&](const char* name, const auto& member) {
        if (wanted.record == name) found = JsonBelow(records, member, wanted);
    });
    if (found.is_null()) ThrowUnknown(path);
    return found;
}

json RecordAt(std::string_view path) {
    return RecordAt(Project(), path);
}

void SetRecord(ProjectRecords& records, std::string_view path, std::string_view text) {
    const Path wanted = ReadPath(path);
    bool found = false;
    ForEachMember(records, [&](const char* name, auto& member) {
        if (wanted.record == name) found = SetBelow(records, member, wanted, text);
    });
    if (!found) ThrowUnknown(path);
}

void SetRecord(std::string_view path, std::string_view text) {
    SetRecord(Project(), path, text);
}

}  // namespace tendo

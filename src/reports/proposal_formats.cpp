#include "reports/proposal_formats.h"

#include <span>
#include <type_traits>
#include <variant>

#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {

namespace {

constexpr const char* FormatTable = "ProposalFormats";
constexpr const char* FootnoteTable = "Formats-FootNotes";
constexpr const char* NameField = "FormatName";
constexpr int TextWidth = 255;
constexpr std::size_t DesignedColumns = 60;

using enum jet::ColumnType;

struct FormatColumn {
    const char* name;
    jet::ColumnType type = Integer;
};

/// The 60 columns as designed, and behind them the two that saving and loading use as well.
constexpr FormatColumn Columns[] = {{"FormatName", Text},
                                    {"ClientFaxNumber"},
                                    {"ClientComment"},
                                    {"CompanyRepresentative"},
                                    {"CompanyID"},
                                    {"CompanyFaxNumber"},
                                    {"CompanyComment"},
                                    {"CompressWarranty"},
                                    {"CoilWarranty"},
                                    {"HeatExchWarranty"},
                                    {"MicroProcWarranty"},
                                    {"PartsWarranty"},
                                    {"LaborWarranty"},
                                    {"Capacity"},
                                    {"Efficiency"},
                                    {"CondRemoval"},
                                    {"OpCostforSystem"},
                                    {"ProposedOpCost"},
                                    {"OpCostSavings"},
                                    {"Height"},
                                    {"Length"},
                                    {"Width"},
                                    {"Weight"},
                                    {"ListPrice"},
                                    {"TotalPrice"},
                                    {"SoundLevel"},
                                    {"CompStartKit"},
                                    {"CrankcaseHeater"},
                                    {"PressureSwitch"},
                                    {"CondSupport"},
                                    {"Electrical"},
                                    {"RefrigTubing"},
                                    {"AirHandler"},
                                    {"AvailCooling"},
                                    {"Configuration"},
                                    {"HeatExchType"},
                                    {"IgnitionType"},
                                    {"ExhaustVent"},
                                    {"CFMRate", Single},
                                    {"MainHeaderTextColor", Long},
                                    {"MainHeaderBackColor", Long},
                                    {"SecondaryHeaderTextColor", Long},
                                    {"SecondaryHeaderBackColor", Long},
                                    {"BodyTextColor", Long},
                                    {"BodyBackColor", Long},
                                    {"ColorGraphs"},
                                    {"PrintPageNumbers"},
                                    {"PrintDate"},
                                    {"StartingPageNo"},
                                    {"LineSpacing"},
                                    {"PrintLogoOnTitleReport"},
                                    {"LogoFilename", Text},
                                    {"UseCustomPageBanner"},
                                    {"BannerFilename", Text},
                                    {"PrintTitleReport"},
                                    {"PrintSalesReport"},
                                    {"PrintOptionalAccessoriesReport"},
                                    {"PrintDetailedCostReport"},
                                    {"ShowDealersCost"},
                                    {"PrintInstallersReport"},
                                    {"SelectedOpCost"},
                                    {"PrintGraphs"}};
constexpr FormatColumn FootnoteColumns[] = {
    {"FormatName", Text}, {"FootNoteName", Text}, {"Description", Memo}};

jet::TableDefinition TableOf(const char* name, std::span<const FormatColumn> columns) {
    jet::TableDefinition table;
    table.name = name;
    for (const FormatColumn& column : columns) {
        jet::Column& made = table.columns.emplace_back();
        made.name = column.name;
        made.type = column.type;
        if (column.type == Text) made.size = TextWidth;
        made.allowZeroLength = true;
    }
    return table;
}

/// A column of a format and the value of the options that it holds.
using Field = std::variant<std::int16_t*, std::int32_t*, std::string*>;
struct FormatField {
    const char* column;
    Field value;
};

std::vector<FormatField> FieldsOf(ReportOptionValues& values) {
    // Both columns of the operating cost are filled; the second one is that which counts.
    std::vector<FormatField> fields = {{"OpCostforSystem", &values.Mark("chkSelectedOpCost")}};
    const auto options = ReportOptionTable();
    for (std::size_t i = 0; i < options.size(); ++i)
        if (options[i].column) fields.push_back({options[i].column, &values.marks[i]});
    fields.insert(fields.end(), {{"MainHeaderTextColor", &values.mainHeader.textColor},
                                 {"MainHeaderBackColor", &values.mainHeader.barColor},
                                 {"SecondaryHeaderTextColor", &values.secondaryHeader.textColor},
                                 {"SecondaryHeaderBackColor", &values.secondaryHeader.barColor},
                                 {"BodyTextColor", &values.body.textColor},
                                 {"BodyBackColor", &values.body.barColor},
                                 {"StartingPageNo", &values.startingPage},
                                 {"LineSpacing", &values.lineSpacing},
                                 {"LogoFilename", &values.logoFile},
                                 {"BannerFilename", &values.bannerFile}});
    return fields;
}

void StoreField(Recordset& rows, const FormatField& field) {
    const auto store = [&](auto* value) {
        if constexpr (std::is_same_v<decltype(value), std::string*>)
            rows.Set(field.column, *value);
        else
            rows.Set(field.column, std::int64_t{*value});
    };
    std::visit(store, field.value);
}

/// What a column of another maker lacks or leaves null stays as it was.
void ReadField(const Recordset& rows, const FormatField& field) {
    if (!rows.HasField(field.column) || rows.IsNull(field.column)) return;
    if (auto* const* text = std::get_if<std::string*>(&field.value))
        **text = rows.Text(field.column);
    else if (auto* const* color = std::get_if<std::int32_t*>(&field.value))
        **color = rows.Long(field.column);
    else
        *std::get<std::int16_t*>(field.value) = rows.Integer(field.column);
}

/// A store made elsewhere may lack columns that are saved: it gets them.
void AddMissingColumns(Database& formats) {
    const jet::TableDefinition wanted = TableOf(FormatTable, Columns);
    const Recordset rows = formats.OpenRecordset(FormatTable);
    for (const jet::Column& column : wanted.columns)
        if (!rows.HasField(column.name)) formats.AppendField(FormatTable, column);
}

bool Walk(Recordset& rows, std::string_view name) {
    for (; !rows.EOF_(); rows.MoveNext())
        if (rows.Text(NameField) == name) return true;
    return false;
}

void DeleteRows(Database& formats, const char* table, std::string_view name) {
    for (Recordset rows = formats.OpenRecordset(table); Walk(rows, name); rows.MoveNext())
        rows.Delete();
}

void AddFootnotes(Database& formats, std::string_view name, FootnoteList footnotes) {
    Recordset rows = formats.OpenRecordset(FootnoteTable);
    for (std::size_t row = 0; row < footnotes.Size(); ++row) {
        rows.AddNew();
        rows.Set(NameField, std::string(name));
        rows.Set("FootNoteName", std::string(footnotes.rows[row].Name.Trimmed()));
        rows.Set("Description", footnotes.rows[row].Description);
        rows.Update();
    }
}

}  // namespace

int MakeFormatDB(const std::string& path) {
    Database::CreateDatabase(path);
    Database formats = Database::OpenDatabase(path);
    formats.AppendTable(TableOf(FormatTable, Columns));
    formats.AppendTable(TableOf(FootnoteTable, FootnoteColumns));
    const std::size_t more = std::size(Columns) - DesignedColumns;
    const std::size_t made = formats.Table(FormatTable).columns.size() - more;
    formats.Close();
    return static_cast<int>(made);
}

std::string ProposalFormatFile() {
    return State().ProgramDirectory + "Proposals.mdb";
}

std::vector<std::string> ProposalFormatNames() {
    std::vector<std::string> names;
    if (!FileExists(ProposalFormatFile())) return names;
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    for (Recordset rows = formats.OpenRecordset(FormatTable); !rows.EOF_(); rows.MoveNext())
        names.push_back(rows.Text(NameField));
    return names;
}

bool SaveProposalFormat(std::string_view name, ReportOptionValues& values, FootnoteList footnotes) {
    if (!FileExists(ProposalFormatFile())) return false;
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    AddMissingColumns(formats);
    Recordset rows = formats.OpenRecordset(FormatTable);
    if (Walk(rows, name))
        rows.Edit();
    else
        rows.AddNew();
    rows.Set(NameField, std::string(name));
    for (const FormatField& field : FieldsOf(values))
        StoreField(rows, field);
    rows.Update();
    DeleteRows(formats, FootnoteTable, name);
    AddFootnotes(formats, name, footnotes);
    formats.Close();
    return true;
}

bool LoadProposalFormat(std::string_view name, ReportOptionValues& values, FootnoteList footnotes) {
    if (!FileExists(ProposalFormatFile())) return false;
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    Recordset rows = formats.OpenRecordset(FormatTable);
    if (!Walk(rows, name)) return false;
    ReportOptionValues read = values;
    for (const FormatField& field : FieldsOf(read))
        ReadField(rows, field);
    std::vector<FootNoteRow> notes;
    for (Recordset stored = formats.OpenRecordset(FootnoteTable); Walk(stored, name);
         stored.MoveNext())
        notes.push_back({stored.Text("FootNoteName"), stored.Text("Description")});
    values = std::move(read);
    ClearFootnotes(footnotes);
    for (const FootNoteRow& note : notes)
        AddFootnote(footnotes, note.Name.Trimmed(), note.Description);
    return true;
}

bool DeleteProposalFormat(std::string_view name) {
    if (!FileExists(ProposalFormatFile())) return false;
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    DeleteRows(formats, FormatTable, name);
    DeleteRows(formats, FootnoteTable, name);
    formats.Close();
    return true;
}

}  // namespace tendo

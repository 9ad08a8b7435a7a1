#include "programs/sample_data/job.h"

#include <cstdint>
#include <map>
#include <vector>

#include "equipment/model_selection.h"
#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "pricing/relations.h"
#include "programs/sample_data/job_prices.h"
#include "project/program_state.h"
#include "project/project_file.h"
#include "project/record_access.h"

namespace tendo {
namespace {

constexpr const char* JobScript = "jobs/maple_street_12.csv";
constexpr const char* JobFile = "Projects/Maple Street 12.tdw";
constexpr int ModelColumn = 1;

[[noreturn]] void Refuse(const std::string& what) {
    throw RuntimeError(5, JobScript + (": " + what));
}

/// The value that a field shows in a picture, as the screens keep it.
float Shown(float value, std::string_view picture) {
    return ValueOfText(FormatNumber(value, picture));
}

class JobBuilder {
  public:
    JobBuilder(const std::string& output, ProjectRecords& records)
        : records_(records), book_(Database::OpenDatabase(output + "tendo.mdb")) {}

    void Run(const CsvRow& line) {
        static const std::map<std::string, void (JobBuilder::*)(const CsvRow&)> commands = {
            {"set", &JobBuilder::Set},
            {"model", &JobBuilder::Model},
            {"material", &JobBuilder::Material},
            {"labor", &JobBuilder::Labor},
            {"footnote", &JobBuilder::FootNote},
            {"accessory footnote", &JobBuilder::AccessoryFootNote}};
        const auto command = commands.find(line.front());
        if (command == commands.end()) Refuse("unknown command " + line.front());
        CsvRow words = line;
        words.resize(6);
        (this->*command->second)(words);
    }

    /// Puts the materials into the project in the order of the price book.
    void TakeOff() {
        Recordset rows =
            book_.OpenRecordset("SELECT * FROM Materials ORDER BY Category, Description");
        std::size_t next = 0;
        for (; !rows.EOF_(); rows.MoveNext()) {
            const auto line = materials_.find(rows.Text("Description"));
            if (line == materials_.end()) continue;
            records_.ProjectMaterials.at(next++) = TakenOff(rows, line->second);
        }
        if (next != materials_.size()) Refuse("a material that the price book doesn't have");
    }

  private:
    void Set(const CsvRow& words) { SetRecord(records_, words[1], words[2]); }

    void Model(const CsvRow& words) {
        static const std::map<std::string, SelectionMode> modes = {
            {"cooling", SelectionMode::Cooling},
            {"heating", SelectionMode::Heating},
            {"water heater", SelectionMode::WaterHeater}};
        const auto mode = modes.find(words[2]);
        if (mode == modes.end()) Refuse("unknown side " + words[2]);
        const auto message = [](const std::string& text) { Refuse(text); };
        ModelSelection selection(mode->second, records_, LeadingInteger(words[1]) - 1,
                                 {message, {}});
        selection.Open();
        if (!Click(selection, words[3]) || !selection.SelectModel()) Refuse("no model " + words[3]);
    }

    static bool Click(ModelSelection& selection, const std::string& model) {
        for (const int tab : selection.VisibleTabs())
            for (int row = 0; row < selection.RowCount(tab); ++row)
                if (selection.CellText(tab, row, ModelColumn) == model) {
                    selection.ClickRow(tab, row);
                    return true;
                }
        return false;
    }

    void Material(const CsvRow& words) {
        if (!materials_.emplace(words[2], words).second) Refuse("taken off twice: " + words[2]);
    }

    static MaterialRow TakenOff(const Recordset& rows, const CsvRow& words) {
        MaterialRow row;
        row.ItemQty = LeadingInteger(words[1]);
        row.Description = words[2];
        row.PartNumber = rows.Text("Part Number");
        row.Tax = words[3] == "taxable" ? 1 : 0;
        row.Accessory = words[4] == "accessory" ? 1 : 0;
        row.UnitCst = rows.Single("UnitCst");
        row.ListCst = rows.Single("ListCst");
        row.GrossMargin = ValueOfText(words[5]);
        const float cost = Shown(StoreSingle(double{row.UnitCst} * row.ItemQty), MoneyPicture);
        const float list = StoreSingle(double{row.ListCst} * row.ItemQty);
        row.SalePrice = Shown(SaleFromGrossMargin(cost, row.GrossMargin), MoneyPicture);
        row.PriceMarkup = Shown(MarkupFromSale(cost, row.SalePrice), PercentPicture);
        row.ListDiscount = Shown(ListDiscountFromSale(list, row.SalePrice), PercentPicture);
        return row;
    }

    void Labor(const CsvRow& words) {
        LaborRow& row = records_.ProjectLabor.at(laborLines_++);
        row.QtyHrs = ValueOfText(words[1]);
        row.LaborDescription = words[2];
        row.LaborPerHour = ValueOfText(words[3]);
        row.LaborCost = StoreSingle(double{row.QtyHrs} * row.LaborPerHour);
        row.GrossMargin = ValueOfText(words[4]);
        row.LaborPrice = Shown(SaleFromGrossMargin(row.LaborCost, row.GrossMargin), MoneyPicture);
        row.PriceMarkup = Shown(MarkupFromSale(row.LaborCost, row.LaborPrice), PercentPicture);
    }

    FootNoteRow FromLibrary(const std::string& name) {
        Recordset notes =
            book_.OpenRecordset("Select * from [FootNotes] where [FootNoteName] = '" + name + "'");
        if (notes.RecordCount() == 0) Refuse("no footnote " + name);
        FootNoteRow note;
        note.Name = name;
        note.Description = notes.Text("Description");
        return note;
    }

    void Append(const std::string& name, std::vector<FootNoteRow>& notes, std::int16_t& count) {
        notes.resize(static_cast<std::size_t>(count));
        notes.push_back(FromLibrary(name));
        ++count;
    }

    void FootNote(const CsvRow& words) {
        Append(words[1], records_.ProjectFootNotes, records_.gvNumOfFootnotes);
    }

    void AccessoryFootNote(const CsvRow& words) {
        Append(words[1], records_.ProjectAccRptFootNotes, records_.NumOfAccRptFootnotes);
    }

    ProjectRecords& records_;
    Database book_;
    std::map<std::string, CsvRow> materials_;
    std::size_t laborLines_ = 0;
};

/// Models are found in the common directory wherever the program is installed, so they keep the
/// plain name; a system without a model takes the default database, as leaving the general data
/// does.
void NameDatabases(ProjectRecords& records) {
    const std::string name = records.GPDProjectFormat.DefaultDB.Trimmed();
    for (int system = 0; system < SystemCount; ++system) {
        const auto slot = static_cast<std::size_t>(system);
        records.CLGModelData.at(slot).DB = name;
        records.HTGModelData.at(slot).DB = name;
        records.WHModelData.at(slot).DB = name;
    }
}

}  // namespace

void BuildJob(const std::string& source, const std::string& output) {
    State().CommonDirectory = output + "Common/";
    State().ProgramVersionText = TENDO_VERSION;
    ProjectRecords records;
    ResetProjectData(records);
    JobBuilder builder(output, records);
    const std::vector<CsvRow> script = ReadCsv(source + JobScript);
    for (std::size_t i = 1; i < script.size(); ++i)
        builder.Run(script[i]);
    builder.TakeOff();
    PriceJob(records);
    NameDatabases(records);
    MakeDirectory(output + "Projects");
    std::string file = output + JobFile;
    DeleteFileIfThere(file);
    CreateProjectDatabase(file);
    SaveProjectData(file, records);
}

}  // namespace tendo

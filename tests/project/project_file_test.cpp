#include "project/project_file.h"

#include <algorithm>

#include "platform/files/paths.h"
#include "project/record_access.h"
#include "project_file_fixture.h"

namespace tendo {
namespace {

using Value = jet::Value;

/// Puts a different value into every field, so that a mix-up of two columns shows.
class Filler {
  public:
    template <std::size_t Width>
    void operator()(const char* name, FixedText<Width>& field) {
        field = std::string(name).substr(0, 3) + std::to_string(++count_);
    }
    void operator()(const char* name, std::string& field) {
        field = name + std::to_string(++count_);
    }
    void operator()(const char*, std::int16_t& field) {
        field = static_cast<std::int16_t>(++count_);
    }
    void operator()(const char*, float& field) { field = static_cast<float>(++count_) + 0.5F; }
    void operator()(const char*, bool& field) { field = ++count_ % 2 == 0; }

    template <class Record>
    void Fill(Record& record) {
        Record::ForEachField(record, *this);
    }

  private:
    int count_ = 0;
};

ProjectRecords FilledRecords() {
    ProjectRecords records;
    Filler filler;
    filler.Fill(records.GPDProjectFormat);
    filler.Fill(records.GPDClientFormat);
    filler.Fill(records.GPDCompanyFormat);
    filler.Fill(records.SystemTendos);
    for (std::size_t i = 0; i < SystemCount; ++i) {
        filler.Fill(records.ModelInfo[i]);
        filler.Fill(records.SystemInfo[i]);
        filler.Fill(records.CLGModelData[i]);
        filler.Fill(records.HTGModelData[i]);
        filler.Fill(records.WHModelData[i]);
    }
    for (std::size_t i = 0; i < 3; ++i)
        filler.Fill(records.ProjectMaterials[i]);
    for (std::size_t i = 0; i < 2; ++i)
        filler.Fill(records.ProjectLabor[i]);
    records.ProjectFootNotes.resize(2);
    for (FootNoteRow& row : records.ProjectFootNotes)
        filler.Fill(row);
    records.gvNumOfFootnotes = 2;
    records.ProjectAccRptFootNotes.resize(1);
    filler.Fill(records.ProjectAccRptFootNotes[0]);
    records.NumOfAccRptFootnotes = 1;
    return records;
}

/// What a load gives for records that were saved: some figures are not stored, others not read
/// back.
void ForgetWhatIsNotRead(ProjectRecords& records) {
    records.GPDProjectFormat.ProgramVersion = "5.0.0";
    for (ModelInfoRecord& info : records.ModelInfo) {
        info.CLGListPrice = ListPriceFromSalePrice(info.CLGSalePrice, info.CLGModelListDiscount);
        info.HTGListPrice = ListPriceFromSalePrice(info.HTGSalePrice, info.HTGModelListDiscount);
        info.WHListPrice = ListPriceFromSalePrice(info.WHSalePrice, info.WHModelListDiscount);
    }
    for (SystemInfoRecord& info : records.SystemInfo) {
        info.CLGSystemSelected = info.HTGSystemSelected = info.WHSystemSelected = 0;
        info.WHOpCostforSystem = info.WHProposedOpCost = info.WHOpCostSavings = 0;
    }
    for (MaterialRow& row : records.ProjectMaterials)
        row.Category = "";
}

class ProjectFile : public ProjectFileTest {};

TEST_F(ProjectFile, ANewFileHoldsTheThirteenTablesInTheirOrder) {
    CreateProjectDatabase(file);
    const Database database = Database::OpenDatabase(file);
    const std::vector<std::string> names = {
        "GPDProjectFormat", "GPDClientFormat", "GPDCompanyFormat",
        "SystemTendos",     "ModelInfo",       "SystemInfo",
        "CLGModelData",     "HTGModelData",    "WHModelData",
        "Materials",        "Labor",           "FootNotes",
        "AccRptFootNotes"};
    EXPECT_EQ(database.TableNames(), names);
}

TEST_F(ProjectFile, ANewFilesColumnsHaveTheirTypesAndWidths) {
    CreateProjectDatabase(file);
    Database database = Database::OpenDatabase(file);
    for (const jet::TableDefinition& wanted : ProjectTables()) {
        const jet::TableDefinition& made = database.Table(wanted.name);
        EXPECT_TRUE(made.indexes.empty());
        ASSERT_EQ(made.columns.size(), wanted.columns.size()) << wanted.name;
        for (std::size_t i = 0; i < made.columns.size(); ++i) {
            EXPECT_EQ(made.columns[i].name, wanted.columns[i].name);
            EXPECT_EQ(made.columns[i].type, wanted.columns[i].type) << made.columns[i].name;
            EXPECT_EQ(made.columns[i].size, wanted.columns[i].size) << made.columns[i].name;
            EXPECT_FALSE(made.columns[i].required);
            const bool isText = made.columns[i].type == jet::ColumnType::Text ||
                                made.columns[i].type == jet::ColumnType::Memo;
            EXPECT_TRUE(!isText || made.columns[i].allowZeroLength) << made.columns[i].name;
        }
        EXPECT_EQ(database.OpenRecordset(wanted.name).RecordCount(), 0) << wanted.name;
    }
}

TEST_F(ProjectFile, ColumnAndRecordDifferInWidthWhereTheyAlwaysDid) {
    const auto width = [](const char* table, const char* column) {
        for (const jet::TableDefinition& definition : ProjectTables()) {
            for (const jet::Column& each : definition.columns) {
                if (definition.name == table && each.name == column) return each.size;
            }
        }
        return -1;
    };
    EXPECT_EQ(width("GPDClientFormat", "Comment"), 255);
    EXPECT_EQ(width("HTGModelData", "Notes"), 255);
    EXPECT_EQ(width("WHModelData", "Manuf"), 255);
    EXPECT_EQ(width("GPDProjectFormat", "ImportGPD_FName"), 40);
    EXPECT_EQ(width("GPDCompanyFormat", "CompanyWebPage"), 60);
}

TEST_F(ProjectFile, MakingAFileAppendsTheExtensionUnlessTheNameHoldsIt) {
    std::string plain = PathOf("plain");
    CreateProjectDatabase(plain);
    EXPECT_EQ(plain, PathOf("plain.tdw"));
    EXPECT_TRUE(FileExists(plain));
    std::string capitals = PathOf("capitals.TDW");
    CreateProjectDatabase(capitals);
    EXPECT_EQ(capitals, PathOf("capitals.TDW.tdw"));
    std::string inside = PathOf("a.tdw.old");
    CreateProjectDatabase(inside);
    EXPECT_EQ(inside, PathOf("a.tdw.old"));
    std::string work = PathOf("job.tmp");
    CreateProjectDatabase(work);
    EXPECT_EQ(work, PathOf("job.tmp"));
}

TEST_F(ProjectFile, MakingAFileThatExistsChangesNothing) {
    WriteFile(file, "mine");
    CreateProjectDatabase(file);
    EXPECT_EQ(Bytes(file), "mine");
}

TEST_F(ProjectFile, SavingToAFileThatDoesNotExistWritesNothing) {
    SaveProjectData(file);
    EXPECT_FALSE(FileExists(file));
}

TEST_F(ProjectFile, EveryFieldComesBackButThoseNotRead) {
    ProjectRecords records = FilledRecords();
    SaveAs(records);
    const ProjectRecords loaded = Loaded(file);
    ForgetWhatIsNotRead(records);
    EXPECT_EQ(RecordsAsJson(loaded).flatten(), RecordsAsJson(records).flatten());
}

TEST_F(ProjectFile, SavingTwiceLeavesOneSetOfRows) {
    ProjectRecords records = FilledRecords();
    SaveAs(records);
    SaveProjectData(file, records);
    EXPECT_EQ(RowsIn("GPDProjectFormat").size(), 1U);
    EXPECT_EQ(RowsIn("SystemTendos").size(), 1U);
    EXPECT_EQ(RowsIn("ModelInfo").size(), 5U);
    EXPECT_EQ(RowsIn("Materials").size(), 3U);
    EXPECT_EQ(RowsIn("FootNotes").size(), 2U);
    EXPECT_EQ(RowsIn("AccRptFootNotes").size(), 1U);
}

TEST_F(ProjectFile, TextsKeepTheirBlanksAtTheRecordsWidth) {
    ProjectRecords records;
    records.GPDProjectFormat.Title = "Retrofit";
    records.GPDProjectFormat.ImportGPD_FName = "  A.TDW ";
    SaveAs(records);
    const jet::Row project = RowsIn("GPDProjectFormat").at(0);
    EXPECT_EQ(project[1], Value("Retrofit" + std::string(32, ' ')));
    EXPECT_EQ(project[5], Value(std::string(200, ' ')));  // the record's width, not the column's
    EXPECT_EQ(project[11], Value(std::string("A.TDW")));  // trimmed, in memory too
    EXPECT_EQ(records.GPDProjectFormat.ImportGPD_FName.WithoutPadding(), "A.TDW");
}

TEST_F(ProjectFile, MailAndWebColumnsStayNull) {
    ProjectRecords records = FilledRecords();
    SaveAs(records);
    for (const char* table : {"GPDClientFormat", "GPDCompanyFormat"}) {
        const jet::Row row = RowsIn(table).at(0);
        EXPECT_TRUE(std::holds_alternative<std::monostate>(row[row.size() - 1])) << table;
        EXPECT_TRUE(std::holds_alternative<std::monostate>(row[row.size() - 2])) << table;
    }
}

TEST_F(ProjectFile, ATextOfRareCharactersFitsItsColumn) {
    ProjectRecords records;
    std::string title;
    for (int i = 0; i < 40; ++i)
        title += "\U0001F525";  // takes two places each
    records.GPDProjectFormat.Title = title;
    SaveAs(records);
    EXPECT_EQ(Loaded(file).GPDProjectFormat.Title.Trimmed(), title.substr(0, 20 * 4));
}

TEST_F(ProjectFile, EmptyMaterialLinesCloseUpOnReload) {
    ProjectRecords records;
    for (const std::size_t line : {std::size_t{0}, std::size_t{5}, std::size_t{999}}) {
        records.ProjectMaterials[line].ItemQty = static_cast<std::int16_t>(line + 1);
    }
    records.ProjectMaterials[7].ItemQty = -1;  // empty, too
    SaveAs(records);
    const ProjectRecords loaded = Loaded(file);
    EXPECT_EQ(loaded.ProjectMaterials[0].ItemQty, 1);
    EXPECT_EQ(loaded.ProjectMaterials[1].ItemQty, 6);
    EXPECT_EQ(loaded.ProjectMaterials[2].ItemQty, 1000);
    EXPECT_EQ(loaded.ProjectMaterials[3].ItemQty, 0);
}

TEST_F(ProjectFile, TheSpareLinesAreNotSaved) {
    ProjectRecords records;
    records.ProjectMaterials[1000].ItemQty = 3;
    records.ProjectLabor[15].QtyHrs = 3;
    records.ProjectLabor[14].QtyHrs = 2;
    SaveAs(records);
    EXPECT_TRUE(RowsIn("Materials").empty());
    EXPECT_EQ(RowsIn("Labor").size(), 1U);
}

TEST_F(ProjectFile, MoreRowsThanTheProgramHoldsAreDropped) {
    ProjectRecords records;
    records.ProjectLabor[0].QtyHrs = records.ProjectMaterials[0].ItemQty = 1;
    SaveAs(records);
    Alter([](Database& database) {
        const jet::Row labor = RowsOf(database, "Labor").at(0);
        database.AppendRows("Labor", std::vector<jet::Row>(16, labor));
        const jet::Row material = RowsOf(database, "Materials").at(0);
        database.AppendRows("Materials", std::vector<jet::Row>(1200, material));
    });
    const ProjectRecords loaded = Loaded(file);
    EXPECT_EQ(loaded.ProjectLabor.size(), 16U);
    EXPECT_EQ(loaded.ProjectLabor[15].QtyHrs, 1);
    EXPECT_EQ(loaded.ProjectMaterials.size(), 1001U);
}

TEST_F(ProjectFile, AnImportNameOfMoreThanFortyCharactersFailsTheSave) {
    ProjectRecords records;
    records.GPDProjectFormat.Title = "Before";
    SaveAs(records);
    const std::string before = Bytes(file);
    records.GPDProjectFormat.Title = "After";
    records.GPDProjectFormat.ImportGPD_FName = std::string(41, 'x');
    EXPECT_EQ(ErrorOf([&] { SaveProjectData(file, records); }), error_number::FieldTooSmall);
    EXPECT_EQ(Bytes(file), before);
}

TEST_F(ProjectFile, AfterSaveAndReloadTheUnreadFiguresAreZero) {
    ProjectRecords records;
    SystemInfoRecord& info = records.SystemInfo[1];
    info.CLGSystemSelected = 1;
    info.WHOpCostforSystem = info.WHProposedOpCost = info.WHOpCostSavings = 10;
    info.HTGOpCostforSystem = 20;
    SaveAs(records);
    const jet::Row saved = RowsIn("SystemInfo").at(1);
    EXPECT_EQ(saved[2], Value(std::int64_t{1}));  // written all the same
    EXPECT_EQ(saved[9], Value(10.0));
    const SystemInfoRecord loaded = Loaded(file).SystemInfo[1];
    EXPECT_EQ(loaded.CLGSystemSelected, 0);
    EXPECT_EQ(loaded.WHOpCostforSystem, 0);
    EXPECT_EQ(loaded.WHProposedOpCost, 0);
    EXPECT_EQ(loaded.WHOpCostSavings, 0);
    EXPECT_EQ(loaded.HTGOpCostforSystem, 20);
}

TEST_F(ProjectFile, ListPricesAreRebuiltFromSaleAndDiscount) {
    ProjectRecords records;
    records.ModelInfo[2].HTGSalePrice = 900;
    records.ModelInfo[2].HTGModelListDiscount = 10;
    records.ModelInfo[2].CLGSalePrice = 900;
    records.ModelInfo[2].CLGModelListDiscount = 100;
    SaveAs(records);
    EXPECT_EQ(Loaded(file).ModelInfo[2].HTGListPrice, 1000);
    EXPECT_EQ(Loaded(file).ModelInfo[2].CLGListPrice, 0);
}

TEST_F(ProjectFile, ASystemNumberSixIsIgnoredAndTheLastOfEqualNumbersWins) {
    ProjectRecords records;
    records.ModelInfo[0].WHSalePrice = 5;
    SaveAs(records);
    Alter([](Database& database) {
        jet::Row row = RowsOf(database, "ModelInfo").at(0);
        row[0] = std::int64_t{6};
        row[18] = 66.0;
        jet::Row again = row;
        again[0] = std::int64_t{2};
        again[18] = 22.0;
        database.AppendRows("ModelInfo", {row, again});
    });
    const ProjectRecords loaded = Loaded(file);
    EXPECT_EQ(loaded.ModelInfo[0].WHSalePrice, 5);
    EXPECT_EQ(loaded.ModelInfo[1].WHSalePrice, 22);
    EXPECT_EQ(loaded.ModelInfo[4].WHSalePrice, 0);
}

TEST_F(ProjectFile, TheVersionThatWroteAFileIsNeverRead) {
    ProjectRecords records;
    records.GPDProjectFormat.ProgramVersion = "1.23";
    SaveAs(records);
    EXPECT_EQ(Loaded(file).GPDProjectFormat.ProgramVersion.Trimmed(), "5.0.0");
}

TEST_F(ProjectFile, AFileWithoutTheCompanyIdLoadsAndGetsTheColumn) {
    Project().GPDCompanyFormat.Name = "Quellhaven";
    Project().GPDCompanyFormat.CompanyIDNumber = "CID 1";
    SaveAs(Project());
    DropColumn("GPDCompanyFormat", "CompanyIDNumber");
    Hooks().ConvertOldProject = [](const std::string&) { FAIL() << "handed to the conversion"; };
    ResetProjectData();
    LoadProjectData(file);
    EXPECT_EQ(Project().GPDCompanyFormat.Name.Trimmed(), "Quellhaven");
    EXPECT_TRUE(Project().GPDCompanyFormat.CompanyIDNumber.IsBlank());
    const Database database = Database::OpenDatabase(file);
    const jet::Column& added = database.Table("GPDCompanyFormat").columns.back();
    EXPECT_EQ(added.name, "CompanyIDNumber");
    EXPECT_EQ(added.type, jet::ColumnType::Text);
    EXPECT_EQ(added.size, 255);
    EXPECT_TRUE(added.allowZeroLength);
    Project().GPDCompanyFormat.CompanyIDNumber = "CID 2";
    SaveProjectData(file);
    EXPECT_EQ(Loaded(file).GPDCompanyFormat.CompanyIDNumber.Trimmed(), "CID 2");
}

TEST_F(ProjectFile, LookingIntoAFileOfTheOlderLayoutLeavesItAsItIs) {
    ProjectRecords records;
    SaveAs(records);
    DropColumn("GPDCompanyFormat", "CompanyIDNumber");
    const std::string before = Bytes(file);
    Loaded(file);
    EXPECT_EQ(Bytes(file), before);
}

TEST_F(ProjectFile, AClientColumnThatIsMissingLeavesItsFieldUntouched) {
    ProjectRecords records;
    records.GPDClientFormat.Phone = "555";
    records.GPDClientFormat.Comment = "Prefers mail";
    SaveAs(records);
    DropColumn("GPDClientFormat", "Fax");
    records.GPDClientFormat.Fax = "as it was";
    records.GPDClientFormat.Phone = "";
    LoadProjectData(file, records);
    EXPECT_EQ(records.GPDClientFormat.Fax.Trimmed(), "as it was");
    EXPECT_EQ(records.GPDClientFormat.Phone.Trimmed(), "555");
    EXPECT_EQ(records.GPDClientFormat.Comment.Trimmed(), "Prefers mail");
}

TEST_F(ProjectFile, AMissingRowOrTableOfGeneralDataIsPassedOver) {
    ProjectRecords records;
    records.SystemTendos.Profit = 5;
    SaveAs(records);
    Alter([](Database& database) {
        database.DeleteAllRows("GPDProjectFormat");
        database.DeleteTable("GPDClientFormat");
    });
    records.GPDProjectFormat.Title = "as it was";
    records.SystemTendos.Profit = 0;
    LoadProjectData(file, records);
    EXPECT_EQ(records.GPDProjectFormat.Title.Trimmed(), "as it was");
    EXPECT_EQ(records.SystemTendos.Profit, 5);
}

TEST_F(ProjectFile, AFileWithoutAColumnOfAModelTableIsHandedToTheConversion) {
    SaveAs(Project());
    DropColumn("CLGModelData", "Coil");
    std::vector<std::string> converted;
    int catalogueLoads = 0;
    Hooks().ConvertOldProject = [&](const std::string& name) { converted.push_back(name); };
    Hooks().LoadMaterialCatalogue = [&] { ++catalogueLoads; };
    LoadProjectData(file);
    EXPECT_EQ(converted, std::vector<std::string>{file});
    EXPECT_EQ(catalogueLoads, 0);  // the load ends with the conversion
}

TEST_F(ProjectFile, WhatIsNoDatabaseIsHandedToTheConversion) {
    WriteFile(file, std::string(5314, 'x'));
    int conversions = 0;
    Hooks().ConvertOldProject = [&](const std::string&) { ++conversions; };
    LoadProjectData(file);
    LoadProjectData(PathOf("missing.tdw"));
    EXPECT_EQ(conversions, 2);
}

TEST_F(ProjectFile, WithoutAConversionTheErrorGoesOn) {
    WriteFile(file, std::string(5314, 'x'));
    EXPECT_EQ(ErrorOf([&] { LoadProjectData(file); }), error_number::UnrecognizedFormat);
    Hooks().ConvertOldProject = [](const std::string&) {
        FAIL() << "converts the open project only";
    };
    ProjectRecords records;
    EXPECT_EQ(ErrorOf([&] { LoadProjectData(file, records); }), error_number::UnrecognizedFormat);
}

TEST_F(ProjectFile, TheMaterialDatabaseIsLoadedAfterAProjectUnlessItIs) {
    SaveAs(Project());
    int loads = 0;
    Hooks().LoadMaterialCatalogue = [&] { ++loads; };
    LoadProjectData(file);
    EXPECT_EQ(loads, 1);
    State().MaterialDatabaseLoaded = true;
    LoadProjectData(file);
    EXPECT_EQ(loads, 1);
    State().MaterialDatabaseLoaded = false;
    Loaded(file);
    EXPECT_EQ(loads, 1);
}

TEST_F(ProjectFile, FootnotesAreReadByTheCountOfTheirRows) {
    ProjectRecords records;
    records.ProjectFootNotes.assign(
        2, FootNoteRow{"Terms", "{\\rtf1 " + std::string(9000, 'x') + "}"});
    records.gvNumOfFootnotes = 2;
    records.ProjectAccRptFootNotes.assign(1, FootNoteRow{"Options", ""});
    records.NumOfAccRptFootnotes = 1;
    SaveAs(records);
    ProjectRecords loaded;
    loaded.ProjectFootNotes.assign(9, FootNoteRow{"Old", "old"});
    LoadProjectData(file, loaded);
    EXPECT_EQ(loaded.gvNumOfFootnotes, 2);
    EXPECT_EQ(loaded.ProjectFootNotes.size(), 3U);  // one to spare
    EXPECT_EQ(loaded.ProjectFootNotes[1].Description, records.ProjectFootNotes[1].Description);
    EXPECT_TRUE(loaded.ProjectFootNotes[2].Name.IsBlank());
    EXPECT_EQ(loaded.NumOfAccRptFootnotes, 1);
    EXPECT_EQ(loaded.ProjectAccRptFootNotes[0].Name.Trimmed(), "Options");
}

TEST_F(ProjectFile, AFootnoteCountThatLiesDoesNoHarm) {
    ProjectRecords records;
    records.ProjectFootNotes.assign(3, FootNoteRow{"Terms", "x"});
    records.gvNumOfFootnotes = 3;
    SaveAs(records);
    const auto setCount = [&](std::int64_t count) {
        Alter([&](Database& database) {
            Recordset rows = database.OpenRecordset("GPDProjectFormat");
            rows.Edit();
            rows.Set("gvNumOfFootnotes", count);
            rows.Update();
        });
    };
    setCount(-7);
    EXPECT_EQ(Loaded(file).gvNumOfFootnotes, 0);
    setCount(1);
    EXPECT_EQ(Loaded(file).gvNumOfFootnotes, 1);
    EXPECT_GE(Loaded(file).ProjectFootNotes.size(), 2U);
    setCount(30000);
    EXPECT_EQ(Loaded(file).ProjectFootNotes.size(), 30001U);
}

TEST_F(ProjectFile, ASaveThatMissesAColumnFailsAndLeavesTheFile) {
    ProjectRecords records;
    SaveAs(records);
    DropColumn("Materials", "SalePrice");
    const std::string before = Bytes(file);
    SaveProjectData(file, records);  // no material line, so nothing is missed
    records.ProjectMaterials[0].ItemQty = 1;
    const std::string empty = Bytes(file);
    EXPECT_EQ(ErrorOf([&] { SaveProjectData(file, records); }), error_number::ItemNotFound);
    EXPECT_EQ(Bytes(file), empty);
    EXPECT_FALSE(before.empty());
}

TEST_F(ProjectFile, AFullProjectComesBack) {
    ProjectRecords records;
    Filler filler;
    for (std::size_t i = 0; i < SavedMaterialRowCount; ++i) {
        filler.Fill(records.ProjectMaterials[i]);
        records.ProjectMaterials[i].ItemQty = 1;
        records.ProjectMaterials[i].Tax = records.ProjectMaterials[i].Accessory = 0;
    }
    for (std::size_t i = 0; i < SavedLaborRowCount; ++i)
        filler.Fill(records.ProjectLabor[i]);
    SaveAs(records);
    ForgetWhatIsNotRead(records);
    EXPECT_EQ(RecordsAsJson(Loaded(file)).flatten(), RecordsAsJson(records).flatten());
}

}  // namespace
}  // namespace tendo

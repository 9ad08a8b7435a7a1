#include "reports/report_options.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

#include "../files/test_folder.h"
#include "platform/database/database.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"
#include "reports/proposal_formats.h"

namespace tendo {
namespace {

constexpr const char* Section = "ReportOptions";

class ReportOptions : public TestFolder {
  protected:
    void SetUp() override {
        before_ = Ini().AppProfileFileName;
        Ini().AppProfileFileName = Path("Tendo.ini");
        State().ProgramDirectory = Path("");
    }
    void TearDown() override {
        Ini().AppProfileFileName = before_;
        State().ProgramDirectory.clear();
        CurrentReportSettings() = DefaultReportSettings();
    }

    std::string Stored(const std::string& key) const {
        return ReadProfileString(Path("Tendo.ini"), Section, key, "none");
    }
    void Store(const std::string& key, const std::string& value) const {
        WriteProfileString(Path("Tendo.ini"), Section, key, value);
    }

    ProjectRecords project;

  private:
    std::string before_;
};

TEST_F(ReportOptions, EverythingButTheNumberOfPagesIsMarkedAtFirst) {
    ReportOptionValues values = LoadReportOptions(project);
    for (const ReportOption& option : ReportOptionTable())
        if (option.key) {
            const bool marked = std::string(option.control) != "chkPageCount";
            EXPECT_EQ(values.Mark(option.control), marked ? 1 : 0) << option.control;
        }
    EXPECT_EQ(values.startingPage, 1);
    EXPECT_EQ(values.lineSpacing, 100);
    EXPECT_EQ(values.mainHeader.barColor, 0xC0E0FF);
    EXPECT_EQ(values.secondaryHeader.fontSize, 14);
    EXPECT_EQ(values.body.fontName, "Arial");
    EXPECT_THROW(values.Mark("chkUnknown"), RuntimeError);
}

TEST_F(ReportOptions, ThereAreFiftyTwoMarksWithNamesOfTheirOwn) {
    // 6 reports, 6 of the summary, 18 of both models, 8 of cooling, 6 of heating, 6 general, 2
    // pictures.
    std::set<std::string> controls, keys, columns;
    std::size_t withKey = 0, withColumn = 0;
    for (const ReportOption& option : ReportOptionTable()) {
        EXPECT_TRUE(controls.insert(option.control).second) << option.control;
        if (option.key) withKey += keys.insert(option.key).second;
        if (option.column) withColumn += columns.insert(option.column).second;
    }
    EXPECT_EQ(controls.size(), 52u);
    EXPECT_EQ(withKey, 50u);
    EXPECT_EQ(withColumn, 50u);
}

TEST_F(ReportOptions, EachMarkStandsInItsFrameUnderItsCaption) {
    const auto of = [](std::string_view control) {
        for (const ReportOption& option : ReportOptionTable())
            if (option.control == control) return option;
        return ReportOption{};
    };
    EXPECT_STREQ(of("chkAutoRefresh").caption, "Auto Refresh Print Preview");
    EXPECT_STREQ(of("chkPrintSalesReport").caption, "Print Sales Report");
    EXPECT_EQ(of("chkShowDealersCost").frame, OptionFrame::Reports);
    EXPECT_EQ(of("chkCompComment").frame, OptionFrame::ProjectSummary);
    EXPECT_EQ(of("chkTotalPrice").frame, OptionFrame::BothModels);
    EXPECT_EQ(of("chkAirHandler").frame, OptionFrame::Cooling);
    EXPECT_EQ(of("chkAvailCooling").frame, OptionFrame::Heating);
    EXPECT_EQ(of("chkGraphs").frame, OptionFrame::General);
    EXPECT_EQ(of("chkUseCustomBanner").frame, OptionFrame::Pictures);
}

TEST_F(ReportOptions, WhatWasSavedIsLoaded) {
    ReportOptionValues values = LoadReportOptions(project);
    for (std::int16_t& mark : values.marks)
        mark = 0;
    values.logoFile = "logo of ours.png";
    values.bannerFile = "banner.bmp";
    values.startingPage = 5;
    values.lineSpacing = 150;
    values.mainHeader = {0x112233, 0x445566, "Courier New", 20, false, true};
    values.body.fontSize = 9;
    SaveReportOptions(values, project);
    ReportOptionValues loaded = LoadReportOptions(project);
    for (const ReportOption& option : ReportOptionTable())
        if (std::string(option.control) != "chkPrintSalesReport") {
            EXPECT_EQ(loaded.Mark(option.control), 0) << option.control;
        }
    EXPECT_EQ(loaded.logoFile, "logo of ours.png");
    EXPECT_EQ(loaded.bannerFile, "banner.bmp");
    EXPECT_EQ(loaded.startingPage, 5);
    EXPECT_EQ(loaded.lineSpacing, 150);
    EXPECT_EQ(loaded.mainHeader.barColor, 0x112233);
    EXPECT_EQ(loaded.mainHeader.textColor, 0x445566);
    EXPECT_EQ(loaded.mainHeader.fontName, "Courier New");
    EXPECT_EQ(loaded.mainHeader.fontSize, 20);
    EXPECT_FALSE(loaded.mainHeader.fontBold);
    EXPECT_TRUE(loaded.mainHeader.fontItalic);
    EXPECT_EQ(loaded.body.fontSize, 9);
    // The cached styles and page options are those of the screen at once.
    EXPECT_EQ(CurrentReportSettings().MainHeader.fontName, "Courier New");
    EXPECT_EQ(CurrentReportSettings().txtStartingPageNo, 5);
    EXPECT_EQ(CurrentReportSettings().chkDate, 0);
}

TEST_F(ReportOptions, TheSalesReportIsMarkedAgainWheneverTheScreenOpens) {
    ReportOptionValues values = LoadReportOptions(project);
    values.Mark("chkPrintSalesReport") = 0;
    values.Mark("chkPrintTitleReport") = 0;
    SaveReportOptions(values, project);
    EXPECT_EQ(Stored("chkPrintSalesReport"), "0");
    EXPECT_EQ(Stored("PrintSalesReport"), "none");
    EXPECT_EQ(Stored("chkPrintTitleReport"), "0");
    EXPECT_EQ(Stored("PrintTitleReport"), "0");
    ReportOptionValues loaded = LoadReportOptions(project);
    EXPECT_EQ(loaded.Mark("chkPrintSalesReport"), 1);
    EXPECT_EQ(loaded.Mark("chkPrintTitleReport"), 0);
}

TEST_F(ReportOptions, TheTitlePagesPictureIsTheProgramsOwnAtFirst) {
    EXPECT_EQ(LoadReportOptions(project).logoFile, "");
    Put("tenlogo.svg", "<svg/>");
    EXPECT_EQ(LoadReportOptions(project).logoFile, Path("tenlogo.svg"));
    Put("tenlogo.wmf", "");
    EXPECT_EQ(LoadReportOptions(project).logoFile, Path("tenlogo.wmf"));
    Store("txtTitlePageLogo", "");
    EXPECT_EQ(LoadReportOptions(project).logoFile, "");
}

TEST_F(ReportOptions, KeysOfTheSummaryHaveTheirOwnNames) {
    Store("ClientFax", "0");
    Store("CompanyRep", "0");
    Store("chkCompanyID", "0");
    ReportOptionValues values = LoadReportOptions(project);
    EXPECT_EQ(values.Mark("chkClientFax"), 0);
    EXPECT_EQ(values.Mark("chkCompRep"), 0);
    EXPECT_EQ(values.Mark("chkCompanyID"), 1);
}

TEST_F(ReportOptions, TheCommentMarksAreTheProjects) {
    project.GPDClientFormat.ClientPrintComment = 1;
    project.GPDCompanyFormat.CompanyPrintComment = 0;
    ReportOptionValues values = LoadReportOptions(project);
    EXPECT_EQ(values.Mark("chkClientComment"), 1);
    EXPECT_EQ(values.Mark("chkCompComment"), 0);
    values.Mark("chkClientComment") = 0;
    values.Mark("chkCompComment") = 1;
    SaveReportOptions(values, project);
    EXPECT_EQ(project.GPDClientFormat.ClientPrintComment, 0);
    EXPECT_EQ(project.GPDCompanyFormat.CompanyPrintComment, 1);
}

class ProposalFormats : public ReportOptions {
  protected:
    void SetUp() override {
        ReportOptions::SetUp();
        columnsMade = MakeFormatDB(ProposalFormatFile());
    }
    using Names = std::vector<std::string>;

    int columnsMade = 0;
    FootnoteList list = ProposalFootnotes(project);
    ReportOptionValues values;
};

TEST_F(ProposalFormats, TheDatabaseIsMadeWithSixtyColumns) {
    EXPECT_EQ(columnsMade, 60);
    EXPECT_EQ(ProposalFormatNames(), Names{});
}

TEST_F(ProposalFormats, AFormatKeepsAllOptionsAndFootnotes) {
    for (std::size_t i = 0; i < values.marks.size(); ++i)
        values.marks[i] = i % 2;
    values.logoFile = "logo.png";
    values.bannerFile = "frmBanner";
    values.startingPage = 3;
    values.lineSpacing = 120;
    values.mainHeader.barColor = 0x0102;
    values.body.textColor = WindowColor;
    AddFootnote(list, "Terms", "{\\rtf1 a}");
    AddFootnote(list, "Warranty", "{\\rtf1 b}");
    EXPECT_TRUE(SaveProposalFormat("Ours", values, list));

    ReportOptionValues loaded;
    const char* noParts[] = {"chkAutoRefresh", "chkPageCount"};
    for (const char* control : noParts)
        loaded.Mark(control) = 7;
    ClearFootnotes(list);
    AddFootnote(list, "other", "");
    EXPECT_TRUE(LoadProposalFormat("Ours", loaded, list));
    for (const char* control : noParts)
        values.Mark(control) = 7;
    EXPECT_EQ(loaded.marks, values.marks);
    EXPECT_EQ(loaded.logoFile, "logo.png");
    EXPECT_EQ(loaded.bannerFile, "frmBanner");
    EXPECT_EQ(loaded.startingPage, 3);
    EXPECT_EQ(loaded.lineSpacing, 120);
    EXPECT_EQ(loaded.mainHeader.barColor, 0x0102);
    EXPECT_EQ(loaded.body.textColor, WindowColor);
    ASSERT_EQ(list.Size(), 2u);
    EXPECT_EQ(list.rows[0].Name.Trimmed(), "Terms");
    EXPECT_EQ(list.rows[1].Description, "{\\rtf1 b}");
}

/// Names and types of a table's columns: T text, I integer, L long, S single, M memo.
std::string ColumnsOf(const char* table) {
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    std::string all;
    for (const jet::Column& column : formats.Table(table).columns) {
        using enum jet::ColumnType;
        const char type = column.type == Text      ? 'T'
                          : column.type == Integer ? 'I'
                          : column.type == Long    ? 'L'
                          : column.type == Single  ? 'S'
                          : column.type == Memo    ? 'M'
                                                   : '?';
        all += column.name + " " + type + "\n";
    }
    return all;
}

TEST_F(ProposalFormats, TheColumnsStandInTheirOrderAndTypes) {
    EXPECT_EQ(ColumnsOf("ProposalFormats"),
              "FormatName T\nClientFaxNumber I\nClientComment I\nCompanyRepresentative I\n"
              "CompanyID I\nCompanyFaxNumber I\nCompanyComment I\nCompressWarranty I\n"
              "CoilWarranty I\nHeatExchWarranty I\nMicroProcWarranty I\nPartsWarranty I\n"
              "LaborWarranty I\nCapacity I\nEfficiency I\nCondRemoval I\nOpCostforSystem I\n"
              "ProposedOpCost I\nOpCostSavings I\nHeight I\nLength I\nWidth I\nWeight I\n"
              "ListPrice I\nTotalPrice I\nSoundLevel I\nCompStartKit I\nCrankcaseHeater I\n"
              "PressureSwitch I\nCondSupport I\nElectrical I\nRefrigTubing I\nAirHandler I\n"
              "AvailCooling I\nConfiguration I\nHeatExchType I\nIgnitionType I\nExhaustVent I\n"
              "CFMRate S\nMainHeaderTextColor L\nMainHeaderBackColor L\n"
              "SecondaryHeaderTextColor L\nSecondaryHeaderBackColor L\nBodyTextColor L\n"
              "BodyBackColor L\nColorGraphs I\nPrintPageNumbers I\nPrintDate I\n"
              "StartingPageNo I\nLineSpacing I\nPrintLogoOnTitleReport I\nLogoFilename T\n"
              "UseCustomPageBanner I\nBannerFilename T\nPrintTitleReport I\nPrintSalesReport I\n"
              "PrintOptionalAccessoriesReport I\nPrintDetailedCostReport I\nShowDealersCost I\n"
              "PrintInstallersReport I\n"
              // What saving and loading use beside these.
              "SelectedOpCost I\nPrintGraphs I\n");
    EXPECT_EQ(ColumnsOf("Formats-FootNotes"), "FormatName T\nFootNoteName T\nDescription M\n");
}

std::int16_t StoredColumn(const char* column) {
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    return formats.OpenRecordset("ProposalFormats").Integer(column);
}

TEST_F(ProposalFormats, TheOperatingCostFillsBothOfItsColumns) {
    values.Mark("chkSelectedOpCost") = 0;
    SaveProposalFormat("Ours", values, list);
    EXPECT_EQ(StoredColumn("OpCostforSystem"), 0);
    EXPECT_EQ(StoredColumn("SelectedOpCost"), 0);
    EXPECT_EQ(StoredColumn("PrintGraphs"), 1);
    values.Mark("chkSelectedOpCost") = 1;
    SaveProposalFormat("Ours", values, list);
    EXPECT_EQ(StoredColumn("OpCostforSystem"), 1);
    EXPECT_EQ(StoredColumn("SelectedOpCost"), 1);
}

/// A store with the name of a format, the operating cost under its designed name, and no more.
void MakeSparseFormats() {
    jet::TableDefinition table;
    table.name = "ProposalFormats";
    jet::Column& name = table.columns.emplace_back();
    name.name = "FormatName";
    name.size = 255;
    jet::Column& cost = table.columns.emplace_back();
    cost.name = "OpCostforSystem";
    cost.type = jet::ColumnType::Integer;
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    formats.DeleteTable("ProposalFormats");
    formats.AppendTable(table);
    Recordset rows = formats.OpenRecordset("ProposalFormats");
    rows.AddNew();
    rows.Set("FormatName", std::string("Sparse"));
    rows.Set("OpCostforSystem", std::int64_t{0});
    rows.Update();
    formats.Close();
}

TEST_F(ProposalFormats, AStoreThatLacksColumnsIsReadAndGetsThemWhenAFormatIsSaved) {
    MakeSparseFormats();
    EXPECT_TRUE(LoadProposalFormat("Sparse", values, list));
    EXPECT_EQ(values.Mark("chkSelectedOpCost"), 0);
    EXPECT_EQ(values.Mark("chkGraphs"), 1);
    values.Mark("chkGraphs") = 0;
    values.logoFile = "logo.png";
    EXPECT_TRUE(SaveProposalFormat("Sparse", values, list));
    ReportOptionValues loaded;
    EXPECT_TRUE(LoadProposalFormat("Sparse", loaded, list));
    EXPECT_EQ(loaded.marks, values.marks);
    EXPECT_EQ(loaded.logoFile, "logo.png");
}

TEST_F(ProposalFormats, NamesThatDifferInCaseAreTwoFormats) {
    SaveProposalFormat("ours", values, list);
    SaveProposalFormat("Ours", values, list);
    DeleteProposalFormat("ours");
    EXPECT_EQ(ProposalFormatNames(), Names{"Ours"});
}

TEST_F(ProposalFormats, SavingUnderAnExistingNameReplacesIt) {
    AddFootnote(list, "one", "");
    SaveProposalFormat("Ours", values, list);
    values.startingPage = 9;
    ClearFootnotes(list);
    SaveProposalFormat("Ours", values, list);
    EXPECT_EQ(ProposalFormatNames(), Names{"Ours"});
    AddFootnote(list, "gone", "");
    ReportOptionValues loaded;
    LoadProposalFormat("Ours", loaded, list);
    EXPECT_EQ(loaded.startingPage, 9);
    EXPECT_EQ(list.Size(), 0u);
}

TEST_F(ProposalFormats, ANameWithAnApostropheWorks) {
    SaveProposalFormat("Owner's", values, list);
    SaveProposalFormat("Other", values, list);
    EXPECT_TRUE(LoadProposalFormat("Owner's", values, list));
    DeleteProposalFormat("Owner's");
    EXPECT_EQ(ProposalFormatNames(), Names{"Other"});
}

TEST_F(ProposalFormats, AFormatThatIsNotThereChangesNothing) {
    AddFootnote(list, "kept", "");
    values.startingPage = 4;
    EXPECT_FALSE(LoadProposalFormat("None", values, list));
    EXPECT_EQ(values.startingPage, 4);
    EXPECT_EQ(list.Size(), 1u);
}

TEST_F(ProposalFormats, AMarkTooLargeForItselfIsAnOverflow) {
    values = LoadReportOptions(project);
    SaveProposalFormat("Ours", values, list);
    Database formats = Database::OpenDatabase(ProposalFormatFile());
    Recordset rows = formats.OpenRecordset("ProposalFormats");
    rows.Edit();
    rows.Set("CFMRate", std::int64_t{40000});  // kept as a Single, which has room for it
    rows.Update();
    formats.Close();
    AddFootnote(list, "kept", "");
    values.Mark("chkHeight") = 0;
    try {
        LoadProposalFormat("Ours", values, list);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
    }
    EXPECT_EQ(values.Mark("chkHeight"), 0);
    EXPECT_EQ(list.Size(), 1U);
}

TEST_F(ProposalFormats, DeletingTakesItsFootnotesAlong) {
    AddFootnote(list, "one", "");
    SaveProposalFormat("A", values, list);
    SaveProposalFormat("B", values, list);
    DeleteProposalFormat("A");
    SaveProposalFormat("A", values, AccessoryFootnotes(project));
    EXPECT_TRUE(LoadProposalFormat("A", values, list));
    EXPECT_EQ(list.Size(), 0u);
    EXPECT_TRUE(LoadProposalFormat("B", values, list));
    EXPECT_EQ(list.Size(), 1u);
}

TEST_F(ReportOptions, WithoutTheDatabaseOfFormatsNothingHappens) {
    ReportOptionValues values;
    FootnoteList list = ProposalFootnotes(project);
    EXPECT_FALSE(SaveProposalFormat("A", values, list));
    EXPECT_FALSE(LoadProposalFormat("A", values, list));
    EXPECT_FALSE(DeleteProposalFormat("A"));
    EXPECT_TRUE(ProposalFormatNames().empty());
    EXPECT_EQ(EntryCount(), 0);
}

}  // namespace
}  // namespace tendo

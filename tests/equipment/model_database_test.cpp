#include "equipment/model_database.h"

#include <gtest/gtest.h>

#include <fstream>

#include "model_databases.h"
#include "platform/files/paths.h"
#include "platform/text/runtime_error.h"
#include "project/project_records.h"

namespace tendo {
namespace {

void WriteText(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

TEST(ModelDatabaseName, ANameGivenWithoutExtensionGetsOne) {
    EXPECT_EQ(WithModelExtension("Frostelm"), "Frostelm.mdb");
    EXPECT_EQ(WithModelExtension("Frostelm.db"), "Frostelm.db.mdb");
    EXPECT_EQ(WithModelExtension(""), ".mdb");
}

TEST(ModelDatabaseName, ANameThatEndsInUpperCaseLettersOfTheExtensionIsLeftAsItIs) {
    EXPECT_EQ(WithModelExtension("FROSTELM.MDB"), "FROSTELM.MDB");
    EXPECT_EQ(WithModelExtension("Frostelm.Mdb"), "Frostelm.Mdb");
    const CommonFolder folder;
    WriteText(folder.Path("OLD.MDB"), "x");
    EXPECT_EQ(CheckToSeeIfDbaseExists(folder.Path("OLD.MDB"), "Frostelm"), folder.Path("OLD.MDB"));
}

TEST(ModelDatabaseName, AnExistingFileIsTheResultWithItsBlanksTakenOff) {
    const CommonFolder folder;
    WriteText(folder.Path("Mine.mdb"), "x");
    EXPECT_EQ(CheckToSeeIfDbaseExists("  " + folder.Path("Mine") + "   ", "Frostelm"),
              folder.Path("Mine.mdb"));
}

TEST(ModelDatabaseName, AModelDatabaseThatNoLongerExistsFallsBackToTheProjectsDefault) {
    const CommonFolder folder;
    EXPECT_EQ(CheckToSeeIfDbaseExists(folder.Path("Gone.mdb"), "Frostelm"),
              folder.Path("Frostelm.mdb"));
    Project().GPDProjectFormat.DefaultDB = " Other ";
    EXPECT_EQ(CheckToSeeIfDbaseExists(""), folder.Path("Other.mdb"));
    Project().GPDProjectFormat.DefaultDB = "";
}

TEST(ModelDatabaseName, ADefaultThatHasItsExtensionIsFoundInTheCommonDirectory) {
    const CommonFolder folder;
    EXPECT_EQ(CheckToSeeIfDbaseExists("", "Frostelm.mdb"), folder.Path("Frostelm.mdb"));
    EXPECT_EQ(CheckToSeeIfDbaseExists("", "FROSTELM.MDB"), folder.Path("FROSTELM.MDB"));
}

TEST(ModelDatabaseName, ADefaultThatWasBrowsedForIsFoundInItsFolder) {
    const CommonFolder folder, elsewhere;  // the second one is the common directory
    WriteText(folder.Path("Mine.mdb"), "x");
    EXPECT_EQ(CheckToSeeIfDbaseExists("Gone", folder.Path("Mine")), folder.Path("Mine.mdb"));
    EXPECT_EQ(CheckToSeeIfDbaseExists("Gone", folder.Path("NotThere")),
              elsewhere.Path("") + folder.Path("NotThere.mdb"));
}

TEST(FuelCodes, FurnacesAreOneToFourAndBoilersFiveToEight) {
    const char* texts[] = {"Oil", "Gas", "Gas/Propane", "Propane"};
    for (int code = 1; code <= 4; ++code) {
        EXPECT_EQ(FurnaceFuelText(code), texts[code - 1]);
        EXPECT_EQ(FurnaceFuelText(code + 4), texts[code - 1]);
    }
    for (const int code : {0, 9, -1, 1 << 20})
        EXPECT_EQ(FurnaceFuelText(code), "") << code;
}

TEST(FuelCodes, WaterHeatersHaveFive) {
    EXPECT_EQ(WaterHeaterFuelText(1), "Natural Gas");
    EXPECT_EQ(WaterHeaterFuelText(2), "Propane");
    EXPECT_EQ(WaterHeaterFuelText(3), "Natural Gas or Propane");
    EXPECT_EQ(WaterHeaterFuelText(4), "Fuel Oil");
    EXPECT_EQ(WaterHeaterFuelText(5), "Electric");
    for (const int code : {0, 6, -5})
        EXPECT_EQ(WaterHeaterFuelText(code), "") << code;
}

TEST(ModelDatabaseCheck, AnEmptyTablePasses) {
    const CommonFolder folder;
    WriteModelDatabase(folder.Path("empty.mdb"), EmptyModelTables());
    EXPECT_FALSE(CheckModelDatabase(folder.Path("empty.mdb")).has_value());
}

TEST(ModelDatabaseCheck, AMissingTableFailsWithTheErrorsNumberAndTheKind) {
    const CommonFolder folder;
    auto tables = EmptyModelTables();
    tables.erase(tables.begin() + 3);
    WriteModelDatabase(folder.Path("nogama.mdb"), tables);
    const auto failure = CheckModelDatabase(folder.Path("nogama.mdb"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->kind, "furnaces and boilers");
    EXPECT_EQ(failure->errorNumber, error_number::TableNotFound);
}

TEST(ModelDatabaseCheck, AMissingEPAColumnFailsOnlyWhereThereAreRows) {
    const CommonFolder folder;
    auto tables = EmptyModelTables();
    SmallTable& heaters = TableNamed(tables, "WH File");
    heaters.columns.erase(heaters.columns.begin());
    WriteModelDatabase(folder.Path("norows.mdb"), tables);
    EXPECT_FALSE(CheckModelDatabase(folder.Path("norows.mdb")).has_value());

    heaters.rows = {{{"Model", std::string("W1")}}};
    WriteModelDatabase(folder.Path("noepa.mdb"), tables);
    const auto failure = CheckModelDatabase(folder.Path("noepa.mdb"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->kind, "water heaters");
    EXPECT_EQ(failure->errorNumber, error_number::ItemNotFound);
}

TEST(ModelDatabaseCheck, AFileThatIsNoDatabaseFails) {
    const CommonFolder folder;
    WriteText(folder.Path("text.mdb"), std::string(5000, 'x'));
    const auto failure = CheckModelDatabase(folder.Path("text.mdb"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->errorNumber, error_number::UnrecognizedFormat);
    const auto missing = CheckModelDatabase(folder.Path("missing.mdb"));
    ASSERT_TRUE(missing.has_value());
    EXPECT_EQ(missing->errorNumber, error_number::CouldNotFindFile);
}

TEST(ModelDatabaseCheck, TheMessageNamesTheDatabaseTheKindAndTheError) {
    EXPECT_EQ(
        ModelDatabaseMessage("a.mdb", {"air conditioners", 3078}),
        "The database a.mdb is not a properly formatted manufacturer's model database for air "
        "conditioners.  Please choose another database.  Error 3078");
}

TEST(Manufacturer, TheFirstHeaderRowNamesIt) {
    const CommonFolder folder;
    auto tables = EmptyModelTables();
    TableNamed(tables, "Header").rows.push_back({{"ManufName", std::string("Second")}});
    WriteModelDatabase(folder.Path("a.mdb"), tables);
    Database database = Database::OpenDatabase(folder.Path("a.mdb"));
    EXPECT_EQ(ManufacturerName(database), "Frostelm");
}

TEST(Manufacturer, AnEmptyOrMissingHeaderGivesABlankName) {
    const CommonFolder folder;
    auto tables = EmptyModelTables();
    TableNamed(tables, "Header").rows.clear();
    WriteModelDatabase(folder.Path("a.mdb"), tables);
    Database empty = Database::OpenDatabase(folder.Path("a.mdb"));
    EXPECT_EQ(ManufacturerName(empty), "");
    tables.pop_back();
    WriteModelDatabase(folder.Path("b.mdb"), tables);
    Database missing = Database::OpenDatabase(folder.Path("b.mdb"));
    EXPECT_EQ(ManufacturerName(missing), "");
}

TEST(ModelColumns, EitherNameOfTheTwoRenamedColumnsIsFound) {
    const CommonFolder folder;
    WriteModelDatabase(folder.Path("a.mdb"), EmptyModelTables());
    Database database = Database::OpenDatabase(folder.Path("a.mdb"));
    const Recordset ac = database.OpenRecordset("AC File");
    EXPECT_EQ(ColumnIn(ac, "HILOPressureSwitch|HILOPressure"), "HILOPressure");
    const Recordset hp = database.OpenRecordset("HP File");
    EXPECT_EQ(ColumnIn(hp, "HILOPressureSwitch|HILOPressure"), "HILOPressureSwitch");
    EXPECT_EQ(ColumnIn(hp, "CompStartKit|CompressorStartKit"), "CompressorStartKit");
    EXPECT_EQ(ColumnIn(hp, "Neither|Nor"), "");
}

class ModelFixtures : public ::testing::Test {
  protected:
    static std::string Path(const std::string& name) {
        return std::string(TENDO_SOURCE_DIR) + "/../shared/jet/fixtures/" + name;
    }
    void SetUp() override {
        if (!FileExists(Path("models_small.mdb"))) GTEST_SKIP() << "no shared fixtures here";
    }
};

TEST_F(ModelFixtures, FilesOfAnotherWriterPassAndFailAsTheyShould) {
    EXPECT_FALSE(CheckModelDatabase(Path("models_small.mdb")).has_value());
    EXPECT_FALSE(CheckModelDatabase(Path("models_emptygs.mdb")).has_value());
    const auto noEPA = CheckModelDatabase(Path("models_noepa.mdb"));
    ASSERT_TRUE(noEPA.has_value());
    EXPECT_EQ(noEPA->kind, "air conditioners");
    EXPECT_EQ(noEPA->errorNumber, error_number::ItemNotFound);
    const auto noGAMA = CheckModelDatabase(Path("models_nogama.mdb"));
    ASSERT_TRUE(noGAMA.has_value());
    EXPECT_EQ(noGAMA->kind, "furnaces and boilers");
    EXPECT_TRUE(CheckModelDatabase(Path("materials.mdb")).has_value());
}

TEST_F(ModelFixtures, TheManufacturerIsRead) {
    Database database = Database::OpenDatabase(Path("models_small.mdb"));
    EXPECT_EQ(ManufacturerName(database), "Brindlecove Air Systems");
}

}  // namespace
}  // namespace tendo

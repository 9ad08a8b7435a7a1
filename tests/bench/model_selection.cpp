#include <sqlite3.h>

#include <QApplication>
#include <QPushButton>
#include <QTableView>
#include <cmath>
#include <memory>
#include <stdexcept>

#include "../equipment/model_databases.h"
#include "benchmarks.h"
#include "bind_value.h"
#include "equipment/screens/frm_model_selection.h"
#include "measure.h"
#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/qt/apply_theme.h"
#include "platform/qt/dialogs.h"

namespace tendo::bench {
namespace {

constexpr int ModelCount = 40000;
constexpr int LimitChanges = 20;  // in one measurement

std::string Number(const char* word, int i) {
    return std::string(word) + "-" + std::to_string(i);
}

/// A manufacturer's line of air conditioners from 6 to 205.5 MBH and 10 to 24 SEER, with a value in
/// every column.
std::vector<SmallTable> GeneratedModels() {
    std::vector<SmallTable> tables = EmptyModelTables();
    SmallTable& table = TableNamed(tables, "AC File");
    for (int i = 0; i < ModelCount; ++i) {
        NamedRow row = AirConditioner(Number("FA", 100000 + i * 7 % ModelCount), 6 + i % 400 * 0.5,
                                      10 + i % 29 * 0.5, 1000 + i % 900, 1500 + i % 1300);
        row["EPA"] = i % 3 == 0;
        for (const std::string& column : table.columns) {
            const std::string name = column.substr(0, column.find(':'));
            if (row.contains(name)) continue;
            if (column.back() == 't' || column.back() == 'w')
                row[name] = Number(name.c_str(), i % 9001);
            if (column.back() == 's') row[name] = i % 90 * 1.0;
            if (column.back() == 'd') row[name] = 36000.0 + i % 900;
        }
        table.rows.push_back(std::move(row));
    }
    return tables;
}

/// Answers the prompt for a limit.
class LimitTyper : public DialogService {
  public:
    std::string text;
    Answer Message(const MessageDialog& dialog) override { throw std::runtime_error(dialog.text); }
    std::optional<std::string> Input(const InputDialog&) override { return text; }
    std::optional<std::string> File(const FileDialog&) override { return std::nullopt; }
    std::optional<std::uint32_t> Color(const ColorDialog&) override { return std::nullopt; }
    std::optional<FontChoice> Font(const std::string&, const FontChoice&) override {
        return std::nullopt;
    }
    bool HasPrinter() override { return false; }
    bool Print(const PrintDialog&, QPrinter&) override { return false; }
};

/// The bare engine with the same rows, as a database reads them: no types, in memory.
class BareQuery {
  public:
    explicit BareQuery(const std::string& file) {
        Must(sqlite3_open(":memory:", &database_));
        Database source = Database::OpenDatabase(file);
        Recordset rows = source.OpenRecordset("AC File");
        const int width = static_cast<int>(rows.Fields().size());
        std::string names, marks;
        for (int i = 0; i < width; ++i) {
            names += (i ? ",\"" : "\"") + rows.Fields()[static_cast<std::size_t>(i)].name + "\"";
            marks += i ? ",?" : "?";
        }
        Must(sqlite3_exec(database_, ("CREATE TABLE \"AC File\" (" + names + ")").c_str(), nullptr,
                          nullptr, nullptr));
        sqlite3_stmt* insert = Prepared("INSERT INTO \"AC File\" VALUES (" + marks + ")");
        for (; !rows.EOF_(); rows.MoveNext()) {
            for (int i = 0; i < width; ++i)
                Bind(insert, i + 1, rows.Get(i), SQLITE_TRANSIENT);
            Must(sqlite3_step(insert), SQLITE_DONE);
            Must(sqlite3_reset(insert));
        }
        sqlite3_finalize(insert);
    }
    BareQuery(const BareQuery&) = delete;
    BareQuery& operator=(const BareQuery&) = delete;
    ~BareQuery() { sqlite3_close(database_); }

    /// Steps through every row; returns their number.
    int Run(const std::string& minimum) {
        sqlite3_stmt* query =
            Prepared("SELECT * FROM \"AC File\" WHERE \"Capacity\" >= " + minimum +
                     " AND \"Capacity\" <= 999.9 AND \"Seer\" >= 0");
        int count = 0;
        while (sqlite3_step(query) == SQLITE_ROW)
            ++count;
        sqlite3_finalize(query);
        return count;
    }

  private:
    static void Must(int result, int wanted = SQLITE_OK) {
        if (result != wanted) throw std::runtime_error("sqlite failed in a measurement");
    }
    sqlite3_stmt* Prepared(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        Must(sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr));
        return statement;
    }

    sqlite3* database_ = nullptr;
};

/// The screen in its cooling mode, on the display and painted.
std::unique_ptr<frmModelSelection> OpenScreen() {
    auto screen = std::make_unique<frmModelSelection>(SelectionMode::Cooling);
    screen->setAttribute(Qt::WA_DeleteOnClose, false);
    screen->show();
    QApplication::processEvents();
    return screen;
}

/// Minimum capacities from 10 to 48: between 96 and 80 percent of the models stay.
std::string MinimumAt(int i) {
    return std::to_string(10 + 2 * (i % LimitChanges));
}

void NeedRows(int found, int wanted) {
    if (found != wanted)
        throw std::runtime_error("the screen shows " + std::to_string(found) + " of " +
                                 std::to_string(wanted) + " rows");
}

bool MeasureLimits(const std::string& file) {
    auto dialogs = std::make_unique<LimitTyper>();
    LimitTyper& typer = *dialogs;
    SetDialogs(std::move(dialogs));
    const auto screen = OpenScreen();
    auto* button = qobject_cast<QPushButton*>(screen->Control("btnSetMinimumCapacity"));
    auto* grid = qobject_cast<QTableView*>(screen->Control("grdAC"));
    BareQuery bare(file);
    const auto ours = [&] {
        for (int i = 0; i < LimitChanges; ++i) {
            typer.text = MinimumAt(i);
            button->click();
            QApplication::processEvents();  // paints
        }
    };
    int found = 0;
    const auto peer = [&] {
        for (int i = 0; i < LimitChanges; ++i)
            found = bare.Run(MinimumAt(i));
    };
    const auto medians = Medians({ours, peer}, 11);
    NeedRows(grid->model()->rowCount(), found);
    return Report("a limit change to the refilled grid (SQLite query)",
                  medians[0] * 1000 / LimitChanges, medians[1] * 1000 / LimitChanges, "ms", 2.0,
                  true);
}

bool MeasureOpening(const std::string& file) {
    int shown = 0;
    const auto ours = [&] {
        const auto screen = OpenScreen();
        shown = qobject_cast<QTableView*>(screen->Control("grdAC"))->model()->rowCount();
    };
    const auto peer = [&] {
        Database database = Database::OpenDatabase(file);
        NeedRows(database.OpenRecordset("AC File").RecordCount(), ModelCount);
    };
    ours();  // fonts and icons are loaded once in a program's life
    const auto medians = Medians({ours, peer}, 15);
    NeedRows(shown, ModelCount);
    return Report("opening the selection of 40,000 models (its read)", medians[0] * 1000,
                  medians[1] * 1000, "ms", 1.2, true);
}

}  // namespace

bool ModelSelectionScreen(const std::string& folder) {
    ApplyTheme(*qobject_cast<QApplication*>(QApplication::instance()), false);
    const std::string file = WithSeparator(folder) + "selection40000.mdb";
    if (!FileExists(file)) WriteModelDatabase(file, GeneratedModels());
    Project().CLGModelData[0].DB = "selection40000.mdb";
    State().CommonDirectory = WithSeparator(folder);
    Project().GPDProjectFormat.DefaultDB = "selection40000";
    const bool opening = MeasureOpening(file);
    return MeasureLimits(file) && opening;
}

}  // namespace tendo::bench

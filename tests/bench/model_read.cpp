// glib stands ahead of mdbtools.h, which would take it in as C.
#include <glib.h>

#include <mdbtools.h>
#include <sqlite3.h>

#include <cstring>
#include <stdexcept>

#include "benchmarks.h"
#include "measure.h"
#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/jet/jet_writer.h"

namespace tendo::bench {
namespace {

constexpr int RowCount = 120000;
constexpr const char* TableName = "AC File";

struct ColumnPlan {
    const char* name;
    jet::ColumnType type;
    int size;
};
const ColumnPlan columns[] = {
    {"EPA", jet::ColumnType::Boolean, 0},         {"Model", jet::ColumnType::Text, 35},
    {"Tradename", jet::ColumnType::Text, 50},     {"Description", jet::ColumnType::Text, 50},
    {"DealerCost", jet::ColumnType::Currency, 0}, {"ListPrice", jet::ColumnType::Currency, 0},
    {"Capacity", jet::ColumnType::Single, 0},     {"Seer", jet::ColumnType::Single, 0},
    {"Eer", jet::ColumnType::Single, 0},          {"Sound", jet::ColumnType::Single, 0},
    {"AirHandler", jet::ColumnType::Text, 35},    {"Electrical", jet::ColumnType::Text, 35},
    {"Height", jet::ColumnType::Single, 0},       {"Width", jet::ColumnType::Single, 0},
    {"Weight", jet::ColumnType::Single, 0},       {"CompressorWarranty", jet::ColumnType::Text, 35},
    {"PartsWarranty", jet::ColumnType::Text, 35}, {"Added", jet::ColumnType::Date, 0},
};

/// A generated line of air conditioners; every eleventh text is null.
void WriteModels(const std::string& file) {
    jet::TableToWrite table;
    table.definition.name = TableName;
    for (const ColumnPlan& column : columns) {
        jet::Column made;
        made.name = column.name;
        made.type = column.type;
        made.size = column.size;
        table.definition.columns.push_back(made);
    }
    table.rows = [](const auto& add) {
        std::vector<std::string> texts(std::size(columns));
        std::vector<jet::ValueView> row(std::size(columns));
        for (int i = 0; i < RowCount; ++i) {
            for (std::size_t c = 0; c < std::size(columns); ++c) {
                switch (columns[c].type) {
                    case jet::ColumnType::Boolean:
                        row[c] = i % 3 == 0;
                        break;
                    case jet::ColumnType::Text:
                        texts[c] =
                            std::string(columns[c].name) + "-" + std::to_string(i * 7 % 9001);
                        if ((i + static_cast<int>(c)) % 11 == 0)
                            row[c] = std::monostate{};
                        else
                            row[c] = std::string_view(texts[c]);
                        break;
                    case jet::ColumnType::Currency:
                        row[c] = std::int64_t{10000000} + i * 1300 % 40000000;
                        break;
                    default:
                        row[c] = 10.0 + i % 600 / 10.0;
                }
            }
            add(row);
        }
    };
    ReplaceFile(file, jet::WriteFile({table}, 38000));
}

void Must(int result, int wanted = SQLITE_OK) {
    if (result != wanted) throw std::runtime_error("sqlite failed in a measurement");
}

sqlite3* OpenMemory() {
    sqlite3* database = nullptr;
    Must(sqlite3_open(":memory:", &database));
    Must(sqlite3_exec(database, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; BEGIN", nullptr,
                      nullptr, nullptr));
    return database;
}

double RawDouble(const unsigned char* bytes) {
    double value = 0;
    memcpy(&value, bytes, sizeof value);
    return value;
}

/// Binds the raw bytes of a field as libmdb's row route leaves them on its page.
void BindRaw(sqlite3_stmt* insert, int at, MdbHandle* mdb, const MdbColumn* column, char* text,
             std::size_t room) {
    const unsigned char* bytes = mdb->pg_buf + column->cur_value_start;
    if (column->col_type == MDB_BOOL) {
        sqlite3_bind_int(insert, at, column->cur_value_len ? 0 : 1);
        return;
    }
    if (column->cur_value_len == 0) {
        sqlite3_bind_null(insert, at);
        return;
    }
    float single = 0;
    std::int64_t money = 0;
    switch (column->col_type) {
        case MDB_FLOAT:
            memcpy(&single, bytes, sizeof single);
            sqlite3_bind_double(insert, at, static_cast<double>(single));
            break;
        case MDB_DOUBLE:
        case MDB_DATETIME:
            sqlite3_bind_double(insert, at, RawDouble(bytes));
            break;
        case MDB_MONEY:
            memcpy(&money, bytes, sizeof money);
            sqlite3_bind_int64(insert, at, money);
            break;
        default: {
            const int length =
                mdb_unicode2ascii(mdb, reinterpret_cast<const char*>(bytes),
                                  static_cast<std::size_t>(column->cur_value_len), text, room);
            sqlite3_bind_text(insert, at, text, length, SQLITE_TRANSIENT);
        }
    }
}

/// The peer: libmdb's rows, raw, into SQLite.
void ReadByLibmdb(const std::string& file) {
    MdbHandle* mdb = mdb_open(file.c_str(), MDB_NOFLAGS);
    if (!mdb || !mdb_read_catalog(mdb, MDB_TABLE))
        throw std::runtime_error("libmdb can't open the file");
    char name[] = "AC File";
    MdbTableDef* table = mdb_read_table_by_name(mdb, name, MDB_TABLE);
    mdb_read_columns(table);
    mdb_rewind_table(table);
    sqlite3* database = OpenMemory();
    std::string create = "CREATE TABLE t (", marks;
    for (unsigned i = 0; i < table->num_cols; ++i) {
        create += (i ? ",c" : "c") + std::to_string(i);
        marks += i ? ",?" : "?";
    }
    Must(sqlite3_exec(database, (create + ")").c_str(), nullptr, nullptr, nullptr));
    sqlite3_stmt* insert = nullptr;
    Must(sqlite3_prepare_v2(database, ("INSERT INTO t VALUES (" + marks + ")").c_str(), -1, &insert,
                            nullptr));
    char text[1024];
    int rows = 0;
    while (mdb_fetch_row(table)) {
        for (unsigned i = 0; i < table->num_cols; ++i) {
            const auto* column =
                static_cast<const MdbColumn*>(g_ptr_array_index(table->columns, i));
            BindRaw(insert, static_cast<int>(i) + 1, mdb, column, text, sizeof text);
        }
        Must(sqlite3_step(insert), SQLITE_DONE);
        Must(sqlite3_reset(insert));
        ++rows;
    }
    if (rows != RowCount) throw std::runtime_error("libmdb read " + std::to_string(rows) + " rows");
    sqlite3_finalize(insert);
    Must(sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr));
    sqlite3_close(database);
    mdb_free_tabledef(table);
    mdb_close(mdb);
}

void ReadByTendo(const std::string& file) {
    Database database = Database::OpenDatabase(file);
    Recordset rows = database.OpenRecordset(TableName);
    if (rows.RecordCount() != RowCount)
        throw std::runtime_error("tendo read the wrong number of rows");
}

}  // namespace

bool ModelDatabaseRead(const std::string& folder) {
    const std::string file = WithSeparator(folder) + "models120000.mdb";
    if (!FileExists(file)) WriteModels(file);
    const auto medians = Medians({[&] { ReadByTendo(file); }, [&] { ReadByLibmdb(file); }}, 9);
    const bool speed = Report("model database of 120,000 rows into SQLite (libmdb)",
                              medians[0] * 1000, medians[1] * 1000, "ms", 1.0, true);
    const double size = static_cast<double>(FileLength(file));
    const double peak = PeakGrowth([&] { ReadByTendo(file); });
    return Report("its memory (the file's size)", peak / 1e6, size / 1e6, "MB", 2.0, true) && speed;
}

}  // namespace tendo::bench

#include <optional>
#include <string>
#include <utility>

#include "platform/database/database.h"
#include "platform/database/database_hooks.h"
#include "platform/database/engine.h"
#include "platform/files/leftovers.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/jet/jet_reader.h"
#include "platform/jet/jet_writer.h"
#include "platform/text/date_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr int DatabaseExists = 3204;
constexpr int OldGeneration = 3;
constexpr int WrittenGeneration = 4;

/// What a rewritten file would lack, in words.
std::string LostThings(const jet::NotKept& notKept) {
    const std::pair<bool, const char*> things[] = {
        {notKept.password, "its password"},
        {notKept.relations, "its relations between tables"},
        {notKept.queries, "its stored queries"},
        {notKept.linkedTables, "its linked tables"},
        {notKept.otherObjects, "its forms, reports, macros or modules"}};
    std::string text;
    for (const auto& [isThere, words] : things)
        if (isThere) text += (text.empty() ? "" : ", ") + std::string(words);
    return text;
}

/// The name for a file's original: "Job (Jet 3).tdw". A copy that is there with other content
/// stays; the next one is numbered.
std::string NameForOriginal(const std::string& path, const std::string& bytes) {
    const std::string start = DirectoryOf(path) + StemOf(path) + " (Jet 3";
    std::string name = start + ")" + ExtensionOf(path);
    for (int i = 2; FileExists(name) && ReadWholeFile(name) != bytes; ++i)
        name = start + ", " + std::to_string(i) + ")" + ExtensionOf(path);
    return name;
}

class JetFile : public DatabaseFile {
  public:
    explicit JetFile(std::string_view path)
        : path_(path),
          reader_(jet::Reader::OpenFile(path)),
          generation_(reader_->Generation()),
          notKept_(reader_->NotKeptOnWrite()) {}

    void AddTables(Database::Engine& engine) const {
        for (const std::string& name : reader_->TableNames())
            engine.AddTable(reader_->Table(name))->onlyInFile = true;
    }

    void ReadRows(const std::string& table, const RowVisitor& visitor) override {
        reader_->ReadRows(table, [&visitor](std::span<const jet::ValueView> row) {
            visitor(row);
            return true;
        });
    }

    void CheckWritable() const override {
        if (notKept_.any())
            throw RuntimeError(error_number::ReadOnlyDatabase,
                               "The file \"" + path_ +
                                   "\" can't be changed by this program: " + LostThings(notKept_) +
                                   " would be lost.  Work on a copy of it instead.");
    }

    void Write(Database::Engine& engine) override {
        std::vector<jet::TableToWrite> tables;
        for (const auto& table : engine.tables)
            tables.push_back({table->definition, [&engine, &table](const auto& add) {
                                  engine.VisitRows(*table, add);
                              }});
        const std::string bytes = jet::WriteFile(tables, SerialOfDate(Now()));
        RemoveLeftovers(DirectoryOf(path_));  // first: they may be what fills the disk
        if (generation_ == OldGeneration) KeepOriginal();
        ReplaceFile(path_, bytes);
        generation_ = WrittenGeneration;
        const std::string original = std::exchange(original_, "");
        if (!original.empty() && HooksOfDatabases().JetThreeKept)
            HooksOfDatabases().JetThreeKept(path_, original);
    }

    void AllTablesRead() override { reader_.reset(); }

  private:
    void KeepOriginal() {
        const std::string bytes = ReadWholeFile(path_);
        original_ = NameForOriginal(path_, bytes);
        if (!FileExists(original_)) ReplaceFile(original_, bytes);
    }

    std::string path_;
    std::optional<jet::Reader> reader_;  // until all its tables are read
    int generation_;
    jet::NotKept notKept_;
    std::string original_;
};

}  // namespace

DatabaseHooks& HooksOfDatabases() {
    static DatabaseHooks hooks;
    return hooks;
}

Database Database::OpenDatabase(std::string_view path) {
    auto engine = std::make_shared<Engine>(path);
    auto file = std::make_unique<JetFile>(path);
    file->AddTables(*engine);
    engine->file = std::move(file);
    return Database(std::move(engine));
}

void Database::CreateDatabase(std::string_view path) {
    if (FileExists(path))
        throw RuntimeError(DatabaseExists,
                           "Database already exists: \"" + std::string(path) + "\".");
    ReplaceFile(path, jet::WriteFile({}, SerialOfDate(Now())));
}

}  // namespace tendo

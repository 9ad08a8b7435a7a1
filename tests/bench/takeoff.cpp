#include <QApplication>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <unordered_map>

#include "../materials/material_databases.h"
#include "benchmarks.h"
#include "materials/catalogue_merge.h"
#include "materials/material_catalogue.h"
#include "materials/screens/takeoff_page.h"
#include "measure.h"
#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/settings_store.h"
#include "platform/qt/apply_theme.h"
#include "project/program_state.h"

namespace tendo::bench {
namespace {

constexpr int MaterialCount = 30000;
constexpr int LineCount = 1000;
constexpr double Frame = 1000.0 / 60;  // ms

/// A generated price book: 60 categories, descriptions as long as the catalogue keeps them.
std::vector<BookRow> GeneratedBook() {
    std::vector<BookRow> rows;
    for (int i = 0; i < MaterialCount; ++i) {
        BookRow row;
        row.description = "Material " + std::to_string(100000 + i * 7919 % MaterialCount) + " 3/4";
        row.partNumber = "PN-" + std::to_string(i);
        row.category = "Category " + std::to_string(i % 60);
        row.unitCst = 1 + i % 400 * 0.25;
        row.listCst = 2 + i % 400 * 0.5;
        rows.push_back(row);
    }
    return rows;
}

void UseBook(const std::string& folder) {
    State().MaterialDatabaseName = WithSeparator(folder) + "book30000.mdb";
    Settings().FileName = WithSeparator(folder) + "book_settings.ini";
    if (!FileExists(State().MaterialDatabaseName))
        WriteMaterialDatabase(State().MaterialDatabaseName, GeneratedBook());
    if (!LoadMaterialCatalogue() || MaterialCatalogue().size() != MaterialCount)
        throw std::runtime_error("the price book of the measurement doesn't load");
}

/// Every thirtieth material, with a quantity and a price.
std::vector<MaterialRow> GeneratedLines() {
    std::vector<MaterialRow> lines;
    for (std::size_t i = 1; lines.size() < LineCount; i += MaterialCount / LineCount) {
        MaterialRow line = MaterialCatalogue().at(i);
        line.ItemQty = static_cast<std::int16_t>(1 + i % 50);
        line.SalePrice = line.UnitCst * 1.25F;
        lines.push_back(line);
    }
    return lines;
}

struct JoinKey {
    std::string_view description;
    float cost = 0;
    friend bool operator==(const JoinKey&, const JoinKey&) = default;
};
struct JoinHash {
    std::size_t operator()(const JoinKey& key) const {
        return std::hash<std::string_view>()(key.description) ^ std::hash<float>()(key.cost);
    }
};

/// The peer: the lines in a hash, every row of the book looked up in it.
int HashJoin(std::vector<MaterialRow>& book, const std::vector<MaterialRow>& lines) {
    std::unordered_map<JoinKey, const MaterialRow*, JoinHash> index;
    index.reserve(lines.size());
    for (const MaterialRow& line : lines)
        index.emplace(JoinKey{line.Description.WithoutPadding(), line.UnitCst}, &line);
    int matched = 0;
    for (MaterialRow& row : book) {
        const auto found = index.find({row.Description.WithoutPadding(), row.UnitCst});
        if (found == index.end()) continue;
        TakeTakeoffFields(*found->second, row);
        ++matched;
    }
    return matched;
}

bool MeasureMerge() {
    std::vector<MaterialRow> lines = GeneratedLines();
    std::vector<MaterialRow> joined = MaterialCatalogue();
    int merged = 0, matched = 0;
    const auto ours = [&] {
        merged = MergeIntoCatalogue(MaterialCatalogue(), lines, TakeTakeoffFields).matched;
    };
    const auto peer = [&] { matched = HashJoin(joined, lines); };
    const auto medians = Medians({ours, peer}, 51);
    if (merged != LineCount || matched != LineCount || joined != MaterialCatalogue())
        throw std::runtime_error("merge and join differ");
    return Report("merge of 1,000 lines into 30,000 materials (hash join)", medians[0] * 1000,
                  medians[1] * 1000, "ms", 3.0, true);
}

bool MeasureLoad() {
    const auto ours = [] { LoadMaterialCatalogue(); };
    const auto peer = [] {
        Database database = Database::OpenDatabase(State().MaterialDatabaseName);
        if (database.OpenRecordset("Materials").RecordCount() != MaterialCount)
            throw std::runtime_error("the read misses rows");
    };
    const auto medians = Medians({ours, peer}, 15);
    return Report("catalogue of 30,000 materials (bare read of its file)", medians[0] * 1000,
                  medians[1] * 1000, "ms", 1.5, true);
}

bool ReportFrame(const std::string& what, const std::function<void()>& work) {
    const double seconds = Medians({work}, 31)[0];
    return Report(what + " (a frame)", seconds * 1000, Frame, "ms", 1.0, true);
}

}  // namespace

bool TakeoffMerge(const std::string& folder) {
    UseBook(folder);
    const bool merge = MeasureMerge();
    return MeasureLoad() && merge;
}

bool TakeoffPages(const std::string& folder) {
    ApplyTheme(*qobject_cast<QApplication*>(QApplication::instance()), false);
    UseBook(folder);
    std::vector<MaterialRow> lines = GeneratedLines();
    MergeIntoCatalogue(MaterialCatalogue(), lines, TakeTakeoffFields);
    TakeoffPage page(MaterialCatalogue(), "Takeoff", nullptr);
    page.show();
    QApplication::processEvents();
    int turned = 0;
    bool all = ReportFrame("turning a page of the takeoff, painted", [&] {
        page.Rows().ScrollTo(++turned % 2 == 0 ? 0 : 15000);
        QApplication::processEvents();
    });
    const std::pair<TakeoffView, const char*> views[] = {
        {TakeoffView::Materials, "to the selected materials from another view"},
        {TakeoffView::Accessories, "to the selected accessories"},
        {TakeoffView::Both, "to all selected"},
        {TakeoffView::All, "to the whole book"}};
    for (const auto& [view, what] : views)
        all = ReportFrame(what,
                          [&page, view = view] {
                              page.Rows().Show(view);
                              QApplication::processEvents();
                          }) &&
              all;
    return all;
}

}  // namespace tendo::bench

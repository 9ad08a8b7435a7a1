#include "equipment/screens/model_view.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QHeaderView>
#include <filesystem>
#include <memory>

#include "platform/files/settings_store.h"

namespace tendo {
namespace {

/// Grids of the sample models, with a settings store of their own.
class ModelViews : public ::testing::Test {
  protected:
    ModelViews() : selection(SelectionMode::Cooling, records, 0, {}), former(Settings().FileName) {
        store = (std::filesystem::temp_directory_path() /
                 ("tendo_widths_" + std::to_string(::getpid()) + ".ini"))
                    .string();
        Settings().FileName = store;
        EXPECT_TRUE(selection.ChangeDatabase(std::string(TENDO_BINARY_DIR) +
                                             "/share/tendo/Common/Frostelm.mdb"));
    }
    ~ModelViews() override {
        std::error_code ignored;
        std::filesystem::remove(store, ignored);
        Settings().FileName = former;
    }

    std::unique_ptr<ModelView> View(int tab) {
        auto view = std::make_unique<ModelView>(selection, tab, nullptr);
        view->resize(900, 400);
        view->Refill(true);
        return view;
    }

    ProjectRecords records;
    ModelSelection selection;
    std::string store, former;
};

TEST_F(ModelViews, AWidthThatTheUserSetIsThereTheNextTime) {
    const auto first = View(TabAC);
    const int design = first->columnWidth(1);
    first->horizontalHeader()->resizeSection(1, design + 80);
    first->KeepWidths();
    const auto second = View(TabAC);
    EXPECT_NEAR(second->columnWidth(1), design + 80, 1);  // kept in tenths of a letter
    EXPECT_NEAR(second->columnWidth(4), first->columnWidth(4), 1);
}

TEST_F(ModelViews, WidthsThatNobodySetAreNotKept) {
    View(TabAC)->KeepWidths();
    EXPECT_FALSE(std::filesystem::exists(store));
}

TEST_F(ModelViews, NewRowsAndAnotherDatabaseLeaveTheUsersWidths) {
    const auto view = View(TabAC);
    view->horizontalHeader()->resizeSection(2, 201);
    selection.SetLimit(ModelLimit::MinimumCapacity, "30");
    view->Refill(false);
    EXPECT_EQ(view->columnWidth(2), 201);
    view->Refill(true);
    EXPECT_EQ(view->columnWidth(2), 201);
}

TEST_F(ModelViews, EachGridHasItsOwnWidths) {
    const auto view = View(TabAC);
    const int other = View(TabHP)->columnWidth(1);
    view->horizontalHeader()->resizeSection(1, 333);
    view->KeepWidths();
    EXPECT_EQ(View(TabHP)->columnWidth(1), other);
}

TEST_F(ModelViews, StoredWidthsThatMakeNoSenseAreLeftAside) {
    const int design = View(TabAC)->columnWidth(1);
    std::string zeros = "0", words = "x", many = "100";
    for (int column = 1; column < selection.ColumnCount(TabAC); ++column) {
        zeros += ",0";
        words += ",-9";
        many += ",99999999999";
    }
    for (const std::string& text : {std::string("100,100"), zeros, words, many, std::string(",")}) {
        Settings().SaveSetting("frmModelSelection", "grdACWidths", text);
        EXPECT_EQ(View(TabAC)->columnWidth(1), design) << text;
    }
}

TEST_F(ModelViews, ColumnsFitTheirHeadingsAndTheirTexts) {
    const auto view = View(TabAC);
    for (int column = 0; column < selection.ColumnCount(TabAC); ++column) {
        EXPECT_GE(view->columnWidth(column), view->horizontalHeader()->sectionSizeHint(column));
        const QString text = view->model()->index(0, column).data().toString();
        EXPECT_GT(view->columnWidth(column), view->fontMetrics().horizontalAdvance(text));
    }
}

}  // namespace
}  // namespace tendo

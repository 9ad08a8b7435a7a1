#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "equipment/model_selection.h"
#include "model_databases.h"
#include "platform/files/paths.h"

namespace tendo {

using Texts = std::vector<std::string>;

/// A selection over a small database in a folder of its own, with the messages it gave.
class SelectionTest : public ::testing::Test {
  protected:
    SelectionTest() { records.GPDProjectFormat.DefaultDB = "Small.mdb"; }

    ModelSelectionDialogs Dialogs() {
        return {[this](const std::string& text) { messages.push_back(text); },
                [this](const std::string& text) {
                    questions.push_back(text);
                    return answerYes;
                }};
    }

    ModelSelection& Open(SelectionMode mode, int system = 0) {
        if (!FileExists(folder.Path("Small.mdb")))
            WriteModelDatabase(folder.Path("Small.mdb"), tables);
        selection.emplace(mode, records, system, Dialogs());
        EXPECT_TRUE(selection->Open());
        return *selection;
    }

    std::vector<std::string> Models(int tab) const {
        std::vector<std::string> models;
        for (int row = 0; row < selection->RowCount(tab); ++row)
            models.push_back(selection->CellText(tab, row, 1));
        return models;
    }

    void Choose(SelectionMode mode, int tab, int row, int system = 0) {
        Open(mode, system);
        selection->SetCurrentTab(tab);
        selection->ClickRow(tab, row);
        EXPECT_TRUE(selection->SelectModel());
    }

    CommonFolder folder;
    std::vector<SmallTable> tables = EmptyModelTables();
    ProjectRecords records;
    std::vector<std::string> messages, questions;
    bool answerYes = true;
    std::optional<ModelSelection> selection;
};

class CoolingSelection : public SelectionTest {
  protected:
    CoolingSelection() {
        TableNamed(tables, "AC File").rows = {AirConditioner("FA-1813", 18, 13, 1557, 2225),
                                              AirConditioner("FA-3614", 36, 14.5, 2317, 3310),
                                              AirConditioner("FA-3616", 36, 16, 2397, 3425),
                                              AirConditioner("FB-9999", 1200, 13, 9000, 12000)};
    }
};

}  // namespace tendo

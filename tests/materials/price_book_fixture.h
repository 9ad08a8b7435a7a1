#pragma once

#include <gtest/gtest.h>

#include <deque>

#include "material_databases.h"
#include "materials/price_book.h"
#include "platform/database/database.h"
#include "project/program_state.h"

namespace tendo {

/// A price book in a folder of its own, with a user who has said all answers beforehand.
class PriceBookTest : public testing::Test {
  protected:
    /// Writes the current database with these rows and its categories, and opens the book on it.
    void Make(const std::vector<BookRow>& rows, const std::vector<std::string>& categories = {}) {
        WriteMaterialDatabase(File(), rows);
        Database database = Database::OpenDatabase(File());
        for (const std::string& category : categories)
            database.AppendRows("Categories", {{category}});
        database.Close();
        ASSERT_TRUE(book.Open());
    }

    std::string File() const { return folder.Path("tendo.mdb"); }

    /// One column of the grid, joined by '|'.
    std::string Column(int column) const {
        std::string texts;
        for (int row = 0; row < book.Rows().Count(); ++row)
            texts += (row ? "|" : "") + book.Rows().CellText(row, column);
        return texts;
    }

    /// What the file on disk holds in one column, in the table's order.
    static std::string OnDisk(const std::string& file, const std::string& table,
                              const std::string& column) {
        Database database = Database::OpenDatabase(file);
        std::vector<std::string> texts;
        for (Recordset rows = database.OpenRecordset(table); !rows.EOF_(); rows.MoveNext())
            texts.push_back(rows.Text(column));
        return Joined(texts);
    }
    std::string OnDisk(const std::string& table, const std::string& column) const {
        return OnDisk(File(), table, column);
    }

    std::string Categories() const { return Joined(book.Categories()); }

    static std::string Joined(const std::vector<std::string>& texts) {
        std::string joined;
        for (std::size_t i = 0; i < texts.size(); ++i)
            joined += (i ? "|" : "") + texts[i];
        return joined;
    }

    /// All messages since the last call, joined by '|'.
    std::string Told() {
        const std::string texts = Joined(told);
        told.clear();
        return texts;
    }

    BookFolder folder;
    std::vector<std::string> told, asked, prompts, notes;
    std::deque<bool> answers;
    std::deque<std::optional<std::string>> inputs;
    PriceBook book{{[this](const std::string& text) { told.push_back(text); },
                    [this](const std::string& text) {
                        asked.push_back(text);
                        const bool answer = answers.at(0);
                        answers.pop_front();
                        return answer;
                    },
                    [this](const std::string& prompt, const std::string& title) {
                        prompts.push_back(title + ": " + prompt);
                        const auto input = inputs.at(0);
                        inputs.pop_front();
                        return input;
                    },
                    [this](const std::string& text) { notes.push_back(text); }}};
};

}  // namespace tendo

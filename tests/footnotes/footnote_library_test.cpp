#include "footnotes/footnote_library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "../files/test_folder.h"
#include "footnotes/project_footnotes.h"
#include "platform/database/database.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

using Names = std::vector<std::string>;

jet::Column Column(const std::string& name, jet::ColumnType type, int size = 0) {
    jet::Column column;
    column.name = name;
    column.type = type;
    column.size = static_cast<decltype(column.size)>(size);
    column.allowZeroLength = true;
    return column;
}

class FootnoteLibrary : public TestFolder {
  protected:
    void SetUp() override {
        TestFolder::SetUp();
        State().ProgramDirectory = Path("");
        Database::CreateDatabase(Path("tendo.mdb"));
        Database library = Database::OpenDatabase(Path("tendo.mdb"));
        jet::TableDefinition table;
        table.name = "FootNotes";
        table.columns = {Column("FootNoteName", jet::ColumnType::Text, 255),
                         Column("Description", jet::ColumnType::Memo)};
        library.AppendTable(table);
        library.Close();
    }
    void TearDown() override {
        State().ProgramDirectory.clear();
        TestFolder::TearDown();
    }
};

int ErrorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST_F(FootnoteLibrary, ANewFootnoteKeepsAFreeName) {
    const StoredFootnoteName stored = AddLibraryFootnote(" Warranty ", "{\\rtf1 text}");
    EXPECT_EQ(stored.name, "Warranty");
    EXPECT_TRUE(stored.messages.empty());
    EXPECT_EQ(LibraryFootnoteNames(), Names{"Warranty"});
    EXPECT_EQ(LibraryFootnoteText("Warranty"), "{\\rtf1 text}");
    EXPECT_EQ(LibraryFootnoteText("Nothing"), "");
}

TEST_F(FootnoteLibrary, ASecondFootnoteOfANameGetsTwoAThirdThree) {
    AddLibraryFootnote("n", "1");
    const StoredFootnoteName second = AddLibraryFootnote("n", "2");
    EXPECT_EQ(second.messages,
              Names{"You already have a footnote with this name.  This footnote will be renamed to "
                    "n2."});
    AddLibraryFootnote("n", "3");
    EXPECT_EQ(LibraryFootnoteNames(), (Names{"n", "n2", "n3"}));
    EXPECT_EQ(LibraryFootnoteText("n3"), "3");
}

TEST_F(FootnoteLibrary, ANameThatEndsInADigitGainsAnother) {
    AddLibraryFootnote("Terms 9", "");
    EXPECT_EQ(AddLibraryFootnote("Terms 9", "").name, "Terms 92");
}

TEST_F(FootnoteLibrary, ANameIsComparedWithoutCase) {
    AddLibraryFootnote("TERMS", "");
    EXPECT_EQ(AddLibraryFootnote("terms", "").name, "terms2");
}

TEST_F(FootnoteLibrary, ANameWithAnApostropheCannotReachTheLibrary) {
    const StoredFootnoteName stored = AddLibraryFootnote("Owner's terms", "t");
    EXPECT_EQ(stored.name, "TENDO FOOTNOTE");
    EXPECT_EQ(stored.messages,
              Names{"Footnote Names cannot have the character ' in them.  The Foot Note Name has "
                    "been changed to TENDO FOOTNOTE."});
    EXPECT_EQ(AddLibraryFootnote("It's", "u").name, "TENDO FOOTNOTE2");
    EXPECT_EQ(LibraryFootnoteNames(), (Names{"TENDO FOOTNOTE", "TENDO FOOTNOTE2"}));
}

TEST_F(FootnoteLibrary, ABlankNameBecomesTheSpareOne) {
    const StoredFootnoteName stored = AddLibraryFootnote("  ", "t");
    EXPECT_EQ(stored.name, "TENDO FOOTNOTE");
    EXPECT_EQ(stored.messages,
              Names{"You have not entered a Footnote name.  The Footnote Name has been changed to "
                    "TENDO FOOTNOTE."});
}

TEST_F(FootnoteLibrary, AFinishedFootnoteFollowsTheRuleToo) {
    AddLibraryFootnote("Terms", "old");
    const std::string draft = AddLibraryFootnote("New Footnote", "").name;
    const StoredFootnoteName stored = FinishLibraryFootnote(draft, " Terms", "new");
    EXPECT_EQ(stored.name, "Terms2");
    EXPECT_EQ(LibraryFootnoteNames(), (Names{"Terms", "Terms2"}));
    EXPECT_EQ(LibraryFootnoteText("Terms"), "old");
    EXPECT_EQ(LibraryFootnoteText("Terms2"), "new");
}

TEST_F(FootnoteLibrary, AFinishedFootnoteThatKeepsItsNameIsNoDuplicate) {
    AddLibraryFootnote("New Footnote", "");
    EXPECT_TRUE(FinishLibraryFootnote("New Footnote", "New Footnote", "t").messages.empty());
}

TEST_F(FootnoteLibrary, AFreedNumberIsGivenAgain) {
    for (int i = 0; i < 3; ++i)
        AddLibraryFootnote("n", "");
    DeleteLibraryFootnote("n2");
    EXPECT_EQ(AddLibraryFootnote("n", "").name, "n2");
}

// Names stand as patterns in the search for their like: * is any text, ? one character, # a digit.
TEST_F(FootnoteLibrary, ANameOfAnyTextIsTakenForEveryOther) {
    AddLibraryFootnote("a", "");
    EXPECT_EQ(AddLibraryFootnote("*", "").name, "*2");
    AddLibraryFootnote("ab", "");
    EXPECT_EQ(AddLibraryFootnote("a?", "").name, "a?2");
}

TEST_F(FootnoteLibrary, ANameWithADigitSignIsNotFoundByItself) {
    AddLibraryFootnote("Lot #", "");
    EXPECT_TRUE(AddLibraryFootnote("Lot #", "").messages.empty());
    EXPECT_EQ(LibraryFootnoteNames(), (Names{"Lot #", "Lot #"}));
}

TEST_F(FootnoteLibrary, ANameWithAnOpenBracketIsRefusedByTheEngineAndNothingIsStored) {
    EXPECT_NE(ErrorOf([] { AddLibraryFootnote("[draft", ""); }), 0);
    EXPECT_EQ(LibraryFootnoteNames(), Names{});
    EXPECT_EQ(AddLibraryFootnote("[draft] terms", "").name, "[draft] terms");
}

TEST_F(FootnoteLibrary, NamesTakeUpTo255Characters) {
    const std::string longest(255, 'x');
    EXPECT_EQ(AddLibraryFootnote(longest, "t").name, longest);
    EXPECT_EQ(LibraryFootnoteText(longest), "t");
    // The number of a second one would be the 256th character.
    EXPECT_EQ(ErrorOf([&] { AddLibraryFootnote(longest, ""); }), error_number::FieldTooSmall);
    EXPECT_EQ(ErrorOf([] { AddLibraryFootnote(std::string(300, 'y'), ""); }),
              error_number::FieldTooSmall);
    EXPECT_EQ(LibraryFootnoteNames(), Names{longest});
}

TEST_F(FootnoteLibrary, OfTwoNamesThatDifferInCaseEachHasItsOwnText) {
    AddLibraryFootnote("Terms", "one");
    AddLibraryFootnote("other", "two");
    RenameLibraryFootnote("other", "TERMS");
    EXPECT_EQ(LibraryFootnoteText("Terms"), "one");
    EXPECT_EQ(LibraryFootnoteText("TERMS"), "two");
    EXPECT_EQ(LibraryFootnoteText("terms"), "one");
    StoreLibraryFootnoteText("TERMS", "three");
    EXPECT_EQ(LibraryFootnoteText("Terms"), "one");
    DeleteLibraryFootnote("TERMS");
    EXPECT_EQ(LibraryFootnoteNames(), Names{"Terms"});
}

TEST_F(FootnoteLibrary, ATextOfTenMegabytesIsKeptToTheLetter) {
    const std::string text = "{\\rtf1 " + std::string(10'000'000, 'x') + "}";
    AddLibraryFootnote("long", text);
    EXPECT_TRUE(LibraryFootnoteText("long") == text);
}

TEST_F(FootnoteLibrary, DeletingTakesDuplicatesToo) {
    AddLibraryFootnote("a", "");
    AddLibraryFootnote("b", "");
    AddLibraryFootnote("c", "");
    RenameLibraryFootnote("c", " a ");
    DeleteLibraryFootnote("a");
    EXPECT_EQ(LibraryFootnoteNames(), Names{"b"});
}

TEST_F(FootnoteLibrary, DeletingLeavesAProjectsCopyAlone) {
    AddLibraryFootnote("a", "text");
    ProjectRecords project;
    AddFootnote(ProposalFootnotes(project), "a", LibraryFootnoteText("a"));
    DeleteLibraryFootnote("a");
    EXPECT_EQ(project.ProjectFootNotes[0].Description, "text");
}

TEST_F(FootnoteLibrary, ACopyDoesNotFollowTheLibrary) {
    AddLibraryFootnote("a", "text");
    ProjectRecords project;
    AddFootnote(ProposalFootnotes(project), "a", LibraryFootnoteText("a"));
    EXPECT_TRUE(StoreLibraryFootnoteText("a", "changed"));
    EXPECT_EQ(LibraryFootnoteText("a"), "changed");
    EXPECT_EQ(project.ProjectFootNotes[0].Description, "text");
    EXPECT_FALSE(StoreLibraryFootnoteText("b", "changed"));
}

TEST_F(FootnoteLibrary, NamesAreFoundExactlyWhenARenameAsks) {
    AddLibraryFootnote("Terms", "");
    EXPECT_TRUE(LibraryHasFootnote("Terms"));
    EXPECT_FALSE(LibraryHasFootnote("terms"));
    EXPECT_FALSE(LibraryHasFootnote(""));
}

TEST_F(FootnoteLibrary, AMissingFileOrTableIsTheEnginesError) {
    Database library = Database::OpenDatabase(Path("tendo.mdb"));
    library.DeleteTable("FootNotes");
    library.Close();
    EXPECT_EQ(ErrorOf([] { LibraryFootnoteNames(); }), error_number::TableNotFound);
    EXPECT_EQ(ErrorOf([] { AddLibraryFootnote("a", ""); }), error_number::TableNotFound);
    std::filesystem::remove(Path("tendo.mdb"));
    EXPECT_EQ(ErrorOf([] { DeleteLibraryFootnote("a"); }), error_number::CouldNotFindFile);
}

TEST_F(FootnoteLibrary, ANameWithAnApostropheBreaksTheCriterionAndChangesNothing) {
    AddLibraryFootnote("a", "text");
    EXPECT_EQ(ErrorOf([] { StoreLibraryFootnoteText("Owner's", "lost"); }),
              error_number::SyntaxErrorInQuery);
    EXPECT_EQ(LibraryFootnoteText("a"), "text");
}

}  // namespace
}  // namespace tendo

#include "footnotes/project_footnotes.h"

#include <gtest/gtest.h>

#include <string>

namespace tendo {
namespace {

class ProjectFootnotes : public testing::Test {
  protected:
    /// The names in order, parted by commas.
    std::string Names() const {
        std::string names;
        for (std::size_t i = 0; i < list.Size(); ++i)
            names += (i ? "," : "") + std::string(list.rows[i].Name.Trimmed());
        return names;
    }
    void Add(const std::string& name) { AddFootnote(list, name, "text of " + name); }

    ProjectRecords project;
    FootnoteList list = ProposalFootnotes(project);
};

TEST_F(ProjectFootnotes, AnAddedFootnoteIsTheLast) {
    Add("a");
    Add("b");
    EXPECT_EQ(Names(), "a,b");
    EXPECT_EQ(project.gvNumOfFootnotes, 2);
    EXPECT_EQ(project.ProjectFootNotes[1].Description, "text of b");
}

TEST_F(ProjectFootnotes, AListMayHoldANameTwice) {
    Add("a");
    Add("a");
    EXPECT_EQ(Names(), "a,a");
}

TEST_F(ProjectFootnotes, TheAccessoryListIsAnotherOne) {
    AddFootnote(AccessoryFootnotes(project), "x", "t");
    EXPECT_EQ(project.NumOfAccRptFootnotes, 1);
    EXPECT_EQ(project.gvNumOfFootnotes, 0);
}

TEST_F(ProjectFootnotes, RemovingAFootnoteNamedDeleteRemovesEveryOtherOfThatName) {
    Add("Delete");
    Add("a");
    Add("Delete");
    Add("b");
    RemoveFootnote(list, 0);
    EXPECT_EQ(Names(), "a,b");
}

TEST_F(ProjectFootnotes, RemovingAnyFootnoteTakesThoseNamedDeleteAlong) {
    Add("a");
    Add("Delete");
    Add("b");
    RemoveFootnote(list, 2);
    EXPECT_EQ(Names(), "a");
    EXPECT_EQ(project.gvNumOfFootnotes, 1);
}

TEST_F(ProjectFootnotes, AnEmptyListKeepsOneBlankRow) {
    Add("a");
    RemoveFootnote(list, 0);
    EXPECT_EQ(project.gvNumOfFootnotes, 0);
    ASSERT_EQ(project.ProjectFootNotes.size(), 1u);
    EXPECT_EQ(project.ProjectFootNotes[0].Name.Trimmed(), "");
    EXPECT_EQ(project.ProjectFootNotes[0].Description, "");
}

TEST_F(ProjectFootnotes, MovingTheFirstRowUpChangesNothing) {
    Add("a");
    Add("b");
    EXPECT_FALSE(MoveFootnoteUp(list, 0));
    EXPECT_FALSE(MoveFootnoteDown(list, 1));
    EXPECT_EQ(Names(), "a,b");
}

TEST_F(ProjectFootnotes, AMoveSwapsNameAndText) {
    Add("a");
    Add("b");
    Add("c");
    EXPECT_TRUE(MoveFootnoteUp(list, 2));
    EXPECT_EQ(Names(), "a,c,b");
    EXPECT_EQ(project.ProjectFootNotes[1].Description, "text of c");
    EXPECT_TRUE(MoveFootnoteDown(list, 0));
    EXPECT_EQ(Names(), "c,a,b");
}

TEST_F(ProjectFootnotes, ARowBeyondTheEndIsLeftAlone) {
    Add("a");
    RemoveFootnote(list, 1);
    EXPECT_FALSE(MoveFootnoteUp(list, 5));
    EXPECT_EQ(Names(), "a");
}

}  // namespace
}  // namespace tendo

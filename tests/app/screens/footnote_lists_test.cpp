#include <QDropEvent>
#include <QMimeData>
#include <memory>

#include "footnotes/screens/footnote_commands.h"
#include "footnotes/screens/footnote_text.h"
#include "footnotes/screens/project_footnote_list.h"
#include "platform/qt/rich_editor.h"
#include "project/program_state.h"
#include "project/project_records.h"
#include "running_program.h"

namespace tendo {
namespace {

/// A drop reaches a widget only from a mouse; this list takes it from the test.
class DroppedList : public ProjectFootnoteList {
  public:
    using ProjectFootnoteList::dropEvent;
    using ProjectFootnoteList::ProjectFootnoteList;
};

class FootnoteLists : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        Project() = {};
        screen = std::make_unique<QWidget>();
        for (const char* name : {"a", "b", "c"})
            AddFootnote(ProposalFootnotes(Project()), name, std::string("text of ") + name);
        text = new FootnoteText({"rtxtFootnoteText", "EditBand", "Text", {}}, screen.get());
        list = new DroppedList(FootnoteMode::Selected, text, screen.get());
        list->resize(200, 200);
        screen->show();
        State().ProjectChanged = false;
    }
    void TearDown() override {
        screen.reset();
        Project() = {};
        State().ProjectChanged = false;
        RunningProgram::TearDown();
    }

    /// The chosen row is let go at a place of the list.
    void Drop(QPoint place) {
        const QMimeData data;
        QDropEvent drop(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        list->dropEvent(&drop);
        EXPECT_FALSE(drop.isAccepted());  // the view would take the row out
    }
    QPoint PlaceOf(int row) const { return list->visualItemRect(list->item(row)).center(); }
    std::string Names() const {
        std::string names;
        for (const std::string& name : NamesOf(ProposalFootnotes(Project())))
            names += name;
        return names;
    }

    std::unique_ptr<QWidget> screen;
    FootnoteText* text = nullptr;
    DroppedList* list = nullptr;
};

TEST_F(FootnoteLists, TheMouseMovesAFootnoteOverSeveralOthers) {
    list->setCurrentRow(0);
    text->Editor()->textCursor().insertText("new ");
    Drop(PlaceOf(2));
    EXPECT_EQ(Names(), "bca");
    EXPECT_EQ(list->currentRow(), 2);
    EXPECT_EQ(list->item(0)->text(), "b");
    EXPECT_EQ(text->ProjectRow(), 2U);
    EXPECT_EQ(text->Editor()->toPlainText(), "new text of a");
    EXPECT_NE(Project().ProjectFootNotes[2].Description.find("new text of a"), std::string::npos);
    EXPECT_TRUE(State().ProjectChanged);
    Drop(PlaceOf(0));
    EXPECT_EQ(Names(), "abc");
}

TEST_F(FootnoteLists, LetGoBelowTheListItIsTheLastOne) {
    list->setCurrentRow(1);
    Drop(QPoint(100, 190));
    EXPECT_EQ(Names(), "acb");
}

TEST_F(FootnoteLists, LetGoOnItselfNothingMoves) {
    list->setCurrentRow(1);
    Drop(PlaceOf(1));
    EXPECT_EQ(Names(), "abc");
    EXPECT_FALSE(State().ProjectChanged);
}

}  // namespace
}  // namespace tendo

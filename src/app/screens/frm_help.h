#pragma once

#include <vector>

#include "app/screens/frm_help_pages.h"
#include "platform/qt/form.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;
class QToolButton;

namespace tendo {

/// The user guide inside the program: its pages at the left, or, while something is searched for,
/// the lines that hold it.
class frmHelp : public Form {
    Q_OBJECT
  public:
    frmHelp();

    /// A page by its file ("keys.md"); the index when there is no such page.
    void ShowPage(const std::string& file);
    /// Puts the caret in the search box.
    void StartSearch();

  private:
    QWidget* MakeSide();
    QWidget* MakeReader();
    QToolButton* MakeTool(const char* name, const char* icon, const char* tip);
    void FillList();
    void ShowListRow(int row);
    void ShowText(std::size_t page);
    void LinkClicked(const QUrl& link);
    void Visit(std::size_t page);
    void GoBy(int step);
    void MarkWords();
    void ShowPlace();

    std::vector<HelpPage> pages_;
    std::vector<HelpFind> finds_;
    std::vector<std::size_t> history_;
    std::size_t place_ = 0;  // in the history
    QLineEdit* txtSearch_;
    QListWidget* lstPages_;
    QLabel* lblFound_;
    QTextBrowser* rtbPage_;
    QToolButton* btnBack_;
    QToolButton* btnForward_;
};

/// Enters the screen, the three help commands and the key F1.
void RegisterHelp();

}  // namespace tendo

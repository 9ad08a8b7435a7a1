#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QWidget>
#include <string>
#include <vector>

#include "materials/screens/takeoff_grid.h"
#include "materials/takeoff.h"

class QHBoxLayout;

namespace tendo {

/// What the screens of a takeoff have in common: the four views, categories, search, the fifteen
/// rows and the sums below them. A screen adds its own controls to the two bars.
class TakeoffPage : public QWidget {
    Q_OBJECT
  public:
    /// `caption` begins the titles, and `keepsTitle` is as in Takeoff; the catalogue isn't owned.
    TakeoffPage(std::vector<MaterialRow>& catalogue, const std::string& caption, QWidget* parent,
                bool keepsTitle = false);
    ~TakeoffPage() override;
    /// Makes it the scrolled content of a screen, which takes its titles.
    static TakeoffPage* On(QWidget* screen, std::vector<MaterialRow>& catalogue,
                           const std::string& caption, bool keepsTitle = false);

    /// Wide enough for whole descriptions and categories; the entry lines' own hints ask for more.
    QSize sizeHint() const override;
    Takeoff& Rows() { return takeoff_; }
    /// Puts a screen's own controls behind the view buttons, and in front of the buttons below.
    void AddToTopBar(QWidget* widget);
    void AddToBottomBar(QWidget* widget);
    /// Below everything else.
    void AddBelow(QWidget* widget) { layout()->addWidget(widget); }
    /// A button as the screens of a takeoff make them.
    QPushButton* MakeButton(const char* name, const char* caption, const char* tip);

    /// Fills the category list from the current material database, with "(None)" at its end.
    void FillCategories();
    /// Shows the catalogue, which was replaced, from its top.
    void ShowCatalogue();
    /// Without a price book there are no rows to work on.
    void SetRowsEnabled(bool enabled) { grid_->setEnabled(enabled); }
    /// A remark on the takeoff, below its rows; empty for none.
    void ShowNote(const QString& note);
    /// Commits the field in focus and puts the page into the catalogue.
    void Store();

  Q_SIGNALS:
    void TitleChanged(const QString& title);
    /// All selections were cleared by the user.
    void Cleared();

  private:
    QWidget* MakeTopBar();
    QWidget* MakeSearchBar();
    QWidget* MakeSums();
    QWidget* MakeBottomBar();
    void AddViewButtons(QHBoxLayout* bar);
    void ShowView(TakeoffView view);
    static void FollowWith(QWidget*& last, QWidget* next);
    void ShowSums();
    void CategoryChosen(const QString& category);
    void JumpTyped(const QString& text);
    void btnSearch_Click();
    void btnRepeatSearch_Click();
    void Search();
    void btnClear_Click();
    void btnExport_Click();

    Takeoff takeoff_;
    TakeoffGrid* grid_ = nullptr;
    QHBoxLayout* topBar_ = nullptr;
    QHBoxLayout* bottomBar_ = nullptr;
    int bottomButtons_ = 0;  // of the screen itself
    // What the tab key reaches before a screen's own controls.
    QWidget *lastAbove_ = nullptr, *lastBelow_ = nullptr;
    QComboBox* categories_ = nullptr;
    QPushButton* repeatSearch_ = nullptr;
    std::vector<QPushButton*> viewButtons_;
    QLabel *taxable_ = nullptr, *nonTaxable_ = nullptr, *accessories_ = nullptr;
    QLabel* note_ = nullptr;
    std::string searchText_;
};

}  // namespace tendo

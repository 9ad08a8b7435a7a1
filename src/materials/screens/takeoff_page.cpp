#include "materials/screens/takeoff_page.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "materials/price_book.h"
#include "materials/takeoff_export.h"
#include "materials/takeoff_sums.h"
#include "platform/database/database.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/scroll_content.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* NoSearch = "Not Found";  // stands for no search yet
constexpr const char* NoChoice = "(None)";
constexpr const char* messageTitle = "TENDO";

struct ViewButton {
    const char* name;
    const char* caption;
    const char* tip;
    TakeoffView view;
};
constexpr ViewButton viewButtons[] = {
    {"btnViewAll", "A&ll", "View All Materials and Accessories", TakeoffView::All},
    {"btnViewMaterials", "&Materials", "View Selected Materials", TakeoffView::Materials},
    {"btnViewAccessories", "A&ccessories", "View Selected Accessories", TakeoffView::Accessories},
    {"btnViewBoth", "B&oth", "View Selected Materials and Accessories", TakeoffView::Both},
};

QHBoxLayout* MakeBar(QWidget* box) {
    auto* bar = new QHBoxLayout(box);
    bar->setContentsMargins(0, 0, 0, 0);
    bar->setSpacing(8);
    return bar;
}

QString Money(double value) {
    return QString::fromStdString(FormatNumber(value, MoneyPicture));
}

}  // namespace

TakeoffPage::TakeoffPage(std::vector<MaterialRow>& catalogue, const std::string& caption,
                         QWidget* parent, bool keepsTitle)
    : QWidget(parent), takeoff_(catalogue, caption, keepsTitle), searchText_(NoSearch) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    column->addWidget(MakeTopBar());
    column->addWidget(MakeSearchBar());
    grid_ = new TakeoffGrid(takeoff_, this);
    column->addWidget(grid_);
    column->addWidget(MakeSums());
    column->addWidget(MakeBottomBar());
    note_ = MakeLabel("", nullptr, this);
    note_->setObjectName("lblNote");
    note_->setWordWrap(true);
    note_->hide();
    column->addWidget(note_);
    takeoff_.TitleChanged = [this] {
        Q_EMIT TitleChanged(QString::fromStdString(takeoff_.Title()));
    };
    connect(grid_, &TakeoffGrid::Changed, this, &TakeoffPage::ShowSums);
    lastAbove_ = viewButtons_.back();
    lastBelow_ = grid_->LastField();
    ShowSums();
}

TakeoffPage* TakeoffPage::On(QWidget* screen, std::vector<MaterialRow>& catalogue,
                             const std::string& caption, bool keepsTitle) {
    auto* content = new QWidget;
    ScrollContent(screen, content);
    auto* page = new TakeoffPage(catalogue, caption, content, keepsTitle);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(16, 12, 16, 12);
    column->addWidget(page);
    column->addStretch();
    screen->setMinimumSize(560, 320);
    screen->setWindowTitle(QString::fromStdString(page->Rows().Title()));
    connect(page, &TakeoffPage::TitleChanged, screen, &QWidget::setWindowTitle);
    return page;
}

TakeoffPage::~TakeoffPage() {
    takeoff_.TitleChanged = {};
    delete grid_;  // it refers to the takeoff, which goes before the child widgets
}

QSize TakeoffPage::sizeHint() const {
    constexpr int moreCharacters = 20;
    return {minimumSizeHint().width() + moreCharacters * fontMetrics().averageCharWidth(),
            QWidget::sizeHint().height()};
}

QPushButton* TakeoffPage::MakeButton(const char* name, const char* caption, const char* tip) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setToolTip(tip);
    return button;
}

QWidget* TakeoffPage::MakeTopBar() {
    auto* box = new QWidget(this);
    topBar_ = MakeBar(box);
    AddViewButtons(topBar_);
    topBar_->addSpacing(12);
    topBar_->addStretch();
    auto* partNumbers = new QCheckBox("&View Part Numbers", box);
    partNumbers->setObjectName("ChkPartNum");
    connect(partNumbers, &QCheckBox::toggled, this, [this](bool on) {
        Form::CommitFocusedField();
        grid_->ShowPartNumbers(on);
    });
    topBar_->addWidget(partNumbers);
    return box;
}

void TakeoffPage::AddViewButtons(QHBoxLayout* bar) {
    for (const ViewButton& plan : viewButtons) {
        QPushButton* button = MakeButton(plan.name, plan.caption, plan.tip);
        button->setCheckable(true);
        button->setProperty("segment", true);
        button->setChecked(plan.view == TakeoffView::All);
        connect(button, &QPushButton::clicked, this, [this, view = plan.view] { ShowView(view); });
        bar->addWidget(button);
        viewButtons_.push_back(button);
    }
}

QWidget* TakeoffPage::MakeSearchBar() {
    auto* box = new QWidget(this);
    QHBoxLayout* bar = MakeBar(box);
    auto* jump = new QLineEdit(box);
    jump->setObjectName("txtJump");
    jump->setAccessibleName("Jump to a material");
    jump->setToolTip("Type the beginning of a description; the page follows as you type");
    jump->setClearButtonEnabled(true);
    connect(jump, &QLineEdit::textEdited, this, &TakeoffPage::JumpTyped);
    connect(jump, &QLineEdit::returnPressed, this, [this] { grid_->FocusCurrentRow(); });
    auto* search = MakeButton("btnSearch", "&Search…", "Search for a description");
    repeatSearch_ = MakeButton("btnRepeatSearch", "Repe&at search", "Repeat Search");
    connect(search, &QPushButton::clicked, this, &TakeoffPage::btnSearch_Click);
    connect(repeatSearch_, &QPushButton::clicked, this, &TakeoffPage::btnRepeatSearch_Click);
    categories_ = new QComboBox(box);
    categories_->setObjectName("ComboSelectCategory");
    categories_->setAccessibleName("Category");
    categories_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    categories_->setMinimumContentsLength(14);
    connect(categories_, &QComboBox::textActivated, this, &TakeoffPage::CategoryChosen);
    bar->addWidget(MakeLabel("&Jump to:", jump, box));
    bar->addWidget(jump, 1);
    bar->addWidget(search);
    bar->addWidget(repeatSearch_);
    bar->addSpacing(12);
    bar->addWidget(MakeLabel("Cate&gory:", categories_, box));
    bar->addWidget(categories_, 1);
    return box;
}

QWidget* TakeoffPage::MakeBottomBar() {
    auto* box = new QWidget(this);
    bottomBar_ = MakeBar(box);
    auto* clear = MakeButton("btnClear", "Clear &quantities…", "Clear All Selected Materials");
    auto* exportButton =
        MakeButton("btnExport", "E&xport…", "Write the Selected Materials to a .csv or .xlsx File");
    connect(clear, &QPushButton::clicked, this, &TakeoffPage::btnClear_Click);
    connect(exportButton, &QPushButton::clicked, this, &TakeoffPage::btnExport_Click);
    bottomBar_->addWidget(clear);
    bottomBar_->addWidget(exportButton);
    bottomBar_->addStretch();
    return box;
}

QWidget* TakeoffPage::MakeSums() {
    auto* box = new QWidget(this);
    QHBoxLayout* bar = MakeBar(box);
    bar->addStretch();
    const auto sum = [&](const char* name, const char* caption) {
        auto* figure = new QLabel(box);
        figure->setObjectName(name);
        bar->addSpacing(8);
        bar->addWidget(MakeLabel(caption, nullptr, box));
        bar->addWidget(figure);
        return figure;
    };
    taxable_ = sum("lblTaxable", "Taxable");
    nonTaxable_ = sum("lblNonTaxable", "Non-taxable");
    accessories_ = sum("lblAccessories", "Accessories, not in the price");
    accessories_->setProperty("accessory", true);
    return box;
}

/// In front of the stretch and the tick box behind it.
void TakeoffPage::AddToTopBar(QWidget* widget) {
    topBar_->insertWidget(topBar_->count() - 2, widget);
    FollowWith(lastAbove_, widget);
}

void TakeoffPage::AddToBottomBar(QWidget* widget) {
    bottomBar_->insertWidget(bottomButtons_++, widget);
    FollowWith(lastBelow_, widget);
}

/// The tab key follows the eye, not the order of making.
void TakeoffPage::FollowWith(QWidget*& last, QWidget* next) {
    if (next->focusPolicy() == Qt::NoFocus) return;
    setTabOrder(last, next);
    last = next;
}

void TakeoffPage::FillCategories() {
    categories_->clear();
    try {
        Database database = Database::OpenDatabase(State().MaterialDatabaseName);
        for (const std::string& category : CategoriesOf(database))
            categories_->addItem(QString::fromStdString(category));
        database.Close();
    } catch (const RuntimeError&) {
        // What is wrong with the database was told when its materials were loaded.
    }
    categories_->addItem(NoChoice);
    categories_->setCurrentText(NoChoice);
}

void TakeoffPage::ShowNote(const QString& note) {
    note_->setText(note);
    note_->setVisible(!note.isEmpty());
}

void TakeoffPage::ShowCatalogue() {
    takeoff_.Reset();
    ShowView(TakeoffView::All);
}

void TakeoffPage::Store() {
    Form::CommitFocusedField();
    takeoff_.Store();
}

void TakeoffPage::ShowView(TakeoffView view) {
    Form::CommitFocusedField();
    takeoff_.Show(view);
    for (std::size_t i = 0; i < viewButtons_.size(); ++i)
        viewButtons_[i]->setChecked(viewButtons[i].view == takeoff_.View());
}

void TakeoffPage::ShowSums() {
    const TakeoffSums sums = SumTakeoff(takeoff_.Catalogue());
    taxable_->setText(Money(sums.taxable.sale));
    nonTaxable_->setText(Money(sums.nonTaxable.sale));
    accessories_->setText(Money(sums.accessories.sale));
}

void TakeoffPage::CategoryChosen(const QString& category) {
    takeoff_.GoToCategory(category.trimmed().toStdString());
}

void TakeoffPage::JumpTyped(const QString& text) {
    takeoff_.JumpTo(text.toStdString());
}

void TakeoffPage::btnSearch_Click() {
    Form::CommitFocusedField();
    const std::string before = searchText_ == NoSearch ? "" : searchText_;
    const auto text = Dialogs().Input({.title = "Search", .prompt = "Search for:", .text = before});
    if (!text || Trimmed(*text).empty()) return;
    searchText_ = Trimmed(*text);
    repeatSearch_->setToolTip("Repeat Search for " + QString::fromStdString(searchText_));
    Search();
}

void TakeoffPage::btnRepeatSearch_Click() {
    if (searchText_ == NoSearch) return btnSearch_Click();
    Form::CommitFocusedField();
    Search();
}

void TakeoffPage::Search() {
    bool found = takeoff_.FindNext(searchText_);
    if (!found) {
        const std::string question =
            "No more records found with " + searchText_ + ".  Restart search from the beginning?";
        if (Ask(messageTitle, question, Buttons::YesNo) != Answer::Yes) return;
        found = takeoff_.FindFirst(searchText_);
    }
    if (!found) return ShowMessage(messageTitle, "No records found with " + searchText_ + ".");
    grid_->FocusCurrentRow();
}

void TakeoffPage::btnClear_Click() {
    const Answer answer = Ask(messageTitle,
                              "You have chosen to clear the selected materials.  Are you sure you "
                              "want to do this?",
                              Buttons::YesNo);
    if (answer == Answer::No) return;
    Form::CommitFocusedField();
    takeoff_.ClearSelections();
    Q_EMIT Cleared();
}

void TakeoffPage::btnExport_Click() {
    Store();
    const auto file =
        Dialogs().File({.kind = FileDialog::Kind::Save,
                        .title = "Export Selected Materials",
                        .filter = "Separated Values (*.csv)|*.csv|Excel Workbook (*.xlsx)|*.xlsx",
                        .fileName = "takeoff.csv",
                        .folder = State().ProjectsDirectory,
                        .defaultExtension = "csv",
                        .promptOnOverwrite = true});
    if (!file || Trimmed(*file).empty()) return;
    try {
        ExportTakeoff(SelectedMaterials(takeoff_.Catalogue()), *file);
    } catch (const RuntimeError& error) {
        ShowMessage(messageTitle, error.Description(), MessageIcon::Warning);
    }
}

}  // namespace tendo

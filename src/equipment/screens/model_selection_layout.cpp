#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "equipment/model_database.h"
#include "equipment/screens/elided_label.h"
#include "equipment/screens/frm_model_selection.h"
#include "equipment/screens/model_grid.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/theme.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* messageTitle = "TENDO";

/// Headings stand exactly above their cells' texts; the corner between the scroll bars is bare.
constexpr const char* gridSheet =
    "QHeaderView::section { padding: 6px 11px; } QTableView QTableCornerButton::section, "
    "QAbstractScrollArea::corner { background: transparent; border: 0; }";

struct LimitButton {
    ModelLimit limit;
    const char* name;
};
constexpr LimitButton limitButtonTable[] = {
    {ModelLimit::MinimumCapacity, "btnSetMinimumCapacity"},
    {ModelLimit::MaximumCapacity, "btnSetMaximumCapacity"},
    {ModelLimit::MinimumEfficiency, "btnSetMinimumEfficiency"}};

QPushButton* MakeButton(const char* name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    return button;
}

QHBoxLayout* RowOf(QWidget* box) {
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    return row;
}

ModelSelectionDialogs SelectionDialogs() {
    return {[](const std::string& text) { ShowMessage(messageTitle, text, MessageIcon::Warning); },
            [](const std::string& text) {
                return Ask(messageTitle, text, Buttons::YesNo) == Answer::Yes;
            }};
}

}  // namespace

frmModelSelection::frmModelSelection(SelectionMode mode)
    : Form("frmModelSelection", "", Place::Dialog, "frmModelSelection"),
      selection_(mode, Project(), State().SystemNumber, SelectionDialogs()) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    column->addWidget(MakeDatabaseRow());
    column->addWidget(MakeLimitRow());
    column->addWidget(MakeTabs(), 1);
    column->addWidget(MakeCommandRow());
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this,
            [this] { Unload(); });
    resize(sizeHint());
    OpenDatabase();
    const int first = selection_.CurrentTab();
    tabModels_->setCurrentIndex(first);
    connect(tabModels_, &QTabWidget::currentChanged, this, &frmModelSelection::tabModels_Click);
    views_[static_cast<std::size_t>(first)]->setFocus();
}

QWidget* frmModelSelection::MakeDatabaseRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    txtDatabase_ = new TextField(
        FieldSpec{.name = "txtDatabase", .label = "&Database", .accessibleName = "Database"}, box);
    txtDatabase_->CommitAlways = false;
    txtDatabase_->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    connect(txtDatabase_, &TextField::Committed, this, [this] {
        ChangeDatabase(CheckToSeeIfDbaseExists(txtDatabase_->text().toStdString()));
    });
    QPushButton* browse = MakeButton("btnChangeDB", "&Browse…", box);
    connect(browse, &QPushButton::clicked, this, &frmModelSelection::btnChangeDB_Click);
    row->addWidget(MakeLabel("&Database", txtDatabase_, box));
    row->addWidget(txtDatabase_, 1);
    row->addWidget(browse);
    return box;
}

QWidget* frmModelSelection::MakeLimitRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    for (const auto& [limit, name] : limitButtonTable) {
        QPushButton* button = MakeButton(name, "", box);
        connect(button, &QPushButton::clicked, this, [this, which = limit] { SetLimit(which); });
        limitButtons_[static_cast<std::size_t>(limit)] = button;
        row->addWidget(button);
    }
    lblCount_ = new ElidedLabel(box);
    lblCount_->setObjectName("lblCount");
    row->addWidget(lblCount_, 1);
    return box;
}

QWidget* frmModelSelection::MakeTabs() {
    tabModels_ = new QTabWidget(this);
    tabModels_->setObjectName("tabModels");
    tabModels_->setAccessibleName("Kinds of equipment");
    tabModels_->setDocumentMode(true);
    tabModels_->tabBar()->setDrawBase(false);
    tabModels_->tabBar()->setExpanding(false);
    for (int tab = 0; tab < ModelTabCount; ++tab) {
        auto* page = new QWidget(tabModels_);
        auto* column = new QVBoxLayout(page);
        column->setContentsMargins(0, 10, 0, 0);
        column->addWidget(MakeGrid(tab));
        const std::string_view name = ModelTabAt(tab).name;
        tabModels_->addTab(page, QString::fromUtf8(name.data(), qsizetype(name.size())));
        tabModels_->setTabVisible(tab, selection_.IsVisible(tab));
    }
    return tabModels_;
}

QTableView* frmModelSelection::MakeGrid(int tab) {
    const auto slot = static_cast<std::size_t>(tab);
    const std::string_view name = ModelTabAt(tab).gridName;
    auto* view = new QTableView(this);
    auto* grid = new ModelGrid(selection_, tab, view);
    view->setObjectName(QString::fromUtf8(name.data(), qsizetype(name.size())));
    const std::string_view kind = ModelTabAt(tab).kind;
    view->setAccessibleName(QString::fromUtf8(kind.data(), qsizetype(kind.size())));
    view->setModel(grid);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 12);
    view->horizontalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setStretchLastSection(true);
    view->setStyleSheet(gridSheet);
    view->horizontalHeader()->setMinimumSectionSize(40);
    view->installEventFilter(this);
    connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, tab](const QModelIndex& now) { grid_RowChange(tab, now.row()); });
    connect(view, &QTableView::clicked, this,
            [this, tab](const QModelIndex& index) { ClickRow(tab, index.row()); });
    connect(view, &QTableView::doubleClicked, this, [this, tab](const QModelIndex& index) {
        ClickRow(tab, index.row());
        btnSelectModel_Click();
    });
    views_[slot] = view;
    grids_[slot] = grid;
    return view;
}

QWidget* frmModelSelection::MakeCommandRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    btnSearch_ = MakeButton("btnSearch", "", box);
    btnRepeatSearch_ = MakeButton("btnRepeatSearch", "&Repeat search", box);
    QPushButton* close = MakeButton("btnClose", "Close", box);
    const std::string_view caption = ModelSelection::SelectCommandText;
    QPushButton* select = MakeButton(
        "btnSelectModel", QString::fromUtf8(caption.data(), qsizetype(caption.size())), box);
    select->setProperty("primary", true);
    lblChoice_ = new ElidedLabel(box);
    lblChoice_->setObjectName("lblChoice");
    connect(btnSearch_, &QPushButton::clicked, this, &frmModelSelection::btnSearch_Click);
    connect(btnRepeatSearch_, &QPushButton::clicked, this,
            &frmModelSelection::btnRepeatSearch_Click);
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    connect(select, &QPushButton::clicked, this, &frmModelSelection::btnSelectModel_Click);
    row->addWidget(btnSearch_);
    row->addWidget(btnRepeatSearch_);
    if (selection_.Mode() == SelectionMode::WaterHeater) {
        chkWHProvidesHeat_ = new QCheckBox("&Water heater also heats the house", box);
        chkWHProvidesHeat_->setObjectName("chkWHProvidesHeat");
        row->addSpacing(8);
        row->addWidget(chkWHProvidesHeat_);
        setTabOrder(btnRepeatSearch_, chkWHProvidesHeat_);
    }
    row->addWidget(lblChoice_, 1);
    row->addSpacing(8);
    row->addWidget(close);
    row->addWidget(select);
    return box;
}

}  // namespace tendo

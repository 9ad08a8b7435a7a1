#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "materials/screens/book_cell_editor.h"
#include "materials/screens/book_grid.h"
#include "materials/screens/frm_edit_materials.h"
#include "platform/qt/fields.h"

namespace tendo {
namespace {

/// Headings stand exactly above their cells' texts; the corner between the scroll bars is bare.
constexpr const char* gridSheet =
    "QHeaderView::section:horizontal { padding: 6px 11px; } "
    "QHeaderView::section:vertical { padding: 0; border: 0; } "
    "QTableView QTableCornerButton::section, QAbstractScrollArea::corner "
    "{ background: transparent; border: 0; }";

constexpr int cellPadding = 26;

/// Widths of the columns in letters.
constexpr std::array<int, BookColumns.size()> columnLetters = {19, 30, 13, 9, 9};

QHBoxLayout* RowOf(QWidget* box) {
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    return row;
}

}  // namespace

QPushButton* frmEditMaterials::MakeButton(const char* name, const char* caption, QWidget* parent,
                                          void (frmEditMaterials::*click)()) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

QWidget* frmEditMaterials::MakeDatabaseRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    txtDatabase_ = new TextField(
        FieldSpec{
            .name = "txtDatabase", .label = "Data&base", .accessibleName = "Material database"},
        box);
    txtDatabase_->CommitAlways = false;
    txtDatabase_->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    connect(txtDatabase_, &TextField::Committed, this,
            [this] { txtDatabase_Change(txtDatabase_->text().toStdString()); });
    row->addWidget(MakeLabel("Data&base", txtDatabase_, box));
    row->addWidget(txtDatabase_, 1);
    row->addWidget(
        MakeButton("btnChangeDB", "Chan&ge…", box, &frmEditMaterials::btnChangeDB_Click));
    row->addWidget(MakeButton("btnCreateNewDatabase", "&New…", box,
                              &frmEditMaterials::btnCreateNewDatabase_Click));
    return box;
}

QWidget* frmEditMaterials::MakeGrid() {
    auto* view = new QTableView(this);
    DBGridMaterials_ = view;
    grid_ = new BookGrid(book_, view);
    editor_ = new BookCellEditor(book_, view);
    view->setObjectName("DBGridMaterials");
    view->setAccessibleName("Materials");
    view->setModel(grid_);
    view->setItemDelegate(editor_);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 12);
    view->verticalHeader()->setFixedWidth(fontMetrics().averageCharWidth() * 3);
    view->verticalHeader()->setSectionsClickable(false);
    view->verticalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setSectionsClickable(true);
    view->horizontalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setMinimumSectionSize(40);
    view->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    view->setStyleSheet(gridSheet);
    view->installEventFilter(this);
    FitColumns();
    return view;
}

void frmEditMaterials::FitColumns() {
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 0; column < BookColumnCount; ++column)
        DBGridMaterials_->setColumnWidth(
            column, columnLetters[static_cast<std::size_t>(column)] * letter + cellPadding);
}

QWidget* frmEditMaterials::MakeCategories() {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    DBLCategory_ = new QListWidget(box);
    DBLCategory_->setObjectName("DBLCategory");
    DBLCategory_->setAccessibleName("Categories");
    DBLCategory_->setUniformItemSizes(true);
    DBLCategory_->setStyleSheet("QListWidget::item { padding: 3px 8px; }");
    box->setFixedWidth(fontMetrics().averageCharWidth() * 24);
    column->addWidget(MakeLabel("&Categories", DBLCategory_, box));
    column->addWidget(DBLCategory_, 1);
    column->addWidget(MakeButton("btnNewCategory", "New categor&y…", box,
                                 &frmEditMaterials::btnNewCategory_Click));
    column->addWidget(MakeButton("btnRenameCategory", "Rena&me category…", box,
                                 &frmEditMaterials::btnRenameCategory_Click));
    column->addWidget(MakeButton("btnDeleteCategory", "De&lete category…", box,
                                 &frmEditMaterials::btnDeleteCategory_Click));
    return box;
}

QWidget* frmEditMaterials::MakeSearchRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    txtSearch_ = new TextField(
        FieldSpec{.name = "txtSearch", .label = "Search f&or", .accessibleName = "Search for"},
        box);
    txtSearch_->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
    connect(txtSearch_, &QLineEdit::returnPressed, this, &frmEditMaterials::btnSearch_Click);
    row->addWidget(MakeLabel("Search f&or", txtSearch_, box));
    row->addWidget(txtSearch_, 1);
    row->addWidget(MakeButton("btnSearch", "&Search", box, &frmEditMaterials::btnSearch_Click));
    row->addWidget(MakeButton("btnSearchAgain", "Search aga&in", box,
                              &frmEditMaterials::btnSearchAgain_Click));
    lblDisk_ = new QLabel(box);
    lblDisk_->setObjectName("lblDisk");
    lblDisk_->setProperty("quiet", true);
    lblDisk_->setTextFormat(Qt::PlainText);
    lblDisk_->setWordWrap(true);
    lblDisk_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(lblDisk_, 2);
    return box;
}

QWidget* frmEditMaterials::MakeCommandRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    row->addWidget(MakeButton("btnAddMaterial", "&Add material", box,
                              &frmEditMaterials::btnAddMaterial_Click));
    btnDeleteMaterial_ =
        MakeButton("btnDeleteMaterial", "", box, &frmEditMaterials::btnDeleteMaterial_Click);
    btnDeleteMaterial_->setToolTip(
        "Deletes the current row, or the rows that F12 has marked in the grid (Alt+K).");
    btnUndoDelete_ =
        MakeButton("btnUndoDelete", "&Undo delete", box, &frmEditMaterials::btnUndoDelete_Click);
    btnUndoDelete_->setToolTip("Brings back what the last delete took (Ctrl+Z in the grid).");
    btnClose_ = MakeButton("btnClose", "Close", box, &frmEditMaterials::btnClose_Click);
    row->addWidget(btnDeleteMaterial_);
    row->addWidget(btnUndoDelete_);
    row->addStretch();
    row->addWidget(MakeButton("btnExport", "E&xport…", box, &frmEditMaterials::btnExport_Click));
    row->addWidget(btnClose_);
    return box;
}

}  // namespace tendo

#include "materials/screens/frm_edit_materials.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include "materials/book_export.h"
#include "materials/screens/book_cell_editor.h"
#include "materials/screens/book_grid.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/theme.h"
#include "platform/text/date_text.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* messageTitle = "TENDO";
constexpr int writeDelay = 500;     // milliseconds between a change and its being on disk
constexpr int lookInterval = 2000;  // milliseconds between looks at the file

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// The keys that the grid's logic asks for, by their classic codes; other keys are told as 0.
int ClassicKeyCode(int key) {
    switch (key) {
        case Qt::Key_F12:
            return 123;
        case Qt::Key_Delete:
            return 46;
        case Qt::Key_Backspace:
            return 8;
        default:
            return 0;
    }
}

/// Keys that lead out of the grid, to a button for instance: they must not end the marking.
bool LeadsAway(int key, Qt::KeyboardModifiers modifiers) {
    const bool modifierAlone = key == Qt::Key_Shift || key == Qt::Key_Control ||
                               key == Qt::Key_Alt || key == Qt::Key_Meta || key == Qt::Key_AltGr;
    return modifierAlone || key == Qt::Key_Tab || key == Qt::Key_Backtab ||
           modifiers.testFlag(Qt::AltModifier);
}

}  // namespace

frmEditMaterials::frmEditMaterials()
    : Form("frmEditMaterials", "", Place::Child, "frmEditMaterials"),
      book_({[](const std::string& text) { ShowMessage(messageTitle, text, MessageIcon::Warning); },
             [](const std::string& text) {
                 return Ask(messageTitle, text, Buttons::YesNo) == Answer::Yes;
             },
             [](const std::string& prompt, const std::string& title) {
                 return Dialogs().Input({title, prompt, ""});
             },
             [this](const std::string& text) { note_ = Q(text); }}) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    column->addWidget(MakeDatabaseRow());
    auto* middle = new QHBoxLayout;
    middle->setSpacing(16);
    middle->addWidget(MakeGrid(), 1);
    middle->addWidget(MakeCategories());
    column->addLayout(middle, 1);
    column->addWidget(MakeSearchRow());
    column->addWidget(MakeCommandRow());
    setFocusProxy(DBGridMaterials_);
    ConnectGrid();
    StartTimers();
    State().MaterialDatabaseHeld = true;
    const Hourglass hourglass;
    book_.Open();
    ShowRows();
}

void frmEditMaterials::ConnectGrid() {
    connect(DBGridMaterials_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmEditMaterials::DBGridMaterials_RowColChange);
    connect(DBGridMaterials_->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int head) { RunCommand([this, head] { book_.SortBy(head); }); });
    connect(DBGridMaterials_, &QTableView::pressed, this, [this] {
        book_.ClickCell();
        ShowTexts();
    });
    connect(grid_, &BookGrid::Edited, this, &frmEditMaterials::ShowTexts);
    connect(DBLCategory_, &QListWidget::currentRowChanged, this,
            &frmEditMaterials::DBLCategory_Click);
    connect(DBLCategory_, &QListWidget::itemClicked, this,
            [this] { DBLCategory_Click(DBLCategory_->currentRow()); });
}

void frmEditMaterials::StartTimers() {
    tmrWriteBook_.setObjectName("tmrWriteBook");
    tmrWriteBook_.setSingleShot(true);
    tmrWriteBook_.setInterval(writeDelay);
    connect(&tmrWriteBook_, &QTimer::timeout, this, &frmEditMaterials::WriteNow);
    tmrLookAtBook_.setObjectName("tmrLookAtBook");
    connect(&tmrLookAtBook_, &QTimer::timeout, this, &frmEditMaterials::ReadAgainIfChanged);
    tmrLookAtBook_.start(lookInterval);
}

QSize frmEditMaterials::sizeHint() const {
    const int letter = fontMetrics().averageCharWidth();
    return QSize(letter * 150, fontMetrics().height() * 36).expandedTo(minimumSizeHint());
}

void frmEditMaterials::ReturnTo(const QString& closeCaption, std::function<void()> closed) {
    btnClose_->setText(closeCaption);
    closed_ = std::move(closed);
}

/// Everything but the grid's rows as the book has it.
void frmEditMaterials::ShowBook() {
    txtDatabase_->ShowText(Q(book_.DatabaseName()));
    txtDatabase_->setModified(false);
    txtDatabase_->setToolTip(Q(book_.DatabaseName()));
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        DBLCategory_->clear();
        for (const std::string& name : book_.Categories())
            DBLCategory_->addItem(Q(name));
    }
    ShowCurrentRow();
}

/// The whole screen after rows came, went or changed their order; keeps what is in sight.
void frmEditMaterials::ShowRows() {
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        const int column = CurrentColumn();
        const int top = DBGridMaterials_->verticalScrollBar()->value();
        grid_->Reset();
        DBGridMaterials_->verticalScrollBar()->setValue(top);
        DBGridMaterials_->setCurrentIndex(grid_->index(book_.Rows().CurrentRow(), column));
    }
    ShowBook();
}

int frmEditMaterials::CurrentColumn() const {
    return std::max(0, DBGridMaterials_->currentIndex().column());
}

void frmEditMaterials::ShowCurrentRow() {
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        const QModelIndex index = grid_->index(book_.Rows().CurrentRow(), CurrentColumn());
        DBGridMaterials_->setCurrentIndex(index);
        if (index.isValid()) DBGridMaterials_->scrollTo(index);
    }
    ShowTexts();
}

void frmEditMaterials::ShowTexts() {
    const QScopedValueRollback<bool> showing(showing_, true);
    setWindowTitle(Q(book_.Title()));
    DBLCategory_->setCurrentRow(book_.SelectedCategory());
    btnDeleteMaterial_->setText(book_.DeleteCaption());
    btnDeleteMaterial_->setShortcut(QKeySequence("Alt+K"));  // a new text takes it away
    btnUndoDelete_->setEnabled(book_.CanUndo());
    DBGridMaterials_->viewport()->update();
    DBGridMaterials_->verticalHeader()->viewport()->update();
    ShowDiskState();
}

void frmEditMaterials::ShowDiskState() {
    const bool failed = !book_.WriteFailure().empty();
    QString text = book_.DatabaseName().empty()  ? "No price book is open"
                   : book_.HasUnwrittenChanges() ? "Changes not on disk yet"
                                                 : "All changes are on disk";
    if (failed) text = "Not on disk: " + Q(book_.WriteFailure());
    if (!failed && !note_.isEmpty()) text = note_;
    lblDisk_->setText(text);
    SetStyleFlag(lblDisk_, "negative", failed);
}

/// Every command: what is typed is taken first, and what changed is shown and written soon.
void frmEditMaterials::RunCommand(const std::function<void()>& run) {
    editor_->Finish();
    note_.clear();
    run();
    ShowRows();
    WriteSoon();
}

void frmEditMaterials::ReadAgainIfChanged() {
    if (editor_->IsEditing()) return;
    if (book_.ReadAgainIfChanged()) ShowRows();
}

void frmEditMaterials::WriteSoon() {
    if (book_.HasUnwrittenChanges() && !tmrWriteBook_.isActive()) tmrWriteBook_.start();
}

/// What fails is tried again: the disk may have room by then. The user may have chosen to read the
/// book again, which shows other rows.
void frmEditMaterials::WriteNow() {
    tmrWriteBook_.stop();
    const BookFile* file = book_.File();
    if (!book_.Write()) tmrWriteBook_.start();
    if (file != book_.File()) ShowRows();
    ShowDiskState();
}

/// An open editor keeps its text: it belongs to a row that is not left yet.
void frmEditMaterials::CommitEdits() {
    if (editor_->IsEditing()) return;
    if (book_.LeaveRow()) WriteNow();
    grid_->ShowAnew();
}

bool frmEditMaterials::QueryUnload() {
    editor_->Finish();
    if (!book_.LeaveRow()) return false;
    if (book_.Write()) return true;
    return Ask(messageTitle,
               "The last changes of the price book are not on disk.  " + book_.WriteFailure() +
                   "\nClose the price book and lose them?",
               Buttons::YesNo) == Answer::Yes;
}

void frmEditMaterials::FormUnload() {
    tmrWriteBook_.stop();
    tmrLookAtBook_.stop();
    State().MaterialDatabaseHeld = Form::Find("frmMatCosts") != nullptr;
    if (closed_) QTimer::singleShot(0, qApp, closed_);
}

void frmEditMaterials::DBGridMaterials_RowColChange(const QModelIndex& now) {
    if (showing_ || !now.isValid()) return;
    note_.clear();
    if (!book_.MoveTo(now.row())) QTimer::singleShot(0, this, [this] { ShowCurrentRow(); });
    ShowTexts();
    WriteSoon();
}

void frmEditMaterials::DBLCategory_Click(int index) {
    if (showing_ || index < 0) return;
    editor_->Finish();
    note_.clear();
    book_.SelectCategory(index);
    ShowCurrentRow();
}

void frmEditMaterials::txtDatabase_Change(const std::string& path) {
    const Hourglass hourglass;
    RunCommand([&] { book_.ChangeDatabase(path); });
}

void frmEditMaterials::btnChangeDB_Click() {
    const auto file = AskForDatabase("Change Material Database", DirectoryOf(book_.DatabaseName()));
    if (file && FileExists(*file)) txtDatabase_Change(*file);
}

void frmEditMaterials::btnCreateNewDatabase_Click() {
    const auto file = Dialogs().File({.kind = FileDialog::Kind::Save,
                                      .title = "New Material Database",
                                      .filter = "Tendo Material Database (*.mdb)|*.mdb",
                                      .fileName = "",
                                      .folder = DirectoryOf(book_.DatabaseName()),
                                      .defaultExtension = "mdb",
                                      .promptOnOverwrite = true});
    if (file) RunCommand([&] { book_.CreateNewDatabase(*file); });
}

void frmEditMaterials::btnSearch_Click() {
    RunCommand([this] { book_.Search(txtSearch_->text().toStdString()); });
}

void frmEditMaterials::btnSearchAgain_Click() {
    RunCommand([this] { book_.SearchAgain(txtSearch_->text().toStdString()); });
}

/// The new row is ready for typing.
void frmEditMaterials::btnAddMaterial_Click() {
    RunCommand([this] { book_.AddMaterial(); });
    DBGridMaterials_->setFocus();
}

void frmEditMaterials::btnDeleteMaterial_Click() {
    const Hourglass hourglass;
    RunCommand([this] { book_.DeleteMaterial(); });
    DBGridMaterials_->setFocus();
}

void frmEditMaterials::btnUndoDelete_Click() {
    RunCommand([this] { book_.UndoDelete(); });
    DBGridMaterials_->setFocus();
}

void frmEditMaterials::btnNewCategory_Click() {
    RunCommand([this] { book_.NewCategory(); });
}

void frmEditMaterials::btnRenameCategory_Click() {
    RunCommand([this] { book_.RenameCategory(); });
}

void frmEditMaterials::btnDeleteCategory_Click() {
    RunCommand([this] { book_.DeleteCategory(); });
}

void frmEditMaterials::btnExport_Click() {
    editor_->Finish();
    if (!book_.LeaveRow()) return;
    const auto file = Dialogs().File(
        {.kind = FileDialog::Kind::Save,
         .title = "Export the Price Book",
         .filter = "Microsoft Excel Workbook (*.xlsx)|*.xlsx|Text with Commas (*.csv)|*.csv",
         .fileName = StemOf(book_.DatabaseName()) + ".xlsx",
         .folder = DirectoryOf(book_.DatabaseName()),
         .defaultExtension = "xlsx",
         .promptOnOverwrite = true});
    if (!file) return;
    const Hourglass hourglass;
    try {
        ReplaceFile(*file, ExportOfBook(book_.Rows(), *file));
        note_ =
            QString("%1 materials written to %2").arg(book_.Rows().Count()).arg(Q(BaseName(*file)));
    } catch (const RuntimeError& error) {
        ShowMessage(messageTitle, error.Description(), MessageIcon::Warning);
    }
    ShowTexts();
}

void frmEditMaterials::btnClose_Click() {
    Unload();
}

/// What was typed into the row and not written is given up.
void frmEditMaterials::GiveUpEdits() {
    book_.CancelEdits();
    grid_->ShowAnew();
    ShowTexts();
}

bool frmEditMaterials::HandleGridKey(int key, Qt::KeyboardModifiers modifiers) {
    if (LeadsAway(key, modifiers)) return false;
    if (key == Qt::Key_Z && modifiers == Qt::ControlModifier) {
        btnUndoDelete_Click();
        return true;
    }
    if (key == Qt::Key_Escape && book_.Rows().IsEdited()) {
        GiveUpEdits();
        return true;
    }
    const bool handled = book_.GridKey(ClassicKeyCode(key), CurrentColumn());
    if (handled) {
        note_.clear();
        ShowCurrentRow();
        WriteSoon();
    } else {
        ShowTexts();
    }
    return handled;
}

bool frmEditMaterials::eventFilter(QObject* watched, QEvent* event) {
    if (watched != DBGridMaterials_) return Form::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Copy)) event->accept();
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (HandleGridKey(key->key(), key->modifiers())) return true;
    }
    return Form::eventFilter(watched, event);
}

void ShowEditMaterials(const QString& closeCaption, std::function<void()> closed) {
    auto* screen = qobject_cast<frmEditMaterials*>(Form::Find("frmEditMaterials"));
    if (!screen) screen = new frmEditMaterials;
    screen->ReturnTo(closeCaption, std::move(closed));
    screen->ShowForm();
}

}  // namespace tendo

#pragma once

#include <QTimer>
#include <functional>

#include "materials/price_book.h"
#include "platform/qt/form.h"

class QLabel;
class QListWidget;
class QPushButton;
class QTableView;

namespace tendo {

class BookCellEditor;
class BookGrid;
class TextField;

/// The maintenance of a price book. It shows what PriceBook holds and tells it what is typed and
/// clicked; what was changed reaches the disk half a second later and at every command.
class frmEditMaterials : public Form {
    Q_OBJECT
  public:
    frmEditMaterials();

    QSize sizeHint() const override;
    /// Shows what someone else has put into the price book.
    void ReadAgainIfChanged();
    /// What the close button reads, and what runs when the screen has closed.
    void ReturnTo(const QString& closeCaption, std::function<void()> closed);

  protected:
    bool QueryUnload() override;
    void FormUnload() override;
    void CommitEdits() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // The layout (frm_edit_materials_layout.cpp).
    QWidget* MakeDatabaseRow();
    QWidget* MakeGrid();
    QWidget* MakeCategories();
    QWidget* MakeSearchRow();
    QWidget* MakeCommandRow();
    QPushButton* MakeButton(const char* name, const char* caption, QWidget* parent,
                            void (frmEditMaterials::*click)());
    void FitColumns();

    void ConnectGrid();
    void StartTimers();
    void ShowBook();
    void ShowRows();
    void ShowCurrentRow();
    void ShowTexts();
    void ShowDiskState();
    void RunCommand(const std::function<void()>& run);
    void WriteSoon();
    void WriteNow();
    bool HandleGridKey(int key, Qt::KeyboardModifiers modifiers);
    void GiveUpEdits();
    int CurrentColumn() const;

    void DBGridMaterials_RowColChange(const QModelIndex& now);
    void DBLCategory_Click(int index);
    void txtDatabase_Change(const std::string& path);
    void btnChangeDB_Click();
    void btnCreateNewDatabase_Click();
    void btnSearch_Click();
    void btnSearchAgain_Click();
    void btnAddMaterial_Click();
    void btnDeleteMaterial_Click();
    void btnUndoDelete_Click();
    void btnNewCategory_Click();
    void btnRenameCategory_Click();
    void btnDeleteCategory_Click();
    void btnExport_Click();
    void btnClose_Click();

    PriceBook book_;
    TextField* txtDatabase_ = nullptr;
    TextField* txtSearch_ = nullptr;
    QTableView* DBGridMaterials_ = nullptr;
    BookGrid* grid_ = nullptr;
    BookCellEditor* editor_ = nullptr;
    QListWidget* DBLCategory_ = nullptr;
    QPushButton* btnDeleteMaterial_ = nullptr;
    QPushButton* btnUndoDelete_ = nullptr;
    QPushButton* btnClose_ = nullptr;
    QLabel* lblDisk_ = nullptr;
    QTimer tmrWriteBook_{this};
    QTimer tmrLookAtBook_{this};
    QString note_;
    std::function<void()> closed_;
    bool showing_ = false;
};

/// Opens the price book's maintenance, or brings it forward. `closed` runs when it has closed.
void ShowEditMaterials(const QString& closeCaption = "Close", std::function<void()> closed = {});

}  // namespace tendo

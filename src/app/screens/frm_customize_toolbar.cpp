#include "app/screens/frm_customize_toolbar.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "app/command_table.h"
#include "platform/qt/fields.h"
#include "platform/qt/form.h"
#include "platform/qt/icons.h"

namespace tendo {
namespace {

class frmCustomizeToolbar : public Form {
  public:
    frmCustomizeToolbar(QStringList& hidden, bool& agreed)
        : Form("frmCustomizeToolbar", "Customize Toolbar", Place::Dialog),
          hidden_(hidden),
          agreed_(agreed),
          list_(new QListWidget(this)) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(16, 16, 16, 16);
        column->setSpacing(8);
        list_->setObjectName("lstTools");
        list_->setAccessibleName("Tools on the toolbar");
        column->addWidget(MakeLabel("&Tools on the toolbar", list_, this));
        column->addWidget(list_, 1);
        FillList();
        AddButtons(column);
        resize(360, 460);
    }

  private:
    void FillList() {
        for (const char* tool : MainToolbarTools()) {
            const Command* command = FindCommand(tool);
            if (!command) continue;
            auto* item = new QListWidgetItem(LineIcon(command->icon),
                                             QString(command->caption).remove('&').remove("..."));
            item->setData(Qt::UserRole, QString(tool));
            item->setCheckState(hidden_.contains(tool) ? Qt::Unchecked : Qt::Checked);
            list_->addItem(item);
        }
        list_->setCurrentRow(0);
    }

    QPushButton* AddButton(QHBoxLayout* row, const char* name, const char* caption) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(name);
        row->addWidget(button);
        return button;
    }

    void AddButtons(QVBoxLayout* column) {
        auto* row = new QHBoxLayout;
        connect(AddButton(row, "btnReset", "&Reset"), &QPushButton::clicked, this, [this] {
            for (int i = 0; i < list_->count(); ++i)
                list_->item(i)->setCheckState(Qt::Checked);
        });
        row->addStretch();
        connect(AddButton(row, "btnCancel", "Cancel"), &QPushButton::clicked, this,
                [this] { Unload(); });
        QPushButton* ok = AddButton(row, "btnOK", "OK");
        ok->setProperty("primary", true);
        connect(ok, &QPushButton::clicked, this, [this] { btnOK_Click(); });
        connect(new QShortcut(QKeySequence(Qt::Key_Return), this), &QShortcut::activated, this,
                [this] { btnOK_Click(); });
        connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this,
                [this] { Unload(); });
        column->addLayout(row);
    }

    void btnOK_Click() {
        hidden_.clear();
        for (int i = 0; i < list_->count(); ++i)
            if (list_->item(i)->checkState() == Qt::Unchecked)
                hidden_ << list_->item(i)->data(Qt::UserRole).toString();
        agreed_ = true;
        Unload();
    }

    QStringList& hidden_;
    bool& agreed_;
    QListWidget* list_;
};

}  // namespace

bool AskHiddenTools(QStringList& hidden) {
    bool agreed = false;
    auto* form = new frmCustomizeToolbar(hidden, agreed);
    form->ShowModal();
    return agreed;
}

}  // namespace tendo

#include "project/screens/frm_help_info.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/qt/fields.h"
#include "platform/qt/form.h"
#include "platform/text/input_rules.h"

namespace tendo {
namespace {

constexpr int textWidth = 460;

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// A plain "&" in a caption stands for itself.
QString Caption(const std::string& text) {
    return Q(text).replace("&", "&&");
}

class frmHelpInfo : public Form {
  public:
    frmHelpInfo(HelpInfo& info, bool& agreed)
        : Form("frmHelpInfo", Q(info.title), Place::Dialog), info_(info), agreed_(agreed) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(16, 16, 16, 16);
        column->setSpacing(12);
        AddText(column);
        AddOptions(column);
        AddAmount(column);
        AddCheck(column);
        AddNotes(column);
        AddButtons(column);
    }

  private:
    void AddText(QVBoxLayout* column) {
        auto* text = new QLabel(Q(info_.text), this);
        text->setObjectName("lblHelpCaptionText");
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        text->setMinimumWidth(textWidth);
        column->addWidget(text, 1);
    }

    void AddOptions(QVBoxLayout* column) {
        for (std::size_t i = 0; i < info_.options.size(); ++i) {
            auto* option = new QRadioButton(Caption(info_.options[i]), this);
            option->setObjectName(QString("optOption%1").arg(i + 1));
            option->setChecked(info_.option == static_cast<int>(i) + 1);
            column->addWidget(option);
            options_.append(option);
        }
    }

    void AddAmount(QVBoxLayout* column) {
        if (info_.amountCaption.empty()) return;
        const FieldSpec spec{.name = "txtAmountCaption",
                             .label = info_.amountCaption.c_str(),
                             .kind = EntryKind::Money,
                             .width = 14};
        amount_ = new TextField(spec, this);
        amount_->setText(Q(info_.amount));
        amount_->KeyFilter = [](QChar key, const QString& rest) {
            return PlainNumberKeyPasses(key.unicode(), true, rest.toStdU32String());
        };
        auto* label = MakeLabel(Caption(info_.amountCaption), amount_, this);
        label->setObjectName("lblAmountCaption");
        auto* row = new QHBoxLayout;
        row->addWidget(label);
        row->addWidget(amount_);
        row->addStretch();
        column->addLayout(row);
        amount_->setFocus();
    }

    void AddCheck(QVBoxLayout* column) {
        if (info_.checkCaption.empty()) return;
        check_ = new QCheckBox(Caption(info_.checkCaption), this);
        check_->setObjectName("chkCheck");
        check_->setChecked(info_.checked);
        column->addWidget(check_);
    }

    void AddNotes(QVBoxLayout* column) {
        if (info_.notes.empty()) return;
        auto* notes = new QPlainTextEdit(Q(info_.notes), this);
        notes->setObjectName("txtNotes");
        notes->setAccessibleName("Notes");
        notes->setReadOnly(true);
        column->addWidget(notes);
    }

    void AddButtons(QVBoxLayout* column) {
        auto* cancel = new QPushButton("Cancel", this);
        cancel->setObjectName("btnCancel");
        auto* ok = new QPushButton("OK", this);
        ok->setObjectName("btnOk");
        ok->setProperty("primary", true);
        auto* row = new QHBoxLayout;
        row->addStretch();
        row->addWidget(cancel);
        row->addWidget(ok);
        column->addLayout(row);
        connect(ok, &QPushButton::clicked, this, [this] { btnOk_Click(); });
        connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
        connect(new QShortcut(QKeySequence(Qt::Key_Return), this), &QShortcut::activated, this,
                [this] { btnOk_Click(); });
        connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this,
                [this] { Unload(); });
    }

    void btnOk_Click() {
        for (int i = 0; i < options_.size(); ++i)
            if (options_[i]->isChecked()) info_.option = i + 1;
        if (amount_) info_.amount = amount_->text().toStdString();
        if (check_) info_.checked = check_->isChecked();
        agreed_ = true;
        Unload();
    }

    HelpInfo& info_;
    bool& agreed_;
    QList<QRadioButton*> options_;
    TextField* amount_ = nullptr;
    QCheckBox* check_ = nullptr;
};

}  // namespace

bool ShowHelpInfo(HelpInfo& info) {
    bool agreed = false;
    auto* form = new frmHelpInfo(info, agreed);
    form->ShowModal();
    return agreed;
}

}  // namespace tendo

#include "app/screens/frm_temp_file.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/qt/form.h"

namespace tendo {
namespace {

struct Choice {
    const char* name;
    const char* caption;
};
const Choice choices[] = {
    {"optOption1", "Open the temporary file and preserve the most recent inputs\n(recommended)."},
    {"optOption2",
     "Delete the temporary file and open the most recently\nsaved version of this project."},
    {"optOption3", "Do not open this project right now."},
};

class frmTempFile : public Form {
  public:
    frmTempFile(const QString& caption, int& choice)
        : Form("frmTempFile", caption, Place::Dialog), choice_(choice) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(16, 16, 16, 16);
        column->setSpacing(12);
        auto* text = new QLabel(
            "Tendo has detected a temporary file which was in use when this project was last being "
            "edited.  Please select an option below.");
        text->setObjectName("lblText");
        text->setWordWrap(true);
        column->addWidget(text);
        for (const Choice& item : choices) {
            auto* option = new QRadioButton(item.caption, this);
            option->setObjectName(item.name);
            column->addWidget(option);
        }
        Control("optOption1")->setFocus();
        static_cast<QRadioButton*>(Control("optOption1"))->setChecked(true);
        auto* ok = new QPushButton("OK", this);
        ok->setObjectName("btnOK");
        ok->setProperty("primary", true);
        connect(ok, &QPushButton::clicked, this, [this] { Unload(); });
        connect(new QShortcut(QKeySequence(Qt::Key_Return), this), &QShortcut::activated, this,
                [this] { Unload(); });
        column->addSpacing(4);
        column->addWidget(ok, 0, Qt::AlignRight);
        setMinimumWidth(460);
    }

  protected:
    void FormUnload() override {
        for (int i = 0; i < 3; ++i)
            if (static_cast<QRadioButton*>(Control(choices[i].name))->isChecked()) choice_ = i + 1;
    }

  private:
    int& choice_;
};

}  // namespace

int AskAboutTempFile(const std::string& workFile) {
    int choice = 1;
    auto* form =
        new frmTempFile("Temporary File Detected:  " + QString::fromStdString(workFile), choice);
    form->ShowModal();
    return choice;
}

}  // namespace tendo

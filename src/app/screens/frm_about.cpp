#include "app/screens/frm_about.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/qt/icons.h"
#include "platform/qt/theme.h"
#include "project/program_state.h"

namespace tendo {
namespace {

QLabel* AddText(QVBoxLayout* column, const char* name, const QString& text, bool quiet) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setProperty("quiet", quiet);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(label);
    return label;
}

}  // namespace

Form* MakeAboutForm() {
    auto* form = new Form("frmAbout", "About TENDO", Form::Place::Dialog);
    auto* rows = new QVBoxLayout(form);
    rows->setContentsMargins(24, 24, 24, 16);
    rows->setSpacing(16);
    auto* top = new QHBoxLayout;
    top->setSpacing(20);
    auto* logo = new QLabel;
    logo->setPixmap(LinePixmap("tendo", Theme().accent, 56, form->devicePixelRatioF()));
    top->addWidget(logo, 0, Qt::AlignTop);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    AddText(texts, "lblTitle", "TENDO", false)->setFont(TotalFont());
    AddText(texts, "lblVersion", "Version " + QString::fromStdString(State().ProgramVersionText),
            true);
    AddText(texts, "lblDescription", "HVAC Estimating and Sales Proposal Program", false);
    AddText(texts, "lblMaker", "Velmo Software", true);
    AddText(texts, "lblDirectory", QString::fromStdString(State().ProgramDirectory), true);
    top->addLayout(texts, 1);
    rows->addLayout(top);
    auto* ok = new QPushButton("OK");
    ok->setObjectName("cmdOK");
    ok->setProperty("primary", true);
    QObject::connect(ok, &QPushButton::clicked, form, [form] { form->Unload(); });
    for (const int key : {Qt::Key_Return, Qt::Key_Escape})
        QObject::connect(new QShortcut(QKeySequence(key), form), &QShortcut::activated, form,
                         [form] { form->Unload(); });
    rows->addWidget(ok, 0, Qt::AlignRight);
    ok->setFocus();
    return form;
}

}  // namespace tendo

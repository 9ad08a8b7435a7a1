#include "materials/screens/frm_list_add_delete.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "materials/labor_lists.h"
#include "materials/material_lists.h"
#include "materials/screens/frm_labor_list.h"
#include "materials/screens/frm_mat_list.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

struct ListKindTexts {
    const char* title;
    const char* prompt;
    const char* newTitle;
    const char* newPrompt;
    const char* takeoff;  // the screen that makes room for the editor
    const char* editor;
};

constexpr const char* noList = "(None)";
constexpr int listWidth = 34;  // characters

const ListKindTexts& TextsOf(ListKind kind) {
    static const ListKindTexts material = {
        "Add/Edit/Delete Material List",
        "Select a Material List:",
        "New Material List",
        "Please enter the name of the new Material List that you wish to create:",
        "frmMatCosts",
        "frmMatList"};
    static const ListKindTexts labor = {
        "Add/Edit/Delete Labor List",
        "Select a Labor List:",
        "New Labor List",
        "Please enter the name of the new Labor List that you wish to create:",
        "frmLaborCosts",
        "frmLaborList"};
    return kind == ListKind::Material ? material : labor;
}

void Hide(Form* form) {
    if (form && form->SubWindow()) form->SubWindow()->hide();
}

/// The editor of a list, not shown yet; nullptr when it refused.
Form* MakeEditor(ListKind kind, const std::string& name, bool isNew) {
    return kind == ListKind::Material ? MakeMaterialListEditor(name, isNew)
                                      : MakeLaborListEditor(name, isNew);
}

}  // namespace

frmListAddDelete::frmListAddDelete(ListKind kind)
    : Form("frmListAddDelete", "", Place::Child), kind_(kind) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(8);
    ComboSelectList_ = new QComboBox(this);
    ComboSelectList_->setObjectName("ComboSelectList");
    ComboSelectList_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ComboSelectList_->setMinimumContentsLength(listWidth);
    lblPrompt_ = MakeLabel("", ComboSelectList_, this);
    lblPrompt_->setObjectName("lblPrompt");
    column->addWidget(lblPrompt_);
    column->addWidget(ComboSelectList_);
    column->addSpacing(8);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    AddButtons(row);
    column->addLayout(row);
    column->addStretch();
    setFocusProxy(ComboSelectList_);
    connect(&NewsOfLists(), &ListNews::EditorClosed, this, &frmListAddDelete::EditorClosed);
    SetKind(kind);
}

void frmListAddDelete::AddButtons(QBoxLayout* row) {
    const auto add = [&](const char* name, const char* caption, void (frmListAddDelete::*click)()) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, click);
        row->addWidget(button);
    };
    add("btnAdd", "&Add…", &frmListAddDelete::btnAdd_Click);
    add("btnEdit", "Ed&it", &frmListAddDelete::btnEdit_Click);
    add("btnDelete", "&Delete", &frmListAddDelete::btnDelete_Click);
    row->addStretch();
    auto* close = new QPushButton("&Close", this);
    close->setObjectName("btnClose");
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    row->addWidget(close);
}

void frmListAddDelete::SetKind(ListKind kind) {
    kind_ = kind;
    setWindowTitle(TextsOf(kind).title);
    ShowCaption(lblPrompt_, TextsOf(kind).prompt);
    if (kind == ListKind::Material)
        SetMatComboList();
    else
        SetLaborComboList();
}

void frmListAddDelete::SetMatComboList() {
    FillComboList(MaterialListNames());
}

void frmListAddDelete::SetLaborComboList() {
    FillComboList(LaborListNames());
}

void frmListAddDelete::FillComboList(const std::vector<std::string>& names) {
    ComboSelectList_->clear();
    for (const std::string& name : names)
        ComboSelectList_->addItem(QString::fromStdString(name));
    ComboSelectList_->addItem(noList);
    ComboSelectList_->setCurrentIndex(ComboSelectList_->count() - 1);
}

std::string frmListAddDelete::ChosenList() const {
    const std::string name = ComboSelectList_->currentText().toStdString();
    return name == noList ? std::string() : std::string(Trimmed(name));
}

void frmListAddDelete::OpenEditor(const std::string& name, bool isNew) {
    const ListKindTexts& texts = TextsOf(kind_);
    if (Form* open = Form::Find(texts.editor); open && !open->Unload()) return;
    Form* editor = MakeEditor(kind_, name, isNew);
    if (!editor) return;
    hiddenTakeoff_ = Form::Find(texts.takeoff);
    Hide(hiddenTakeoff_);
    Hide(this);
    editor->ShowForm();
}

void frmListAddDelete::EditorClosed(ListKind kind) {
    if (hiddenTakeoff_) hiddenTakeoff_->ShowForm();
    hiddenTakeoff_ = nullptr;
    SetKind(kind);
    ShowForm();
}

void frmListAddDelete::btnAdd_Click() {
    const ListKindTexts& texts = TextsOf(kind_);
    const auto name = Dialogs().Input({texts.newTitle, texts.newPrompt, ""});
    if (name && !Trimmed(*name).empty()) OpenEditor(std::string(Trimmed(*name)), true);
}

void frmListAddDelete::btnEdit_Click() {
    if (!ChosenList().empty()) OpenEditor(ChosenList(), false);
}

void frmListAddDelete::btnDelete_Click() {
    const std::string name = ChosenList();
    if (name.empty()) return;
    if (kind_ == ListKind::Material)
        DeleteMaterialList(name);
    else
        DeleteLaborList(name);
    SetKind(kind_);
    Q_EMIT NewsOfLists().Changed(kind_);
}

void ShowListAddDelete(ListKind kind) {
    auto* dialog = qobject_cast<frmListAddDelete*>(Form::Find("frmListAddDelete"));
    if (!dialog)
        dialog = new frmListAddDelete(kind);
    else
        dialog->SetKind(kind);
    dialog->ShowForm();
}

}  // namespace tendo

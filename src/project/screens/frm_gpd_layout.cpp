#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/qt/enhanced_input.h"
#include "project/program_state.h"
#include "project/screens/frm_gpd.h"

namespace tendo {
namespace {

constexpr int storeInterval = 1000;  // milliseconds
constexpr int memoLines = 3;
constexpr int buttonWidth = 104;
constexpr double greatestLaborRate = 9'999'999.99;
constexpr int labelWidth = 112;  // one width on all tabs

QPushButton* MakeButton(const char* name, const char* caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    return button;
}

/// A section's heading over all columns, with room above it.
void AddSection(QGridLayout* grid, const char* heading, QWidget* page) {
    const int row = grid->rowCount();
    grid->setRowMinimumHeight(row, 16);
    grid->addWidget(MakeHeading(heading, page), row + 1, 0, 1, 2);
}

/// What may be typed into a control of this screen; nothing for a tick box.
std::shared_ptr<InputValidator> ValidatorOf(const QWidget* control) {
    auto validator = std::make_shared<InputValidator>();
    if (const auto* field = qobject_cast<const TextField*>(control)) {
        validator->NumberField = field->Kind() == EntryKind::Money;
        validator->MaxNumberValue = greatestLaborRate;
        validator->NumberOfDecimalPlaces = 2;
        validator->MaxTextLength = field->maxLength();
        return validator;
    }
    for (const GPDText& text : GPDTexts()) {
        if (control->objectName() != text.spec.name) continue;
        validator->MaxTextLength = text.spec.maxLength;
        return validator;
    }
    return nullptr;
}

/// Arrow keys and Return lead through the fields of a page from top to bottom.
void EnhanceFields(const QWidget* page) {
    std::vector<EnhancedInput*> fields;
    for (auto* control : page->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (qobject_cast<TextField*>(control) || qobject_cast<QPlainTextEdit*>(control) ||
            qobject_cast<QCheckBox*>(control))
            fields.push_back(new EnhancedInput(control, ValidatorOf(control)));
    ChainFields(fields);
}

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets, bool stretch) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    if (stretch) row->addStretch();
    return row;
}

}  // namespace

frmGPD::frmGPD()
    : Form("frmGPD", "General Project Data", Place::Child, "GPDForm"),
      tabs_(new QTabWidget(this)),
      tmrGPD_(new QTimer(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 8, 16, 16);
    column->addWidget(tabs_);
    tabs_->setObjectName("tabGPD");
    tabs_->setAccessibleName("General project data");
    MakePage(GPDTab::Project, "Project");
    MakePage(GPDTab::Client, "Client");
    MakePage(GPDTab::Company, "Company");
    ShowRecords();
    tmrGPD_->setObjectName("tmrGPD");
    tmrGPD_->setInterval(storeInterval);
    connect(tmrGPD_, &QTimer::timeout, this, &frmGPD::tmrGPD_Timer);
    tmrGPD_->start();
}

QWidget* frmGPD::MakePage(GPDTab tab, const char* caption) {
    auto* page = new QWidget(this);
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 16, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->setColumnMinimumWidth(0, labelWidth);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(1, 380);
    AddTexts(grid, tab, page);
    if (tab == GPDTab::Project) {
        AddPricing(grid, page);
        AddDatabase(grid, page);
        AddImport(grid, page);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    EnhanceFields(page);
    tabs_->addTab(page, caption);
    return page;
}

void frmGPD::AddTexts(QGridLayout* grid, GPDTab tab, QWidget* page) {
    for (const GPDText& text : GPDTexts()) {
        if (text.tab != tab) continue;
        if (text.memo && tab == GPDTab::Client) AddContacts(grid, page);
        AddText(grid, text, page);
    }
    for (const GPDCheck& check : GPDChecks()) {
        if (check.tab != tab) continue;
        auto* box = new QCheckBox(check.caption, page);
        box->setObjectName(check.name);
        grid->addWidget(box, grid->rowCount(), 1);
        connect(box, &QCheckBox::toggled, this, &frmGPD::ControlChanged);
        checks_.push_back(box);
    }
}

void frmGPD::AddText(QGridLayout* grid, const GPDText& text, QWidget* page) {
    const int row = grid->rowCount();
    if (!text.memo) {
        TextField* field = AddFieldRow(grid, row, text.spec, page);
        WatchField(field);
        shown_.push_back({&text, field, nullptr});
        return;
    }
    auto* memo = new QPlainTextEdit(page);
    memo->setObjectName(text.spec.name);
    memo->setAccessibleName(QString(text.spec.label).remove('&'));
    memo->setTabChangesFocus(true);
    memo->setFixedHeight(memo->fontMetrics().lineSpacing() * memoLines + 20);
    QLabel* label = MakeLabel(text.spec.label, memo, page);
    grid->addWidget(label, row, 0, Qt::AlignTop);
    label->setContentsMargins(0, 6, 0, 0);
    grid->addWidget(memo, row, 1);
    connect(memo, &QPlainTextEdit::textChanged, this, &frmGPD::ControlChanged);
    shown_.push_back({&text, nullptr, memo});
}

void frmGPD::WatchField(TextField* field) {
    connect(field, &TextField::Committed, this, &frmGPD::Store);
    connect(field, &QLineEdit::textChanged, this, [this] {
        if (!loading_) State().ProjectChanged = true;
    });
}

void frmGPD::ControlChanged() {
    if (loading_) return;
    State().ProjectChanged = true;
    Store();
}

void frmGPD::AddContacts(QGridLayout* grid, QWidget* page) {
    struct Contact {
        FieldSpec spec;
        const char* button;
        const char* caption;
    };
    // Nothing keeps these two: what is typed there is lost with the form.
    const Contact contacts[] = {
        {{.name = "txtClientEmailAddress", .label = "&Email"},
         "cmdClientEmailAddress",
         "Send Email"},
        {{.name = "txtClientWebPage", .label = "&Web page"}, "cmdClientWebPage", "Go There"}};
    for (const Contact& contact : contacts) {
        const int row = grid->rowCount();
        auto* field = new TextField(contact.spec, page);
        QPushButton* button = MakeButton(contact.button, contact.caption, page);
        button->setMinimumWidth(buttonWidth);
        grid->addWidget(MakeLabel(contact.spec.label, field, page), row, 0);
        grid->addLayout(Row({field, button}, false), row, 1);
    }
}

void frmGPD::AddPair(QGridLayout* grid, const PairSpec& pair, QWidget* page) {
    const int row = grid->rowCount();
    auto* group = new QButtonGroup(page);
    const auto make = [&](const char* name, const char* caption) {
        auto* option = new QRadioButton(caption, page);
        option->setObjectName(name);
        group->addButton(option);
        return option;
    };
    *pair.first = make(pair.firstName, pair.firstCaption);
    *pair.second = make(pair.secondName, pair.secondCaption);
    setTabOrder(*pair.second, pair.help);
    connect(*pair.first, &QRadioButton::toggled, this, &frmGPD::ControlChanged);
    grid->addWidget(MakeLabel(pair.label, *pair.first, page), row, 0);
    grid->addLayout(Row({*pair.first, *pair.second, pair.help}, true), row, 1);
}

QWidget* frmGPD::HelpButton(const char* name, const char* about, void (frmGPD::*click)(),
                            QWidget* page) {
    QToolButton* button = MakeHelpButton(name, about, page);
    connect(button, &QToolButton::clicked, this, click);
    return button;
}

void frmGPD::AddPricing(QGridLayout* grid, QWidget* page) {
    AddSection(grid, "Pricing", page);
    const int row = grid->rowCount();
    const FieldSpec rate{.name = "txtLaborRate",
                         .label = "&Labor rate",
                         .kind = EntryKind::Money,
                         .width = 12,
                         .range = "0.00 and up",
                         .unit = "dollars an hour"};
    txtLaborRate_ = new TextField(rate, page);
    connect(txtLaborRate_, &TextField::Committed, this, &frmGPD::txtLaborRate_LostFocus);
    connect(txtLaborRate_, &TextField::HelpWanted, this, &frmGPD::btnLaborRate_Click);
    connect(txtLaborRate_, &QLineEdit::textEdited, this, [] { State().ProjectChanged = true; });
    grid->addWidget(MakeLabel(rate.label, txtLaborRate_, page), row, 0);
    QWidget* rateHelp =
        HelpButton("btnLaborRate", "About the labor rate", &frmGPD::btnLaborRate_Click, page);
    grid->addLayout(Row({txtLaborRate_, rateHelp}, true), row, 1);
    AddPair(
        grid,
        {.label = "Ta&x labor",
         .first = &OptTaxYes_,
         .firstName = "OptTaxYes",
         .firstCaption = "Yes",
         .second = &OptTaxNo_,
         .secondName = "OptTaxNo",
         .secondCaption = "No",
         .help = HelpButton("btnTaxLabor", "About taxing labor", &frmGPD::btnTaxLabor_Click, page)},
        page);
    AddPair(grid,
            {.label = "&Proposal type",
             .first = &OptSingleProp_,
             .firstName = "OptSingleProp",
             .firstCaption = "Single Price ",
             .second = &OptMultipleProp_,
             .secondName = "OptMultipleProp",
             .secondCaption = "Multiple Price ",
             .help = HelpButton("btnProposalType", "About the proposal type",
                                &frmGPD::btnProposalType_Click, page)},
            page);
}

void frmGPD::AddDatabase(QGridLayout* grid, QWidget* page) {
    AddSection(grid, "Equipment", page);
    const int row = grid->rowCount();
    const FieldSpec spec{.name = "txtDefDB", .label = "De&fault database", .maxLength = 50};
    txtDefDB_ = new TextField(spec, page);
    WatchField(txtDefDB_);
    connect(txtDefDB_, &QLineEdit::textChanged, this, &frmGPD::txtDefDB_Change);
    QPushButton* browse = MakeButton("btnBrowse", "&Browse...", page);
    browse->setAccessibleName("Browse for the default database");
    connect(browse, &QPushButton::clicked, this, &frmGPD::btnBrowse_Click);
    grid->addWidget(MakeLabel(spec.label, txtDefDB_, page), row, 0);
    grid->addLayout(Row({txtDefDB_, browse}, false), row, 1);
}

void frmGPD::AddImport(QGridLayout* grid, QWidget* page) {
    AddSection(grid, "Import", page);
    int row = grid->rowCount();
    chkImportData_ = new QCheckBox(" Import General Project Data", page);
    chkImportData_->setObjectName("chkImportData");
    connect(chkImportData_, &QCheckBox::toggled, this, &frmGPD::ControlChanged);
    QWidget* help = HelpButton("btnImportData", "About importing general project data",
                               &frmGPD::btnImportData_Click, page);
    grid->addLayout(Row({chkImportData_, help}, true), row++, 1);
    const FieldSpec spec{.name = "txtImportFile", .label = "Import f&ile", .maxLength = 50};
    txtImportFile_ = new TextField(spec, page);
    WatchField(txtImportFile_);
    QPushButton* browse = MakeButton("btnImportFile", "B&rowse...", page);
    browse->setAccessibleName("Browse for the import file");
    connect(browse, &QPushButton::clicked, this, &frmGPD::btnImportFile_Click);
    grid->addWidget(MakeLabel(spec.label, txtImportFile_, page), row, 0);
    grid->addLayout(Row({txtImportFile_, browse}, false), row, 1);
}

}  // namespace tendo

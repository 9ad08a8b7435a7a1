#include "reports/screens/frm_preview.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include "reports/screens/frm_owner.h"
#include "reports/screens/frm_report_options.h"
#include "reports/screens/preview_pane.h"
#include "reports/screens/print_document.h"
#include "reports/screens/send_proposal.h"

namespace tendo {
namespace {

bool CostReportsAreWritten() {
    return Reports().PrintDetailedCostReport && Reports().PrintCustomerCostReport;
}

const ReportChoice reportChoices[] = {
    {"All Reports",
     [](ReportContext& context) {
         GenerateReports(context);
         return true;
     }},
    {"Title Page Report", PreviewTitleOnly},
    {"Sales Proposal", PreviewSalesOnly},
    {"Detailed Cost Report", PreviewCostOnly, false, CostReportsAreWritten},
    {"Optional Accessories Report", PreviewAccessoriesOnly, false,
     [] { return Reports().PrintOptionalAccessoriesReport != nullptr; }},
    {"Installer's Report", PreviewInstallersOnly, false,
     [] { return Reports().PrintInstallersReport != nullptr; }},
};

struct PngChoice {
    const char* name;
    const char* text;
    bool allPages;
    int dpi;
};
const PngChoice pngChoices[] = {
    {"ToolSavePngPage150", "This page, for the &screen (150 dots an inch)", false, 150},
    {"ToolSavePngPage300", "This page, for &print (300 dots an inch)", false, 300},
    {"ToolSavePngAll150", "&All pages, for the screen (150 dots an inch)", true, 150},
    {"ToolSavePngAll300", "All &pages, for print (300 dots an inch)", true, 300},
};

void ShowReportOptions() {
    Form* options = Form::Find("frmReportOptions");
    if (!options) options = new frmReportOptions;
    options->ShowForm();
}

}  // namespace

FrmPreview::FrmPreview() : Form("frmPreview", "Print Preview...", Place::Child, "frmPreview") {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    pane_ = new PreviewPane(reportChoices, this);
    pane_->AddThumbnails();
    pane_->AddSearch();
    pane_->OfferOptions(ShowReportOptions);
    pane_->Tools().AddRule();
    AddOutputs();
    column->addWidget(pane_);
    setMinimumSize(420, 420);
    resize(900, 760);
}

void FrmPreview::AddOutputs() {
    PreviewTools& tools = pane_->Tools();
    const auto add = [&](const ToolSpec& spec, ExportNote (*write)(const Document&)) {
        tools.AddTool(spec, [this, write] { Tell(write(pane_->ShownDocument())); });
    };
    add({"ToolSavePdf", "export", "Save as PDF... (Ctrl+D)"}, ExportPdf);
    AddPictures();
    add({"ToolEmail", "mail", "Send by e-mail... (Ctrl+M)"}, SendProposal);
    tools.AddTool({"ToolPrintPage", "print", "Print..."},
                  [this] { PrintDocument(pane_->ShownDocument(), pane_->ShownPage()); });
    tools.AddTool({"ToolClose", "close", "Close (Ctrl+W)"}, [this] { Unload(); });
}

void FrmPreview::AddPictures() {
    QToolButton* tool =
        pane_->Tools().AddTool({"ToolSavePng", "picture", "Save as pictures (PNG)"});
    auto* menu = new QMenu(tool);
    for (const PngChoice& choice : pngChoices) {
        QAction* action = menu->addAction(choice.text);
        action->setObjectName(choice.name);
        connect(action, &QAction::triggered, this, [this, &choice] {
            const int page = choice.allPages ? -1 : pane_->ShownPage();
            Tell(ExportPng(pane_->ShownDocument(), {page, choice.dpi}));
        });
    }
    tool->setMenu(menu);
    tool->setPopupMode(QToolButton::InstantPopup);
}

void FrmPreview::Tell(const std::string& note) {
    pane_->ShowNote(QString::fromStdString(note));
}

void FrmPreview::ShowAllReports() {
    pane_->RunReport(0);
    pane_->FocusPage();
}

void FrmPreview::keyPressEvent(QKeyEvent* event) {
    if (pane_->HandleKey(*event)) return;
    const bool control = event->modifiers() == Qt::ControlModifier;
    if (control && event->key() == Qt::Key_D) return Press("ToolSavePdf");
    if (control && event->key() == Qt::Key_M) return Press("ToolEmail");
    Form::keyPressEvent(event);
}

void FrmPreview::Press(const char* tool) {
    findChild<QToolButton*>(tool)->click();
}

void ShowPreview() {
    AskForOwnerOnce();
    auto* preview = static_cast<FrmPreview*>(Form::Find("frmPreview"));
    if (!preview) preview = new FrmPreview;
    preview->ShowForm();
    preview->ShowAllReports();
}

}  // namespace tendo

#include "reports/screens/frm_preview.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include "reports/generate_reports.h"
#include "reports/screens/frm_owner.h"
#include "reports/screens/preview_pane.h"
#include "reports/screens/print_document.h"

namespace tendo {
namespace {

/// Those without a procedure are not written yet and can't be chosen.
const ReportChoice reportChoices[] = {
    {"All Reports",
     [](ReportContext& context) {
         GenerateReports(context);
         return true;
     }},
    {"Title Page Report", PreviewTitleOnly},
    {"Sales Proposal", PreviewSalesOnly},
};

}  // namespace

FrmPreview::FrmPreview() : Form("frmPreview", "Print Preview...", Place::Child, "frmPreview") {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    pane_ = new PreviewPane(reportChoices, this);
    pane_->AddTool("ToolSavePdf", "export", "Save as PDF...",
                   [this] { ExportDocument(pane_->ShownDocument()); });
    pane_->AddTool("ToolPrintPage", "print", "Print...",
                   [this] { PrintDocument(pane_->ShownDocument(), pane_->ShownPage()); });
    pane_->AddTool("ToolClose", "close", "Close", [this] { Unload(); });
    column->addWidget(pane_);
    setMinimumSize(520, 420);
    resize(900, 760);
}

void FrmPreview::ShowAllReports() {
    pane_->RunReport(0);
}

void FrmPreview::keyPressEvent(QKeyEvent* event) {
    if (!pane_->HandleKey(*event)) Form::keyPressEvent(event);
}

void ShowPreview() {
    AskForOwnerOnce();
    auto* preview = static_cast<FrmPreview*>(Form::Find("frmPreview"));
    if (!preview) preview = new FrmPreview;
    preview->ShowForm();
    preview->ShowAllReports();
}

}  // namespace tendo

#include "reports/screens/frm_preview.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/qt/icons.h"
#include "platform/qt/theme.h"
#include "reports/generate_reports.h"
#include "reports/package.h"
#include "reports/screens/frm_owner.h"
#include "reports/screens/page_view.h"

namespace tendo {
namespace {

constexpr int SmallestZoom = 10, LargestZoom = 400;
const int zoomChoices[] = {25, 50, 75, 100, 125, 150, 175, 200};

/// The entries of the report list and what each runs. Those without a procedure are not written yet
/// and can't be chosen.
struct ReportChoice {
    const char* name;
    bool (*run)(ReportContext&);  // false when no document could be started
};
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
    column->setSpacing(0);
    column->addWidget(MakeToolbar());
    viewPort_ = new QScrollArea(this);
    viewPort_->setObjectName("ViewPort");
    viewPort_->setWidgetResizable(true);
    viewPort_->setFocusPolicy(Qt::NoFocus);
    view_ = new PageView(viewPort_);
    view_->setObjectName("vsPreview");
    viewPort_->setWidget(view_);
    column->addWidget(viewPort_, 1);
    connect(view_, &PageView::ZoomWanted, this,
            [this](int change) { ZoomTo(view_->Zoom() + change); });
    setMinimumSize(520, 420);
    resize(900, 760);
}

QToolButton* FrmPreview::MakeTool(const char* name, const char* icon, const QString& text,
                                  void (FrmPreview::*run)()) {
    auto* tool = new QToolButton(this);
    tool->setObjectName(name);
    tool->setIcon(LineIcon(icon));
    tool->setIconSize(QSize(20, 20));
    tool->setAutoRaise(true);
    tool->setToolTip(text);
    tool->setAccessibleName(text);
    connect(tool, &QToolButton::clicked, this, run);
    return tool;
}

QWidget* FrmPreview::MakeToolbar() {
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(16, 8, 16, 8);
    const auto label = [&](const char* text, QWidget* buddy) {
        auto* made = new QLabel(text, bar);
        made->setProperty("quiet", true);
        made->setBuddy(buddy);
        row->addWidget(made);
        row->addWidget(buddy);
    };
    reportName_ = new QComboBox(bar);
    reportName_->setObjectName("ToolReportName");
    for (const ReportChoice& choice : reportChoices)
        reportName_->addItem(choice.name);
    connect(reportName_, &QComboBox::activated, this, &FrmPreview::RunChosenReport);
    label("&Report:", reportName_);

    zoom_ = new QComboBox(bar);
    zoom_->setObjectName("ToolZoom");
    zoom_->setEditable(true);
    for (const int percent : zoomChoices)
        zoom_->addItem(QString::number(percent));
    connect(zoom_, &QComboBox::textActivated, this, &FrmPreview::ZoomToTyped);
    connect(zoom_->lineEdit(), &QLineEdit::editingFinished, this, &FrmPreview::ZoomToTyped);
    zoom_->setEditText("100");
    row->addSpacing(8);
    label("&Zoom:", zoom_);

    pageNumber_ = new QLineEdit("1", bar);
    pageNumber_->setObjectName("ToolPageNumber");
    pageNumber_->setMaximumWidth(fontMetrics().horizontalAdvance("0000") + 28);
    pageNumber_->setAlignment(Qt::AlignRight);
    connect(pageNumber_, &QLineEdit::editingFinished, this, &FrmPreview::GoToTypedPage);
    row->addSpacing(8);
    previous_ = MakeTool("ToolPreviousPage", "previous", "Previous page (Page Up)",
                         &FrmPreview::PreviousPage);
    next_ = MakeTool("ToolNextPage", "next", "Next page (Page Down)", &FrmPreview::NextPage);
    label("&Page:", pageNumber_);
    pageCount_ = new QLabel(bar);
    pageCount_->setObjectName("lblPageCount");
    pageCount_->setProperty("quiet", true);
    row->addWidget(pageCount_);
    row->addWidget(previous_);
    row->addWidget(next_);
    row->addStretch(1);
    row->addWidget(
        MakeTool("ToolRefresh", "refresh", "Write the report anew (F5)", &FrmPreview::Refresh));
    row->addWidget(MakeTool("ToolSavePdf", "export", "Save as PDF...", &FrmPreview::SavePdf));
    row->addWidget(MakeTool("ToolPrintPage", "print", "Print...", &FrmPreview::PrintPages));
    row->addWidget(MakeTool("ToolClose", "close", "Close", &FrmPreview::CloseWindow));
    return bar;
}

void FrmPreview::ShowAllReports() {
    reportName_->setCurrentIndex(0);
    RunChosenReport(0);
}

void FrmPreview::RunChosenReport(int index) {
    const Hourglass pointer;
    StoreAllFields();
    const ReportChoice& choice = reportChoices[static_cast<std::size_t>(index)];
    bool started = true;
    document_ = RunReports([&](PrintSurface& surface) {
                    ReportContext context(surface, Project());
                    started = choice.run(context);
                }).document;
    if (!started) QApplication::beep();
    SetDocumentNames(document_, Project());
    page_ = 0;
    ShowPage(0);
}

void FrmPreview::Refresh() {
    const int page = page_;
    RunChosenReport(reportName_->currentIndex());
    ShowPage(std::min(page, PageCount() - 1));
}

void FrmPreview::ShowPage(int page) {
    if (PageCount() > 0 && (page < 0 || page >= PageCount())) return;
    page_ = std::max(page, 0);
    view_->ShowPage(&document_, page_);
    viewPort_->verticalScrollBar()->setValue(0);
    pageNumber_->setText(QString::number(page_ + 1));
    pageCount_->setText(QString("of %1").arg(PageCount()));
    previous_->setEnabled(page_ > 0);
    next_->setEnabled(page_ + 1 < PageCount());
}

void FrmPreview::GoToTypedPage() {
    bool number = false;
    const int page = pageNumber_->text().toInt(&number);
    if (number && page >= 1 && page <= PageCount())
        ShowPage(page - 1);
    else
        pageNumber_->setText(QString::number(page_ + 1));
}

void FrmPreview::ZoomTo(int percent) {
    const int zoom = std::clamp(percent, SmallestZoom, LargestZoom);
    view_->SetZoom(zoom);
    zoom_->setEditText(QString::number(zoom));
}

void FrmPreview::ZoomToTyped() {
    bool number = false;
    const int percent = zoom_->currentText().remove('%').toInt(&number);
    if (number && percent == view_->Zoom()) return;
    ZoomTo(number && percent > 0 ? percent : view_->Zoom());
}

void FrmPreview::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_PageUp:
            return PreviousPage();
        case Qt::Key_PageDown:
            return NextPage();
        case Qt::Key_Home:
            return ShowPage(0);
        case Qt::Key_End:
            return ShowPage(PageCount() - 1);
        case Qt::Key_F5:
            return Refresh();
        case Qt::Key_Plus:
            return ZoomTo(view_->Zoom() + 10);
        case Qt::Key_Minus:
            return ZoomTo(view_->Zoom() - 10);
        default:
            Form::keyPressEvent(event);
    }
}

void ShowPreview() {
    AskForOwnerOnce();
    auto* preview = static_cast<FrmPreview*>(Form::Find("frmPreview"));
    if (!preview) preview = new FrmPreview;
    preview->ShowForm();
    preview->ShowAllReports();
}

}  // namespace tendo

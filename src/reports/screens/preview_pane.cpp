#include "reports/screens/preview_pane.h"

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

#include "platform/qt/form.h"
#include "platform/qt/icons.h"
#include "reports/generate_reports.h"
#include "reports/package.h"
#include "reports/screens/page_view.h"

namespace tendo {
namespace {

constexpr int SmallestZoom = 10, LargestZoom = 400;
const int zoomChoices[] = {25, 50, 75, 100, 125, 150, 175, 200};

QHBoxLayout* AddLine(QVBoxLayout* lines) {
    auto* line = new QHBoxLayout;
    line->setSpacing(4);
    lines->addLayout(line);
    return line;
}

}  // namespace

PreviewPane::PreviewPane(std::span<const ReportChoice> choices, QWidget* parent)
    : QWidget(parent), choices_(choices) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    view_ = new PageView;
    view_->setObjectName("vsPreview");
    column->addWidget(MakeToolbar());
    viewPort_ = new QScrollArea(this);
    viewPort_->setObjectName("ViewPort");
    viewPort_->setWidgetResizable(true);
    viewPort_->setFocusPolicy(Qt::NoFocus);
    viewPort_->setWidget(view_);
    column->addWidget(viewPort_, 1);
    connect(view_, &PageView::ZoomWanted, this,
            [this](int change) { ZoomTo(view_->Zoom() + change); });
}

QToolButton* PreviewPane::MakeTool(const char* name, const char* icon, const QString& text,
                                   std::function<void()> run) {
    auto* tool = new QToolButton(this);
    tool->setObjectName(name);
    tool->setIcon(LineIcon(icon));
    tool->setIconSize(QSize(20, 20));
    tool->setAutoRaise(true);
    tool->setToolTip(text);
    tool->setAccessibleName(text);
    connect(tool, &QToolButton::clicked, this, std::move(run));
    return tool;
}

void PreviewPane::AddTool(const char* name, const char* icon, const QString& text,
                          std::function<void()> run) {
    tools_->addWidget(MakeTool(name, icon, text, std::move(run)));
}

QWidget* PreviewPane::MakeToolbar() {
    auto* bar = new QWidget(this);
    auto* lines = new QVBoxLayout(bar);
    lines->setContentsMargins(8, 8, 8, 8);
    lines->setSpacing(4);
    tools_ = AddLine(lines);
    reportName_ = new QComboBox(bar);
    reportName_->setObjectName("ToolReportName");
    for (const ReportChoice& choice : choices_)
        reportName_->addItem(choice.name);
    connect(reportName_, &QComboBox::activated, this, &PreviewPane::RunReport);
    AddLabelled("&Report:", reportName_);
    AddZoom();
    if (IsNarrow()) {
        tools_->addStretch(1);
        tools_ = AddLine(lines);
    }
    AddPages();
    tools_->addStretch(1);
    AddTool("ToolRefresh", "refresh", "Write the report anew (F5)", [this] { Refresh(); });
    return bar;
}

void PreviewPane::AddLabelled(const QString& text, QWidget* control) {
    auto* label = new QLabel(text, this);
    label->setProperty("quiet", true);
    label->setBuddy(control);
    tools_->addWidget(label);
    tools_->addWidget(control);
    tools_->addSpacing(8);
}

void PreviewPane::AddZoom() {
    zoom_ = new QComboBox(this);
    zoom_->setObjectName("ToolZoom");
    zoom_->setEditable(true);
    for (const int percent : zoomChoices)
        zoom_->addItem(QString::number(percent));
    connect(zoom_, &QComboBox::textActivated, this, &PreviewPane::ZoomToTyped);
    connect(zoom_->lineEdit(), &QLineEdit::editingFinished, this, &PreviewPane::ZoomToTyped);
    zoom_->setEditText("100");
    AddLabelled("&Zoom:", zoom_);
}

void PreviewPane::AddPages() {
    pageNumber_ = new QLineEdit("1", this);
    pageNumber_->setObjectName("ToolPageNumber");
    pageNumber_->setMaximumWidth(fontMetrics().horizontalAdvance("0000") + 28);
    pageNumber_->setAlignment(Qt::AlignRight);
    connect(pageNumber_, &QLineEdit::editingFinished, this, &PreviewPane::GoToTypedPage);
    AddLabelled("&Page:", pageNumber_);
    pageCount_ = new QLabel(this);
    pageCount_->setObjectName("lblPageCount");
    pageCount_->setProperty("quiet", true);
    tools_->addWidget(pageCount_);
    previous_ = MakeTool("ToolPreviousPage", "previous", "Previous page (Page Up)",
                         [this] { ShowPage(page_ - 1); });
    next_ =
        MakeTool("ToolNextPage", "next", "Next page (Page Down)", [this] { ShowPage(page_ + 1); });
    tools_->addWidget(previous_);
    tools_->addWidget(next_);
}

void PreviewPane::RunReport(int index) {
    const Hourglass pointer;
    reportName_->setCurrentIndex(index);
    if (BeforeRun) BeforeRun();
    Form::StoreAllFields();
    const ReportChoice& choice = choices_[static_cast<std::size_t>(index)];
    bool started = true;
    document_ = RunReports([&](ReportContext& context) { started = choice.run(context); }).document;
    if (!started) QApplication::beep();
    SetDocumentNames(document_, Project());
    page_ = 0;
    ShowPage(0);
}

void PreviewPane::Refresh() {
    const int page = page_;
    RunReport(reportName_->currentIndex());
    ShowPage(std::min(page, PageCount() - 1));
}

void PreviewPane::ShowPage(int page) {
    if (PageCount() > 0 && (page < 0 || page >= PageCount())) return;
    page_ = std::max(page, 0);
    view_->ShowPage(&document_, page_);
    viewPort_->verticalScrollBar()->setValue(0);
    pageNumber_->setText(QString::number(page_ + 1));
    pageCount_->setText(QString("of %1").arg(PageCount()));
    previous_->setEnabled(page_ > 0);
    next_->setEnabled(page_ + 1 < PageCount());
}

void PreviewPane::GoToTypedPage() {
    bool number = false;
    const int page = pageNumber_->text().toInt(&number);
    if (number && page >= 1 && page <= PageCount())
        ShowPage(page - 1);
    else
        pageNumber_->setText(QString::number(page_ + 1));
}

void PreviewPane::ZoomTo(int percent) {
    const int zoom = std::clamp(percent, SmallestZoom, LargestZoom);
    view_->SetZoom(zoom);
    zoom_->setEditText(QString::number(zoom));
}

void PreviewPane::ZoomToTyped() {
    bool number = false;
    const int percent = zoom_->currentText().remove('%').toInt(&number);
    if (number && percent == view_->Zoom()) return;
    ZoomTo(number && percent > 0 ? percent : view_->Zoom());
}

bool PreviewPane::HandleKey(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_PageUp:
            ShowPage(page_ - 1);
            return true;
        case Qt::Key_PageDown:
            ShowPage(page_ + 1);
            return true;
        case Qt::Key_Home:
            ShowPage(0);
            return true;
        case Qt::Key_End:
            ShowPage(PageCount() - 1);
            return true;
        case Qt::Key_F5:
            Refresh();
            return true;
        case Qt::Key_Plus:
            ZoomTo(view_->Zoom() + 10);
            return true;
        case Qt::Key_Minus:
            ZoomTo(view_->Zoom() - 10);
            return true;
        default:
            return false;
    }
}

}  // namespace tendo

#include "reports/screens/preview_tools.h"

#include <QAccessible>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QToolButton>
#include <algorithm>

#include "platform/qt/flow_layout.h"
#include "platform/qt/icons.h"
#include "reports/preview_entries.h"

namespace tendo {
namespace {

const int zoomChoices[] = {25, 50, 75, 100, 125, 150, 175, 200};

}  // namespace

QToolButton* MakeTool(const ToolSpec& spec, QWidget* parent) {
    auto* tool = new QToolButton(parent);
    tool->setObjectName(spec.name);
    tool->setIcon(LineIcon(spec.icon));
    tool->setIconSize(QSize(20, 20));
    tool->setAutoRaise(true);
    tool->setToolTip(spec.text);
    tool->setAccessibleName(QString(spec.text).section(" (", 0, 0));
    return tool;
}

void SpeakOf(QWidget* label) {
    QAccessibleEvent event(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

PreviewTools::PreviewTools(std::span<const ReportChoice> choices, QWidget* parent)
    : QWidget(parent) {
    auto* flow = new FlowLayout(this);
    flow->setContentsMargins(8, 8, 8, 8);
    flow->setSpacing(6);
    AddReports(choices);
    AddZoom();
    AddPages();
    AddTool({"ToolRefresh", "refresh", "Write the report anew (F5)"},
            [this] { Q_EMIT RefreshWanted(); });
    ShowZoom(zoom_);
    ShowPage(0, 0);
}

QToolButton* PreviewTools::AddTool(const ToolSpec& spec, std::function<void()> run) {
    QToolButton* tool = MakeTool(spec, this);
    if (run) connect(tool, &QToolButton::clicked, this, std::move(run));
    layout()->addWidget(tool);
    return tool;
}

void PreviewTools::AddRule() {
    auto* rule = new QFrame(this);
    rule->setProperty("upright", true);
    layout()->addWidget(rule);
}

/// A label stays on one line with what it names.
void PreviewTools::AddGroup(const QString& text, const QList<QWidget*>& controls) {
    auto* group = new QWidget(this);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 4, 0);
    row->setSpacing(4);
    auto* label = new QLabel(text, group);
    label->setProperty("quiet", true);
    label->setBuddy(controls.front());
    row->addWidget(label);
    for (QWidget* control : controls)
        row->addWidget(control);
    layout()->addWidget(group);
}

/// A report that isn't written yet stands in the list, greyed.
void PreviewTools::AddReports(std::span<const ReportChoice> choices) {
    ToolReportName_ = new QComboBox(this);
    ToolReportName_->setObjectName("ToolReportName");
    for (const ReportChoice& choice : choices)
        ToolReportName_->addItem(choice.name);
    const auto* items = qobject_cast<const QStandardItemModel*>(ToolReportName_->model());
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (choices[i].IsWritten()) continue;
        QStandardItem* item = items->item(static_cast<int>(i));
        item->setEnabled(false);
        item->setToolTip("This report can't be printed yet.");
    }
    connect(ToolReportName_, &QComboBox::activated, this, &PreviewTools::ReportChosen);
    AddGroup("&Report:", {ToolReportName_});
}

void PreviewTools::AddZoom() {
    ToolZoom_ = new QComboBox(this);
    ToolZoom_->setObjectName("ToolZoom");
    ToolZoom_->setEditable(true);
    ToolZoom_->setInsertPolicy(QComboBox::NoInsert);
    ToolZoom_->setCompleter(nullptr);
    for (const int percent : zoomChoices)
        ToolZoom_->addItem(QString::number(percent));
    ToolZoom_->setToolTip("Zoom in percent (+ and -, or a click on the page)");
    connect(ToolZoom_, &QComboBox::textActivated, this, &PreviewTools::TakeZoom);
    connect(ToolZoom_->lineEdit(), &QLineEdit::editingFinished, this, &PreviewTools::TakeZoom);
    ToolFitWidth_ = MakeTool({"ToolFitWidth", "fit-width", "Fit the page's width (W)"}, this);
    ToolFitPage_ = MakeTool({"ToolFitPage", "fit-page", "Fit the whole page (F)"}, this);
    for (QToolButton* tool : {ToolFitWidth_, ToolFitPage_})
        tool->setCheckable(true);
    connect(ToolFitWidth_, &QToolButton::clicked, this,
            [this](bool on) { Q_EMIT FitChosen(on ? PageFit::Width : PageFit::None); });
    connect(ToolFitPage_, &QToolButton::clicked, this,
            [this](bool on) { Q_EMIT FitChosen(on ? PageFit::Page : PageFit::None); });
    AddGroup("&Zoom:", {ToolZoom_, ToolFitWidth_, ToolFitPage_});
}

void PreviewTools::AddPages() {
    ToolPageNumber_ = new QLineEdit("1", this);
    ToolPageNumber_->setObjectName("ToolPageNumber");
    ToolPageNumber_->setMaximumWidth(fontMetrics().horizontalAdvance("0000") + 22);
    ToolPageNumber_->setAlignment(Qt::AlignRight);
    ToolPageNumber_->setToolTip("The page shown (Page Up and Page Down)");
    connect(ToolPageNumber_, &QLineEdit::editingFinished, this, &PreviewTools::TakePage);
    lblPageCount_ = new QLabel(this);
    lblPageCount_->setObjectName("lblPageCount");
    lblPageCount_->setProperty("quiet", true);
    ToolPreviousPage_ = MakeTool({"ToolPreviousPage", "previous", "Previous page (Page Up)"}, this);
    ToolNextPage_ = MakeTool({"ToolNextPage", "next", "Next page (Page Down)"}, this);
    connect(ToolPreviousPage_, &QToolButton::clicked, this, [this] { Q_EMIT TurnWanted(-1); });
    connect(ToolNextPage_, &QToolButton::clicked, this, [this] { Q_EMIT TurnWanted(1); });
    AddGroup("&Page:", {ToolPageNumber_, lblPageCount_, ToolPreviousPage_, ToolNextPage_});
}

int PreviewTools::ChosenReport() const {
    return report_;
}

void PreviewTools::ShowReport(int index) {
    report_ = index;
    ToolReportName_->setCurrentIndex(index);
}

void PreviewTools::ShowZoom(int percent) {
    zoom_ = percent;
    ToolZoom_->setEditText(QString::number(percent));
}

void PreviewTools::ShowFit(PageFit fit) {
    ToolFitWidth_->setChecked(fit == PageFit::Width);
    ToolFitPage_->setChecked(fit == PageFit::Page);
}

void PreviewTools::ShowPage(int page, int pages) {
    page_ = page;
    pages_ = pages;
    ToolPageNumber_->setText(QString::number(page + 1));
    lblPageCount_->setText(QString("of %1").arg(pages));
    ToolPreviousPage_->setEnabled(page > 0);
    ToolNextPage_->setEnabled(page + 1 < pages);
}

/// What is no zoom gives way to the one that is.
void PreviewTools::TakeZoom() {
    const auto zoom = ZoomOfEntry(ToolZoom_->currentText().toStdString());
    if (!zoom || *zoom == zoom_) return ShowZoom(zoom_);
    Q_EMIT ZoomTyped(*zoom);
}

void PreviewTools::TakePage() {
    const auto page = PageOfEntry(ToolPageNumber_->text().toStdString(), pages_);
    if (!page || *page - 1 == page_) return ShowPage(page_, pages_);
    Q_EMIT PageTyped(*page - 1);
}

}  // namespace tendo

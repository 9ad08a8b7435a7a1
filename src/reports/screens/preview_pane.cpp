#include "reports/screens/preview_pane.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/files/settings_store.h"
#include "platform/qt/form.h"
#include "platform/text/runtime_error.h"
#include "reports/package.h"
#include "reports/preview_entries.h"
#include "reports/screens/find_bar.h"
#include "reports/screens/page_thumbnails.h"
#include "reports/screens/page_view.h"

namespace tendo {
namespace {

constexpr const char* SettingsSection = "frmPreview";
constexpr const char* ThumbnailsKey = "Thumbnails";

/// A strip of text above the page, which can be marked and copied; hidden while it is empty.
QLabel* MakeStrip(const char* name, QWidget* parent) {
    auto* strip = new QLabel(parent);
    strip->setObjectName(name);
    strip->setWordWrap(true);
    strip->setTextFormat(Qt::PlainText);
    strip->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    strip->setProperty("strip", true);
    strip->hide();
    return strip;
}

void ShowStrip(QLabel* strip, const QString& text) {
    strip->setText(text);
    strip->setVisible(!text.isEmpty());
    if (!text.isEmpty()) SpeakOf(strip);
}

QString Joined(const std::vector<std::string>& lines) {
    QStringList texts;
    for (const std::string& line : lines)
        texts << QString::fromStdString(line);
    return texts.join('\n');
}

}  // namespace

PreviewPane::PreviewPane(std::span<const ReportChoice> choices, QWidget* parent)
    : QWidget(parent), choices_(choices) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    tools_ = new PreviewTools(choices, this);
    column->addWidget(tools_);
    column->addWidget(MakeStrips());
    splitter_ = new QSplitter(Qt::Horizontal, this);
    splitter_->setChildrenCollapsible(false);
    view_ = new PageView;
    view_->setObjectName("vsPreview");
    stack_ = new QStackedWidget(splitter_);
    scroller_ = new PageScroller(view_, stack_);
    stack_->addWidget(scroller_);
    stack_->addWidget(MakeEmptyPage());
    column->addWidget(splitter_, 1);
    connect(tools_, &PreviewTools::ReportChosen, this, &PreviewPane::RunReport);
    connect(tools_, &PreviewTools::RefreshWanted, this, &PreviewPane::Refresh);
    connect(tools_, &PreviewTools::ZoomTyped, this, &PreviewPane::ZoomTo);
    connect(tools_, &PreviewTools::FitChosen, this, &PreviewPane::FitTo);
    connect(tools_, &PreviewTools::PageTyped, this, &PreviewPane::ShowPage);
    connect(tools_, &PreviewTools::TurnWanted, this, &PreviewPane::Turn);
    const auto zoomBy = [this](int change, QPoint at) { ZoomAround(view_->Zoom() + change, at); };
    connect(view_, &PageView::ZoomWanted, this, zoomBy);
    connect(scroller_, &PageScroller::ZoomWanted, this, zoomBy);
    connect(scroller_, &PageScroller::Resized, this, &PreviewPane::ApplyFit);
    connect(scroller_, &PageScroller::TurnWanted, this, [this](int pages) {
        Turn(pages);
        if (pages < 0) scroller_->GoToFoot();
    });
}

QWidget* PreviewPane::MakeStrips() {
    auto* strips = new QWidget(this);
    auto* column = new QVBoxLayout(strips);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    lblProblems_ = MakeStrip("lblProblems", strips);
    lblProblems_->setProperty("problem", true);
    lblNote_ = MakeStrip("lblNote", strips);
    column->addWidget(lblProblems_);
    column->addWidget(lblNote_);
    return strips;
}

QWidget* PreviewPane::MakeEmptyPage() {
    auto* empty = new QWidget(stack_);
    empty->setAttribute(Qt::WA_StyledBackground);
    empty->setProperty("ground", true);
    auto* column = new QVBoxLayout(empty);
    column->setSpacing(16);
    lblNoPages_ = new QLabel(empty);
    lblNoPages_->setObjectName("lblNoPages");
    lblNoPages_->setAlignment(Qt::AlignCenter);
    lblNoPages_->setWordWrap(true);
    lblNoPages_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lblNoPages_->setProperty("quiet", true);
    btnReportOptions_ = new QPushButton("Report Options...", empty);
    btnReportOptions_->setObjectName("btnReportOptions");
    btnReportOptions_->setAutoDefault(false);
    btnReportOptions_->hide();
    column->addStretch(1);
    column->addWidget(lblNoPages_);
    column->addWidget(btnReportOptions_, 0, Qt::AlignHCenter);
    column->addStretch(1);
    return empty;
}

void PreviewPane::OfferOptions(std::function<void()> open) {
    btnReportOptions_->show();
    connect(btnReportOptions_, &QPushButton::clicked, this, std::move(open));
}

void PreviewPane::AddThumbnails() {
    thumbnails_ = new PageThumbnails(splitter_);
    splitter_->insertWidget(0, thumbnails_);
    splitter_->setStretchFactor(0, 0);
    splitter_->setStretchFactor(1, 1);
    const bool shown = Settings().GetSetting(SettingsSection, ThumbnailsKey, "1") == "1";
    ToolThumbnails_ =
        tools_->AddTool({"ToolThumbnails", "thumbnails", "Show all pages at the side (F4)"});
    ToolThumbnails_->setCheckable(true);
    ToolThumbnails_->setChecked(shown);
    ShowThumbnails();
    connect(ToolThumbnails_, &QToolButton::toggled, this, [this](bool on) {
        ShowThumbnails();
        if (!on) FocusPage();
        try {
            Settings().SaveSetting(SettingsSection, ThumbnailsKey, on ? "1" : "0");
        } catch (const RuntimeError&) {
            // The list is as it was wanted; only the next start won't know.
        }
    });
    connect(thumbnails_, &PageThumbnails::PageChosen, this, &PreviewPane::ShowPage);
}

void PreviewPane::ShowThumbnails() {
    if (thumbnails_) thumbnails_->setVisible(ToolThumbnails_->isChecked() && PageCount() > 0);
}

void PreviewPane::AddSearch() {
    find_ = new FindBar(this);
    static_cast<QVBoxLayout*>(layout())->insertWidget(1, find_);
    find_->hide();
    tools_->AddTool({"ToolFind", "search", "Find a text (Ctrl+F)"}, [this] { OpenSearch(); });
    connect(find_, &FindBar::WantedChanged, this, &PreviewPane::Find);
    connect(find_, &FindBar::StepWanted, this, &PreviewPane::StepToMatch);
    connect(find_, &FindBar::Closed, this, &PreviewPane::CloseSearch);
}

void PreviewPane::RunReport(int index) {
    const ReportChoice& choice = choices_[static_cast<std::size_t>(index)];
    if (!choice.IsWritten()) return tools_->ShowReport(tools_->ChosenReport());
    const Hourglass pointer;
    tools_->ShowReport(index);
    if (BeforeRun) BeforeRun();
    Form::StoreAllFields();
    bool started = true;
    const ReportRun& run =
        RunReports([&](ReportContext& context) { started = choice.run(context); });
    if (!started) return QApplication::beep();
    Document document = run.document;
    SetDocumentNames(document, Project());
    ShowDocument(std::move(document), run.problems);
}

void PreviewPane::ShowDocument(Document document, const std::vector<std::string>& problems) {
    document_ = std::move(document);
    page_ = 0;
    view_->ShowDocument(&document_);
    if (thumbnails_) thumbnails_->ShowDocument(&document_);
    ShowStrip(lblProblems_, Joined(problems));
    ShowNote({});
    lblNoPages_->setText(AnyReportIsMarked()
                             ? "The marked reports have nothing to print for this project."
                             : "No report is marked. Mark reports under Reports > Report Options.");
    stack_->setCurrentIndex(PageCount() > 0 ? 0 : 1);
    ShowThumbnails();
    ShowPage(0);
    if (find_ && find_->isVisible()) Find();
}

void PreviewPane::Refresh() {
    const int index = tools_->ChosenReport();
    if (!choices_[static_cast<std::size_t>(index)].refreshes) return;
    const int page = page_;
    RunReport(index);
    ShowPage(std::min(page, PageCount() - 1));
}

void PreviewPane::ShowPage(int page) {
    if (PageCount() > 0 && (page < 0 || page >= PageCount())) return;
    page_ = std::max(page, 0);
    view_->ShowPage(page_);
    if (thumbnails_) thumbnails_->ShowPage(page_);
    scroller_->Arrange();
    scroller_->GoToTop();
    tools_->ShowPage(page_, PageCount());
    ShowMatches();
}

void PreviewPane::Turn(int pages) {
    ShowPage(page_ + pages);
}

void PreviewPane::ZoomTo(int percent) {
    ZoomAround(percent, scroller_->Middle());
}

void PreviewPane::ZoomAround(int percent, QPoint at) {
    fit_ = PageFit::None;
    tools_->ShowFit(fit_);
    scroller_->ZoomTo(std::clamp(percent, SmallestZoom, LargestZoom), at);
    tools_->ShowZoom(view_->Zoom());
}

void PreviewPane::FitTo(PageFit fit) {
    fit_ = fit;
    tools_->ShowFit(fit);
    ApplyFit();
}

void PreviewPane::ApplyFit() {
    if (fit_ == PageFit::None) return;
    const int zoom = scroller_->ZoomOfFit(fit_);
    if (zoom == view_->Zoom()) return;
    scroller_->ZoomTo(zoom, scroller_->Middle());
    tools_->ShowZoom(zoom);
}

void PreviewPane::FocusPage() {
    QWidget* page = view_;
    if (PageCount() == 0) page = btnReportOptions_;
    page->setFocus(Qt::OtherFocusReason);
}

void PreviewPane::ShowNote(const QString& text) {
    ShowStrip(lblNote_, text);
}

}  // namespace tendo

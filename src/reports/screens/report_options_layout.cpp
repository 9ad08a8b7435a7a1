#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "footnotes/screens/footnote_page.h"
#include "platform/qt/fields.h"
#include "reports/generate_reports.h"
#include "reports/screens/frm_preview.h"
#include "reports/screens/frm_report_options.h"
#include "reports/screens/picture_choice.h"
#include "reports/screens/preview_pane.h"
#include "reports/screens/print_document.h"
#include "reports/screens/style_page.h"

namespace tendo {
namespace {

struct FrameCaption {
    OptionFrame frame;
    const char* caption;
};
const FrameCaption frameCaptions[] = {
    {OptionFrame::Reports, "Sales Proposal - Print the Following:"},
    {OptionFrame::ProjectSummary, "Project Summary - Print the Following:"},
    {OptionFrame::BothModels, "For Both Cooling and Heating Models - Print the Following: "},
    {OptionFrame::Cooling, "Air Conditioners && Heat Pumps Only - Print the Following:"},
    {OptionFrame::Heating, "Furnaces && Boilers Only - Print the Following:"},
    {OptionFrame::General, "General"},
    {OptionFrame::Pictures, "Pictures"}};

const FootnotePageNames salesNames = {"Footnotes of the Sales &Report",
                                      "lstSelectedFootnotes",
                                      "rtxtFootnoteText",
                                      "FootnoteActiveBar",
                                      "btnAddFromDatabase",
                                      "btnAddNew",
                                      "btnRemove",
                                      "btnSelectedMoveUp",
                                      "btnSelectedMoveDown"};
const FootnotePageNames accessoryNames = {"Footnotes of the Optional Accessories &Report",
                                          "lstOptSelectedFootnotes",
                                          "rtxtOptFootnoteText",
                                          "OptFootnoteActiveBar",
                                          "btnOptAddFromDatabase",
                                          "btnOptAddNew",
                                          "btnOptRemove",
                                          "btnOptSelectedMoveUp",
                                          "btnOptSelectedMoveDown"};

const ReportChoice allReports[] = {{"All Reports", [](ReportContext& context) {
                                        GenerateReports(context);
                                        return true;
                                    }}};

constexpr FieldSpec startingPage = {.name = "txtStartingPageNo",
                                    .label = "First &page number",
                                    .kind = EntryKind::Count,
                                    .width = 6,
                                    .maxLength = 4,
                                    .range = "1 to 9,999"};
constexpr FieldSpec lineSpacing = {.name = "txtLineSpacing",
                                   .label = "Line spacin&g in percent",
                                   .kind = EntryKind::Count,
                                   .width = 6,
                                   .maxLength = 3,
                                   .range = "50 to 500",
                                   .unit = "percent"};

struct PictureOption {
    const char* mark;
    std::string ReportOptionValues::*file;
    PictureChoice::Names names;
};
const PictureOption pictureOptions[] = {
    {"chkPrintLogo",
     &ReportOptionValues::logoFile,
     {"txtTitlePageLogo", "btnLogoFileBrowse", "imgTitlePageLogo", "Picture of the &title page"}},
    {"chkUseCustomBanner",
     &ReportOptionValues::bannerFile,
     {"txtBannerFile", "btnBannerFileBrowse", "imgBannerFile", "&Banner picture", "frmBanner"}}};

QToolButton* MakeLink(const QString& name, const QString& text, const QString& spoken,
                      QWidget* parent) {
    auto* link = new QToolButton(parent);
    link->setText(text);
    link->setFocusPolicy(Qt::StrongFocus);
    link->setObjectName(name);
    link->setProperty("link", true);
    link->setAccessibleName(spoken);
    return link;
}

}  // namespace

frmReportOptions::frmReportOptions()
    : Form("frmReportOptions", "Report Options", Place::Child, "frmReportOptions"),
      values_(LoadReportOptions(Project())),
      boxes_(ReportOptionTable().size()) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 16, 0, 0);
    auto* splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setChildrenCollapsible(false);
    row->addWidget(splitter);
    auto* options = new QWidget(splitter);
    auto* column = new QVBoxLayout(options);
    column->setContentsMargins(0, 0, 8, 16);
    column->addWidget(MakeFormats());
    column->addWidget(MakePages(), 1);
    preview_ = MakePreview();
    splitter->addWidget(preview_);
    splitter->setStretchFactor(1, 1);
    refresh_.setObjectName("refresh");
    refresh_.setParent(this);
    refresh_.setSingleShot(true);
    refresh_.setInterval(0);
    connect(&refresh_, &QTimer::timeout, preview_, &PreviewPane::Refresh);
    FillProposalFormats({});
    ShowOptions();
    preview_->ZoomTo(50);
    refresh_.start();
}

PreviewPane* frmReportOptions::MakePreview() {
    auto* pane = new PreviewPane(allReports, this);
    pane->BeforeRun = [this] { Save(); };
    pane->Tools().AddTool({"ToolPrintReports", "print", "Print..."}, [pane] {
        pane->Refresh();
        PrintDocument(pane->ShownDocument(), pane->ShownPage());
    });
    pane->Tools().AddTool({"ToolPreviewReports", "preview", "Preview in a window of its own"},
                          [this] {
                              Save();
                              ShowPreview();
                          });
    return pane;
}

QWidget* frmReportOptions::MakeFormats() {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 8);
    cmbProposalFormats_ = new QComboBox(box);
    cmbProposalFormats_->setObjectName("cmbProposalFormats");
    row->addWidget(MakeLabel("Proposal &format", cmbProposalFormats_, box));
    row->addWidget(cmbProposalFormats_, 1);
    const auto button = [&](const char* name, const char* text, void (frmReportOptions::*run)()) {
        auto* made = new QPushButton(text, box);
        made->setObjectName(name);
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, run);
        row->addWidget(made);
    };
    button("btnSaveFormat", "&Save", &frmReportOptions::btnSaveFormat_Click);
    button("btnSaveNewFormat", "Save &as…", &frmReportOptions::btnSaveNewFormat_Click);
    button("btnDeleteFormat", "&Delete", &frmReportOptions::btnDeleteFormat_Click);
    connect(cmbProposalFormats_, &QComboBox::currentIndexChanged, this,
            &frmReportOptions::cmbProposalFormats_Change);
    return box;
}

QWidget* frmReportOptions::MakePages() {
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("tabReportOptions");
    tabs_->setAccessibleName("Report options");
    QVBoxLayout* column = nullptr;
    QWidget* page = MakePage({OptionFrame::Reports, OptionFrame::ProjectSummary}, column);
    tabs_->addTab(page, "Reports");
    page = MakePage({OptionFrame::BothModels, OptionFrame::Cooling, OptionFrame::Heating}, column);
    tabs_->addTab(page, "Models");
    page = MakePage({OptionFrame::General}, column);
    AddNumbers(column);
    column->addWidget(MakeHeading("Fonts and colors", this));
    styles_ = new StylePage(values_, this);
    styles_->Changed = [this] { OptionChanged(); };
    column->addWidget(styles_);
    tabs_->addTab(page, "Look");
    page = MakePage({}, column);
    AddPictures(column);
    tabs_->addTab(page, "Pictures");
    footnotes_ = new FootnotePage(FootnoteMode::Selected, salesNames, this);
    accessoryFootnotes_ = new FootnotePage(FootnoteMode::AccRpt, accessoryNames, this);
    for (FootnotePage* list : {footnotes_, accessoryFootnotes_})
        list->Changed = [this] { OptionChanged(); };
    tabs_->addTab(footnotes_, "Footnotes");
    tabs_->addTab(accessoryFootnotes_, "Accessory footnotes");
    tabs_->ensurePolished();
    // Every tab in sight, the chosen one's bold name too.
    tabs_->setMinimumWidth(tabs_->tabBar()->sizeHint().width() + tabs_->fontMetrics().height() * 2);
    return tabs_;
}

QWidget* frmReportOptions::MakePage(const std::vector<OptionFrame>& frames, QVBoxLayout*& column) {
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* page = new QWidget(area);
    column = new QVBoxLayout;
    auto* outer = new QVBoxLayout(page);
    outer->setContentsMargins(0, 16, 16, 0);
    outer->addLayout(column);
    outer->addStretch(1);
    for (const OptionFrame frame : frames)
        AddFrame(column, frame);
    area->setWidget(page);
    return area;
}

void frmReportOptions::AddHead(QVBoxLayout* column, OptionFrame frame) {
    const auto& told = frameCaptions[static_cast<std::size_t>(frame)];
    const QString index = QString("(%1)").arg(static_cast<int>(frame));
    const QString caption = QString(told.caption).replace("&&", "&");
    auto* head = new QHBoxLayout;
    head->addWidget(MakeHeading(caption, this), 1);
    QToolButton* mark = MakeLink("lblMark" + index, "Mark", "Mark all: " + caption, this);
    QToolButton* clear = MakeLink("lblClear" + index, "Clear", "Clear all: " + caption, this);
    connect(mark, &QToolButton::clicked, this, [this, frame] { MarkFrame(frame, true); });
    connect(clear, &QToolButton::clicked, this, [this, frame] { MarkFrame(frame, false); });
    head->addWidget(mark);
    head->addWidget(clear);
    column->addLayout(head);
}

QCheckBox* frmReportOptions::MakeBox(std::size_t option) {
    const ReportOption& told = ReportOptionTable()[option];
    auto* box = boxes_[option] = new QCheckBox(told.caption, this);
    box->setObjectName(told.control);
    connect(box, &QCheckBox::toggled, this, [this, option](bool on) {
        values_.marks[option] = on ? 1 : 0;
        if (ReportOptionTable()[option].frame == OptionFrame::Pictures) ShowPictures();
        OptionChanged();
    });
    return box;
}

void frmReportOptions::AddFrame(QVBoxLayout* column, OptionFrame frame) {
    AddHead(column, frame);
    auto* grid = new QGridLayout;
    const auto table = ReportOptionTable();
    int at = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].frame != frame) continue;
        grid->addWidget(MakeBox(i), at / 2, at % 2);
        ++at;
    }
    column->addLayout(grid);
    column->addSpacing(12);
}

void frmReportOptions::AddNumbers(QVBoxLayout* column) {
    auto* grid = new QGridLayout;
    txtStartingPageNo_ = AddFieldRow(grid, 0, startingPage, this);
    txtLineSpacing_ = AddFieldRow(grid, 1, lineSpacing, this);
    grid->setColumnStretch(2, 1);
    for (TextField* field : {txtStartingPageNo_, txtLineSpacing_})
        connect(field, &TextField::Committed, this, [this] {
            StoreNumbers();
            ShowOptions();
            OptionChanged();
        });
    column->addLayout(grid);
    column->addSpacing(12);
}

/// Each mark stands above the file that it is about.
void frmReportOptions::AddPictures(QVBoxLayout* column) {
    AddHead(column, OptionFrame::Pictures);
    const auto table = ReportOptionTable();
    for (const PictureOption& option : pictureOptions) {
        const auto at = std::find_if(table.begin(), table.end(), [&](const ReportOption& told) {
            return std::string_view(told.control) == option.mark;
        });
        column->addWidget(MakeBox(static_cast<std::size_t>(at - table.begin())));
        auto* choice = new PictureChoice(option.names, this);
        choice->Chosen = [this, &option](const std::string& file) {
            if (values_.*option.file == file) return;
            values_.*option.file = file;
            ShowPictures();
            OptionChanged();
        };
        column->addWidget(choice);
        pictures_.push_back(choice);
    }
}

/// The two files can be given only while their marks are on.
void frmReportOptions::ShowPictures() {
    for (std::size_t i = 0; i < pictures_.size(); ++i) {
        const PictureOption& option = pictureOptions[i];
        pictures_[i]->ShowFile(values_.*option.file, values_.Mark(option.mark) == 1);
    }
}

}  // namespace tendo

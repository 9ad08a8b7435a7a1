#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "footnotes/screens/footnote_page.h"
#include "platform/files/paths.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "reports/generate_reports.h"
#include "reports/screens/frm_preview.h"
#include "reports/screens/frm_report_options.h"
#include "reports/screens/preview_pane.h"
#include "reports/screens/print_document.h"
#include "reports/screens/style_page.h"

namespace tendo {
namespace {

struct FrameCaption {
    OptionFrame frame;
    const char* caption;
    int columns;
};
const FrameCaption frameCaptions[] = {
    {OptionFrame::Reports, "Sales Proposal - Print the Following:", 2},
    {OptionFrame::ProjectSummary, "Project Summary - Print the Following:", 2},
    {OptionFrame::BothModels, "For Both Cooling and Heating Models - Print the Following: ", 2},
    {OptionFrame::Cooling, "Air Conditioners && Heat Pumps Only - Print the Following:", 2},
    {OptionFrame::Heating, "Furnaces && Boilers Only - Print the Following:", 2},
    {OptionFrame::General, "General", 2},
    {OptionFrame::Pictures, "Pictures", 1}};

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
constexpr int PictureHeight = 64;
constexpr const char* PictureFilter =
    "Picture Files|*.bmp;*.wmf;*.emf;*.dib;*.ico;*.gif;*.jpg;*.png;*.svg";

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
    pane->AddTool("ToolPrintReports", "print", "Print...",
                  [pane] { PrintDocument(pane->ShownDocument(), pane->ShownPage()); });
    pane->AddTool("ToolPreviewReports", "preview", "Preview in a window of its own", [this] {
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
    page = MakePage({OptionFrame::Pictures}, column);
    AddPictures(column);
    tabs_->addTab(page, "Pictures");
    footnotes_ = new FootnotePage(FootnoteMode::Selected, salesNames, this);
    accessoryFootnotes_ = new FootnotePage(FootnoteMode::AccRpt, accessoryNames, this);
    for (FootnotePage* list : {footnotes_, accessoryFootnotes_})
        list->Changed = [this] { OptionChanged(); };
    tabs_->addTab(footnotes_, "Footnotes");
    tabs_->addTab(accessoryFootnotes_, "Accessory footnotes");
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

void frmReportOptions::AddFrame(QVBoxLayout* column, OptionFrame frame) {
    const auto& told = frameCaptions[static_cast<std::size_t>(frame)];
    const QString index = QString("(%1)").arg(static_cast<int>(frame));
    const QString spoken = QString(told.caption).replace("&&", "and");
    auto* head = new QHBoxLayout;
    head->addWidget(MakeHeading(told.caption, this), 1);
    QToolButton* mark = MakeLink("lblMark" + index, "Mark", "Mark all: " + spoken, this);
    QToolButton* clear = MakeLink("lblClear" + index, "Clear", "Clear all: " + spoken, this);
    connect(mark, &QToolButton::clicked, this, [this, frame] { MarkFrame(frame, true); });
    connect(clear, &QToolButton::clicked, this, [this, frame] { MarkFrame(frame, false); });
    head->addWidget(mark);
    head->addWidget(clear);
    column->addLayout(head);
    auto* grid = new QGridLayout;
    const auto table = ReportOptionTable();
    int at = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].frame != frame) continue;
        auto* box = boxes_[i] = new QCheckBox(table[i].caption, this);
        box->setObjectName(table[i].control);
        grid->addWidget(box, at / told.columns, at % told.columns);
        ++at;
        connect(box, &QCheckBox::toggled, this, [this, i](bool on) {
            values_.marks[i] = on ? 1 : 0;
            if (ReportOptionTable()[i].frame == OptionFrame::Pictures) ShowPictures();
            OptionChanged();
        });
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

void frmReportOptions::AddPictures(QVBoxLayout* column) {
    AddPictureFile(column, "txtTitlePageLogo", "btnLogoFileBrowse", "Picture of the &title page",
                   &ReportOptionValues::logoFile);
    AddPictureFile(column, "txtBannerFile", "btnBannerFileBrowse", "&Banner picture",
                   &ReportOptionValues::bannerFile);
}

void frmReportOptions::AddPictureFile(QVBoxLayout* column, const char* field, const char* button,
                                      const char* caption, std::string ReportOptionValues::*file) {
    const FieldSpec spec = {.name = field, .label = caption, .maxLength = 255};
    auto* text = new TextField(spec, this);
    auto* browse = new QPushButton("Browse…", this);
    browse->setObjectName(button);
    browse->setAccessibleName(QString("Browse for: ") + QString(caption).remove('&'));
    browse->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(text, 1);
    row->addWidget(browse);
    auto* picture = new QLabel(this);
    picture->setObjectName(QString(field).replace("txt", "img"));
    column->addWidget(MakeLabel(caption, text, this));
    column->addLayout(row);
    column->addWidget(picture);
    const auto take = [this, field, file](const std::string& path) {
        values_.*file = path;
        ShowPicture(field, path);
        OptionChanged();
    };
    connect(text, &TextField::Committed, this,
            [text, take] { take(text->text().trimmed().toStdString()); });
    connect(browse, &QPushButton::clicked, this, [this, file, take] {
        const auto chosen = Dialogs().File({.kind = FileDialog::Kind::Open,
                                            .title = "Find Picture",
                                            .filter = PictureFilter,
                                            .fileName = values_.*file,
                                            .folder = "",
                                            .defaultExtension = ""});
        if (chosen && !chosen->empty()) take(*chosen);
    });
}

/// The file's name in its field and the picture below it; the two files can be given only while
/// their marks are on.
void frmReportOptions::ShowPicture(const char* field, const std::string& file) {
    auto* text = static_cast<TextField*>(Control(field));
    const QString path = QString::fromStdString(file);
    text->ShowText(path);
    const QPixmap picture = QFileInfo(path).isFile() ? QPixmap(path) : QPixmap();
    auto* shown = static_cast<QLabel*>(Control(QString(field).replace("txt", "img")));
    shown->setVisible(!picture.isNull());
    if (!picture.isNull())
        shown->setPixmap(picture.scaledToHeight(PictureHeight, Qt::SmoothTransformation));
    const bool logo = QString(field) == "txtTitlePageLogo";
    const bool on = values_.Mark(logo ? "chkPrintLogo" : "chkUseCustomBanner") == 1;
    text->setEnabled(on);
    Control(logo ? "btnLogoFileBrowse" : "btnBannerFileBrowse")->setEnabled(on);
}

}  // namespace tendo

#include "reports/screens/frm_banner.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <utility>

#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/picture_box.h"
#include "platform/text/runtime_error.h"
#include "reports/banner.h"
#include "reports/generate_reports.h"
#include "reports/screens/banner_view.h"
#include "reports/screens/frm_owner.h"
#include "reports/screens/report_run.h"

namespace tendo {
namespace {

constexpr const char* Title = "Customize Default Banner";
constexpr const char* PictureFilter = "Picture Files|*.bmp;*.wmf;*.emf;*.dib;*.ico;*.gif;*.jpg";
constexpr QSize PictureSide(104, 104);
constexpr int LongestText = 255;  // as much as the profile gives back

/// Where the texts stand in `BannerTexts`.
constexpr std::size_t Description = 0, CompanyFax = 1, FirstPicture = 2;
/// Where the marks of the pictures stand in `BannerMarks`.
constexpr std::size_t FirstPictureMark = 6;

constexpr std::array Captions = {"Company &name",  "&Description",  "&Address and city",
                                 "State and &zip", "&Telephone",    "&Fax",
                                 "&Left picture",  "&Right picture"};

const FieldSpec textSpecs[] = {
    {.name = "txtDescription", .label = "Description line", .maxLength = LongestText},
    {.name = "txtCompanyFax", .label = "Fax number", .maxLength = LongestText},
    {.name = "txtLeftPicture", .label = "File of the left picture", .maxLength = LongestText},
    {.name = "txtRightPicture", .label = "File of the right picture", .maxLength = LongestText}};

struct OwnerLabel {
    const char* name;
    std::size_t line;  // those of one line stand side by side
    std::string OwnerRecord::*text;
};
const OwnerLabel ownerLabels[] = {{"lblOwnerName", 0, &OwnerRecord::OwnerName},
                                  {"lblOwnerAddress", 2, &OwnerRecord::OwnerAddress},
                                  {"lblOwnerCity", 2, &OwnerRecord::OwnerCity},
                                  {"lblOwnerState", 3, &OwnerRecord::OwnerState},
                                  {"lblOwnerPhone", 4, &OwnerRecord::OwnerPhone}};

struct PictureSpec {
    const char *image, *imageSpoken, *browse, *browseCaption, *browseSpoken;
};
constexpr std::array PictureSpecs = {
    PictureSpec{"imgLeftPicture", "Left picture", "btnLeftPictureBrowse", "&Browse…",
                "Browse for the left picture"},
    PictureSpec{"imgRightPicture", "Right picture", "btnRightPictureBrowse", "Bro&wse…",
                "Browse for the right picture"}};

}  // namespace

frmBanner::frmBanner() : Form("frmBanner", Title, Place::Child, "frmBanner") {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(8);
    AddLines(column);
    column->addSpacing(12);
    AddPictures(column);
    column->addSpacing(12);
    AddPreview(column);
    column->addStretch(1);
    ShowOptions();
    btnPreviewBanner_Click();
}

QCheckBox* frmBanner::AddMark(std::size_t mark) {
    auto* box = marks_[mark] = new QCheckBox(Captions[mark], this);
    box->setObjectName(QLatin1String("chk") + QLatin1String(BannerMarks[mark].key));
    connect(box, &QCheckBox::toggled, this, &frmBanner::Change);
    return box;
}

TextField* frmBanner::AddText(std::size_t text) {
    auto* field = texts_[text] = new TextField(textSpecs[text], this);
    connect(field, &TextField::Committed, this, &frmBanner::Change);
    return field;
}

void frmBanner::AddLines(QVBoxLayout* column) {
    column->addWidget(MakeHeading("Lines of the banner", this));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(2, 1);
    for (std::size_t line = 0; line < FirstPictureMark; ++line) {
        const int row = static_cast<int>(line);
        grid->addWidget(AddMark(line), row, 0);
        if (BannerMarks[line].value == &BannerOptions::PrintDescription)
            grid->addWidget(AddText(Description), row, 1, 1, 2);
        else if (BannerMarks[line].value == &BannerOptions::PrintCompanyFax)
            grid->addWidget(AddText(CompanyFax), row, 1);
        else
            grid->addLayout(MakeOwnerLine(line), row, 1, 1, 2);
    }
    auto* edit = new QPushButton("Edit &Company…", this);
    edit->setObjectName("btnEditOwner");
    edit->setAutoDefault(false);
    connect(edit, &QPushButton::clicked, this, &frmBanner::btnEditOwner_Click);
    grid->addWidget(edit, static_cast<int>(FirstPictureMark) - 1, 2, Qt::AlignRight);
    column->addLayout(grid);
}

QLayout* frmBanner::MakeOwnerLine(std::size_t line) {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    for (const OwnerLabel& shown : ownerLabels) {
        if (shown.line != line) continue;
        auto* label = new QLabel(this);
        label->setObjectName(shown.name);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setMinimumWidth(1);  // a long text doesn't widen the screen
        row->addWidget(label);
    }
    row->addStretch(1);
    return row;
}

void frmBanner::AddPictures(QVBoxLayout* column) {
    column->addWidget(MakeHeading("Pictures beside them", this));
    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    for (std::size_t side = 0; side < PictureSpecs.size(); ++side)
        row->addWidget(MakePicture(side), 1);
    column->addLayout(row);
}

QWidget* frmBanner::MakePicture(std::size_t side) {
    const PictureSpec& spec = PictureSpecs[side];
    auto* group = new QWidget(this);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    auto* box = pictures_[side] = new PictureBox(spec.image, spec.imageSpoken, PictureSide, this);
    row->addWidget(box, 0, Qt::AlignTop);
    auto* right = new QVBoxLayout;
    right->setSpacing(6);
    right->addWidget(AddMark(FirstPictureMark + side));
    TextField* file = AddText(FirstPicture + side);
    right->addWidget(file);
    auto* browse = new QPushButton(spec.browseCaption, this);
    browse->setObjectName(spec.browse);
    browse->setAccessibleName(spec.browseSpoken);
    browse->setAutoDefault(false);
    right->addWidget(browse, 0, Qt::AlignLeft);
    right->addStretch(1);
    row->addLayout(right, 1);
    connect(file, &QLineEdit::textChanged, box,
            [box](const QString& path) { box->ShowFile(path.toStdString()); });
    connect(browse, &QPushButton::clicked, this, [this, side] { Browse(side); });
    connect(box, &PictureBox::DoubleClicked, this, [this, side] { Browse(side); });
    return group;
}

void frmBanner::AddPreview(QVBoxLayout* column) {
    auto* head = new QHBoxLayout;
    head->addWidget(MakeHeading("As it prints", this), 1);
    auto* preview = new QPushButton("&Preview", this);
    preview->setObjectName("btnPreviewBanner");
    preview->setAutoDefault(false);
    connect(preview, &QPushButton::clicked, this, &frmBanner::btnPreviewBanner_Click);
    head->addWidget(preview);
    column->addLayout(head);
    vsPreview_ = new BannerView("vsPreview", this);
    column->addWidget(vsPreview_);
    lblCustomBanner_ = new QLabel(this);
    lblCustomBanner_->setObjectName("lblCustomBanner");
    lblCustomBanner_->setTextFormat(Qt::PlainText);
    lblCustomBanner_->setWordWrap(true);
    lblCustomBanner_->setProperty("quiet", true);
    column->addWidget(lblCustomBanner_);
}

void frmBanner::ShowOptions() {
    stored_ = LoadBannerOptions();
    showing_ = true;
    for (std::size_t i = 0; i < marks_.size(); ++i)
        marks_[i]->setChecked(stored_.*BannerMarks[i].value == 1);
    for (std::size_t i = 0; i < texts_.size(); ++i)
        texts_[i]->setText(QString::fromStdString(stored_.*BannerTexts[i].value));
    showing_ = false;
    ShowOwner();
}

void frmBanner::ShowOwner() {
    for (const OwnerLabel& shown : ownerLabels)
        static_cast<QLabel*>(Control(shown.name))
            ->setText(QString::fromStdString(Owner().*shown.text));
}

BannerOptions frmBanner::OptionsOnScreen() const {
    BannerOptions options;
    for (std::size_t i = 0; i < marks_.size(); ++i)
        options.*BannerMarks[i].value = marks_[i]->isChecked() ? 1 : 0;
    for (std::size_t i = 0; i < texts_.size(); ++i)
        options.*BannerTexts[i].value = texts_[i]->text().trimmed().toStdString();
    return options;
}

void frmBanner::Store() {
    const BannerOptions options = OptionsOnScreen();
    if (options == stored_) return;
    stored_ = options;
    try {
        SaveBannerOptions(options);
    } catch (const RuntimeError& error) {
        ShowMessage(Title, error.Description(), MessageIcon::Warning);
    }
}

void frmBanner::Change() {
    if (showing_ || OptionsOnScreen() == stored_) return;
    btnPreviewBanner_Click();
}

void frmBanner::Browse(std::size_t side) {
    TextField* file = texts_[FirstPicture + side];
    const auto chosen = Dialogs().File({.kind = FileDialog::Kind::Open,
                                        .title = "Find Picture",
                                        .filter = PictureFilter,
                                        .fileName = file->text().trimmed().toStdString(),
                                        .folder = "",
                                        .defaultExtension = ""});
    if (!chosen || chosen->empty()) return;
    file->setText(QString::fromStdString(*chosen));
    Change();
}

void frmBanner::btnPreviewBanner_Click() {
    Store();
    const ReportRun& run = RunReports([](ReportContext& context) { PreviewBannerOnly(context); });
    vsPreview_->ShowDocument(run.document);
    const bool custom = !CustomBannerFile().empty();
    lblCustomBanner_->setVisible(custom);
    if (custom)
        ShowCaption(lblCustomBanner_,
                    "The report options put a picture of your own in place of this banner. Clear "
                    "\"Use Custom Page Banner\" there, on the page Pictures, to print it.");
}

void frmBanner::btnEditOwner_Click() {
    (new FrmOwner("&Cancel"))->ShowModal();
    ShowOwner();
    btnPreviewBanner_Click();
}

}  // namespace tendo

#include "app/screens/frm_tip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <cmath>
#include <random>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/settings_store.h"
#include "platform/qt/icons.h"
#include "platform/qt/theme.h"
#include "platform/text/code_page.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* tipFile = "TIPOFDAY.TXT";
constexpr const char* missingFileTip =
    "That the TIPOFDAY.TXT file was not found? \n"
    "Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per line. Then place it in the "
    "same directory as the application. ";
constexpr std::uint64_t longestTipFile = 1 << 20;
constexpr int textWidth = 380;
constexpr int textHeight = 96;

/// The day and the time of it in seconds: another one at each start.
std::uint32_t ClockSeed() {
    constexpr double secondsOfDay = 86400;
    return static_cast<std::uint32_t>(std::llround(SerialOfDate(Now()) * secondsOfDay));
}

}  // namespace

frmTip::frmTip()
    : Form("frmTip", "Tip of the Day", Place::Child),
      lblTipText_(new QLabel(this)),
      cmdNextTip_(new QPushButton("&Next Tip", this)),
      chkLoadTipsAtStartup_(new QCheckBox("&Show Tips at Startup", this)) {
    auto* heading = new QLabel("Did you know...", this);
    heading->setObjectName("lblDidYouKnow");
    heading->setFont(TotalFont());
    auto* mark = new QLabel(this);
    mark->setPixmap(LinePixmap("information", Theme().accent, 32, devicePixelRatioF()));
    lblTipText_->setObjectName("lblTipText");
    lblTipText_->setTextFormat(Qt::PlainText);
    lblTipText_->setWordWrap(true);
    lblTipText_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lblTipText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblTipText_->setMinimumSize(textWidth, textHeight);
    cmdNextTip_->setObjectName("cmdNextTip");
    chkLoadTipsAtStartup_->setObjectName("chkLoadTipsAtStartup");
    auto* close = new QPushButton("&Close", this);
    close->setObjectName("cmdOK");
    close->setProperty("primary", true);

    auto* top = new QHBoxLayout;
    top->setSpacing(12);
    top->addWidget(mark);
    top->addWidget(heading, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(chkLoadTipsAtStartup_);
    buttons->addStretch();
    buttons->addWidget(cmdNextTip_);
    buttons->addWidget(close);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 20, 24, 16);
    rows->setSpacing(12);
    rows->addLayout(top);
    rows->addWidget(lblTipText_, 1);
    rows->addLayout(buttons);

    chkLoadTipsAtStartup_->setChecked(
        LeadingInteger(Settings().GetSetting("Options", "Show Tips at Startup", "1")) != 0);
    connect(chkLoadTipsAtStartup_, &QCheckBox::toggled, this, &frmTip::chkLoadTipsAtStartup_Click);
    connect(cmdNextTip_, &QPushButton::clicked, this, &frmTip::cmdNextTip_Click);
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, [this] { Unload(); });
    setTabOrder(chkLoadTipsAtStartup_, cmdNextTip_);
    LoadTips();
    DisplayCurrentTip();
    setFocusProxy(close);
}

void frmTip::LoadTips() {
    const std::string file = State().ProgramDirectory + tipFile;
    if (!FileExists(file)) {
        tips_ = {missingFileTip};
        return;
    }
    const std::string text = FromTextFileBytes(ReadWholeFile(file, longestTipFile));
    for (const std::string& line : Split(text, '\n')) {
        const std::string tip = Replaced(line, "\r", "");
        if (!Trimmed(tip).empty()) tips_.push_back(tip);
    }
    if (tips_.empty()) return;
    std::mt19937 generator(ClockSeed());
    current_ = generator() % tips_.size();
}

void frmTip::DisplayCurrentTip() {
    lblTipText_->setText(tips_.empty() ? QString() : QString::fromStdString(tips_[current_]));
    cmdNextTip_->setEnabled(tips_.size() > 1);
}

void frmTip::cmdNextTip_Click() {
    current_ = (current_ + 1) % tips_.size();
    DisplayCurrentTip();
}

void frmTip::chkLoadTipsAtStartup_Click() {
    Settings().SaveSetting("Options", "Show Tips at Startup",
                           chkLoadTipsAtStartup_->isChecked() ? "1" : "0");
}

}  // namespace tendo

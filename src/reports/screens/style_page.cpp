#include "reports/screens/style_page.h"

#include <QGridLayout>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"

namespace tendo {
namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr int LargestSample = 24;  // points; a larger font's sample would push the others away

/// The reports' colours are in blue-green-red order, the screen's in red-green-blue; the colour of
/// windows is the paper's.
std::uint32_t ScreenColor(std::int32_t color) {
    if (color == WindowColor) return White;
    const auto value = static_cast<std::uint32_t>(color);
    return (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
}

std::int32_t ReportColor(std::uint32_t color) {
    return static_cast<std::int32_t>((color & 0xFF) << 16 | (color & 0xFF00) |
                                     (color >> 16 & 0xFF));
}

QString ColorName(std::int32_t color) {
    return QString("#%1").arg(ScreenColor(color), 6, 16, QChar('0'));
}

QToolButton* MakeSample(const QString& name, const QString& text, QWidget* parent) {
    auto* sample = new QToolButton(parent);
    sample->setObjectName(name);
    sample->setAccessibleName(text);
    sample->setFocusPolicy(Qt::StrongFocus);
    sample->setProperty("sample", true);
    return sample;
}

}  // namespace

const StylePage::Row StylePage::Rows[3] = {
    {"MainHeader", "Main header", &ReportOptionValues::mainHeader},
    {"SecondaryHeader", "Secondary header", &ReportOptionValues::secondaryHeader},
    {"Body", "Body", &ReportOptionValues::body}};

StylePage::StylePage(ReportOptionValues& values, QWidget* parent)
    : QWidget(parent), values_(values) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    for (const Row& row : Rows)
        AddRow(grid, row);
    auto* standard = new QPushButton("&Show Default", this);
    standard->setObjectName("btnShowDefaultFonts");
    connect(standard, &QPushButton::clicked, this, &StylePage::btnShowDefaultFonts_Click);
    grid->addWidget(standard, grid->rowCount(), 0, 1, 3, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    ShowStyles();
}

void StylePage::AddRow(QGridLayout* grid, const Row& row) {
    const int at = grid->rowCount();
    const QString name = row.name, caption = row.caption;
    QToolButton* back = MakeSample("lbl" + name, caption + ": color behind", this);
    QToolButton* text = MakeSample("lbl" + name + "Text", caption + ": text", this);
    QToolButton* font = MakeSample("btn" + name + "Font", caption + ": font…", this);
    text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    text->setText(caption);
    font->setText("Font…");
    back->setToolTip("Choose the color behind the text");
    text->setToolTip("Choose the color of the text");
    grid->addWidget(back, at, 0);
    grid->addWidget(text, at, 1);
    grid->addWidget(font, at, 2);
    connect(back, &QToolButton::clicked, this, [this, &row] { PickBackColor(row); });
    connect(text, &QToolButton::clicked, this, [this, &row] { PickTextColor(row); });
    connect(font, &QToolButton::clicked, this, [this, &row] { PickFont(row); });
}

void StylePage::ShowStyles() {
    for (const Row& row : Rows) {
        const ReportTextStyle& style = values_.*row.style;
        const QString ground = "background:" + ColorName(style.barColor) + ";";
        const QString name = row.name;
        findChild<QToolButton*>("lbl" + name)->setStyleSheet(ground + "min-width:48px;");
        auto* text = findChild<QToolButton*>("lbl" + name + "Text");
        text->setStyleSheet(
            ground + "color:" + ColorName(style.textColor) + ";" +
            QString("font-family:'%1';font-size:%2pt;font-weight:%3;font-style:%4;")
                .arg(QString::fromStdString(style.fontName))
                .arg(std::clamp<int>(style.fontSize, 1, LargestSample))
                .arg(style.fontBold ? "bold" : "normal", style.fontItalic ? "italic" : "normal"));
    }
}

void StylePage::Choice() {
    ShowStyles();
    if (Changed) Changed();
}

void StylePage::PickBackColor(const Row& row) {
    ReportTextStyle& style = values_.*row.style;
    const auto color = Dialogs().Color({"Color", ScreenColor(style.barColor)});
    if (!color) return;
    style.barColor = ReportColor(*color);
    if (Ask("TENDO", "Do you wish to change the colors for this item as well?", Buttons::YesNo) ==
        Answer::Yes)
        PickTextColor(row);
    else
        Choice();
}

void StylePage::PickTextColor(const Row& row) {
    ReportTextStyle& style = values_.*row.style;
    if (const auto color = Dialogs().Color({"Color", ScreenColor(style.textColor)}))
        style.textColor = ReportColor(*color);
    Choice();
}

void StylePage::PickFont(const Row& row) {
    ReportTextStyle& style = values_.*row.style;
    const auto font =
        Dialogs().Font("Font", {style.fontName, style.fontSize, style.fontBold, style.fontItalic});
    if (!font) return;
    style.fontName = font->family;
    style.fontSize = static_cast<std::int16_t>(font->size);
    style.fontBold = font->bold;
    style.fontItalic = font->italic;
    Choice();
}

void StylePage::btnShowDefaultFonts_Click() {
    const ReportSettings standard = DefaultReportSettings();
    values_.mainHeader = standard.MainHeader;
    values_.secondaryHeader = standard.SecondaryHeader;
    values_.body = standard.Body;
    Choice();
}

}  // namespace tendo

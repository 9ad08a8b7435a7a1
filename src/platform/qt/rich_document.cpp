#include "platform/qt/rich_document.h"

#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextListFormat>
#include <algorithm>
#include <cmath>

namespace tendo {
namespace {

constexpr double TwipsPerPixel = 15;  // 1440 twips and 96 pixels an inch
constexpr double TwipsPerPoint = 20;
constexpr int DefaultTwips = 240;
constexpr QChar ObjectMark(0xFFFC);

double Pixels(int twips) {
    return twips / TwipsPerPixel;
}

int Twips(double pixels) {
    return static_cast<int>(std::lround(pixels * TwipsPerPixel));
}

struct AlignPair {
    RichAlign align;
    Qt::Alignment alignment;
};
const AlignPair Aligns[] = {{RichAlign::Inherit, Qt::AlignLeft},
                            {RichAlign::Left, Qt::AlignLeft},
                            {RichAlign::Center, Qt::AlignHCenter},
                            {RichAlign::Right, Qt::AlignRight}};

Qt::Alignment AlignmentOf(RichAlign align) {
    return std::find_if(std::begin(Aligns), std::end(Aligns),
                        [&](const AlignPair& pair) { return pair.align == align; })
        ->alignment;
}

RichAlign AlignOf(Qt::Alignment alignment) {
    if (alignment & Qt::AlignHCenter) return RichAlign::Center;
    return alignment & Qt::AlignRight ? RichAlign::Right : RichAlign::Left;
}

/// What the toolkit's formats have no place for.
enum Kept { KeptLeaders = QTextFormat::UserProperty + 1, KeptCells, KeptRise };

const QTextOption::TabType TabTypes[] = {QTextOption::LeftTab, QTextOption::CenterTab,
                                         QTextOption::RightTab, QTextOption::DelimiterTab};

void SetTabs(QTextBlockFormat& format, const RichParagraph& paragraph) {
    QList<QTextOption::Tab> tabs;
    QString leaders;
    for (const TabStop& tab : paragraph.tabs) {
        tabs.append(
            {Pixels(tab.position), TabTypes[static_cast<std::size_t>(tab.align)], QChar(u'.')});
        leaders.append(QChar::fromLatin1(tab.leader));
    }
    for (const RichCell& cell : paragraph.cells)
        if (cell.right > 0) tabs.append({Pixels(cell.right), QTextOption::LeftTab, QChar()});
    format.setTabPositions(tabs);
    if (!leaders.isEmpty()) format.setProperty(KeptLeaders, leaders);
}

std::vector<TabStop> TabsOf(const QTextBlockFormat& format) {
    const QString leaders = format.stringProperty(KeptLeaders);
    std::vector<TabStop> tabs;
    for (const QTextOption::Tab& tab : format.tabPositions()) {
        const auto* type = std::find(std::begin(TabTypes), std::end(TabTypes), tab.type);
        const auto place = static_cast<qsizetype>(tabs.size());
        tabs.push_back({Twips(tab.position), static_cast<TabAlign>(type - std::begin(TabTypes)),
                        place < leaders.size() ? leaders.at(place).toLatin1() : '\0'});
    }
    return tabs;
}

/// A row of a table stands in the editor with tabs between its cells.
void SetCells(QTextBlockFormat& format, const std::vector<RichCell>& cells) {
    QVariantList kept;
    for (const RichCell& cell : cells)
        kept << cell.right << static_cast<int>(cell.align) << cell.lines;
    if (!kept.isEmpty()) format.setProperty(KeptCells, kept);
}

/// The cells, when the row still has as many.
std::vector<RichCell> CellsOf(const QTextBlock& block) {
    const QVariantList kept = block.blockFormat().property(KeptCells).toList();
    std::vector<RichCell> cells;
    for (qsizetype i = 0; i + 2 < kept.size(); i += 3)
        cells.push_back(
            {kept[i].toInt(), static_cast<RichAlign>(kept[i + 1].toInt()), kept[i + 2].toUInt()});
    const auto tabs = static_cast<std::size_t>(block.text().count(u'\t'));
    return cells.size() == tabs + 1 ? cells : std::vector<RichCell>();
}

void SetLineHeight(QTextBlockFormat& format, const RichParagraph& paragraph) {
    if (paragraph.exactLine > 0)
        format.setLineHeight(Pixels(paragraph.exactLine), QTextBlockFormat::FixedHeight);
    else if (paragraph.leastLine > 0)
        format.setLineHeight(Pixels(paragraph.leastLine), QTextBlockFormat::MinimumHeight);
    else if (paragraph.lineSpacing != 100)
        format.setLineHeight(paragraph.lineSpacing, QTextBlockFormat::ProportionalHeight);
}

void TakeLineHeight(RichParagraph& paragraph, const QTextBlockFormat& format) {
    const int type = format.lineHeightType();
    if (type == QTextBlockFormat::FixedHeight) paragraph.exactLine = Twips(format.lineHeight());
    if (type == QTextBlockFormat::MinimumHeight) paragraph.leastLine = Twips(format.lineHeight());
    if (type == QTextBlockFormat::ProportionalHeight)
        paragraph.lineSpacing = static_cast<int>(std::lround(format.lineHeight()));
}

QTextBlockFormat BlockFormatOf(const RichParagraph& paragraph) {
    QTextBlockFormat format;
    format.setAlignment(AlignmentOf(paragraph.align));
    format.setRightMargin(Pixels(paragraph.rightIndent));
    format.setTopMargin(Pixels(paragraph.spaceBefore));
    format.setBottomMargin(Pixels(paragraph.spaceAfter));
    SetTabs(format, paragraph);
    SetCells(format, paragraph.cells);
    SetLineHeight(format, paragraph);
    if (paragraph.pageBefore) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    if (paragraph.bullet) return format;  // the list has the indent
    format.setLeftMargin(Pixels(paragraph.leftIndent));
    format.setTextIndent(Pixels(paragraph.firstIndent));
    return format;
}

QTextListFormat ListFormatOf(const RichParagraph& paragraph) {
    QTextListFormat list;
    list.setStyle(QTextListFormat::ListDisc);
    list.setIndent(std::max(1, paragraph.leftIndent / IndentTwips));
    return list;
}

void InsertParagraph(QTextCursor& cursor, const RichParagraph& paragraph, bool first) {
    const QTextCharFormat format =
        paragraph.runs.empty() ? QTextCharFormat() : CharFormatOf(paragraph.runs.front());
    if (first) {
        cursor.setBlockFormat(BlockFormatOf(paragraph));
        cursor.setBlockCharFormat(format);
    } else {
        cursor.insertBlock(BlockFormatOf(paragraph), format);
    }
    if (paragraph.bullet) cursor.createList(ListFormatOf(paragraph));
    for (const RichRun& run : paragraph.runs) {
        QString text = QString::fromStdString(run.text);
        if (paragraph.bullet && &run == &paragraph.runs.front() && run.text.starts_with(BulletMark))
            text.remove(0, 2);  // the list draws the mark
        text.replace('\n', QChar::LineSeparator);
        if (!text.isEmpty()) cursor.insertText(text, CharFormatOf(run));
    }
}

void AddRuns(const QTextBlock& block, RichParagraph& paragraph) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        QString text = fragment.text();
        text.replace(QChar::LineSeparator, '\n');
        text.remove(ObjectMark);
        RichRun run = RunFormatOf(fragment.charFormat());
        run.text = text.toStdString();
        if (!run.text.empty()) paragraph.runs.push_back(std::move(run));
    }
    if (paragraph.runs.empty()) paragraph.runs.push_back(RunFormatOf(block.charFormat()));
}

/// A point of a list is written with a hanging mark.
void MakeBullet(RichParagraph& paragraph, int indent) {
    paragraph.bullet = true;
    paragraph.leftIndent = indent * IndentTwips;
    paragraph.firstIndent = -IndentTwips;
    RichRun mark = paragraph.runs.front();
    mark.text = std::string(BulletMark);
    paragraph.runs.insert(paragraph.runs.begin(), std::move(mark));
}

RichParagraph ParagraphOf(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    RichParagraph paragraph;
    paragraph.align = AlignOf(format.alignment());
    paragraph.leftIndent = Twips(format.leftMargin()) + format.indent() * IndentTwips;
    paragraph.firstIndent = Twips(format.textIndent());
    paragraph.rightIndent = Twips(format.rightMargin());
    paragraph.spaceBefore = Twips(format.topMargin());
    paragraph.spaceAfter = Twips(format.bottomMargin());
    TakeLineHeight(paragraph, format);
    paragraph.pageBefore = (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) != 0;
    paragraph.cells = CellsOf(block);
    if (paragraph.cells.empty()) paragraph.tabs = TabsOf(format);
    AddRuns(block, paragraph);
    if (const QTextList* list = block.textList())
        MakeBullet(paragraph, list->format().indent() + format.indent());
    return paragraph;
}

}  // namespace

QTextCharFormat CharFormatOf(const RichRun& run) {
    QTextCharFormat format;
    format.setFontFamilies({QString::fromStdString(run.font.family)});
    format.setFontPointSize(run.font.sizeTwips / TwipsPerPoint);
    format.setFontWeight(run.font.bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(run.font.italic);
    format.setFontUnderline(run.font.underline);
    format.setFontStrikeOut(run.font.strike);
    if (run.rise != 0) {
        format.setProperty(KeptRise, run.rise);
        format.setVerticalAlignment(run.rise > 0 ? QTextCharFormat::AlignSuperScript
                                                 : QTextCharFormat::AlignSubScript);
    }
    if (run.color != 0) format.setForeground(QColor::fromRgb(run.color));
    return format;
}

RichRun RunFormatOf(const QTextCharFormat& format) {
    RichRun run;
    const QStringList families = format.fontFamilies().toStringList();
    if (!families.isEmpty()) run.font.family = families.first().toStdString();
    const double points = format.fontPointSize();
    run.font.sizeTwips =
        points > 0 ? static_cast<int>(std::lround(points * TwipsPerPoint)) : DefaultTwips;
    run.font.bold = format.fontWeight() >= QFont::DemiBold;
    run.font.italic = format.fontItalic();
    run.font.underline = format.fontUnderline();
    run.font.strike = format.fontStrikeOut();
    run.rise = format.intProperty(KeptRise);
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        run.color = format.foreground().color().rgb() & 0xFFFFFF;
    return run;
}

void InsertRichText(QTextCursor& cursor, const RichText& text) {
    cursor.beginEditBlock();
    bool first = true;
    for (const RichParagraph& paragraph : text.paragraphs) {
        InsertParagraph(cursor, paragraph, first);
        first = false;
    }
    cursor.endEditBlock();
}

void ShowRichText(QTextDocument& document, const RichText& text) {
    document.clear();
    document.setIndentWidth(IndentPixels);
    QTextCursor cursor(&document);
    InsertRichText(cursor, text);
}

RichText RichTextOf(const QTextDocument& document) {
    RichText text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        text.paragraphs.push_back(ParagraphOf(block));
    return text;
}

}  // namespace tendo

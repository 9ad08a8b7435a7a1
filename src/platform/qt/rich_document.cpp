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

QTextBlockFormat BlockFormatOf(const RichParagraph& paragraph) {
    QTextBlockFormat format;
    format.setAlignment(AlignmentOf(paragraph.align));
    format.setRightMargin(Pixels(paragraph.rightIndent));
    format.setTopMargin(Pixels(paragraph.spaceBefore));
    format.setBottomMargin(Pixels(paragraph.spaceAfter));
    QList<QTextOption::Tab> tabs;
    for (const int tab : paragraph.tabs)
        tabs.append(QTextOption::Tab(Pixels(tab), QTextOption::LeftTab));
    format.setTabPositions(tabs);
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
    for (const QTextOption::Tab& tab : format.tabPositions())
        paragraph.tabs.push_back(Twips(tab.position));
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

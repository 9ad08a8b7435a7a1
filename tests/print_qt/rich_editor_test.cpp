#include "platform/qt/rich_editor.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include "platform/print/rich_text.h"
#include "platform/print/rtf_writer.h"
#include "platform/qt/rich_document.h"

namespace tendo {
namespace {

const std::string Styled =
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}{\\f1 Times New Roman;}}"
    "{\\colortbl ;\\red255\\green0\\blue0;}"
    "\\pard\\qc\\f0\\fs32\\b Terms\\b0\\par"
    "\\pard\\li720\\fi-360\\ri100\\sb60\\sa120\\tx1440 one\\tab two\\line three\\par"
    "\\pard\\f1\\fs21\\i\\ul\\strike\\cf1 red\\par}";

RichText RoundTrip(const RichText& text) {
    QTextDocument document;
    ShowRichText(document, text);
    return RichTextOf(document);
}

TEST(RichDocument, FormatsSurviveTheEditor) {
    const RichText text = RoundTrip(ReadRichText(Styled, {}));
    ASSERT_EQ(text.paragraphs.size(), 3u);
    EXPECT_EQ(text.paragraphs[0].align, RichAlign::Center);
    EXPECT_EQ(text.paragraphs[0].runs[0].font, (FontSpec{"Arial", 320, true}));
    const RichParagraph& second = text.paragraphs[1];
    EXPECT_EQ(second.leftIndent, 720);
    EXPECT_EQ(second.firstIndent, -360);
    EXPECT_EQ(second.rightIndent, 100);
    EXPECT_EQ(second.spaceBefore, 60);
    EXPECT_EQ(second.spaceAfter, 120);
    EXPECT_EQ(second.tabs, std::vector<TabStop>{{1440}});
    EXPECT_EQ(second.runs[0].text, "one\ttwo\nthree");
    const RichRun& red = text.paragraphs[2].runs[0];
    EXPECT_EQ(red.font, (FontSpec{"Times New Roman", 210, false, true, true, true}));
    EXPECT_EQ(red.color, 0xFF0000u);
    EXPECT_EQ(second.runs[0].color, 0u);
}

TEST(RichDocument, TablesTabsSpacingAndRaisedSignsSurviveTheEditor) {
    const std::string rich =
        "{\\rtf1\\tqc\\tx2880\\tldot\\tqr\\tx8640 a\\tab b\\tab c\\par"
        "\\pard\\pagebb\\sl360\\slmult1 m{\\super 2}\\par\\pard\\sl300 d\\par\\pard\\sl-315 e\\par"
        "\\trowd\\clbrdrt\\brdrs\\cellx3000\\cellx6000\\pard\\intbl f\\cell\\pard\\intbl\\qr "
        "g\\cell"
        "\\row}";
    const RichText read = ReadRichText(rich, {});
    const RichText text = RoundTrip(read);
    ASSERT_EQ(text.paragraphs.size(), 5u);
    EXPECT_EQ(text.paragraphs[0].tabs, read.paragraphs[0].tabs);
    EXPECT_TRUE(text.paragraphs[1].pageBefore);
    EXPECT_EQ(text.paragraphs[1].lineSpacing, 150);
    EXPECT_EQ(text.paragraphs[1].runs[1].rise, 80);
    EXPECT_EQ(text.paragraphs[1].runs[1].font.sizeTwips, 140);
    EXPECT_EQ(text.paragraphs[2].leastLine, 300);
    EXPECT_EQ(text.paragraphs[3].exactLine, 315);
    const std::vector<RichCell> cells = {{3000, RichAlign::Inherit, cell_side::Top},
                                         {6000, RichAlign::Right, 0}};
    EXPECT_EQ(text.paragraphs[4].cells, cells);
    EXPECT_TRUE(text.paragraphs[4].tabs.empty());
}

TEST(RichDocument, ARowWithAnotherNumberOfTabsBecomesAParagraph) {
    QTextDocument document;
    ShowRichText(
        document,
        ReadRichText("{\\rtf1\\trowd\\cellx3000\\cellx6000\\intbl f\\cell g\\cell\\row}", {}));
    EXPECT_EQ(document.toPlainText(), "f\tg");
    QTextCursor(&document).insertText("\t");
    const RichText text = RichTextOf(document);
    EXPECT_TRUE(text.paragraphs[0].cells.empty());
    EXPECT_EQ(text.paragraphs[0].tabs, (std::vector<TabStop>{{3000}, {6000}}));
}

TEST(RichDocument, ABulletIsAPointOfAListInTheEditor) {
    RichText text;
    RichParagraph& point = text.paragraphs.emplace_back();
    point.bullet = true;
    point.leftIndent = 720;
    point.firstIndent = -360;
    point.runs = {{"•\tfirst", {"Arial", 240}, 0}};
    QTextDocument document;
    ShowRichText(document, text);
    EXPECT_EQ(document.toPlainText(), "first");
    const RichText back = RichTextOf(document);
    ASSERT_EQ(back.paragraphs.size(), 1u);
    EXPECT_TRUE(back.paragraphs[0].bullet);
    EXPECT_EQ(back.paragraphs[0].leftIndent, 720);
    EXPECT_EQ(back.paragraphs[0].runs[0].text, "•\t");
    EXPECT_EQ(back.paragraphs[0].runs[1].text, "first");
}

TEST(RichEditor, ATextThatWasNotEditedIsGivenBackAsItWas) {
    RichEditor editor;
    editor.ShowText("{\\rtf1 {\\*\\unknown kept}text}");
    EXPECT_FALSE(editor.IsEdited());
    EXPECT_EQ(editor.Text(), "{\\rtf1 {\\*\\unknown kept}text}");
    editor.textCursor().insertText("new ");
    EXPECT_TRUE(editor.IsEdited());
    EXPECT_EQ(ReadRichText(editor.Text(), {}).paragraphs[0].runs[0].text, "new text");
}

TEST(RichEditor, AnotherTextBeginsAnewWithoutHistory) {
    RichEditor editor;
    editor.ShowText("first");
    editor.textCursor().insertText("x");
    editor.ShowText("second");
    editor.undo();
    EXPECT_EQ(editor.toPlainText(), "second");
    EXPECT_FALSE(editor.IsEdited());
}

TEST(RichEditor, EachLineOfAPlainTextIsAParagraph) {
    RichEditor editor;
    editor.ShowText("one\r\n\r\ntwo");
    EXPECT_EQ(editor.document()->blockCount(), 3);
    EXPECT_EQ(editor.toPlainText(), "one\n\ntwo");
}

TEST(RichEditor, ToolsFormatTheSelection) {
    RichEditor editor;
    editor.ShowText("words");
    editor.selectAll();
    editor.setFontWeight(QFont::Bold);
    editor.setFontItalic(true);
    editor.setFontUnderline(true);
    editor.setFontPointSize(8);
    editor.setFontFamily("Courier New");
    editor.setTextColor(QColor(0, 0, 255));
    const RichText text = ReadRichText(editor.Text(), {});
    const RichRun& run = text.paragraphs[0].runs[0];
    EXPECT_EQ(run.font, (FontSpec{"Courier New", 160, true, true, true}));
    EXPECT_EQ(run.color, 0x0000FFu);
}

TEST(RichEditor, BulletsAndIndentsGoOnAndOff) {
    RichEditor editor;
    editor.ShowText("point");
    editor.SetBullets(true);
    EXPECT_TRUE(ReadRichText(editor.Text(), {}).paragraphs[0].bullet);
    editor.Indent(1);
    EXPECT_EQ(ReadRichText(editor.Text(), {}).paragraphs[0].leftIndent, 720);
    editor.SetBullets(false);
    EXPECT_FALSE(ReadRichText(editor.Text(), {}).paragraphs[0].bullet);
    EXPECT_EQ(ReadRichText(editor.Text(), {}).paragraphs[0].leftIndent, 0);
    editor.Indent(2);
    EXPECT_EQ(ReadRichText(editor.Text(), {}).paragraphs[0].leftIndent, 720);
    editor.Indent(-3);
    EXPECT_EQ(ReadRichText(editor.Text(), {}).paragraphs[0].leftIndent, 0);
}

TEST(RichEditor, TheClipboardCarriesRichText) {
    RichEditor from;
    from.ShowText(Styled);
    from.selectAll();
    from.copy();
    RichEditor to;
    to.paste();
    EXPECT_EQ(to.toPlainText(), from.toPlainText());
    const RichText text = ReadRichText(to.Text(), {});
    EXPECT_TRUE(text.paragraphs[0].runs[0].font.bold);
}

TEST(RichEditor, PlainTextFromTheClipboardTakesTheFormatAtTheCaret) {
    auto* data = new QMimeData;
    data->setText("plain");
    QApplication::clipboard()->setMimeData(data);
    RichEditor editor;
    editor.paste();
    EXPECT_EQ(editor.toPlainText(), "plain");
}

void Paste(RichEditor& editor, QMimeData* data) {
    QApplication::clipboard()->setMimeData(data);
    editor.paste();
}

TEST(RichEditor, APageOfABrowserGivesItsWordsItsStressAndItsPoints) {
    auto* data = new QMimeData;
    data->setText("plain words of the page");
    data->setHtml(
        "<h1 style='color:red;font-family:Comic Sans;margin:40px'>Our <i>terms</i></h1>"
        "<p style='background:yellow'>&nbsp;</p><ul><li><b>one</b></li><li>two</li></ul>"
        "<img src='http://nowhere.invalid/x.png'><table><tr><td>cell</td></tr></table>");
    RichEditor editor;
    Paste(editor, data);
    EXPECT_EQ(editor.toPlainText(), "Our terms\none\ntwo\ncell");
    const RichText text = ReadRichText(editor.Text(), {});
    ASSERT_EQ(text.paragraphs.size(), 4U);
    const RichRun& our = text.paragraphs[0].runs[0];
    EXPECT_EQ(our.font, (FontSpec{"Arial", 240, true}));
    EXPECT_EQ(our.color, 0U);
    EXPECT_EQ(text.paragraphs[0].spaceBefore, 0);
    EXPECT_EQ(text.paragraphs[0].spaceAfter, 120);
    EXPECT_EQ(text.paragraphs[0].runs[1].font, (FontSpec{"Arial", 240, true, true}));
    EXPECT_TRUE(text.paragraphs[1].bullet);
    EXPECT_TRUE(text.paragraphs[2].bullet);
    EXPECT_FALSE(text.paragraphs[3].bullet);
}

TEST(RichEditor, APictureAloneCannotBePasted) {
    auto* data = new QMimeData;
    data->setImageData(QImage(4, 4, QImage::Format_RGB32));
    RichEditor editor;
    editor.ShowText("words");
    Paste(editor, data);
    EXPECT_EQ(editor.toPlainText(), "words");
    EXPECT_FALSE(editor.IsEdited());
}

TEST(RichEditor, RichTextOfAWordProcessorComesBeforeItsPage) {
    auto* data = new QMimeData;
    data->setText("plain");
    data->setHtml("<p>page</p>");
    data->setData("text/rtf", "{\\rtf1 {\\b rich}}");
    RichEditor editor;
    Paste(editor, data);
    EXPECT_EQ(editor.toPlainText(), "rich");
    EXPECT_TRUE(ReadRichText(editor.Text(), {}).paragraphs[0].runs[0].font.bold);
}

/// Files dropped on an editor: what it tells of them.
QStringList Dropped(const QStringList& files) {
    RichEditor editor;
    QStringList told;
    QObject::connect(&editor, &RichEditor::FileDropped, &editor,
                     [&](const QString& file) { told.append(file); });
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files)
        urls.append(QUrl::fromLocalFile(file));
    data.setUrls(urls);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &enter);
    if (enter.isAccepted()) QApplication::sendEvent(editor.viewport(), &drop);
    EXPECT_EQ(editor.toPlainText(), "");
    return told;
}

TEST(RichEditor, OneTextFileCanBeDroppedAndItsNameIsNotPutIn) {
    EXPECT_EQ(Dropped({"/x/terms.rtf"}), QStringList{"/x/terms.rtf"});
    EXPECT_EQ(Dropped({"/x/TERMS.TXT"}), QStringList{"/x/TERMS.TXT"});
    EXPECT_EQ(Dropped({"/x/job.tdw"}), QStringList());
    EXPECT_EQ(Dropped({"/x/a.txt", "/x/b.txt"}), QStringList());
}

TEST(RichEditor, AReplacedTextCanBeBroughtBack) {
    RichEditor editor;
    editor.ShowText("before");
    editor.ReplaceText(Styled);
    EXPECT_TRUE(editor.IsEdited());
    EXPECT_EQ(editor.toPlainText(), "Terms\none\ttwo\nthree\nred");
    const RichText text = ReadRichText(editor.Text(), {});
    EXPECT_EQ(text.paragraphs[0].align, RichAlign::Center);
    EXPECT_EQ(text.paragraphs[0].runs[0].font, (FontSpec{"Arial", 320, true}));
    editor.undo();
    EXPECT_EQ(editor.toPlainText(), "before");
}

TEST(RichEditor, AStoredTextIsTheOneThatIsGivenBack) {
    RichEditor editor;
    editor.ShowText("before");
    editor.textCursor().insertText("just ");
    const std::string text = editor.Text();
    editor.MarkStored();
    EXPECT_FALSE(editor.IsEdited());
    EXPECT_EQ(editor.Text(), text);
}

}  // namespace
}  // namespace tendo

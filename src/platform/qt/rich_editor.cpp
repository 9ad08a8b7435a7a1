#include "platform/qt/rich_editor.h"

#include <QFileInfo>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextList>
#include <QUrl>
#include <algorithm>
#include <array>

#include "platform/print/rich_text.h"
#include "platform/print/rtf_writer.h"
#include "platform/qt/rich_document.h"

namespace tendo {
namespace {

/// The names under which programs offer Rich Text Format.
constexpr std::array RichFormats = {"text/rtf", "application/rtf", "text/richtext",
                                    "application/x-qt-windows-mime;value=\"Rich Text Format\""};

/// The space between paragraphs of a web page, in twips.
constexpr int LargestSpace = 120;

const RichRun& Base() {
    static const RichRun base = {"", {.family = "Arial", .sizeTwips = 240}, 0};
    return base;
}

/// In the editor each line of a plain text is a paragraph of its own.
RichText LinesAsParagraphs(const RichText& text) {
    RichText lines;
    for (const RichRun& run : text.paragraphs.front().runs) {
        RichRun format = run;
        format.text.clear();  // no copy of a long text for each of its lines
        std::size_t at = 0;
        for (;;) {
            const std::size_t end = run.text.find('\n', at);
            RichRun line = format;
            line.text = run.text.substr(at, end - at);
            lines.paragraphs.emplace_back().runs.push_back(std::move(line));
            if (end == std::string::npos) break;
            at = end + 1;
        }
    }
    return lines;
}

RichText AsParagraphs(const std::string& text) {
    const RichText rich = ReadRichOrPlainText(text, Base());
    return IsRichText(text) ? rich : LinesAsParagraphs(rich);
}

/// The one text file that comes by a drop; empty for anything else.
QString TextFileOf(const QMimeData* source) {
    const QList<QUrl> files = source->urls();
    if (files.size() != 1 || !files.first().isLocalFile()) return {};
    const QString file = files.first().toLocalFile();
    const QString ending = QFileInfo(file).suffix().toLower();
    return ending == "txt" || ending == "rtf" ? file : QString();
}

/// A page of the web that fetches nothing.
class PageText : public QTextDocument {
  protected:
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

/// What of a web page can stand in a footnote, in the font at the caret.
RichText SensibleText(const QString& page, const RichRun& format) {
    PageText document;
    document.setHtml(page);
    RichText text = RichTextOf(document);
    std::erase_if(text.paragraphs, [](const RichParagraph& paragraph) {
        return std::all_of(paragraph.runs.begin(), paragraph.runs.end(), [](const RichRun& run) {
            return QString::fromStdString(run.text).trimmed().isEmpty();
        });
    });
    for (RichParagraph& paragraph : text.paragraphs) {
        RichParagraph plain;
        plain.align = paragraph.align;
        plain.bullet = paragraph.bullet;
        if (plain.bullet) plain.leftIndent = paragraph.leftIndent;
        if (plain.bullet) plain.firstIndent = paragraph.firstIndent;
        plain.spaceAfter = std::clamp(paragraph.spaceAfter, 0, LargestSpace);
        plain.runs = std::move(paragraph.runs);
        for (RichRun& run : plain.runs) {
            run.font.family = format.font.family;
            run.font.sizeTwips = format.font.sizeTwips;
            run.color = format.color;
        }
        paragraph = std::move(plain);
    }
    return text;
}

QByteArray RichBytesOf(const QMimeData* source) {
    for (const char* format : RichFormats)
        if (source->hasFormat(format)) return source->data(format);
    return {};
}

}  // namespace

RichEditor::RichEditor(QWidget* parent) : QTextEdit(parent) {
    setProperty("paper", true);
    setTabChangesFocus(false);
    document()->setIndentWidth(IndentPixels);
    connect(this, &QTextEdit::textChanged, this, [this] { edited_ = true; });
    ShowText({});
}

void RichEditor::ShowText(const std::string& text) {
    shown_ = text;
    ShowRichText(*document(), AsParagraphs(text));
    if (document()->isEmpty()) setCurrentCharFormat(CharFormatOf(Base()));
    document()->clearUndoRedoStacks();
    edited_ = false;
    moveCursor(QTextCursor::Start);
}

void RichEditor::ReplaceText(const std::string& text) {
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    InsertRichText(cursor, AsParagraphs(text));
    cursor.endEditBlock();
    edited_ = true;
    moveCursor(QTextCursor::Start);
}

void RichEditor::MarkStored() {
    shown_ = Text();
    edited_ = false;
}

std::string RichEditor::Text() const {
    return IsEdited() ? WriteRichText(RichTextOf(*document())) : shown_;
}

void RichEditor::SetBullets(bool on) {
    QTextCursor cursor = textCursor();
    if (on) {
        QTextListFormat list;
        list.setStyle(QTextListFormat::ListDisc);
        cursor.createList(list);
        return;
    }
    cursor.beginEditBlock();
    QTextBlock block = document()->findBlock(cursor.selectionStart());
    for (; block.isValid() && block.position() <= cursor.selectionEnd(); block = block.next()) {
        if (QTextList* list = block.textList()) list->remove(block);
        QTextCursor at(block);
        QTextBlockFormat format = at.blockFormat();
        format.setIndent(0);
        at.setBlockFormat(format);
    }
    cursor.endEditBlock();
}

void RichEditor::Indent(int steps) {
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    QTextBlock block = document()->findBlock(cursor.selectionStart());
    for (; block.isValid() && block.position() <= cursor.selectionEnd(); block = block.next()) {
        QTextCursor at(block);
        QTextBlockFormat format = at.blockFormat();
        if (block.textList())  // its own indent is one step at least
            format.setIndent(std::max(0, format.indent() + steps));
        else
            format.setLeftMargin(std::max(0.0, format.leftMargin() + steps * IndentPixels));
        at.setBlockFormat(format);
    }
    cursor.endEditBlock();
}

bool RichEditor::canInsertFromMimeData(const QMimeData* source) const {
    if (source->hasUrls() && !source->hasHtml()) return !TextFileOf(source).isEmpty();
    return source->hasText() || source->hasHtml() || !RichBytesOf(source).isEmpty();
}

void RichEditor::insertFromMimeData(const QMimeData* source) {
    const QByteArray rich = RichBytesOf(source);
    if (const QString file = TextFileOf(source); !file.isEmpty())
        Q_EMIT FileDropped(file);
    else if (!rich.isEmpty())
        InsertRich(ReadRichOrPlainText(rich.toStdString(), Base()));
    else if (source->hasHtml())
        InsertRich(SensibleText(source->html(), RunFormatOf(currentCharFormat())));
    else if (source->hasText())
        textCursor().insertText(source->text());
}

void RichEditor::InsertRich(const RichText& text) {
    QTextDocument pasted;
    ShowRichText(pasted, text);
    textCursor().insertFragment(QTextDocumentFragment(&pasted));
    ensureCursorVisible();
}

QMimeData* RichEditor::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    const QTextDocumentFragment selection = textCursor().selection();
    QTextDocument document;
    QTextCursor(&document).insertFragment(selection);
    copied->setText(selection.toPlainText());
    copied->setData(RichFormats.front(),
                    QByteArray::fromStdString(WriteRichText(RichTextOf(document))));
    return copied;
}

}  // namespace tendo

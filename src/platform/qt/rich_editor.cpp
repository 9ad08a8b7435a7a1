#include "platform/qt/rich_editor.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextList>
#include <algorithm>
#include <array>

#include "platform/print/rich_text.h"
#include "platform/print/rtf_writer.h"
#include "platform/qt/rich_document.h"

namespace tendo {
namespace {

/// The names under which programs offer Rich Text Format.
constexpr std::array RichFormats = {"text/rtf", "application/rtf", "text/richtext"};

const RichRun& Base() {
    static const RichRun base = {"", {.family = "Arial", .sizeTwips = 240}, 0};
    return base;
}

/// In the editor each line of a plain text is a paragraph of its own.
RichText LinesAsParagraphs(const RichText& text) {
    RichText lines;
    for (const RichRun& run : text.paragraphs.front().runs) {
        std::size_t at = 0;
        for (;;) {
            const std::size_t end = run.text.find('\n', at);
            RichRun line = run;
            line.text = run.text.substr(at, end - at);
            lines.paragraphs.emplace_back().runs.push_back(std::move(line));
            if (end == std::string::npos) break;
            at = end + 1;
        }
    }
    return lines;
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
    const RichText rich = ReadRichOrPlainText(text, Base());
    ShowRichText(*document(), IsRichText(text) ? rich : LinesAsParagraphs(rich));
    if (document()->isEmpty()) setCurrentCharFormat(CharFormatOf(Base()));
    document()->clearUndoRedoStacks();
    edited_ = false;
    moveCursor(QTextCursor::Start);
}

std::string RichEditor::Text() const {
    return IsEdited() ? WriteRichText(RichTextOf(*document())) : shown_;
}

void RichEditor::Merge(const QTextCharFormat& format) {
    mergeCurrentCharFormat(format);
}

void RichEditor::SetBold(bool on) {
    QTextCharFormat format;
    format.setFontWeight(on ? QFont::Bold : QFont::Normal);
    Merge(format);
}

void RichEditor::SetItalic(bool on) {
    QTextCharFormat format;
    format.setFontItalic(on);
    Merge(format);
}

void RichEditor::SetUnderline(bool on) {
    QTextCharFormat format;
    format.setFontUnderline(on);
    Merge(format);
}

void RichEditor::SetColor(QColor color) {
    QTextCharFormat format;
    format.setForeground(color);
    Merge(format);
}

void RichEditor::SetFamily(const QString& family) {
    QTextCharFormat format;
    format.setFontFamilies({family});
    Merge(format);
}

void RichEditor::SetPointSize(double points) {
    QTextCharFormat format;
    format.setFontPointSize(points);
    Merge(format);
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
    return source->hasText() || !RichBytesOf(source).isEmpty();
}

void RichEditor::insertFromMimeData(const QMimeData* source) {
    const QByteArray rich = RichBytesOf(source);
    if (rich.isEmpty()) {
        if (source->hasText()) textCursor().insertText(source->text());
        return;
    }
    QTextDocument pasted;
    ShowRichText(pasted, ReadRichOrPlainText(rich.toStdString(), Base()));
    textCursor().insertFragment(QTextDocumentFragment(&pasted));
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

#pragma once

#include "platform/print/rich_model.h"

class QTextCharFormat;
class QTextCursor;
class QTextDocument;

namespace tendo {

/// Fills a document of the toolkit with rich text; measures become pixels of a 96 dpi screen. The
/// automatic colour (0) stays automatic.
void ShowRichText(QTextDocument& document, const RichText& text);

/// The same into an empty document, at its cursor, so that it can be undone.
void InsertRichText(QTextCursor& cursor, const RichText& text);

/// What a document of the toolkit holds; pictures and tables come as their text alone.
RichText RichTextOf(const QTextDocument& document);

/// A character format of the toolkit for a format of ours, and back.
QTextCharFormat CharFormatOf(const RichRun& run);
RichRun RunFormatOf(const QTextCharFormat& format);

/// One step of a paragraph's indent: a quarter inch, in twips and in pixels.
inline constexpr int IndentTwips = 360;
inline constexpr int IndentPixels = 24;

}  // namespace tendo

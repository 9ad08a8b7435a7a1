#pragma once

#include <QImage>

#include "platform/print/document.h"
#include "platform/qt/letter_setter.h"

class QPainter;

namespace tendo {

/// Paints one page, `page` from 0, with the paper's corner at the painter's origin. `scale` is
/// device pixels for a twip. Pictures that can't be read are left out. `letters`, for documents
/// that go into a file, sets texts that need no more.
void PaintPage(QPainter& painter, const Document& document, int page, double scale,
               LetterSetter* letters = nullptr);

/// The page on white paper at `dpi` dots an inch.
QImage PageImage(const Document& document, int page, double dpi);

/// The name of one of several pictures of pages: "-1", "-2" ... ahead of the extension for `page`
/// 0, 1 ...
std::string PagePngName(const std::string& path, int page);

/// Writes one page as PNG. Throws the RuntimeErrors of `ReplaceFile`.
void WritePagePng(const Document& document, int page, const std::string& path, double dpi);

/// Writes pages as PNG: one page under the path itself, of more than one each with "-1", "-2" ...
/// ahead of the extension. Throws RuntimeError 70 when a file can't be written.
void WritePng(const Document& document, const std::string& path, double dpi);

}  // namespace tendo

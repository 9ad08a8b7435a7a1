#include "platform/qt/painter_pdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "platform/files/safe_file.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf_outline.h"

namespace tendo {

namespace {

constexpr int TwipsPerInch = 1440;

void PaintPages(QPdfWriter& writer, const Document& document) {
    QPainter painter(&writer);
    for (int page = 0; page < static_cast<int>(document.pages.size()); ++page) {
        if (page > 0) writer.newPage();
        PaintPage(painter, document, page, 1.0);
    }
}

}  // namespace

std::string PdfBytes(const Document& document) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(TwipsPerInch);
        writer.setPageSize(QPageSize(QPageSize::Letter));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setTitle(QString::fromStdString(document.title));
        writer.setCreator(QStringLiteral("TENDO"));
        PaintPages(writer, document);
    }
    return WithPdfOutline(bytes.toStdString(), document);
}

void WritePdf(const Document& document, const std::string& path) {
    ReplaceFile(path, PdfBytes(document));
}

}  // namespace tendo

#include "platform/qt/painter_pdf.h"

#include <QBuffer>
#include <QHashSeed>
#include <QPainter>
#include <QPdfWriter>

#include "platform/files/safe_file.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf_outline.h"
#include "platform/text/date_text.h"

namespace tendo {

namespace {

constexpr int TwipsPerInch = 1440;
constexpr QByteArrayView DateKey = "/CreationDate (D:";

/// The date as a PDF writes it, "20260504093000".
QByteArray PdfDate(const DateTime& date) {
    std::string text = IsoText(date);
    std::erase_if(text, [](char character) { return character < '0' || character > '9'; });
    text.resize(14, '0');
    return QByteArray::fromStdString(text);
}

/// The writer takes the machine's clock. The program's own stands in its place, so that a fixed day
/// gives the same file each time.
void StampDate(QByteArray& pdf, const DateTime& date) {
    const qsizetype at = pdf.indexOf(DateKey);
    const QByteArray text = PdfDate(date);
    if (at >= 0 && at + DateKey.size() + text.size() <= pdf.size())
        pdf.replace(at + DateKey.size(), text.size(), text);
}

/// Qt numbers fonts in the order of a hash table, whose seed is another one in each run. A fixed
/// one makes files alike; tables made under it keep working when it goes.
class FixedHashSeed {
  public:
    FixedHashSeed() { QHashSeed::setDeterministicGlobalSeed(); }
    ~FixedHashSeed() { QHashSeed::resetRandomGlobalSeed(); }
    FixedHashSeed(const FixedHashSeed&) = delete;
    FixedHashSeed& operator=(const FixedHashSeed&) = delete;
};

void PaintPages(QPdfWriter& writer, const Document& document) {
    QPainter painter(&writer);
    LetterSetter letters;
    for (int page = 0; page < static_cast<int>(document.pages.size()); ++page) {
        if (page > 0) writer.newPage();
        PaintPage(painter, document, page, 1.0, &letters);
    }
}

}  // namespace

std::string PdfBytes(const Document& document) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        const FixedHashSeed seed;
        QPdfWriter writer(&buffer);
        writer.setResolution(TwipsPerInch);
        writer.setPageSize(QPageSize(QPageSize::Letter));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setTitle(QString::fromStdString(document.title));
        writer.setCreator(QStringLiteral("TENDO"));
        PaintPages(writer, document);
    }
    StampDate(bytes, Now());
    return WithPdfOutline(bytes.toStdString(), document);
}

void WritePdf(const Document& document, const std::string& path) {
    ReplaceFile(path, PdfBytes(document));
}

}  // namespace tendo

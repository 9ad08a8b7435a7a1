#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "picture_fixture.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"

namespace tendo {
namespace {

/// A page with one picture in a box of 1.1 inches, as the banner has them.
Document PageWith(const std::string& path, int pages = 1) {
    Document document;
    document.pages.resize(static_cast<std::size_t>(pages));
    for (Page& page : document.pages)
        page.shapes.emplace_back(PictureItem{576, 792, 2160, 2376, path});
    return document;
}

/// Pictures in PDF files, as the system's own tools see them.
class PicturesOnPaper : public PictureTest {
  protected:
    /// What a tool says of the PDF; empty when it isn't installed.
    QString Ask(const char* tool, const Document& document, const QStringList& options = {}) const {
        const QString program = QStandardPaths::findExecutable(QLatin1String(tool));
        if (program.isEmpty()) return {};
        WritePdf(document, Path("out.pdf"));
        QProcess process;
        process.start(program, options + QStringList{QString::fromStdString(Path("out.pdf"))});
        EXPECT_TRUE(process.waitForFinished());
        return QString::fromLocal8Bit(process.readAllStandardOutput());
    }
    /// The images of the PDF, a line each: "image 800 800 ... jpeg".
    QStringList Images(const Document& document) const {
        QStringList lines =
            Ask("pdfimages", document, {QStringLiteral("-list")}).split('\n', Qt::SkipEmptyParts);
        if (lines.size() < 2) return {};
        return lines.mid(2);
    }
    static bool HasTools() {
        return !QStandardPaths::findExecutable(QStringLiteral("pdfimages")).isEmpty();
    }
    /// The PDF painted by another program at 144 dots an inch.
    QImage Rendered(const Document& document) const {
        const QString program = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
        WritePdf(document, Path("out.pdf"));
        const QString base = QString::fromStdString(Path("page"));
        QProcess::execute(program, {QStringLiteral("-r"), QStringLiteral("144"),
                                    QStringLiteral("-png"), QStringLiteral("-singlefile"),
                                    QString::fromStdString(Path("out.pdf")), base});
        return QImage(base + QStringLiteral(".png"));
    }
};

QSize SizeIn(const QString& line) {
    const QStringList words = line.split(' ', Qt::SkipEmptyParts);
    return words.size() > 4 ? QSize(words[3].toInt(), words[4].toInt()) : QSize();
}

TEST_F(PicturesOnPaper, KeepTheirOwnResolution) {
    if (!HasTools()) GTEST_SKIP() << "pdfimages (poppler-utils) isn't installed";
    // 900 pixels on 1.1 inches: far more than a screen's 106.
    for (const char* format : {"PNG", "JPG", "BMP"}) {
        const std::string file =
            Write(std::string("sharp.") + format, Encoded(RedAndBlue(900, 900), format, 95));
        const QStringList images = Images(PageWith(file));
        ASSERT_EQ(images.size(), 1) << format;
        EXPECT_EQ(SizeIn(images[0]), QSize(900, 900)) << format;
    }
}

TEST_F(PicturesOnPaper, HoldPhotographsAsSuchAndLogosWithoutLoss) {
    if (!HasTools()) GTEST_SKIP() << "pdfimages (poppler-utils) isn't installed";
    const std::string photograph = Write("p.jpg", Encoded(RedAndBlue(600, 600), "JPG", 95));
    EXPECT_TRUE(Images(PageWith(photograph)).value(0).contains(QLatin1String(" jpeg ")));
    const std::string logo = Write("l.png", Encoded(RedAndBlue(600, 600), "PNG"));
    EXPECT_TRUE(Images(PageWith(logo)).value(0).contains(QLatin1String(" image ")));
    EXPECT_FALSE(Images(PageWith(logo)).value(0).contains(QLatin1String(" jpeg ")));
    ExpectColor(Rendered(PageWith(logo)), 100, 200, Qt::red);
}

TEST_F(PicturesOnPaper, HaveNoMorePixelsThanTheFinestPrint) {
    if (!HasTools()) GTEST_SKIP() << "pdfimages (poppler-utils) isn't installed";
    const std::string file = Write("camera.jpg", Encoded(RedAndBlue(4000, 3000), "JPG", 60));
    const QStringList images = Images(PageWith(file));
    ASSERT_EQ(images.size(), 1);
    // 1.1 inches at 1440 dots an inch are 1584.
    EXPECT_EQ(SizeIn(images[0]), QSize(1584, 1584));
}

TEST_F(PicturesOnPaper, DrawingsAndMetafilesStayLinesAndFaces) {
    if (!HasTools()) GTEST_SKIP() << "pdfimages (poppler-utils) isn't installed";
    const std::string drawing =
        Write("d.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 100 50">
                          <rect x="10" y="10" width="40" height="20" fill="#f00"/></svg>)");
    const std::string placeable = Write("p.wmf", RedMetafile(true));
    const std::string enhanced = Write("e.emf", RedEnhancedMetafile());
    for (const std::string& file : {drawing, placeable, enhanced}) {
        if (file == enhanced &&
            QStandardPaths::findExecutable(QStringLiteral("emf2svg-conv")).isEmpty())
            continue;
        const Document document = PageWith(file);
        EXPECT_EQ(Images(document).size(), 0) << file;
        // The box begins at 576 + 360 twips, 0.65 inches, and is 1.1 inches wide: the rectangle
        // runs from 10 to 50 of its 100 parts, 0.76 to 1.2 inches; down from 0.2 to 0.6 of 1.1
        // inches behind 0.8, 1.02 to 1.46. At 144 dots an inch: 109 to 173 and 147 to 210.
        const QImage page = Rendered(document);
        ExpectColor(page, 141, 180, Qt::red);
        ExpectColor(page, 113, 151, Qt::red);
        ExpectColor(page, 105, 180, Qt::white);
        ExpectColor(page, 177, 180, Qt::white);
        ExpectColor(page, 141, 143, Qt::white);
    }
}

TEST_F(PicturesOnPaper, AreDecodedOnceForAllPages) {
    const std::string file = Write("logo.png", Encoded(RedAndBlue(300, 300), "PNG"));
    const auto before = LoadPicture(file);
    PdfBytes(PageWith(file, 20));
    for (int page = 0; page < 20; ++page)
        PageImage(PageWith(file, 20), page, 96);
    EXPECT_EQ(LoadPicture(file), before);
}

TEST_F(PicturesOnPaper, ClearOnesLetThePaperThrough) {
    if (!HasTools()) GTEST_SKIP() << "pdftoppm (poppler-utils) isn't installed";
    QImage image(100, 100, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 50; ++x)
            image.setPixelColor(x, y, Qt::red);
    const QImage page = Rendered(PageWith(Write("clear.png", Encoded(image, "PNG"))));
    ExpectColor(page, 130, 180, Qt::red);
    ExpectColor(page, 220, 180, Qt::white);
}

TEST_F(PicturesOnPaper, ThatCannotBeShownAreNamedInTheText) {
    const std::string file = Write("company logo.png", "nothing");
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) isn't installed";
    QProcess process;
    WritePdf(PageWith(file), Path("out.pdf"));
    process.start(QStringLiteral("pdftotext"),
                  {QString::fromStdString(Path("out.pdf")), QStringLiteral("-")});
    ASSERT_TRUE(process.waitForFinished());
    const QString words = QString::fromUtf8(process.readAllStandardOutput());
    EXPECT_TRUE(words.contains(QLatin1String("company logo.png"))) << words.toStdString();
    EXPECT_TRUE(words.contains(QLatin1String("is not a picture"))) << words.toStdString();
}

}  // namespace
}  // namespace tendo

#include <gmock/gmock.h>

#include <QImage>

#include "paper_fixture.h"
#include "platform/print/layout_surface.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"

namespace tendo {
namespace {

using testing::HasSubstr;

class OddPages : public PaperTest {
  protected:
    Document Finish() {
        surface.Action(6);
        return surface.TakeResult();
    }
    LayoutSurface surface{measurer};
};

TEST_F(OddPages, PicturesOutsideThePaperAreNotSeen) {
    QImage red(10, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(QString::fromStdString(File("red.png"))));
    surface.Action(3);
    surface.Paragraph("text");
    for (const auto& [x, y] :
         {std::pair(-9000, 1000), {20000, 1000}, {1000, -9000}, {1000, 30000}}) {
        surface.X1(x);
        surface.Y1(y);
        surface.X2(x + 1440);
        surface.Y2(y + 1440);
        surface.Picture(File("red.png"));
    }
    const Document document = Finish();
    const QImage image = PageImage(document, 0, 50);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ASSERT_GT(qGreen(image.pixel(x, y)), qRed(image.pixel(x, y)) - 1);
    EXPECT_THAT(PdfBytes(document), testing::EndsWith("%%EOF\n"));
}

TEST_F(OddPages, APictureTurnedOverIsPaintedUpright) {
    QImage half(2, 2, QImage::Format_RGB32);
    half.fill(Qt::red);
    half.setPixelColor(0, 0, Qt::blue);
    half.setPixelColor(1, 0, Qt::blue);
    ASSERT_TRUE(half.save(QString::fromStdString(File("half.png"))));
    surface.Action(3);
    surface.X1(2880);
    surface.Y1(2880);
    surface.X2(1440);
    surface.Y2(1440);
    surface.Picture(File("half.png"));
    // The box from 1 to 2 inches, on paper 1.25 to 2.25: blue above, red below.
    const QImage image = PageImage(Finish(), 0, 100);
    EXPECT_GT(qBlue(image.pixel(175, 135)), 200);
    EXPECT_GT(qRed(image.pixel(175, 215)), 200);
}

TEST_F(OddPages, ABorderIsOneCleanLineOnTheScreen) {
    surface.Action(3);
    surface.PageBorder(4);
    surface.Paragraph("");
    const QImage image = PageImage(Finish(), 0, 96);
    // Across the left border, which stands half an inch from the paper's edge: one black dot.
    int dark = 0, grey = 0;
    for (int x = 40; x < 56; ++x) {
        const int value = qGray(image.pixel(x, 500));
        dark += value < 20 ? 1 : 0;
        grey += value >= 20 && value < 250 ? 1 : 0;
    }
    EXPECT_EQ(dark, 1);
    EXPECT_EQ(grey, 0);
}

TEST_F(OddPages, TheBandCarriesTheProgramsIcon) {
    const Document document = LayOut(PaperJobs()[0]);
    const QImage image = PageImage(document, 2, 96);
    // The band's middle on paper: 400 hundredths and a quarter inch, 26 and a quarter inch.
    bool drawn = false;
    for (int y = 35; y < 64; ++y)
        for (int x = 392; x < 424; ++x)
            drawn = drawn || qGray(image.pixel(x, y)) < 100;
    EXPECT_TRUE(drawn);
    EXPECT_EQ(image.pixelColor(380, 49), QColor(0xE0, 0xE0, 0xE0));
}

TEST_F(OddPages, AStartingPageNumberAtItsLimitCountsOn) {
    PaperJob job = PaperJobs()[0];
    job.options.emplace_back("txtStartingPageNo", "32767");
    // The third page: 32767 and 2.
    EXPECT_THAT(PageText(LayOut(job).pages.at(2)), HasSubstr("Page 32769"));
}

TEST_F(OddPages, OddStylesOfTheProfileStillGiveWholePages) {
    PaperJob job = PaperJobs()[0];
    job.options.insert(job.options.end(), {{"BodyFontSize", "-3"},
                                           {"SecondaryHeaderFontSize", "32767"},
                                           {"BodyFont", "No Such Font"},
                                           {"txtLineSpacing", "10000"}});
    const Document document = LayOut(job);
    EXPECT_GT(document.pages.size(), 1U);
    EXPECT_LT(document.pages.size(), 100U);
    for (const Page& page : document.pages)
        for (const TextItem& text : page.texts)
            EXPECT_LE(text.x, page_geometry::Right) << text.text;
    EXPECT_THAT(PdfBytes(document), testing::EndsWith("%%EOF\n"));
}

}  // namespace
}  // namespace tendo

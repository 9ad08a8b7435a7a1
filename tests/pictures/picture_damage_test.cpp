#include <sys/resource.h>

#include <QFile>

#include "picture_fixture.h"

namespace tendo {
namespace {

struct Sample {
    const char* name;
    std::string bytes;
};

/// One whole file of each kind, large enough that sixteenths of it differ.
std::vector<Sample> Samples() {
    QImage noise(64, 48, QImage::Format_RGB32);
    std::uint32_t random = 1;
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 64; ++x)
            noise.setPixel(x, y, (random = random * 1664525 + 1013904223) >> 8 | 0xFF000000);
    std::string drawing = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 90 90">)";
    for (int i = 0; i < 20; ++i)
        drawing += "<rect x='" + std::to_string(i) + "' width='1' height='90'/>";
    const auto stripes = [](int x, int) { return x % 2; };
    return {{"cut.png", Encoded(noise, "PNG")},
            {"cut.jpg", Encoded(noise, "JPG", 90)},
            {"cut.bmp", Encoded(noise, "BMP")},
            {"cut.gif", GifFile(64, 48, {Qt::red, Qt::blue}, {{0, 1}})},
            {"cut.ico", IconFile({{16, Qt::red}, {32, Qt::blue}})},
            {"cut.dib", IndexedBitmap(8, 64, 48, {Qt::red, Qt::blue}, stripes).substr(14)},
            {"cut.svg", drawing + "</svg>"},
            {"cut.wmf", RedMetafile(true)},
            {"cut_window.wmf", RedMetafile(false)},
            {"cut.emf", RedEnhancedMetafile()}};
}

using DamagedPictures = PictureTest;

TEST_F(DamagedPictures, CutAtEverySixteenthAreToldAndNotShownInHalves) {
    for (const Sample& sample : Samples()) {
        for (std::size_t part = 0; part < 16; ++part) {
            const std::string name = std::to_string(part) + sample.name;
            const std::string problem =
                Problem(name, sample.bytes.substr(0, sample.bytes.size() * part / 16));
            EXPECT_TRUE(problem == "is damaged" || problem == "is not a picture")
                << name << ": '" << problem << "'";
        }
    }
}

TEST_F(DamagedPictures, WholeOnesOfTheSameKindsAreShown) {
    for (const Sample& sample : Samples()) {
        const std::string problem = Problem(sample.name, sample.bytes);
        if (problem.find("needs emf2svg-conv") == 0) continue;
        EXPECT_EQ(problem, "") << sample.name;
    }
}

TEST_F(DamagedPictures, WithAWrongSignatureAreNoPictures) {
    for (const Sample& sample : Samples()) {
        std::string bytes = sample.bytes;
        bytes.replace(0, 5, "wrong");
        EXPECT_EQ(Problem(std::string("wrong_") + sample.name, bytes), "is not a picture")
            << sample.name;
    }
}

TEST_F(DamagedPictures, OtherContentUnderThePicturesEndingIsNoPicture) {
    for (const char* ending : {".bmp", ".gif", ".jpg", ".png", ".ico", ".svg", ".wmf", ".emf"}) {
        const std::string name = std::string("other") + ending;
        EXPECT_EQ(Problem("page" + name, "<html><body>Not found</body></html>"),
                  "is not a picture");
        EXPECT_EQ(Problem("empty" + name, ""), "is not a picture");
        EXPECT_EQ(Problem("zeros" + name, std::string(1000, '\0')), "is not a picture");
    }
}

TEST_F(DamagedPictures, OfZeroWidthOrHeightAreDamaged) {
    const auto pixel = [](int, int) { return 0; };
    const std::string png = Encoded(RedAndBlue(8, 8), "PNG");
    const std::string jpeg = Encoded(RedAndBlue(8, 8), "JPG");
    EXPECT_EQ(Problem("low.bmp", IndexedBitmap(8, 8, 0, {Qt::red}, pixel)), "is damaged");
    EXPECT_EQ(Problem("narrow.bmp", IndexedBitmap(8, 0, 8, {Qt::red}, pixel)), "is damaged");
    EXPECT_EQ(Problem("low.png", WithPngSize(png, 8, 0)), "is damaged");
    EXPECT_EQ(Problem("narrow.png", WithPngSize(png, 0, 8)), "is damaged");
    EXPECT_EQ(Problem("low.jpg", WithJpegSize(jpeg, 8, 0)), "is damaged");
    EXPECT_EQ(Problem("narrow.jpg", WithJpegSize(jpeg, 0, 8)), "is damaged");
    EXPECT_EQ(Problem("low.gif", GifFile(8, 0, {Qt::red}, {{0, 0}})), "is damaged");
}

TEST_F(DamagedPictures, WithBytesTurnedOverNeverEndTheProgram) {
    for (const Sample& sample : Samples()) {
        for (std::size_t at = 0; at < sample.bytes.size(); at += sample.bytes.size() / 24 + 1) {
            std::string bytes = sample.bytes;
            bytes[at] = static_cast<char>(~bytes[at]);
            const std::string name = std::to_string(at) + sample.name;
            EXPECT_NE(Load(name, bytes), nullptr);
            EXPECT_EQ(Painted(Path(name), 20, 20).size(), QSize(20, 20));
        }
    }
}

TEST_F(DamagedPictures, LeaveALightBoxWithNameAndReasonOnThePaper) {
    Write("logo.png", "nothing");
    const QImage image = Painted(Path("logo.png"), 300, 120);
    ExpectColor(image, 20, 15, QColor(0xF3, 0xF5, 0xF7));
    EXPECT_NE(image.pixelColor(0, 60), QColor(0xF3, 0xF5, 0xF7)) << "the border";
    int dark = 0;  // letters of the name above the middle, of the reason below it
    for (int y = 30; y < 60; ++y)
        for (int x = 20; x < 280; ++x)
            dark += image.pixelColor(x, y).lightness() < 140 ? 1 : 0;
    EXPECT_GT(dark, 30);
    dark = 0;
    for (int y = 60; y < 90; ++y)
        for (int x = 20; x < 280; ++x)
            dark += image.pixelColor(x, y).lightness() < 140 ? 1 : 0;
    EXPECT_GT(dark, 30);
}

TEST_F(DamagedPictures, ThatAreMissingLeaveNothing) {
    EXPECT_EQ(LoadPicture(Path("gone.png")), nullptr);
    EXPECT_EQ(LoadPicture(""), nullptr);
    EXPECT_EQ(LoadPicture(folder.path().toStdString()), nullptr);
    ExpectColor(Painted(Path("gone.png"), 100, 50), 50, 25, Qt::white);
    ExpectColor(Painted(Path("gone.png"), 100, 50), 0, 0, Qt::white);
}

TEST_F(DamagedPictures, ThatCannotBeReadAreTold) {
    // Its size is told as nothing, and its first byte can't be read by anyone.
    EXPECT_EQ(LoadPicture("/proc/self/mem")->problem.toStdString(), "cannot be read");
}

/// Pictures whose heads promise more than memory holds.
class HugePictures : public PictureTest {
  protected:
    ~HugePictures() override {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        EXPECT_LT(usage.ru_maxrss, 1 << 20) << "kilobytes in memory at most";
    }
};

TEST_F(HugePictures, OfTwentyThousandSquareAreRefusedUnread) {
    const std::string png = Encoded(RedAndBlue(8, 8), "PNG");
    const std::string jpeg = Encoded(RedAndBlue(8, 8), "JPG");
    const std::string gif = GifFile(8, 8, {Qt::red}, {{0, 0}});
    const auto large = Little(20000, 2) + Little(20000, 2);
    const std::string told = "is too large: 20,000 by 20,000 points";
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(Problem("huge.png", WithPngSize(png, 20000, 20000)), told);
    EXPECT_EQ(Problem("huge.jpg", WithJpegSize(jpeg, 20000, 20000)), told);
    EXPECT_EQ(Problem("huge.gif", gif.substr(0, 6) + large + gif.substr(10)), told);
    // A bitmap must hold all its rows.
    const std::string bitmap = Encoded(RedAndBlue(8, 8), "BMP");
    EXPECT_EQ(Problem("huge.bmp", bitmap.substr(0, 18) + Little(20000, 4) + Little(20000, 4) +
                                      bitmap.substr(26)),
              "is damaged");
    EXPECT_EQ(Problem("endless.png", WithPngSize(png, 0x7FFFFFFF, 0x7FFFFFFF)).substr(0, 12),
              "is too large");
}

TEST_F(HugePictures, ThatAreWholeAreReadScaledDown) {
    // 4000 by 3000 pixels, 12 million; eight million, 8388608, are kept.
    const auto picture = Load("camera.jpg", Encoded(RedAndBlue(4000, 3000), "JPG", 60));
    ASSERT_NE(picture, nullptr);
    ASSERT_EQ(picture->problem.toStdString(), "");
    EXPECT_LE(picture->pixels.width() * picture->pixels.height(), 8388608);
    EXPECT_GT(picture->pixels.width() * picture->pixels.height(), 8000000);
    EXPECT_EQ(picture->size, QSizeF(4000, 3000));
    const QImage image = Painted(Path("camera.jpg"), 40, 30);
    ExpectColor(image, 5, 15, Qt::red, 12);
    ExpectColor(image, 35, 15, Qt::blue, 12);
}

TEST_F(HugePictures, OfAHundredMillionPixelsThatHoldLittleAreBounded) {
    const std::string jpeg = Encoded(RedAndBlue(16, 16), "JPG");
    const auto picture = Load("bomb.jpg", WithJpegSize(jpeg, 10000, 10000));
    ASSERT_NE(picture, nullptr);
    EXPECT_LE(picture->pixels.sizeInBytes(), 4 * 8388608);
    const std::string png = Encoded(RedAndBlue(16, 16), "PNG");
    EXPECT_EQ(Problem("bomb.png", WithPngSize(png, 10000, 10000)), "is damaged");
}

TEST_F(HugePictures, OfManyBytesAreRefused) {
    QFile file(QString::fromStdString(Path("long.png")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64{200} << 20));
    file.close();
    EXPECT_EQ(LoadPicture(Path("long.png"))->problem.toStdString(), "is too large");
}

/// Files are decoded once and kept as long as they stay the same.
using KeptPictures = PictureTest;

TEST_F(KeptPictures, AreDecodedOnceHoweverOftenTheyArePainted) {
    Write("logo.png", Encoded(RedAndBlue(8, 8), "PNG"));
    Write("other.png", Encoded(RedAndBlue(8, 8), "PNG"));
    const auto logo = LoadPicture(Path("logo.png")), other = LoadPicture(Path("other.png"));
    for (int page = 0; page < 50; ++page) {
        Painted(Path("logo.png"), 20, 20);
        Painted(Path("other.png"), 20, 20);
    }
    EXPECT_EQ(LoadPicture(Path("logo.png")), logo);
    EXPECT_EQ(LoadPicture(Path("other.png")), other);
}

TEST_F(KeptPictures, ThatChangedBetweenTwoRunsAreReadAgain) {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    Write("logo.bmp", Encoded(image, "BMP"));
    ExpectColor(Painted(Path("logo.bmp"), 8, 8), 4, 4, Qt::red);
    image.fill(Qt::blue);
    Write("logo.bmp", Encoded(image, "BMP"));  // of the same length
    QFile file(QString::fromStdString(Path("logo.bmp")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(2),
                                 QFileDevice::FileModificationTime));
    file.close();
    ExpectColor(Painted(Path("logo.bmp"), 8, 8), 4, 4, Qt::blue);
    ASSERT_TRUE(QFile::remove(file.fileName()));
    ExpectColor(Painted(Path("logo.bmp"), 8, 8), 4, 4, Qt::white);
}

TEST_F(KeptPictures, GiveWayToNewerOnesWithinBoundedRoom) {
    // Seven of 4 million pixels, 16 MB each: four fit into 64 MB.
    std::vector<std::weak_ptr<const LoadedPicture>> pictures;
    for (int i = 0; i < 7; ++i)
        pictures.push_back(
            Load("large" + std::to_string(i) + ".png", Encoded(RedAndBlue(2048, 2048), "PNG")));
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_EQ(pictures[i].expired(), i < 3) << i;
}

}  // namespace
}  // namespace tendo

#include <QFile>

#include "picture_fixture.h"
#include "platform/qt/drawing_cleaner.h"

namespace tendo {
namespace {

constexpr const char* Head =
    R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="0 0 10 10">)";

using Drawings = PictureTest;

std::string Clean(const std::string& text) {
    return CleanDrawing(text).toStdString();
}

TEST_F(Drawings, WithBrokenXmlAreDamaged) {
    for (const char* text :
         {"<svg", "<svg>", "<svg><rect></svg>", "<svg><rect x=1/></svg>", "<svg>&unknown;</svg>",
          "<svg></svg><svg></svg>", "<svg a='1' a='2'/>", "<p><svg/>", "<svg/>trailing text"})
        EXPECT_EQ(Problem("broken.svg", text), "is damaged") << text;
}

TEST_F(Drawings, LoadNoOtherFile) {
    QImage red(10, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    const std::string other = Write("other.png", Encoded(red, "PNG"));
    for (const std::string& reference :
         {other, "file://" + other, std::string("other.png"), std::string("./other.png")}) {
        for (const char* link : {"xlink:href", "href"}) {
            const std::string text = Head + std::string("<image width='10' height='10' ") + link +
                                     "='" + reference + "'/></svg>";
            ExpectColor(Painted("linked.svg", text, 10, 10), 5, 5, Qt::white);
        }
    }
}

TEST_F(Drawings, LoadNoStyleSheetOfAnotherFile) {
    const std::string sheet = Write("sheet.css", "rect { fill: #ff0000 }");
    const std::string text = "<?xml version='1.0'?><?xml-stylesheet type='text/css' href='" +
                             sheet + "'?>" + Head +
                             "<rect width='10' height='10' fill='#0000ff'/></svg>";
    ExpectColor(Painted("styled.svg", text, 10, 10), 5, 5, Qt::blue);
}

TEST_F(Drawings, HoldPicturesOfTheirOwn) {
    const QByteArray png = QByteArray::fromStdString(Encoded(RedAndBlue(10, 10), "PNG"));
    const std::string text = Head +
                             std::string(
                                 "<image width='10' height='10' "
                                 "xlink:href='data:image/png;base64,") +
                             png.toBase64().toStdString() + "'/></svg>";
    const QImage image = Painted("holding.svg", text, 10, 10);
    ExpectColor(image, 2, 5, Qt::red);
    ExpectColor(image, 8, 5, Qt::blue);
}

TEST_F(Drawings, LinkTheirPartsUnderBothNamesOfLinks) {
    for (const char* link : {"xlink:href", "href"}) {
        const std::string text =
            Head +
            std::string("<defs><rect id='r' width='5' height='10' fill='#f00'/></defs><use ") +
            link + "='#r' x='5'/></svg>";
        const QImage image = Painted("parts.svg", text, 10, 10);
        ExpectColor(image, 2, 5, Qt::white);
        ExpectColor(image, 8, 5, Qt::red);
    }
}

TEST_F(Drawings, AreUnderstoodWithoutTheirNamespaces) {
    const std::string text =
        "<svg viewBox='0 0 10 10'><rect id='r' width='5' height='10' fill='#f00'/>"
        "<use xlink:href='#r' x='5'/></svg>";
    ExpectColor(Painted("bare.svg", text, 10, 10), 8, 5, Qt::red);
}

TEST_F(Drawings, KeepTheirOwnEntitiesAndStyles) {
    const std::string text =
        "<!DOCTYPE svg [<!ENTITY shade '#00ff00'>]>" + std::string(Head) +
        "<style>.b { fill: #0000ff }</style><rect width='5' height='10' fill='&shade;'/>"
        "<rect class='b' x='5' width='5' height='10'/></svg>";
    const QImage image = Painted("entities.svg", text, 10, 10);
    ExpectColor(image, 2, 5, Qt::green);
    ExpectColor(image, 8, 5, Qt::blue);
}

TEST_F(Drawings, WhoseEntitiesGrowWithoutEndAreDamaged) {
    std::string text = "<!DOCTYPE svg [<!ENTITY a0 'ha ha ha ha '>";
    for (int i = 1; i < 20; ++i) {
        const std::string before = "&a" + std::to_string(i - 1) + ";";
        text += "<!ENTITY a" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j)
            text += before;
        text += "'>";
    }
    EXPECT_EQ(Problem("laughs.svg", text + "]>" + Head + "<text>&a19;</text></svg>"), "is damaged");
}

TEST_F(Drawings, ThatReadEntitiesFromFilesGetNothingOfThem) {
    const std::string secret = Write("secret.txt", "secret words");
    const std::string text = "<!DOCTYPE svg [<!ENTITY s SYSTEM 'file://" + secret + "'>]>" + Head +
                             "<text>&s;</text></svg>";
    EXPECT_EQ(Clean(text).find("secret"), std::string::npos);
}

/// Groups that repeat the one before ten times each.
std::string Repeating(int groups, bool backwards) {
    std::vector<std::string> parts = {"<rect id='g0' width='1' height='1'/>"};
    for (int i = 1; i < groups; ++i) {
        std::string part = "<g id='g" + std::to_string(i) + "'>";
        for (int j = 0; j < 10; ++j)
            part += "<use xlink:href='#g" + std::to_string(i - 1) + "'/>";
        parts.push_back(part + "</g>");
    }
    if (backwards) std::reverse(parts.begin(), parts.end());
    std::string text = Head;
    for (const std::string& part : parts)
        text += part;
    return text + "</svg>";
}

TEST_F(Drawings, ThatRepeatThemselvesABillionTimesAreDamaged) {
    EXPECT_EQ(Problem("forward.svg", Repeating(10, false)), "is damaged");
    EXPECT_EQ(Problem("backward.svg", Repeating(10, true)), "is damaged");
    EXPECT_EQ(Problem("itself.svg", Head + std::string("<g id='a'><use href='#a'/></g></svg>")),
              "is damaged");
    EXPECT_EQ(Problem("few.svg", Repeating(3, false)), "");
}

TEST_F(Drawings, NestedWithoutEndAreDamaged) {
    std::string text = Head;
    for (int i = 0; i < 100000; ++i)
        text += "<g>";
    EXPECT_EQ(Problem("deep.svg", text), "is damaged");
}

TEST_F(Drawings, RunNoScript) {
    const std::string clean = Clean(std::string(Head) +
                                    "<script>alert(1)</script><foreignObject><p/></foreignObject>"
                                    "<rect onclick='x()' width='1' height='1'/></svg>");
    EXPECT_EQ(clean.find("alert"), std::string::npos);
    EXPECT_EQ(clean.find("foreignObject"), std::string::npos);
    EXPECT_NE(clean.find("<rect"), std::string::npos);
}

TEST_F(Drawings, ThatAreCompressedAreNoPictures) {
    EXPECT_EQ(Problem("packed.svg", std::string("\x1F\x8B\x08\0\0\0\0\0", 8)), "is not a picture");
}

}  // namespace
}  // namespace tendo

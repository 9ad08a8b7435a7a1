#include "platform/qt/metafile_converter.h"

#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>

#include "picture_fixture.h"

namespace tendo {
namespace {

/// Puts a folder of own programs in front of the system's.
class Converters : public PictureTest {
  protected:
    Converters() : path_(qgetenv("PATH")) {}
    ~Converters() override { qputenv("PATH", path_); }

    /// No program is found but those of the folder.
    void HideSystem() { qputenv("PATH", folder.path().toLocal8Bit()); }
    /// A program that a shell runs.
    void Install(const std::string& name, const std::string& commands) {
        Write(name, "#!/bin/sh\nPATH=/usr/bin:/bin\n" + commands + "\n");
        QFile::setPermissions(QString::fromStdString(Path(name)),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", folder.path().toLocal8Bit() + ":" + path_);
    }
    static std::string ProblemOf(const std::string& bytes) {
        return ConvertMetafile(bytes).problem.toStdString();
    }

  private:
    QByteArray path_;
};

/// A metafile that doesn't tell its window, which only the system's converter can judge.
std::string WindowlessMetafile() {
    std::string bytes = RedMetafile(false);
    bytes.replace(bytes.find(std::string("\x0C\x02", 2)), 2, std::string("\x0E\x02", 2));
    return bytes;
}

TEST_F(Converters, MakeADrawingOfAnEnhancedMetafile) {
    if (QStandardPaths::findExecutable(QStringLiteral("emf2svg-conv")).isEmpty())
        GTEST_SKIP() << "emf2svg-conv (package emf2svg) isn't installed";
    const auto picture = Load("logo.emf", RedEnhancedMetafile());
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->problem.toStdString(), "");
    EXPECT_NE(picture->drawing, nullptr);
    // 2646 by 1323 hundredths of a millimetre: twice as wide as high.
    EXPECT_EQ(picture->size, QSizeF(2646, 1323));
    const QImage image = Painted(Path("logo.emf"), 200, 100);
    ExpectColor(image, 50, 40, Qt::red);
    ExpectColor(image, 150, 50, Qt::white);
}

TEST_F(Converters, MakeADrawingOfAMetafileWithoutAWindow) {
    if (QStandardPaths::findExecutable(QStringLiteral("wmf2svg")).isEmpty())
        GTEST_SKIP() << "wmf2svg (package libwmf-bin) isn't installed";
    const auto picture = Load("windowless.wmf", WindowlessMetafile());
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->problem.toStdString(), "");
    EXPECT_NE(picture->drawing, nullptr);
    EXPECT_FALSE(picture->size.isEmpty());
}

TEST_F(Converters, ThatAreNotInstalledAreNamed) {
    HideSystem();
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "needs emf2svg-conv (package emf2svg)");
    EXPECT_EQ(ProblemOf(WindowlessMetafile()), "needs wmf2svg (package libwmf-bin)");
    // What the program paints itself needs none.
    EXPECT_EQ(Problem("own.wmf", RedMetafile(true)), "");
}

TEST_F(Converters, ThatFailAreTold) {
    Install("emf2svg-conv", "exit 3");
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "could not be converted by emf2svg-conv");
    Install("emf2svg-conv", "kill -9 $$");
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "could not be converted by emf2svg-conv");
    Install("emf2svg-conv", "exit 0");  // nothing written
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "could not be converted by emf2svg-conv");
    Install("emf2svg-conv", "echo '<svg><g>' > \"$4\"");  // no whole drawing
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "could not be converted by emf2svg-conv");
}

TEST_F(Converters, ThatNeverEndAreEnded) {
    Install("emf2svg-conv", "while :; do :; done");
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "could not be converted by emf2svg-conv");
    EXPECT_LT(timer.elapsed(), 30000);
}

TEST_F(Converters, ThatWriteWithoutEndAreEnded) {
    Install("emf2svg-conv", "exec yes '<g/>' > \"$4\"");
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "could not be converted by emf2svg-conv");
}

TEST_F(Converters, WorkInAFolderOfTheirOwnThatGoesWithThem) {
    Install("emf2svg-conv",
            "pwd > '" + Path("where") + "'; ls -ld . > '" + Path("mode") + "'; echo \"$1 $3\" > '" +
                Path("words") +
                "'; echo '<svg xmlns=\"http://www.w3.org/2000/svg\"><rect/></svg>' > \"$4\"");
    EXPECT_EQ(ProblemOf(RedEnhancedMetafile()), "");
    const auto line = [&](const char* name) {
        QFile file(QString::fromStdString(Path(name)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readLine().trimmed();
    };
    EXPECT_FALSE(QFile::exists(QString::fromLocal8Bit(line("where"))));
    EXPECT_TRUE(line("mode").startsWith("drwx------")) << line("mode").toStdString();
    EXPECT_EQ(line("words"), "-i -o");
}

TEST_F(Converters, MayWritePicturesBesideTheirDrawing) {
    Write("beside.png", Encoded(RedAndBlue(10, 10), "PNG"));
    Install(
        "emf2svg-conv",
        "cp '" + Path("beside.png") +
            "' beside.png; echo '<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\">"
            "<image width=\"10\" height=\"10\" href=\"beside.png\"/></svg>' > \"$4\"");
    ExpectColor(Painted("with_picture.emf", RedEnhancedMetafile(), 10, 10), 2, 5, Qt::red);
    Install("emf2svg-conv",
            "echo '<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\">"
            "<image width=\"10\" height=\"10\" href=\"" +
                Path("beside.png") + "\"/></svg>' > \"$4\"");
    ExpectColor(Painted("with_path.emf", RedEnhancedMetafile(), 10, 10), 2, 5, Qt::white);
}

}  // namespace
}  // namespace tendo

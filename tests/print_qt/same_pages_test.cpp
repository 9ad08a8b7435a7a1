#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QProcessEnvironment>
#include <cstdlib>
#include <map>

#include "paper_fixture.h"
#include "platform/files/safe_file.h"
#include "platform/qt/apply_theme.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_printer.h"

namespace tendo {
namespace {

constexpr const char* PapersFolder = "TENDO_PAPERS";
constexpr const char* PapersTheme = "TENDO_PAPERS_THEME";

/// Screen, PDF, printer and pictures show the same pages.
class SamePages : public PaperTest {
  protected:
    static std::vector<int> AllPages(const Document& document) {
        std::vector<int> pages;
        for (int page = 0; page < static_cast<int>(document.pages.size()); ++page)
            pages.push_back(page);
        return pages;
    }
    /// Prints into a PDF file at a resolution; its path.
    std::string Print(const Document& document, int resolution) {
        const std::string path = File("print-" + std::to_string(resolution) + ".pdf");
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(path));
        printer.setPageSize(QPageSize(QPageSize::Letter));
        printer.setResolution(resolution);
        const PrintResult result =
            PrintPages(printer, document, AllPages(document), [](int, int) { return true; });
        EXPECT_EQ(result.outcome, PrintOutcome::Printed);
        return path;
    }
    static void ExpectTexts(const Document& document, const std::vector<std::string>& pages) {
        ASSERT_EQ(pages.size(), document.pages.size());
        for (std::size_t page = 0; page < pages.size(); ++page)
            EXPECT_EQ(Words(pages[page]), Words(PageText(document.pages[page])));
    }
};

TEST_F(SamePages, APdfHoldsTheTextsOfTheDisplayList) {
    for (const PaperJob& job : PaperJobs()) {
        const auto pages = PdfPages(PdfOf(job), "-raw");
        if (!pages) GTEST_SKIP() << "pdftotext (poppler-utils) isn't installed";
        ExpectTexts(LayOut(job), *pages);
    }
}

TEST_F(SamePages, APrinterOfAnyResolutionPrintsTheSameTexts) {
    const Document document = LayOut(PaperJobs()[4]);
    for (const int resolution : {96, 150, 300, 600}) {
        SCOPED_TRACE(resolution);
        const auto pages = PdfPages(Print(document, resolution), "-raw");
        if (!pages) GTEST_SKIP() << "pdftotext (poppler-utils) isn't installed";
        ExpectTexts(document, *pages);
    }
}

TEST_F(SamePages, PicturesOfAnyResolutionShowTheSamePage) {
    const Document document = LayOut(PaperJobs()[0]);
    const QSize small(85, 110);
    const auto reduced = [&](int page, double dpi) {
        return PageImage(document, page, dpi)
            .scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    for (int page = 0; page < static_cast<int>(document.pages.size()); ++page) {
        // A dot of the small picture is a tenth of an inch; a word makes it some 80 levels darker.
        const QImage first = reduced(page, 96);
        for (const double dpi : {150.0, 300.0, 600.0}) {
            const QImage other = reduced(page, dpi);
            int farthest = 0;
            for (int y = 0; y < small.height(); ++y)
                for (int x = 0; x < small.width(); ++x)
                    farthest = std::max(
                        farthest, std::abs(qGray(first.pixel(x, y)) - qGray(other.pixel(x, y))));
            EXPECT_LT(farthest, 48) << "page " << page + 1 << " at " << dpi;
        }
    }
}

TEST_F(SamePages, PapersAreWrittenForTheRunThatComparesThem) {
    const std::string kept = qEnvironmentVariable(PapersFolder).toStdString();
    if (kept.empty()) GTEST_SKIP() << "only runs for the test below";
    ApplyTheme(*qApp, qEnvironmentVariable(PapersTheme) == QLatin1String("dark"));
    for (const PaperJob& job : PaperJobs()) {
        ReplaceFile(kept + "/" + job.name + ".json", DocumentJson(LayOut(job)));
        PdfOf(job);
        WritePng(LayOut(job), kept + "/" + job.name + ".png", 40);
    }
}

/// All files that a run of this program writes at a screen scale and in a theme, by name.
std::map<std::string, std::string> FilesOfRun(const QString& folder, const char* scale,
                                              const char* theme) {
    QDir().mkpath(folder);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QLatin1String(scale));
    environment.insert(QLatin1String(PapersFolder), folder);
    environment.insert(QLatin1String(PapersTheme), QLatin1String(theme));
    process.setProcessEnvironment(environment);
    process.start(QApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_filter=*PapersAreWrittenForTheRun*")});
    EXPECT_TRUE(process.waitForFinished(120'000));
    EXPECT_EQ(process.exitCode(), 0);
    std::map<std::string, std::string> files;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files))
        files[file.fileName().toStdString()] = ReadWholeFile(file.filePath().toStdString());
    return files;
}

TEST_F(SamePages, ScreenScaleAndThemeDoNotTouchTheFiles) {
    const auto plain = FilesOfRun(folder.filePath(QStringLiteral("plain")), "1", "light");
    const auto other = FilesOfRun(folder.filePath(QStringLiteral("other")), "2", "dark");
    ASSERT_GT(plain.size(), 3 * PaperJobs().size());
    ASSERT_EQ(plain.size(), other.size());
    for (const auto& [name, bytes] : plain)
        EXPECT_TRUE(other.at(name) == bytes) << name;
}

}  // namespace
}  // namespace tendo

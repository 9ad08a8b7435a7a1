#include "reports/screens/export_document.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "platform/files/paths.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/progress_window.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char *PdfTitle = "Save as PDF", *PngTitle = "Save as PNG";

bool HasPages(const Document& document, const char* title) {
    if (!document.pages.empty()) return true;
    ShowMessage(title, "There is nothing to save: the reports have no pages.",
                MessageIcon::Information);
    return false;
}

/// Empty when the user gave up.
std::string AskForFile(const char* title, const char* kind, const std::string& extension) {
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.title = title;
    dialog.filter = std::string(kind) + " (*." + extension + ")|*." + extension;
    dialog.folder = State().ProjectsDirectory;
    dialog.fileName = ExportName("." + extension);
    dialog.defaultExtension = extension;
    dialog.promptOnOverwrite = true;
    return Dialogs().File(dialog).value_or("");
}

/// False, and told, when it failed.
bool Told(const char* title, const std::function<void()>& write) {
    try {
        const Hourglass pointer;
        write();
        return true;
    } catch (const RuntimeError& error) {
        ShowMessage(title, error.Description(), MessageIcon::Warning);
        return false;
    }
}

/// Only the name that was typed has been asked about; the numbered ones are asked about here.
bool MayReplace(const std::vector<std::string>& files) {
    std::size_t there = 0;
    std::string first;
    for (const std::string& file : files) {
        if (!FileExists(file)) continue;
        if (there++ == 0) first = file;
    }
    if (there == 0) return true;
    const std::string others =
        there > 1 ? " and " + std::to_string(there - 1) + " more of these pages" : "";
    return Ask(PngTitle, BaseName(first) + others + " are on the disk already.  Replace them?",
               Buttons::YesNo) == Answer::Yes;
}

/// The number of pages written; fewer than all when the user stopped it.
int WritePictures(const Document& document, const std::vector<std::string>& files, int dpi) {
    const WindowWhileWorking window("Saving...");
    const int count = static_cast<int>(files.size());
    int done = 0;
    while (done < count) {
        const std::string text =
            "Page " + std::to_string(done + 1) + " of " + std::to_string(count) + "...";
        if (!ShowStep(text, done, count)) break;
        WritePagePng(document, done, files[static_cast<std::size_t>(done)], dpi);
        ++done;
    }
    return done;
}

ExportNote ExportAllPng(const Document& document, const std::string& file, int dpi) {
    std::vector<std::string> files;
    for (int page = 0; page < static_cast<int>(document.pages.size()); ++page)
        files.push_back(PagePngName(file, page));
    if (!MayReplace(files)) return {};
    int done = 0;
    const bool well = Told(PngTitle, [&] { done = WritePictures(document, files, dpi); });
    if (!well || done == 0) return {};
    const std::string last = files[static_cast<std::size_t>(done) - 1];
    const std::string note = "Saved as " + files.front() + " to " + BaseName(last);
    return done == static_cast<int>(files.size()) ? note : note + ", then stopped";
}

}  // namespace

std::string ExportName(const std::string& extension) {
    const std::string stem = StemOf(State().ProjectFileName);
    return (stem.empty() ? "Proposal" : stem) + extension;
}

ExportNote ExportPdf(const Document& document) {
    if (!HasPages(document, PdfTitle)) return {};
    const std::string file = AskForFile(PdfTitle, "PDF File", "pdf");
    if (file.empty() || !Told(PdfTitle, [&] { WritePdf(document, file); })) return {};
    return "Saved as " + file;
}

ExportNote ExportPng(const Document& document, const PictureExport& how) {
    if (!HasPages(document, PngTitle)) return {};
    const std::string file = AskForFile(PngTitle, "PNG Picture", "png");
    if (file.empty()) return {};
    if (how.page < 0 && document.pages.size() > 1) return ExportAllPng(document, file, how.dpi);
    const int page = std::max(how.page, 0);
    if (!Told(PngTitle, [&] { WritePagePng(document, page, file, how.dpi); })) return {};
    return "Saved as " + file;
}

}  // namespace tendo

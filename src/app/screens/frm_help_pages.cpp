#include "app/screens/frm_help_pages.h"

#include <algorithm>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr const char* indexPage = "index.md";
constexpr std::uint64_t longestPage = 1 << 20;

std::string TitleOf(const HelpPage& page) {
    for (const std::string& line : Split(page.text, '\n'))
        if (StartsWith(line, "# ")) return std::string(Trimmed(line.substr(2)));
    return page.file;
}

/// Where the index names a page; behind everything when it doesn't.
std::size_t PlaceInIndex(const std::string& index, const HelpPage& page) {
    if (page.file == indexPage) return 0;
    return index.find("(" + page.file + ")");
}

/// "1. [Keys](keys.md)" gives "1. Keys"; code marks, table bars and heading marks go.
std::string PlainLine(std::string_view line) {
    std::string plain;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool target = line[i] == ']' && i + 1 < line.size() && line[i + 1] == '(';
        if (target) {
            const auto end = line.find(')', i);
            if (end == std::string_view::npos) break;
            i = end;
        } else if (line[i] == '|') {
            plain += ' ';
        } else if (std::string_view("[]`*#!").find(line[i]) == std::string_view::npos) {
            plain += line[i];
        }
    }
    return std::string(Trimmed(plain));
}

bool HoldsAll(const std::string& line, const std::vector<std::string>& words) {
    const std::string upper = UpperCase(line);
    return std::all_of(words.begin(), words.end(),
                       [&](const std::string& word) { return Contains(upper, word); });
}

}  // namespace

std::vector<HelpPage> LoadHelpPages(const std::string& folder) {
    std::vector<HelpPage> pages;
    std::string index;
    for (const std::string& file : FilesIn(folder)) {
        if (!EndsWith(file, ".md")) continue;
        HelpPage page{file, "", ReadWholeFile(WithSeparator(folder) + file, longestPage)};
        page.title = TitleOf(page);
        if (file == indexPage) index = page.text;
        pages.push_back(std::move(page));
    }
    std::stable_sort(pages.begin(), pages.end(), [&](const HelpPage& a, const HelpPage& b) {
        return PlaceInIndex(index, a) < PlaceInIndex(index, b);
    });
    return pages;
}

std::vector<HelpFind> SearchHelp(const std::vector<HelpPage>& pages, std::string_view text) {
    std::vector<std::string> words;
    for (const std::string& word : Split(UpperCase(text), ' '))
        if (!word.empty()) words.push_back(word);
    std::vector<HelpFind> headings;
    std::vector<HelpFind> lines;
    if (words.empty()) return lines;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        for (const std::string& line : Split(pages[page].text, '\n')) {
            const std::string plain = PlainLine(line);
            if (!HoldsAll(plain, words)) continue;
            (StartsWith(line, "#") ? headings : lines).push_back({page, plain});
        }
    }
    headings.insert(headings.end(), lines.begin(), lines.end());
    return headings;
}

const std::vector<std::pair<std::string, std::string>>& HelpPagesByScreen() {
    static const std::vector<std::pair<std::string, std::string>> table = {
        {"frmGPD", "general-project-data.md"},
        {"frmHelpInfo", "general-project-data.md"},
        {"frmModelSelection", "model-selection.md"},
        {"frmSumModelData", "price-table.md"},
        {"frmSumRptData", "price-table.md"},
        {"frmDetailModelData", "model-details.md"},
        {"frmMisModelData", "model-details.md"},
        {"frmWHInfo", "hot-water.md"},
        {"frmPreview", "preview.md"},
        {"frmPrint", "reports.md"},
        {"frmTempFile", "files.md"},
        {"frmMatCosts", "takeoff.md"},
        {"frmEditMaterials", "materials.md"},
        {"frmListAddDelete", "lists.md"},
        {"frmMatList", "lists.md"},
        {"frmLaborCosts", "labor.md"},
        {"frmLaborList", "lists.md"},
        {"frmFootnotes", "footnotes.md"},
        {"frmFootnoteNew", "footnotes.md"},
        {"frmSelectFootNoteFromDB", "footnotes.md"},
        {"frmReportOptions", "report-options.md"},
        {"frmBanner", "banner.md"},
        {"frmOwner", "banner.md"}};
    return table;
}

std::string HelpPageOfScreen(std::string_view screen) {
    for (const auto& [name, page] : HelpPagesByScreen())
        if (name == screen) return page;
    return indexPage;
}

}  // namespace tendo

#include "programs/driver/report_access.h"

#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"
#include "platform/text/number_text.h"
#include "reports/screens/report_run.h"

namespace tendo::driver {
namespace {

Json CallAsJson(const SurfaceCall& call) {
    return Json::parse(CallJson(call));
}

/// OP [KEY VALUE ...]; a single word behind the op is its value.
bool Fits(const SurfaceCall& call, const Words& words) {
    if (words.empty() || words[0] != call.op) return false;
    const Json json = CallAsJson(call);
    if (words.size() == 2) return json.contains("value") && Agrees(words[1], json["value"]);
    for (std::size_t i = 1; i + 1 < words.size(); i += 2)
        if (!json.contains(words[i]) || !Agrees(words[i + 1], json[words[i]])) return false;
    return words.size() % 2 == 1;
}

const std::vector<SurfaceCall>& Calls() {
    return LastReportRun().calls;
}

/// A new run of reports is searched from its beginning.
void NoticeNewRun(std::size_t& at) {
    static int searched = 0;
    if (searched != LastReportRun().number) at = 0;
    searched = LastReportRun().number;
}

bool FindNext(const Words& words, std::size_t& at) {
    for (std::size_t i = at; i < Calls().size(); ++i) {
        if (!Fits(Calls()[i], words)) continue;
        at = i + 1;
        return true;
    }
    return false;
}

Json SurfaceCommand(Session&, const Words&) {
    return SurfaceCalls();
}

Json DocumentCommand(Session&, const Words&) {
    return DocumentAsJson();
}

/// With a page number that page alone, as a picture of a screen's resolution.
Json PdfCommand(Session&, const Words& words) {
    constexpr double ScreenDpi = 96;
    MustHave(words, 2, "pdf PATH [PAGE]");
    const Document& document = LastReportRun().document;
    if (words.size() == 2) {
        WritePdf(document, words[1]);
        return nullptr;
    }
    const auto page = static_cast<int>(LeadingInteger(words[2]));
    if (page < 1 || page > static_cast<int>(document.pages.size()))
        throw CommandFault("there is no page " + words[2]);
    WritePagePng(document, page - 1, words[1], ScreenDpi);
    return nullptr;
}

}  // namespace

Json SurfaceCalls() {
    Json calls = Json::array();
    for (const SurfaceCall& call : Calls())
        calls.push_back(CallAsJson(call));
    return calls;
}

std::size_t CountSurface(const Words& words) {
    std::size_t count = 0;
    for (const SurfaceCall& call : Calls())
        count += Fits(call, words) ? 1U : 0U;
    return count;
}

bool ExpectSurface(const Words& words, std::size_t& at) {
    if (words.empty())
        throw CommandFault(
            "usage: expect surface start | next OP ... | count N OP ... | OP [KEY VALUE ...]");
    NoticeNewRun(at);
    if (words[0] == "start") {
        at = 0;
        return true;
    }
    if (words[0] == "next") {
        const Words rest(words.begin() + 1, words.end());
        if (at >= Calls().size()) throw CommandFault("no further call");
        const SurfaceCall& call = Calls()[at];
        if (!Fits(call, rest))
            throw CommandFault("another call comes next", rest.empty() ? "" : rest[0],
                               CallAsJson(call));
        ++at;
        return true;
    }
    if (words[0] == "count") {
        MustHave(words, 3, "expect surface count N OP [KEY VALUE ...]");
        const std::size_t count = CountSurface({words.begin() + 2, words.end()});
        if (!Agrees(words[1], count))
            throw CommandFault("another number of calls", words[1], count);
        return true;
    }
    return FindNext(words, at);
}

Json DocumentAsJson() {
    return Json::parse(DocumentJson(LastReportRun().document));
}

std::size_t DocumentPageCount() {
    return LastReportRun().document.pages.size();
}

std::string DocumentPageText(int number) {
    const auto& pages = LastReportRun().document.pages;
    if (number < 1 || static_cast<std::size_t>(number) > pages.size())
        throw CommandFault("the document has " + std::to_string(pages.size()) + " pages");
    return PageText(pages[static_cast<std::size_t>(number) - 1]);
}

void AddReportCommands(std::map<std::string, Command>& commands) {
    commands["surface"] = SurfaceCommand;
    commands["document"] = DocumentCommand;
    commands["pdf"] = PdfCommand;
}

}  // namespace tendo::driver

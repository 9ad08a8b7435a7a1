#include "reports/mail_message.h"

#include <algorithm>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

bool IsAddress(std::string_view word) {
    const std::size_t at = word.find('@');
    return at != std::string_view::npos && at > 0 && at + 1 < word.size() && word.front() != '-' &&
           word.find('@', at + 1) == std::string_view::npos;
}

}  // namespace

std::vector<std::string> MailAddresses(std::string_view field) {
    constexpr std::string_view Between = " ,;\t\r\n";
    std::vector<std::string> addresses;
    std::size_t begin = field.find_first_not_of(Between);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(field.find_first_of(Between, begin), field.size());
        const std::string_view word = field.substr(begin, end - begin);
        if (IsAddress(word)) addresses.emplace_back(word);
        begin = field.find_first_not_of(Between, end);
    }
    return addresses;
}

std::vector<std::string> MailArguments(std::string_view projectTitle, std::string_view address,
                                       const std::string& file) {
    std::string subject = "Proposal";
    if (!projectTitle.empty()) subject += ": " + std::string(projectTitle);
    std::vector<std::string> arguments = {"--utf8", "--subject", subject, "--attach", file};
    for (std::string& found : MailAddresses(address))
        arguments.push_back(std::move(found));
    return arguments;
}

std::string FreeFileName(const std::string& folder, const std::string& name) {
    std::string file = folder + name;
    for (int number = 2; FileExists(file); ++number)
        file = folder + StemOf(name) + " (" + std::to_string(number) + ")" + ExtensionOf(name);
    return file;
}

void DeletePdfsBefore(const std::string& folder, std::int64_t time) {
    for (const std::string& name : FilesIn(folder)) {
        const auto modified = FileModified(folder + name);
        if (!modified || *modified >= time || ExtensionOf(name) != ".pdf") continue;
        try {
            DeleteFileIfThere(folder + name);
        } catch (const RuntimeError&) {
            // An old file that can't be deleted harms nothing.
        }
    }
}

}  // namespace tendo

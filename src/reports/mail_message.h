#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// The addresses in a field: parted by commas, semicolons or blanks. What is no address, or might
/// be taken for an option of a program, is left out.
std::vector<std::string> MailAddresses(std::string_view field);

/// The arguments of `xdg-email` for a proposal with a file attached. `projectTitle` may be empty;
/// `address` is a field as of `MailAddresses`.
std::vector<std::string> MailArguments(std::string_view projectTitle, std::string_view address,
                                       const std::string& file);

/// A file name in the folder (that ends in the separator) that is not taken: "Job.pdf", else
/// "Job (2).pdf" and so on, since a mail that isn't sent yet may still need the other.
std::string FreeFileName(const std::string& folder, const std::string& name);

/// Deletes the PDF files of the folder that were last changed before `time`, in seconds since 1970.
void DeletePdfsBefore(const std::string& folder, std::int64_t time);

}  // namespace tendo

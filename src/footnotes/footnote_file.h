#pragma once

#include <string>

namespace tendo {

/// The text of a file as a footnote: rich text as it stands, any other text plain. RuntimeError 53
/// or 70 when it can't be read, 7 when it is longer than 64 MB, 3343 for a document of a word
/// processor or a picture: the description says what to do.
std::string ReadFootnoteFile(const std::string& file);

}  // namespace tendo

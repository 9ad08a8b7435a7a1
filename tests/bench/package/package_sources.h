#pragma once

#include <string>

namespace tendo::bench {

/// The package as a document for groff -t -ms, and for LibreOffice Writer (.fodt).
std::string GroffSource();
std::string WriterSource();
/// Documents without a word: what a program's start costs.
std::string EmptyGroffSource();
std::string EmptyWriterSource();

}  // namespace tendo::bench

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tendo {

/// One page of the user guide.
struct HelpPage {
    std::string file;   // "keys.md"
    std::string title;  // its first heading, or the file's name
    std::string text;   // Markdown
};

/// The pages of a folder: the index first, then those it links to in its order, then the others by
/// their names.
std::vector<HelpPage> LoadHelpPages(const std::string& folder);

/// A line that holds all the words asked for.
struct HelpFind {
    std::size_t page;
    std::string line;  // without marks of Markdown
};

/// Lines over all pages in which every word stands, in either case, those of titles and headings
/// first. No words: nothing.
std::vector<HelpFind> SearchHelp(const std::vector<HelpPage>& pages, std::string_view words);

/// Screens and the pages that tell about them.
const std::vector<std::pair<std::string, std::string>>& HelpPagesByScreen();
/// The page that tells about a screen; the index for any other.
std::string HelpPageOfScreen(std::string_view screen);

}  // namespace tendo

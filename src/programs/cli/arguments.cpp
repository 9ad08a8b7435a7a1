#include "programs/cli/arguments.h"

#include <algorithm>

namespace tendo::cli {
namespace {

bool Holds(const std::vector<std::string>& list, const std::string& word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

}  // namespace

std::string Arguments::Value(const std::string& name) const {
    const auto found = options.find(name);
    return found == options.end() ? "" : found->second;
}

Arguments ReadArguments(const std::vector<std::string>& words, const Grammar& grammar) {
    Arguments arguments;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (Holds(grammar.flags, word)) {
            arguments.options[word] = "";
        } else if (Holds(grammar.withValue, word)) {
            if (i + 1 == words.size()) throw UsageError(word + " needs a value behind it");
            arguments.options[word] = words[++i];
        } else if (word.size() > 1 && word[0] == '-') {
            throw UsageError("there is no option " + word);
        } else {
            arguments.plain.push_back(word);
        }
    }
    if (arguments.plain.size() != grammar.plain)
        throw UsageError("wrong number of file names: " + std::to_string(arguments.plain.size()));
    return arguments;
}

}  // namespace tendo::cli

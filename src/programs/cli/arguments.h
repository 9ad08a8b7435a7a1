#pragma once

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tendo::cli {

/// Wrong words on the command line: exit 2.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A failure told on standard error in one line: exit 1.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The words behind the verb: plain ones, flags ("--json") and options with a value ("-o FILE").
struct Arguments {
    std::vector<std::string> plain;
    std::map<std::string, std::string> options;
    bool Has(const std::string& name) const { return options.contains(name); }
    std::string Value(const std::string& name) const;
};

/// What a verb takes.
struct Grammar {
    std::size_t plain = 1;               // how many plain words, exactly
    std::vector<std::string> flags;      // "--json"
    std::vector<std::string> withValue;  // "-o", "--table"
};

/// Throws UsageError for unknown options, missing values and a wrong number of plain words.
Arguments ReadArguments(const std::vector<std::string>& words, const Grammar& grammar);

/// One verb of the program.
struct Verb {
    const char* name;
    const char* usage;
    const char* help;
    Grammar grammar;
    void (*run)(const Arguments&);
};

void RunInfo(const Arguments& arguments);
void RunReport(const Arguments& arguments);
void RunPrices(const Arguments& arguments);
void RunDatabase(const Arguments& arguments);
void RunCheck(const Arguments& arguments);

}  // namespace tendo::cli

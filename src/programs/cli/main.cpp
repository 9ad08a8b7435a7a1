#include <cstdio>
#include <new>

#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "programs/cli/arguments.h"

namespace {

using namespace tendo::cli;

const Verb verbs[] = {
    {"info",
     "tendo-cli info PROJECT [--json]",
     "Shows the records of a project; --json gives every one.",
     {1, {"--json"}, {}},
     RunInfo},
    {"report",
     "tendo-cli report PROJECT -o OUT.pdf|OUT.png [--reports title,sales] [--home DIR]",
     "Writes the project's report package. A .png gives one picture a page (OUT-1.png, OUT-2.png "
     "...).\n"
     "--reports picks reports: title, sales. Options and company come from the program directory.",
     {1, {}, {"-o", "--reports", "--home"}},
     RunReport},
    {"prices",
     "tendo-cli prices BOOK.xls|.xlsx|.csv --into DB.mdb [--replace]",
     "Imports the materials of a workbook's first sheet into a price book: part number, "
     "description, unit\n"
     "cost and list cost from row 2 on. They are added; --replace takes out those that are there.",
     {1, {"--replace"}, {"--into"}},
     RunPrices},
    {"database",
     "tendo-cli database FILE [--schema | --table NAME]",
     "Shows what a data file holds, as JSON: the tables and their row counts, their definitions, "
     "or the\n"
     "rows of one table, a line each.",
     {1, {"--schema"}, {"--table"}},
     RunDatabase},
    {"check",
     "tendo-cli check FILE",
     "Tells whether a data file is whole: exit 0, or 1 and what is wrong.",
     {1, {}, {}},
     RunCheck},
};

void PrintHelp(std::FILE* out) {
    std::fputs("Tendo for people who automate.\n\n", out);
    for (const Verb& verb : verbs)
        std::fprintf(out, "  %s\n", verb.usage);
    std::fputs(
        "\ntendo-cli VERB --help tells more. Exit 0: done; 1: failed, told in one line; 2: wrong "
        "usage.\n",
        out);
}

/// One line, whatever the message holds.
void PrintFailure(const std::string& text) {
    std::string line = tendo::Replaced(text, "\r", "");
    line = tendo::Replaced(line, "\n", " ");
    std::fprintf(stderr, "tendo-cli: %s\n", line.c_str());
}

int RunVerb(const Verb& verb, const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        if (word != "--help") continue;
        std::printf("usage: %s\n\n%s\n", verb.usage, verb.help);
        return 0;
    }
    try {
        verb.run(ReadArguments(words, verb.grammar));
        return 0;
    } catch (const UsageError& error) {
        PrintFailure(std::string(error.what()) + "; usage: " + verb.usage);
        return 2;
    } catch (const Failure& error) {
        PrintFailure(error.what());
    } catch (const tendo::RuntimeError& error) {
        PrintFailure(error.Description() + " (error " + std::to_string(error.Number()) + ")");
    } catch (const std::bad_alloc&) {
        PrintFailure("there is not enough memory for this file");
    } catch (const std::exception& error) {
        PrintFailure(error.what());
    }
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        PrintHelp(stderr);
        return 2;
    }
    const std::string name = argv[1];
    if (name == "--help" || name == "-h" || name == "help") {
        PrintHelp(stdout);
        return 0;
    }
    for (const Verb& verb : verbs)
        if (name == verb.name) return RunVerb(verb, {argv + 2, argv + argc});
    PrintFailure("there is no verb " + name + "; tendo-cli --help lists them");
    return 2;
}

#include <cstdio>
#include <new>

#include "platform/text/runtime_error.h"
#include "programs/cli/arguments.h"
#include "programs/cli/messages.h"

namespace {

using namespace tendo::cli;

const Verb verbs[] = {
    {"info",
     "tendo-cli info PROJECT [--json]",
     "Shows the records of a project; --json gives every one.",
     {1, {"--json"}, {}},
     RunInfo},
    {"report",
     "tendo-cli report PROJECT -o OUT.pdf|OUT.png [--reports title,sales] [--format NAME] [--home "
     "DIR]",
     "Writes the project's report package. A .png gives one picture a page (OUT-1.png, OUT-2.png "
     "...),\n"
     "and OUT.png itself when there is one page. --reports picks reports: title, sales, cost,\n"
     "accessories, installer; without it the report options do. --format uses the options and\n"
     "footnotes of a saved proposal format for this run. Options, formats, pictures and company "
     "come\nfrom the program directory, which is only read.",
     {1, {}, {"-o", "--reports", "--format", "--home"}},
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
        TellLine(std::string(error.what()) + "; usage: " + verb.usage);
        return 2;
    } catch (const Failure& error) {
        TellLine(error.what());
    } catch (const tendo::RuntimeError& error) {
        TellLine(error.Description() + " (error " + std::to_string(error.Number()) + ")");
    } catch (const std::bad_alloc&) {
        TellLine("there is not enough memory for this file");
    } catch (const std::exception& error) {
        TellLine(error.what());
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
    TellLine("there is no verb " + name + "; tendo-cli --help lists them");
    return 2;
}

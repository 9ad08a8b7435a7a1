#pragma once

#include <string>
#include <vector>

#include "platform/jet/jet_reader.h"

namespace tendo::jet {

/// "real/j3_01.mdb" below the shared folder of sample files; empty when it isn't there.
std::string SharedJetFile(const std::string& name);

/// A shared file, or the test is skipped with a message.
#define TENDO_SHARED_JET_FILE(variable, name)                     \
    const std::string variable = tendo::jet::SharedJetFile(name); \
    if (variable.empty()) GTEST_SKIP() << "../shared/jet/" << (name) << " is absent"

using Rows = std::vector<Row>;

/// All rows of a table, with values of their own.
Rows AllRows(const Reader& reader, const std::string& table);
Row Owned(std::span<const ValueView> row);

/// The number of the RuntimeError that the call throws, 0 when it throws none; its description in
/// `text`.
template <class Call>
int ErrorOf(Call call, std::string* text = nullptr);

}  // namespace tendo::jet

#include "platform/text/runtime_error.h"

template <class Call>
int tendo::jet::ErrorOf(Call call, std::string* text) {
    try {
        call();
    } catch (const RuntimeError& error) {
        if (text) *text = error.Description();
        return error.Number();
    }
    return 0;
}

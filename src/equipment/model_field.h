#pragma once

#include <span>
#include <string>
#include <string_view>

#include "project/project_records.h"

namespace tendo {

/// What a field of a model is; decides how it is typed and shown.
enum class ModelFieldKind { Text, Memo, Number, Money, Quantity, ModelNum };

/// One field of a model as screens show it. Numbers show with two decimals.
struct ModelField {
    const char* name;   // the control, "txtCLGElectrical"
    const char* label;  // "Electrical:"
    ModelFieldKind kind = ModelFieldKind::Text;
    int width = 0;          // characters that are kept; 0 for numbers
    const char* unit = "";  // of a number, for the status bar
    std::span<const char* const> choices = {};
    const char* help = "";  // what the prompt for a price says above its question
    bool beside = false;    // stands right of the field before it, not below
    std::string (*read)(const ProjectRecords& records, int system) = nullptr;
    void (*write)(ProjectRecords& records, int system, std::string_view text) = nullptr;
};

/// Takes a text as typed into a system's record (0 to 4). A text that stands as it was shown
/// changes nothing, so that a figure keeps decimals that aren't shown. True when it was taken.
bool CommitModelField(const ModelField& field, ProjectRecords& records, int system,
                      std::string_view text);

}  // namespace tendo

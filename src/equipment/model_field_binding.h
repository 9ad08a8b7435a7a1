#pragma once

#include <utility>

#include "equipment/model_field.h"
#include "equipment/model_prices.h"
#include "platform/text/number_text.h"
#include "pricing/system_models.h"

/// How the tables of model fields reach the project's records.
namespace tendo::model_field_binding {

inline constexpr std::string_view FigurePicture = "##0.00";

template <std::size_t Width>
std::string TextOf(const FixedText<Width>& value) {
    return value.Trimmed();
}
inline std::string TextOf(float value) {
    return FormatNumber(value, FigurePicture);
}

template <std::size_t Width>
void Store(FixedText<Width>& value, std::string_view text) {
    value = text;
}
inline void Store(float& value, std::string_view text) {
    value = ValueOfText(text);
}

template <std::size_t Width>
constexpr int WidthOf(const FixedText<Width>*) {
    return static_cast<int>(Width);
}
constexpr int WidthOf(const float*) {
    return 0;
}

/// A field of the models `Models` (`&ProjectRecords::CLGModelData`).
template <auto Models, auto Member>
ModelField Bind(const char* name, const char* label, std::span<const char* const> choices = {}) {
    using Value =
        std::remove_reference_t<decltype((std::declval<ProjectRecords&>().*Models)[0].*Member)>;
    constexpr int width = WidthOf(static_cast<Value*>(nullptr));
    return {.name = name,
            .label = label,
            .kind = width == 0 ? ModelFieldKind::Number : ModelFieldKind::Text,
            .width = width,
            .choices = choices,
            .read =
                [](const ProjectRecords& records, int system) {
                    return TextOf((records.*Models).at(static_cast<std::size_t>(system)).*Member);
                },
            .write =
                [](ProjectRecords& records, int system, std::string_view text) {
                    Store((records.*Models).at(static_cast<std::size_t>(system)).*Member, text);
                }};
}

template <auto Models, auto Member>
ModelField Figure(const char* name, const char* label, const char* unit) {
    ModelField field = Bind<Models, Member>(name, label);
    field.unit = unit;
    return field;
}

inline ModelField Beside(ModelField field) {
    field.beside = true;
    return field;
}

template <auto Models, auto Member>
ModelField Memo(const char* name, const char* label) {
    ModelField field = Bind<Models, Member>(name, label);
    field.kind = ModelFieldKind::Memo;
    return field;
}

/// The model's number; an emptied one drops the model.
template <auto Models, ModelSide Side>
ModelField Number(const char* name, const char* label) {
    using Record = std::remove_reference_t<decltype((std::declval<ProjectRecords&>().*Models)[0])>;
    ModelField field = Bind<Models, &Record::ModelNum>(name, label);
    field.kind = ModelFieldKind::ModelNum;
    field.write = [](ProjectRecords& records, int system, std::string_view text) {
        if (Trimmed(text).empty()) return DropModel(records, Side, system);
        (records.*Models).at(static_cast<std::size_t>(system)).ModelNum = Trimmed(text);
    };
    return field;
}

/// The name of the model's database; counts only when it leads to a file.
template <auto Models>
ModelField Database(const char* name, const char* label) {
    using Record = std::remove_reference_t<decltype((std::declval<ProjectRecords&>().*Models)[0])>;
    ModelField field = Bind<Models, &Record::DB>(name, label);
    field.width = 0;  // a full path may be typed; the record keeps a name that fits
    field.read = [](const ProjectRecords& records, int system) {
        return ModelDatabaseFile(
            (records.*Models).at(static_cast<std::size_t>(system)).DB.Trimmed());
    };
    field.write = [](ProjectRecords& records, int system, std::string_view text) {
        const std::string file = ModelDatabaseFile(Trimmed(text));
        if (!file.empty())
            (records.*Models).at(static_cast<std::size_t>(system)).DB = ModelDatabaseName(file);
    };
    return field;
}

/// The quantity; the list bases follow it.
template <SelectionMode Side>
ModelField Quantity(const char* name, const char* label) {
    return {.name = name,
            .label = label,
            .kind = ModelFieldKind::Quantity,
            .read = [](const ProjectRecords& records,
                       int system) { return std::to_string(ModelQuantity(records, Side, system)); },
            .write = [](ProjectRecords& records, int system,
                        std::string_view text) { SetModelQuantity(records, Side, system, text); }};
}

/// A price of the water heater.
template <auto Member>
ModelField Price(const char* name, const char* label, const char* help) {
    ModelField field = Bind<&ProjectRecords::ModelInfo, Member>(name, label);
    field.kind = ModelFieldKind::Money;
    field.help = help;
    field.read = [](const ProjectRecords& records, int system) {
        return FormatNumber(records.ModelInfo.at(static_cast<std::size_t>(system)).*Member,
                            MoneyPicture);
    };
    return field;
}

}  // namespace tendo::model_field_binding

#include "equipment/model_database.h"
#include "materials/labor_lists.h"
#include "materials/labor_takeoff.h"
#include "materials/material_lists.h"
#include "materials/takeoff_sums.h"
#include "platform/text/number_text.h"
#include "pricing/relations.h"
#include "programs/driver/session.h"
#include "project/project_file.h"
#include "project/project_lifecycle.h"

namespace tendo::driver {
namespace {

/// A float in its shortest decimal form, as scripts write it.
Json Number(float value) {
    return Json::parse(PlainNumberText(value), nullptr, false);
}

float NumberArgument(const std::string& word) {
    double value = 0;
    if (!ReadNumber(word, value)) throw CommandFault("a number is wanted, not \"" + word + "\"");
    return static_cast<float>(value);
}

using Relation = float (*)(float, float);
struct RelationEntry {
    const char* name;
    Relation relation;
};
const RelationEntry relations[] = {
    {"GrossMarginFromSale", GrossMarginFromSale},
    {"SaleFromGrossMargin", SaleFromGrossMargin},
    {"MarkupFromSale", MarkupFromSale},
    {"SaleFromMarkup", SaleFromMarkup},
    {"ListDiscountFromSale", ListDiscountFromSale},
    {"SaleFromListDiscount", SaleFromListDiscount},
    {"ListPriceFromSale", ListPriceFromSale},
    {"ListPriceFromSalePrice", ListPriceFromSalePrice},
};

struct ProcedureEntry {
    const char* name;
    std::size_t arguments;
    Json (*run)(const Words& arguments);
};
const ProcedureEntry procedures[] = {
    {"SameAsCost", 2,
     [](const Words& a) -> Json { return SameAsCost(NumberArgument(a[0]), NumberArgument(a[1])); }},
    {"ValueOfText", 1, [](const Words& a) -> Json { return Number(ValueOfText(a[0])); }},
    {"FormatNumber", 2,
     [](const Words& a) -> Json { return FormatNumber(NumberArgument(a[0]), a[1]); }},
    {"ResetProjectData", 0,
     [](const Words&) -> Json {
         ResetProjectData();
         return nullptr;
     }},
    {"CreateProjectDatabase", 1,
     [](const Words& a) -> Json {
         std::string name = a[0];
         CreateProjectDatabase(name);
         return name;
     }},
    {"SaveProjectData", 1,
     [](const Words& a) -> Json {
         SaveProjectData(a[0]);
         return nullptr;
     }},
    {"LoadProjectData", 1,
     [](const Words& a) -> Json {
         LoadProjectData(a[0]);
         return nullptr;
     }},
    {"SumLabor", 0,
     [](const Words&) -> Json {
         SumLabor();
         return nullptr;
     }},
    {"SumMaterials", 0,
     [](const Words&) -> Json {
         SumMaterials();
         return nullptr;
     }},
    {"ClearProjectLabor", 0,
     [](const Words&) -> Json {
         ClearProjectLabor();
         return nullptr;
     }},
    {"ApplyLaborList", 1, [](const Words& a) -> Json { return ApplyLaborList(a[0]); }},
    {"ApplyMaterialList", 1,
     [](const Words& a) -> Json {
         std::string name = a[0];
         return ApplyMaterialList(name);
     }},
    {"MakeFileExtensions", 0,
     [](const Words&) -> Json {
         MakeFileExtensions();
         return nullptr;
     }},
    {"CheckToSeeIfDbaseExists", 1,
     [](const Words& a) -> Json { return CheckToSeeIfDbaseExists(a[0]); }},
};

void MustTake(const std::string& name, const Words& arguments, std::size_t count) {
    if (arguments.size() != count)
        throw CommandFault(name + " takes " + std::to_string(count) + " arguments, not " +
                           std::to_string(arguments.size()));
}

}  // namespace

Json CallProcedure(const Words& nameAndArguments) {
    const std::string& name = nameAndArguments[0];
    const Words arguments(nameAndArguments.begin() + 1, nameAndArguments.end());
    for (const RelationEntry& entry : relations) {
        if (name != entry.name) continue;
        MustTake(name, arguments, 2);
        return Number(entry.relation(NumberArgument(arguments[0]), NumberArgument(arguments[1])));
    }
    for (const ProcedureEntry& entry : procedures) {
        if (name != entry.name) continue;
        MustTake(name, arguments, entry.arguments);
        return entry.run(arguments);
    }
    throw CommandFault("there is no procedure " + name);
}

}  // namespace tendo::driver

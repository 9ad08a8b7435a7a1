#include <cstdio>
#include <nlohmann/json.hpp>

#include "platform/text/number_text.h"
#include "programs/cli/arguments.h"
#include "programs/cli/project_reading.h"
#include "project/record_access.h"

namespace tendo::cli {
namespace {

void Line(const char* label, const std::string& value) {
    if (!value.empty()) std::printf("%-14s %s\n", label, value.c_str());
}

void PrintSystem(const ProjectRecords& records, std::size_t system) {
    const ModelInfoRecord& prices = records.ModelInfo[system];
    struct Side {
        const char* label;
        std::string model;
        float price;
    };
    const Side sides[] = {
        {"  cooling", records.CLGModelData[system].ModelNum.Trimmed(), prices.CLGSalePrice},
        {"  heating", records.HTGModelData[system].ModelNum.Trimmed(), prices.HTGSalePrice},
        {"  hot water", records.WHModelData[system].ModelNum.Trimmed(), prices.WHSalePrice},
    };
    bool headed = false;
    for (const Side& side : sides) {
        if (side.model.empty()) continue;
        if (!headed) std::printf("System %zu\n", system + 1);
        headed = true;
        std::printf("%-14s %-24s %s\n", side.label, side.model.c_str(),
                    FormatNumber(side.price, MoneyPicture).c_str());
    }
}

template <class Rows, class IsUsed>
std::size_t CountOf(const Rows& rows, IsUsed isUsed) {
    std::size_t count = 0;
    for (const auto& row : rows)
        count += isUsed(row) ? 1U : 0U;
    return count;
}

void PrintSummary(const ProjectRecords& records) {
    Line("Title", records.GPDProjectFormat.Title.Trimmed());
    Line("Date", records.GPDProjectFormat.Date.Trimmed());
    Line("Designed by", records.GPDProjectFormat.DesignedBy.Trimmed());
    Line("Client", records.GPDClientFormat.Name.Trimmed());
    Line("Company", records.GPDCompanyFormat.Name.Trimmed());
    for (std::size_t system = 0; system < SystemCount; ++system)
        PrintSystem(records, system);
    std::printf(
        "%-14s %zu lines\n", "Materials",
        CountOf(records.ProjectMaterials, [](const MaterialRow& row) { return row.ItemQty > 0; }));
    std::printf("%-14s %zu lines\n", "Labor",
                CountOf(records.ProjectLabor, [](const LaborRow& row) { return row.QtyHrs > 0; }));
    std::printf("%-14s %d, accessories report %d\n", "Footnotes", records.gvNumOfFootnotes,
                records.NumOfAccRptFootnotes);
    Line("Tax", FormatNumber(records.SystemTendos.TaxSalePrice, MoneyPicture));
    Line("Total", FormatNumber(records.SystemTendos.TotalSalePrice, MoneyPicture));
    Line("Profit", FormatNumber(records.SystemTendos.Profit, MoneyPicture));
}

}  // namespace

void RunInfo(const Arguments& arguments) {
    const ProjectRecords records = ReadProject(arguments.plain[0]);
    if (arguments.Has("--json"))
        std::printf("%s\n", RecordsAsJson(records)
                                .dump(2, ' ', false, nlohmann::json::error_handler_t::replace)
                                .c_str());
    else
        PrintSummary(records);
}

}  // namespace tendo::cli

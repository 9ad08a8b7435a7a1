#include "materials/labor_takeoff.h"

#include <algorithm>
#include <array>
#include <span>

#include "pricing/list_base.h"
#include "pricing/relations.h"
#include "project/project_records.h"

namespace tendo {
namespace {

std::span<LaborRow> ProjectLines() {
    return std::span(Project().ProjectLabor).first<SavedLaborRowCount>();
}

float SumOf(float LaborRow::*field) {
    double sum = 0;
    for (const LaborRow& row : ProjectLines())
        sum += static_cast<double>(row.*field);
    return StoreSingle(sum);
}

std::array<float, 5> LaborFigures() {
    const SystemTendosRecord& tendos = Project().SystemTendos;
    return {tendos.LaborDealerCost, tendos.LaborDealerOverride, tendos.LaborSalePrice,
            tendos.LaborLDPrice, tendos.TotalLDPrice};
}

}  // namespace

void SumLabor() {
    SystemTendosRecord& tendos = Project().SystemTendos;
    tendos.LaborDealerCost = tendos.LaborDealerOverride = SumOf(&LaborRow::LaborCost);
    tendos.LaborSalePrice = SumOf(&LaborRow::LaborPrice);
}

void ClearProjectLabor() {
    std::ranges::fill(ProjectLines(), LaborRow());
}

bool CloseLaborTakeoff() {
    const auto before = LaborFigures();
    SumLabor();
    SystemTendosRecord& tendos = Project().SystemTendos;
    tendos.LaborLDPrice = tendos.LaborDealerOverride;
    RebuildTotalListBase(tendos);
    return LaborFigures() != before;
}

}  // namespace tendo

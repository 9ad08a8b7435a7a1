#include "materials/labor_takeoff.h"

#include <algorithm>
#include <span>

#include "pricing/list_base.h"
#include "pricing/relations.h"
#include "project/program_state.h"
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

}  // namespace

void SumLabor() {
    SystemTendosRecord& tendos = Project().SystemTendos;
    tendos.LaborDealerCost = tendos.LaborDealerOverride = SumOf(&LaborRow::LaborCost);
    tendos.LaborSalePrice = SumOf(&LaborRow::LaborPrice);
}

void ClearProjectLabor() {
    std::ranges::fill(ProjectLines(), LaborRow());
}

void CloseLaborTakeoff() {
    SystemTendosRecord& tendos = Project().SystemTendos;
    const SystemTendosRecord before = tendos;
    SumLabor();
    tendos.LaborLDPrice = tendos.LaborDealerOverride;
    RebuildTotalListBase(tendos);
    if (tendos != before) State().ProjectChanged = true;
}

}  // namespace tendo

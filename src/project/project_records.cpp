#include "project/project_records.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {

namespace {

constexpr float FirstLaborRate = 40;         // dollars per hour
constexpr float FirstTaxPercentage = 8.25F;  // percent; the estimator sets the rate of the job
constexpr const char* FirstImportFolder = "C:\\Velmo\\Tendow\\";

void ResetGeneralRecords(ProjectRecords& records) {
    records.GPDProjectFormat = GPDProjectRecord{};
    records.GPDProjectFormat.ProgramVersion = State().ProgramVersionText;
    records.GPDProjectFormat.DefaultDB = VelmoProfileString("DefaultManufacturer");
    records.GPDClientFormat = GPDClientRecord{};
    records.GPDCompanyFormat = GPDCompanyRecord{};
}

void ResetSystems(ProjectRecords& records) {
    // The tax override outlives the project on purpose.
    const float taxDealerOverride = records.SystemTendos.TaxDealerOverride;
    records.SystemTendos = SystemTendosRecord{};
    records.SystemTendos.TaxPercentage = FirstTaxPercentage;
    records.SystemTendos.TaxDealerOverride = taxDealerOverride;
    records.ModelInfo = {};
    records.SystemInfo = {};
    records.CLGModelData = {};
    records.HTGModelData = {};
    records.WHModelData = {};
}

template <class Row, class Reset>
void ResetRows(std::vector<Row>& rows, int count, Reset reset) {
    const auto end = std::min(rows.size(), static_cast<std::size_t>(std::max(count, 0)));
    std::for_each(rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(end), reset);
}

void ResetMaterial(MaterialRow& row) {
    const FixedText<255> category = row.Category;  // a reset leaves it alone
    row = MaterialRow{};
    row.Category = category;
}

void ResetLabor(LaborRow& row) {
    const FixedText<50> description = row.LaborDescription;  // a reset leaves it alone
    row = LaborRow{};
    row.LaborDescription = description;
    row.LaborPerHour = FirstLaborRate;
}

void ResetFootNote(FootNoteRow& row) {
    row.Name = "";
    row.Description = " ";
}

}  // namespace

ProjectRecords& Project() {
    static ProjectRecords records;
    return records;
}

void ResetProjectData(ProjectRecords& records) {
    ResetGeneralRecords(records);
    ResetSystems(records);
    ResetRows(records.ProjectMaterials, SavedMaterialRowCount, ResetMaterial);
    ResetRows(records.ProjectLabor, SavedLaborRowCount, ResetLabor);
    ResetRows(records.ProjectFootNotes, records.gvNumOfFootnotes, ResetFootNote);
    ResetRows(records.ProjectAccRptFootNotes, records.NumOfAccRptFootnotes, ResetFootNote);
}

void ResetProjectData() {
    ResetProjectData(Project());
    // No line of the price book may stay chosen from one project to the next.
    if (Hooks().ResetCatalogue) Hooks().ResetCatalogue();
    State().MaterialDatabaseLoaded = false;
}

void SetStartValues(ProjectRecords& records, const std::string& commonDirectory) {
    ResetProjectData(records);
    GPDProjectRecord& project = records.GPDProjectFormat;
    project.LaborRate = FirstLaborRate;
    project.TaxLabor = true;
    project.SingleProposalType = true;
    project.ImportGPD = 0;
    project.ImportGPD_FName = FirstImportFolder;
    project.DefaultDB = commonDirectory;
    for (LaborRow& row : records.ProjectLabor)
        row.LaborPerHour = FirstLaborRate;
    records.SystemTendos.TaxPercentage = FirstTaxPercentage;
}

float ListPriceFromSalePrice(float salePrice, float discount) {
    if (discount == 100.0F) return 0;
    const double price =
        100.0 * static_cast<double>(salePrice) / (100.0 - static_cast<double>(discount));
    if (std::abs(price) > static_cast<double>(std::numeric_limits<float>::max())) {
        ThrowError(error_number::Overflow);
    }
    return static_cast<float>(price);
}

}  // namespace tendo

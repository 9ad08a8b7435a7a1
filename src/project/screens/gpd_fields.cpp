#include "project/screens/gpd_fields.h"

#include "project/program_state.h"
#include "project/project_records.h"

namespace tendo {
namespace {

using P = ProjectRecords;
using GPDRecord = GPDProjectRecord;
using Client = GPDClientRecord;
using Company = GPDCompanyRecord;

template <auto Record, auto Field>
GPDText Bind(GPDTab tab, const char* name, const char* label, bool memo = false) {
    using Text = std::remove_reference_t<decltype(Project().*Record.*Field)>;
    const FieldSpec spec{
        .name = name, .label = label, .maxLength = static_cast<int>(Text::width())};
    return {tab, spec, [] { return (Project().*Record.*Field).Trimmed(); },
            [](std::string_view text) { Project().*Record.*Field = text; }, memo};
}

template <auto Record, auto Field>
GPDCheck Tick(GPDTab tab, const char* name, const char* caption) {
    return {tab, name, caption, []() -> std::int16_t& { return Project().*Record.*Field; }};
}

constexpr auto project = &P::GPDProjectFormat;
constexpr auto client = &P::GPDClientFormat;
constexpr auto company = &P::GPDCompanyFormat;
constexpr bool memo = true;

}  // namespace

const std::vector<GPDText>& GPDTexts() {
    using enum GPDTab;
    static const std::vector<GPDText> texts = {
        Bind<project, &GPDRecord::Title>(Project, "txtProjectTitle", "&Title"),
        Bind<project, &GPDRecord::DesignedBy>(Project, "txtProjectDesignedBy", "&Designed by"),
        Bind<project, &GPDRecord::Date>(Project, "txtProjectDate", "Da&te"),
        Bind<project, &GPDRecord::Comment>(Project, "txtProjectComment", "Co&mment", memo),
        Bind<client, &Client::Name>(Client, "txtClientName", "&Name"),
        Bind<client, &Client::Address>(Client, "txtClientAddress", "&Address"),
        Bind<client, &Client::CityStateZip>(Client, "txtClientCityStateZip", "Cit&y, state, zip"),
        Bind<client, &Client::Phone>(Client, "txtClientPhone", "&Phone"),
        Bind<client, &Client::Fax>(Client, "txtClientFax", "Fa&x"),
        Bind<client, &Client::Comment>(Client, "txtClientComment", "Co&mment", memo),
        Bind<company, &Company::Name>(Company, "txtCompanyName", "&Name"),
        Bind<company, &Company::Representative>(Company, "txtCompanyRepresentative",
                                                "&Representative"),
        Bind<company, &Company::CompanyIDNumber>(Company, "txtCompanyID", "&ID number"),
        Bind<company, &Company::Address>(Company, "txtCompanyAddress", "&Address"),
        Bind<company, &Company::CityStateZip>(Company, "txtCompanyCityStateZip",
                                              "Cit&y, state, zip"),
        Bind<company, &Company::Phone>(Company, "txtCompanyPhone", "&Phone"),
        Bind<company, &Company::Fax>(Company, "txtCompanyFax", "Fa&x"),
        Bind<company, &Company::Comment>(Company, "txtCompanyComment", "Co&mment", memo),
    };
    return texts;
}

const std::vector<GPDCheck>& GPDChecks() {
    using enum GPDTab;
    static const std::vector<GPDCheck> checks = {
        Tick<project, &GPDRecord::ProjectPrintComment>(Project, "chkProjectPrintComment",
                                                       "Print comment on the reports"),
        Tick<client, &Client::ClientPrintComment>(Client, "chkClientPrintComment",
                                                  "Print comment on the reports"),
        Tick<company, &Company::CompanyPrintComment>(Company, "chkCompanyPrintComment",
                                                     "Print comment on the reports"),
    };
    return checks;
}

std::string StandardDefaultDB() {
    const std::string manufacturer(Trimmed(VelmoProfileString("DefaultManufacturer")));
    return manufacturer.empty() ? "Frostelm.mdb" : manufacturer;
}

bool FillBlankModelDatabases() {
    ProjectRecords& records = Project();
    const FixedText<50>& standard = records.GPDProjectFormat.DefaultDB;
    if (standard.IsBlank()) return false;
    bool filled = false;
    const auto fill = [&](auto& models) {
        for (auto& model : models) {
            if (!model.DB.Trimmed().empty()) continue;
            model.DB = standard.Trimmed();
            filled = true;
        }
    };
    fill(records.CLGModelData);
    fill(records.HTGModelData);
    fill(records.WHModelData);
    return filled;
}

void SetLaborRate(float rate) {
    ProjectRecords& records = Project();
    if (records.GPDProjectFormat.LaborRate == rate) return;
    records.GPDProjectFormat.LaborRate = rate;
    for (LaborRow& row : records.ProjectLabor)
        if (row.QtyHrs <= 0) row.LaborPerHour = rate;
}

}  // namespace tendo

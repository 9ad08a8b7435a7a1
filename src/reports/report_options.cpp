#include "reports/report_options.h"

#include <utility>

#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

constexpr const char* Section = "ReportOptions";

using enum OptionFrame;

/// A mark is kept under its control's name; the few that aren't say so.
constexpr ReportOption Options[] = {
    {Reports, "chkPrintTitleReport", "Print Title Page Report", "chkPrintTitleReport",
     "PrintTitleReport"},
    {Reports, "chkPrintSalesReport", "Print Sales Report", "chkPrintSalesReport",
     "PrintSalesReport"},
    {Reports, "chkPrintOptionalAccessoriesRpt", "Print Optional Accessories Report",
     "chkPrintOptionalAccessoriesRpt", "PrintOptionalAccessoriesReport"},
    {Reports, "chkPrintDetailedCostReport", "Print Detailed Cost Report",
     "chkPrintDetailedCostReport", "PrintDetailedCostReport"},
    {Reports, "chkShowDealersCost", "Show Dealer's Cost", "chkShowDealersCost", "ShowDealersCost"},
    {Reports, "chkPrintInstallersReport", "Print Installer's Report", "chkPrintInstallersReport",
     "PrintInstallersReport"},

    {ProjectSummary, "chkClientFax", "Client Fax Number", "ClientFax", "ClientFaxNumber"},
    {ProjectSummary, "chkClientComment", "Client Comment", nullptr, "ClientComment"},
    {ProjectSummary, "chkCompRep", "Company Representative", "CompanyRep", "CompanyRepresentative"},
    {ProjectSummary, "chkCompanyID", "Company ID Number", "CompanyID", "CompanyID"},
    {ProjectSummary, "chkCompFax", "Company Fax Number", "CompanyFax", "CompanyFaxNumber"},
    {ProjectSummary, "chkCompComment", "Company Comment", nullptr, "CompanyComment"},

    {BothModels, "chkCompressWarranty", "Compressor Warranty", "chkCompressWarranty",
     "CompressWarranty"},
    {BothModels, "chkCoilWarranty", "Coil Warranty", "chkCoilWarranty", "CoilWarranty"},
    {BothModels, "chkHeatExchWarr", "Heat Exchanger Warranty", "chkHeatExchWarr",
     "HeatExchWarranty"},
    {BothModels, "chkMicroprocWarr", "Microprocessor Warranty", "chkMicroprocWarr",
     "MicroProcWarranty"},
    {BothModels, "chkPartsWarranty", "Parts Warranty", "chkPartsWarranty", "PartsWarranty"},
    {BothModels, "chkLaborWarranty", "Labor Warranty", "chkLaborWarranty", "LaborWarranty"},
    {BothModels, "chkCapacity", "Capacity", "chkCapacity", "Capacity"},
    {BothModels, "chkEfficiency", "Efficiency", "chkEfficiency", "Efficiency"},
    {BothModels, "chkCondRemoval", "Condensate Removal", "chkCondRemoval", "CondRemoval"},
    {BothModels, "chkSelectedOpCost", "Operating Cost of the Selected System", "chkSelectedOpCost",
     "SelectedOpCost"},
    {BothModels, "chkProposedOpCost", "Proposed Operating Cost", "chkProposedOpCost",
     "ProposedOpCost"},
    {BothModels, "chkOpCostSavings", "Operating Cost Savings", "chkOpCostSavings", "OpCostSavings"},
    {BothModels, "chkHeight", "Height", "chkHeight", "Height"},
    {BothModels, "chkLength", "Length", "chkLength", "Length"},
    {BothModels, "chkWidth", "Width", "chkWidth", "Width"},
    {BothModels, "chkWeight", "Weight", "chkWeight", "Weight"},
    {BothModels, "chkListPrice", "List Price", "chkListPrice", "ListPrice"},
    {BothModels, "chkTotalPrice", "Total Price", "chkTotalPrice", "TotalPrice"},

    {Cooling, "chkSoundLevel", "Sound Level", "chkSoundLevel", "SoundLevel"},
    {Cooling, "chkCompStartKit", "Compressor Start Kit", "chkCompStartKit", "CompStartKit"},
    {Cooling, "chkCrankcaseHeat", "Crankcase Heater", "chkCrankcaseHeat", "CrankcaseHeater"},
    {Cooling, "chkPressureSwitch", "Pressure Switch", "chkPressureSwitch", "PressureSwitch"},
    {Cooling, "chkCondSupport", "Condenser Support", "chkCondSupport", "CondSupport"},
    {Cooling, "chkElectrical", "Electrical", "chkElectrical", "Electrical"},
    {Cooling, "chkRefrigTubing", "Refrigerant Tubing", "chkRefrigTubing", "RefrigTubing"},
    {Cooling, "chkAirHandler", "Air Handler", "chkAirHandler", "AirHandler"},

    {Heating, "chkAvailCooling", "Available Cooling", "chkAvailCooling", "AvailCooling"},
    {Heating, "chkConfiguration", "Configuration", "chkConfiguration", "Configuration"},
    {Heating, "chkHeatExchType", "Heat Exchanger Type", "chkHeatExchType", "HeatExchType"},
    {Heating, "chkIgnitionType", "Ignition Type", "chkIgnitionType", "IgnitionType"},
    {Heating, "chkExhaustVent", "Exhaust Venting", "chkExhaustVent", "ExhaustVent"},
    {Heating, "chkCFMRate", "CFM Rate", "chkCFMRate", "CFMRate"},

    {General, "chkGraphs", "Graphs", "chkGraphs", "PrintGraphs"},
    {General, "chkColorGraphs", "Graphs in Color", "chkColorGraphs", "ColorGraphs"},
    {General, "chkPageNumbers", "Page Numbers", "chkPageNumbers", "PrintPageNumbers"},
    {General, "chkPageCount", "Number of Pages (1 of 5)", "chkPageCount", nullptr, 0},
    {General, "chkDate", "Date", "chkDate", "PrintDate"},
    {General, "chkAutoRefresh", "Auto Refresh Print Preview", "chkAutoRefresh", nullptr},

    {Pictures, "chkPrintLogo", "Print Picture on Title Page", "chkPrintLogo",
     "PrintLogoOnTitleReport"},
    {Pictures, "chkUseCustomBanner", "Use Custom Page Banner", "chkUseCustomBanner",
     "UseCustomPageBanner"},
};

/// Keys that the screen reads in the place of the controls' own. Only the first is written too, so
/// the Sales Report is marked again whenever the screen opens.
struct OtherReadKey {
    std::string_view control;
    const char* key;
    bool written;
};
constexpr OtherReadKey ReadKeys[] = {{"chkPrintTitleReport", "PrintTitleReport", true},
                                     {"chkPrintSalesReport", "PrintSalesReport", false}};

const char* KeyToRead(const ReportOption& option) {
    for (const OtherReadKey& other : ReadKeys)
        if (other.control == option.control) return other.key;
    return option.key;
}

std::int16_t* CommentMark(std::string_view control, ProjectRecords& project) {
    if (control == "chkClientComment") return &project.GPDClientFormat.ClientPrintComment;
    if (control == "chkCompComment") return &project.GPDCompanyFormat.CompanyPrintComment;
    return nullptr;
}

using Values = std::vector<std::pair<std::string, std::string>>;

void AddStyle(Values& values, const std::string& name, const ReportTextStyle& style) {
    values.insert(values.end(), {{"lbl" + name, std::to_string(style.barColor)},
                                 {"lbl" + name + "Text", std::to_string(style.textColor)},
                                 {name + "Font", style.fontName},
                                 {name + "FontSize", std::to_string(style.fontSize)},
                                 {name + "FontBold", style.fontBold ? "1 'True" : "0 'False"},
                                 {name + "FontItalic", style.fontItalic ? "1 'True" : "0 'False"}});
}

}  // namespace

std::span<const ReportOption> ReportOptionTable() {
    return Options;
}

ReportOptionValues::ReportOptionValues() {
    for (const ReportOption& option : Options)
        marks.push_back(option.standard);
}

std::int16_t& ReportOptionValues::Mark(std::string_view control) {
    for (std::size_t i = 0; i < std::size(Options); ++i)
        if (Options[i].control == control) return marks[i];
    ThrowError(error_number::ItemNotFound);
}

ReportOptionValues LoadReportOptions(const ProjectRecords& project) {
    ReportOptionValues values;
    for (std::size_t i = 0; i < std::size(Options); ++i)
        if (Options[i].key)
            values.marks[i] =
                Ini().MyGetAppProfileInteger(Section, KeyToRead(Options[i]), Options[i].standard);
    values.Mark("chkClientComment") = project.GPDClientFormat.ClientPrintComment;
    values.Mark("chkCompComment") = project.GPDCompanyFormat.CompanyPrintComment;
    values.logoFile = Ini().MyGetAppProfileString(Section, "txtTitlePageLogo", StandardLogo());
    values.bannerFile = Ini().MyGetAppProfileString(Section, "txtBannerFile", "");
    values.startingPage = Ini().MyGetAppProfileInteger(Section, "txtStartingPageNo", 1);
    values.lineSpacing = Ini().MyGetAppProfileInteger(Section, "txtLineSpacing", 100);
    const ReportSettings settings = StoredReportSettings();
    values.mainHeader = settings.MainHeader;
    values.secondaryHeader = settings.SecondaryHeader;
    values.body = settings.Body;
    return values;
}

void SaveReportOptions(ReportOptionValues& values, ProjectRecords& project) {
    Values stored;
    for (std::size_t i = 0; i < std::size(Options); ++i) {
        if (std::int16_t* mark = CommentMark(Options[i].control, project)) *mark = values.marks[i];
        if (Options[i].key) stored.emplace_back(Options[i].key, std::to_string(values.marks[i]));
    }
    for (const OtherReadKey& other : ReadKeys)
        if (other.written)
            stored.emplace_back(other.key, std::to_string(values.Mark(other.control)));
    stored.insert(stored.end(), {{"txtTitlePageLogo", values.logoFile},
                                 {"txtBannerFile", values.bannerFile},
                                 {"txtStartingPageNo", std::to_string(values.startingPage)},
                                 {"txtLineSpacing", std::to_string(values.lineSpacing)}});
    AddStyle(stored, "MainHeader", values.mainHeader);
    AddStyle(stored, "SecondaryHeader", values.secondaryHeader);
    AddStyle(stored, "Body", values.body);
    WriteProfileSection(Ini().AppProfileFileName, Section, stored);
    ReadReportSettings();
}

}  // namespace tendo

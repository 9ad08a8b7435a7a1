#include "equipment/model_fields.h"

#include "equipment/model_field_binding.h"

namespace tendo {
namespace {

using namespace model_field_binding;  // NOLINT: the tables below read as sentences with it

using CLG = CLGModelRecord;
using HTG = HTGModelRecord;
constexpr auto clg = &ProjectRecords::CLGModelData;
constexpr auto htg = &ProjectRecords::HTGModelData;

constexpr const char* Kit[] = {"Included", "Available", "None"};
constexpr const char* Removal[] = {"PVC Pipe", "Pump"};
constexpr const char* Switches[] = {"Both Included", "Hi Included", "Low Included", "None"};
constexpr const char* Supports[] = {"Concrete Pad", "10 Inch Pad", "None Required"};
constexpr const char* Electricals[] = {"120V, 1PH, 12A", "240V, 30A, 50HZ", "480V, 3PH, 60HZ"};
constexpr const char* Years[] = {"1 Year", "5 Years"};
constexpr const char* LaborTimes[] = {"1 Year", "90 Days"};
constexpr const char* Configurations[] = {"Upflow", "DownFlow", "Horizontal", "Lowboy"};
constexpr const char* Fuels[] = {"Natural Gas", "Propane", "Natural Gas or Propane", "Fuel Oil",
                                 "Electric"};
constexpr const char* Exchangers[] = {"Steel", "Cast Iron", "Ceramic", "Porcelainized"};
constexpr const char* Ignitions[] = {"Electronic Ignition", "Standing Pilot"};
constexpr const char* Vents[] = {"PVC Pipe", "Steel"};
constexpr const char* ExchangerWarranties[] = {"20 Year", "Lifetime"};

}  // namespace

std::span<const ModelField> CoolingDetailFields() {
    static const ModelField fields[] = {
        Number<clg, ModelSide::Cooling>("txtCLGModelNum", "&Model:"),
        Quantity<SelectionMode::Cooling>("txtCLGModelQty", "&Quantity:"),
        Bind<clg, &CLG::ModelDesc>("txtCLGModelDesc", "&Description:"),
        Bind<clg, &CLG::ModelType>("txtCLGModelType", "&Type:"),
        Bind<clg, &CLG::AirHandler>("txtAirHandler", "&Air handler:"),
        Figure<clg, &CLG::Cap>("txtCLGCap", "&Capacity:", "MBH"),
        Figure<clg, &CLG::EFF>("txtCLGEFF", "&Efficiency:", "SEER"),
        Figure<clg, &CLG::HeatingCapacity>("txtCLGHeatingCapacity", "&Heating capacity:", "MBH"),
        Database<clg>("txtCLGDB", "Data&base:"),
    };
    return fields;
}

std::span<const ModelField> HeatingDetailFields() {
    static const ModelField fields[] = {
        Number<htg, ModelSide::Heating>("txtHTGModelNum", "M&odel:"),
        Quantity<SelectionMode::Heating>("txtHTGModelQty", "Q&uantity:"),
        Bind<htg, &HTG::ModelDesc>("txtHTGModelDesc", "Descri&ption:"),
        Bind<htg, &HTG::ModelType>("txtHTGModelType", "T&ype:"),
        Figure<htg, &HTG::Cap>("txtHTGCap", "Capac&ity:", "MBH"),
        Figure<htg, &HTG::EFF>("txtHTGEFF", "E&fficiency:", "HSPF or AFUE"),
        Figure<htg, &HTG::ElecBackup>("txtElecBackup", "Elec. Backup Capacity (KW):", "kilowatts"),
        Database<htg>("txtHTGDatabase", "Databa&se:"),
    };
    return fields;
}

std::span<const ModelField> CoolingMiscFields() {
    static const ModelField fields[] = {
        Figure<clg, &CLG::Soundlevel>("txtCLGSoundlevel", "Sound Level (dB):", "decibels"),
        Bind<clg, &CLG::CompressorStartKit>("txtCLGCompressorStartKit",
                                            "Compressor Start Kit:", Kit),
        Bind<clg, &CLG::CrankcaseHeater>("txtCLGCrankcaseHeater", "Crankcase Heater:", Kit),
        Bind<clg, &CLG::CondensateRemoval>("txtCLGCondensateRemoval",
                                           "Condensate Removal:", Removal),
        Bind<clg, &CLG::HILOPressure>("txtCLGHILOPressure", "HI/LO Pressure SWT:", Switches),
        Bind<clg, &CLG::SupportForCondenser>("txtCLGSupportForCondenser",
                                             "Support for Condenser:", Supports),
        Bind<clg, &CLG::Electrical>("txtCLGElectrical", "Electrical:", Electricals),
        Figure<clg, &CLG::RefrigTubingMaxLen>("txtCLGRefrigTubingMaxLen",
                                              "Refrig. Tubing Max Len:", "feet"),
        Figure<clg, &CLG::Height>("txtCLGHeight", "Height:", "inches"),
        Beside(Figure<clg, &CLG::Length>("txtCLGLength", "Len:", "inches")),
        Figure<clg, &CLG::Width>("txtCLGWidth", "Width:", "inches"),
        Beside(Figure<clg, &CLG::Weight>("txtCLGWeight", "Weight:", "pounds")),
        Bind<clg, &CLG::WarrantyOnMicropoc>("txtCLGWarrantyOnMicropoc", "Warranty on Microproc:"),
        Bind<clg, &CLG::CompressorWarranty>("txtCLGCompressorWarranty", "Comp:", Years),
        Beside(Bind<clg, &CLG::Parts>("txtCLGParts", "Parts:", Years)),
        Bind<clg, &CLG::Coil>("txtCLGCoil", "Coil:", Years),
        Beside(Bind<clg, &CLG::Labor>("txtCLGLabor", "Labor:", LaborTimes)),
        Memo<clg, &CLG::Notes>("txtCLGNotes", "Notes:"),
    };
    return fields;
}

std::span<const ModelField> HeatingMiscFields() {
    static const ModelField fields[] = {
        Bind<htg, &HTG::Configuration>("txtHTGConfiguration", "Configuration:", Configurations),
        Bind<htg, &HTG::FuelType>("txtHTGFuelType", "Fuel Type:", Fuels),
        Bind<htg, &HTG::HeatExchangerType>("txtHTGHeatExchangerType",
                                           "Heat Exchanger Type:", Exchangers),
        Bind<htg, &HTG::CondensateRemoval>("txtHTGCondensateRemoval",
                                           "Condensate Removal:", Removal),
        Bind<htg, &HTG::IgnitionSystemType>("txtHTGIgnitionSystemType",
                                            "Ignition System Type:", Ignitions),
        Bind<htg, &HTG::ExhaustVentType>("txtHTGExhaustVentType", "Exhaust Vent Type:", Vents),
        Figure<htg, &HTG::CFMRate>("txtHTGCFMRate", "CFM Rate:", "cubic feet a minute"),
        Figure<htg, &HTG::Height>("txtHTGHeight", "Height:", "inches"),
        Beside(Figure<htg, &HTG::Length>("txtHTGLength", "Len:", "inches")),
        Figure<htg, &HTG::Width>("txtHTGWidth", "Width:", "inches"),
        Beside(Figure<htg, &HTG::Weight>("txtHTGWeight", "Weight:", "pounds")),
        Bind<htg, &HTG::WarrantyOnHeatExchanger>(
            "txtHTGWarrantyOnHeatExchanger", "Warranty on Heat Exchanger:", ExchangerWarranties),
        Bind<htg, &HTG::Parts>("txtHTGParts", "Parts:", Years),
        Beside(Bind<htg, &HTG::Labor>("txtHTGLabor", "Labor:", LaborTimes)),
        Memo<htg, &HTG::Notes>("txtHTGNotes", "Notes:"),
    };
    return fields;
}

}  // namespace tendo

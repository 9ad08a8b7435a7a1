#pragma once

#include "equipment/model_field.h"

namespace tendo {

/// The identification and ratings of the cooling and of the heating model of a system.
std::span<const ModelField> CoolingDetailFields();
std::span<const ModelField> HeatingDetailFields();
/// The remaining descriptive data of both.
std::span<const ModelField> CoolingMiscFields();
std::span<const ModelField> HeatingMiscFields();
/// Everything of the water heater but its operating costs and its tick box.
std::span<const ModelField> WaterHeaterFields();

}  // namespace tendo

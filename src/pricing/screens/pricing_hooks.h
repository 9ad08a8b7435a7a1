#pragma once

#include <QString>
#include <functional>

#include "pricing/model_price_columns.h"

namespace tendo {

/// What the price screens ask of higher rooms; set in one place, app/screens/wiring.cpp. A button
/// whose screen isn't there is disabled.
struct PricingScreenHooks {
    /// Lets the user choose a model for the current system, and returns when that is done.
    std::function<void(ModelSide)> SelectModel;
    std::function<bool(const QString& name)> ScreenExists;
    std::function<void(const QString& name)> ShowScreen;
};
PricingScreenHooks& PricingScreens();

}  // namespace tendo

#pragma once

#include "platform/qt/form.h"

namespace tendo {

/// Shows one screen where another one stands, with its place and state, and hides that.
void ShowInPlaceOf(Form& shown, Form& next);

}  // namespace tendo

#pragma once

#include "platform/qt/form.h"

namespace tendo {

/// The about screen.
Form* MakeAboutForm();

}  // namespace tendo

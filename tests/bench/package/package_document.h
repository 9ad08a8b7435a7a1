#pragma once

#include "platform/print/document.h"

namespace tendo::bench {

/// The package written on the print surface, as reports do, and laid out. Needs a QGuiApplication.
Document PackageDocument();

}  // namespace tendo::bench

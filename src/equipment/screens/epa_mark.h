#pragma once

#include <QIcon>

namespace tendo {

/// The mark of a tab whose current model complies with the EPA's requirements (a filled disc with a
/// tick), or doesn't (a ring with a stroke through it). They differ in form, not in colour alone.
QIcon EPAMark(bool compliant);

}  // namespace tendo

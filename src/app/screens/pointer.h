#pragma once

namespace tendo {

/// The mouse pointer of the whole program. A command that stops early may leave the hourglass on;
/// it then stays until the next command ends.
void HourglassPointer();
void NormalPointer();
bool PointerIsHourglass();

}  // namespace tendo

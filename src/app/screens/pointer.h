#pragma once

namespace tendo {

/// The mouse pointer of the whole program. A command that stops early may leave the hourglass on;
/// it then stays until the next command ends.
void HourglassPointer();
void NormalPointer();
bool PointerIsHourglass();

/// Some commands stop early with the hourglass on; it then stays until the next command ends.
void LeaveHourglassOn();
/// Whether that happened since the last call.
bool HourglassWasLeftOn();

}  // namespace tendo

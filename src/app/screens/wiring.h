#pragma once

namespace tendo {

/// Sets the hooks by which lower rooms reach higher ones, and enters all screens.
void WireRooms();

}  // namespace tendo

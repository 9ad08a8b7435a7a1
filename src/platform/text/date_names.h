#pragma once

#include <string_view>

namespace tendo {

inline constexpr std::string_view MonthNames[12] = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

/// Beginning with Sunday.
inline constexpr std::string_view WeekdayNames[7] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                     "Thursday", "Friday", "Saturday"};

}  // namespace tendo

// The records of calendar.dat, as they must stand there.
#pragma once

#include <string_view>
#include <vector>

namespace monkey {

/// Whether the file is nothing but records. `imported`: it may hold texts from a CSV file, which come in as they stand.
bool Well_Formed(std::string_view bytes, bool imported = false);

/// The records of such a file, without their double quotes.
std::vector<std::string_view> Records(std::string_view bytes);

/// Whether each day of such a file is one of the calendar.
bool Days_Exist(std::string_view bytes);

}  // namespace monkey

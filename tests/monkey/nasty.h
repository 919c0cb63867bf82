// What users type, and what lies on their disks.
#pragma once

#include <string>

#include "random.h"

namespace monkey {

/// A text for the editor: mostly short, of quotes, "&", line ends, separators and strange bytes; now and then 64 KB.
std::string Typed_Text(Random& random);

/// The bytes of a calendar.dat as the calendar itself would have written it, of up to 99 events.
std::string Good_File(Random& random);

/// The bytes of one that it wouldn't.
std::string Bad_File(Random& random);

}  // namespace monkey

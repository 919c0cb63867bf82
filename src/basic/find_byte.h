// The search for one byte, sixteen at a time: most of what reading a calendar file costs.
#pragma once

namespace basic {

/// The first `wanted` from `at` on, or `end`.
const char* Find_Byte(const char* at, const char* end, char wanted);

}  // namespace basic

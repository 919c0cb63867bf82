// The search for one byte, many bytes at a time: reading a calendar file spends most of its time here.
#pragma once

namespace basic {

/// The first place from `at` on that holds `wanted`; `end` if there is none.
const char* Find_Byte(const char* at, const char* end, char wanted);

}  // namespace basic

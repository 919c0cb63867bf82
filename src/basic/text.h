// Small helpers on texts of the system's 8-bit code page.
#pragma once

#include <string>
#include <string_view>

#include "basic/run_error.h"

namespace basic {

/// Without the blanks at both ends. Blanks are spaces alone.
std::string_view Trim_Blanks(std::string_view text);

/// Equal without regard to the case of the letters a to z.
bool Same_Letters(std::string_view a, std::string_view b);

/// Only the letters a to z change.
std::string Upper_Case(std::string_view text);
std::string Lower_Case(std::string_view text);

/// Replaces every `what` (not empty) by `with`, from left to right. The replacements aren't searched again.
std::string Replace_All(std::string_view text, std::string_view what, std::string_view with);

/// From "&" to "&&", as the event file and the captions of boxes hold a text, and back.
std::string Double_Ampersands(std::string_view text);
std::string Single_Ampersands(std::string_view text);

struct Halves {
  std::string_view left, right;
};

/// Cuts a text in two at the first separator, which belongs to neither half. Throws error 5 if there is none.
Halves Split_At_First(std::string_view text, char separator);

}  // namespace basic

// Small helpers on texts of the system's 8-bit code page.
#pragma once

#include <string>
#include <string_view>

#include "basic/run_error.h"

namespace basic {

std::string_view Trim_Blanks(std::string_view text);

/// Equal without regard to the case of the letters a to z.
bool Same_Letters(std::string_view a, std::string_view b);

/// The letters a to z alone change.
std::string Upper_Case(std::string_view text);
std::string Lower_Case(std::string_view text);

/// Every `what` (not empty) of the text becomes `with`, from left to right, nothing looked at twice.
std::string Replace_All(std::string_view text, std::string_view what, std::string_view with);

/// "&" to "&&", as a text is stored and as a box's caption wants it, and back.
std::string Double_Ampersands(std::string_view text);
std::string Single_Ampersands(std::string_view text);

/// A text cut in two at the first separator, which belongs to neither half. Throws error 5 if there is none.
struct Halves {
  std::string_view left, right;
};
Halves Split_At_First(std::string_view text, char separator);

}  // namespace basic

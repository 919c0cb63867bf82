// "&" in a caption: before a character it marks the accelerator and isn't shown, and "&&" shows one "&".
#pragma once

#include <string>
#include <string_view>

namespace toolkit {

/// The caption as it is shown. An "&" at its very end isn't.
std::string Without_Marks(std::string_view caption);

/// The character that is marked as the accelerator, as a capital; 0 if there is none.
char Accelerator_Of(std::string_view caption);

}  // namespace toolkit

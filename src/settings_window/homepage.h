// Where the link of the About page leads: an address with "://" in it, or the path of a file from the program folder on.
#pragma once

namespace settings_window {

constexpr const char* homepage = R"(guide\guide.html)";

}  // namespace settings_window

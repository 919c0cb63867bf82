// The system's message boxes. Events are served while one is open, so timers go on ticking.
#pragma once

#include <string>

namespace platform {

enum class Box_Icon { None, Information, Exclamation, Critical, Question };
enum class Box_Buttons { OK, Yes_No, Yes_No_Cancel };
enum class Box_Answer { OK, Yes, No, Cancel };

class Message_Box {
 public:
  virtual ~Message_Box() = default;

  /// Shows a box over the active window and waits for the answer. Throws Program_Quit once the program has been told to
  /// quit.
  ///
  /// **Any handler may run meanwhile: it may unload any window, and may show another box.**
  virtual Box_Answer Show(const std::string& title, const std::string& text, Box_Icon icon, Box_Buttons buttons) = 0;
};

}  // namespace platform

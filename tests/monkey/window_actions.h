// Random actions on the windows that the calendar opens: each control of them gets the gestures of its kind. What there is
// to act on is looked up in the running program.
#pragma once

#include <string>
#include <vector>

#include "random.h"
#include "world.h"

namespace monkey {

class Window_Actions {
 public:
  Window_Actions(Random& random, const play::World& world) : random_(random), world_(world) {}

  /// Whether a window is open besides the calendar itself and the splash.
  [[nodiscard]] bool Any_Window() const { return !Windows().empty(); }

  /// One action of one line or a few. A window must be open.
  std::string Next();

  /// Opens the settings window, by key or by menu.
  std::string Open_Settings();

  /// The hold of a day that has an event, which opens its balloon where the settings say so; some label if there is none.
  std::string Hold_An_Event();

  /// A key that some control or window may know what to do with.
  std::string Key();

 private:
  [[nodiscard]] std::vector<toolkit::Form*> Windows() const;
  std::string On_Control(const toolkit::Form& window);
  std::string Gesture(const toolkit::Control& control);
  std::string On_Slider(const toolkit::Slider& slider);
  std::string On_List(const toolkit::Item_List& list, const std::string& name);
  std::string On_Picture(const std::string& name);
  std::string On_Palette();
  std::string Overview();
  std::string Exchange();
  std::string Input_File(int button);
  std::string Mouse_Button();
  std::string Answers();

  Random& random_;
  const play::World& world_;
};

}  // namespace monkey

// The seam between the toolkit and a window system: what it is asked for, and in what order.
//
// A backend draws, measures, asks and reports. It reads what it needs from the windows and controls themselves, reports the
// user's input to Input, and what the system's own text boxes and lists have done by the controls' User_ functions. It
// decides nothing.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "platform/window_handle.h"
#include "toolkit/geometry.h"
#include "toolkit/input.h"
#include "toolkit/property.h"
#include "toolkit/region.h"

namespace toolkit {

class Control;
class Form;
class Timer;

enum class Form_Border { None, Fixed_Dialog };

/// A window as a form sees it. It lives from the form's load to its unload; the form outlives it.
class Form_Peer {
 public:
  virtual ~Form_Peer() = default;

  /// Makes the window visible in front of the others, and active if told so.
  virtual void Show(bool activate) = 0;
  virtual void Hide() = 0;

  /// Makes the window active. The system answers with Input::Activity_Went and Activity_Came, before this returns.
  virtual void Activate() = 0;

  /// A property of the form or of one of its controls has changed. Repainting may wait for the next idle moment.
  virtual void Form_Changed(Aspect aspect) = 0;
  virtual void Control_Changed(Control& control, Aspect aspect) = 0;

  /// Paints what waits to be painted.
  virtual void Paint_Now() = 0;

  /// Cuts the window to the region (in pixels from its top left) and repaints it.
  virtual void Set_Region(const Region& region) = 0;

  /// The same with a rectangle from the window's top left that has rounded corners, all in pixels: `corner` is the
  /// width and height of their ellipses.
  virtual void Set_Round_Region(int width, int height, int corner) = 0;

  [[nodiscard]] virtual bool Minimised() const = 0;
  virtual void Set_Minimised(bool minimised) = 0;

  /// Gives the keys to a control of the window that is active, nullptr: to the window itself.
  virtual void Focus(Control* control) = 0;

  /// From here on all moves and releases of the mouse come to this window, wherever the pointer is, until it is released.
  virtual void Capture_Mouse() = 0;
  virtual void Release_Mouse() = 0;

  [[nodiscard]] virtual platform::Window_Handle Handle() const = 0;

  /// The window of a control of the window that is one of the system's own.
  [[nodiscard]] virtual platform::Window_Handle Handle_Of(const Control& control) const = 0;
};

/// A font as it is asked for.
struct Font {
  std::string Name;
  double Size = 8.25;  ///< points
  bool Bold = false, Italic = false, Underline = false;
};

class Backend {
 public:
  Backend() = default;
  Backend(const Backend&) = delete;
  Backend& operator=(const Backend&) = delete;
  virtual ~Backend() = default;

  toolkit::Input Input{*this};

  virtual std::unique_ptr<Form_Peer> Make_Peer(Form& form) = 0;

  /// From here on the timer's tick is called each time its interval has passed, until it is stopped.
  virtual void Start_Timer(Timer& timer) = 0;
  virtual void Stop_Timer(Timer& timer) = 0;

  /// The active window of this thread, nullptr if none of its forms is active. Asks the system anew at each call.
  virtual Form* Active_Form() = 0;

  /// Twips per pixel across or down.
  virtual double Twips_Per_Pixel(Axis axis) = 0;

  /// How much larger a window of that border is than its client area, in twips, both sides together.
  virtual double Frame_Size(Form_Border border, Axis axis) = 0;

  /// The size of the screen in twips.
  virtual double Screen_Size(Axis axis) = 0;

  /// Shows the hourglass in place of every other pointer, until it is told otherwise.
  virtual void Show_Busy(bool busy) = 0;

  /// The name of the font that the system gives for a name: another one where it has none of that name.
  virtual std::string Font_Given_For(const std::string& name) = 0;

  /// The width of a text in one line, in twips. "&" counts as it stands.
  virtual double Text_Width(const Font& font, std::string_view text) = 0;

  /// The height of a text whose lines break at blanks where the width ends, in twips; "&" counts as it stands.
  virtual double Text_Height(const Font& font, std::string_view text, double width) = 0;

  /// The number of characters of the longest beginning of the text that is narrower than `limit` twips.
  virtual std::size_t Longest_Beginning(const Font& font, std::string_view text, double limit) = 0;
};

}  // namespace toolkit

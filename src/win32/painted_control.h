// A control without a window of its own, as the form's window knows and paints it. One class for each kind derives from
// it.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/control.h"
#include "win32/fonts.h"
#include "win32/stock_pictures.h"
#include "win32/themes.h"

namespace win32 {

/// What is drawn with.
struct Drawing_Tools {
  win32::Fonts& Fonts;
  Stock_Pictures& Pictures;
  win32::Themes& Themes;
};

class Painted_Control {
 public:
  Painted_Control() = default;
  Painted_Control(const Painted_Control&) = delete;
  Painted_Control& operator=(const Painted_Control&) = delete;
  virtual ~Painted_Control() = default;

  RECT Place{};          ///< pixels, as it was last told
  bool Shown = false;    ///< on view, as it was last told
  bool Waiting = false;  ///< marked for painting at this place, and not painted yet

  virtual void Draw(HDC context, const Drawing_Tools& tools) = 0;

  /// Whether a change, other than of place and visibility, is seen. What is kept of the look is forgotten.
  virtual bool Shows(toolkit::Aspect aspect) { return aspect == toolkit::Aspect::Appearance; }
};

struct Painted_Entry {
  const toolkit::Control* Control;
  std::unique_ptr<Painted_Control> Painted;
};

/// The painted controls of a window, in their order.
using Painted_List = std::vector<Painted_Entry>;

/// What the form's window paints for a control of the toolkit; nullptr for a kind that has a window of its own.
std::unique_ptr<Painted_Control> Make_Painted_Control(const toolkit::Control& control);

}  // namespace win32

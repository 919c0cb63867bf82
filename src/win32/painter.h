// The drawing of a window's labels and pictures, which have no windows of their own.
#pragma once

#include <vector>

#include "toolkit/form.h"
#include "toolkit/image.h"
#include "win32/fonts.h"
#include "win32/stock_pictures.h"

namespace win32 {

/// A label or picture as its window knows it.
struct Painted_Control {
  const toolkit::Control* Control = nullptr;
  const toolkit::Label* Label = nullptr;  ///< one of the two
  const toolkit::Image* Image = nullptr;
  RECT Place{};                ///< pixels, as it was last told
  bool Shown = false;          ///< visible, as it was last told
  bool Waiting = false;        ///< marked for painting at this place, and not painted yet
  const Face* Face = nullptr;  ///< of a label, once it has been drawn
};

/// A colour of the toolkit as the system takes it.
COLORREF To_Colour(toolkit::Colour colour);

class Painter {
 public:
  Painter(Fonts& fonts, Stock_Pictures& pictures) : fonts_(fonts), pictures_(pictures) {}

  /// Paints what of the window touches the area that `target` is to show; through a back buffer, so that nothing is
  /// seen half done.
  void Paint(HDC target, const RECT& area, const RECT& client, const toolkit::Form& form,
             std::vector<Painted_Control>& controls);

 private:
  void Draw_All(HDC context, HDC target, const RECT& client, const toolkit::Form& form,
                std::vector<Painted_Control>& controls);
  void Draw_Label(HDC context, Painted_Control& control);

  Fonts& fonts_;
  Stock_Pictures& pictures_;
};

}  // namespace win32

// The pictures of the program's resources, each loaded when it is first drawn.
#pragma once

#include <array>
#include <vector>

#include "platform/stock_picture.h"
#include "win32/handle.h"

namespace win32 {

class Stock_Pictures {
 public:
  explicit Stock_Pictures(HINSTANCE instance) : instance_(instance) {}

  /// The program's icon in one of its own sizes, for the frame of a window.
  HICON Frame_Icon(int width, int height);

  /// Draws the picture, stretched to the place (pixels). Stock_Picture::None draws nothing.
  void Draw(HDC context, platform::Stock_Picture picture, const RECT& place);

  /// The picture's own size in pixels; that of an icon is the system's for icons. 0 by 0 for none.
  SIZE Size(platform::Stock_Picture picture);

  /// Draws the picture in its own size, without the ground that a bitmap was drawn on; faded for what is disabled.
  void Draw_Plain(HDC context, platform::Stock_Picture picture, POINT corner, bool enabled);

  /// A bitmap on the menus' ground, which the menu that shows it must own: colours may change while it is open. None for
  /// what is no bitmap.
  [[nodiscard]] Bitmap_Owner Menu_Bitmap(platform::Stock_Picture picture) const;

  /// The menus' ground has another colour: the bitmaps are made anew when they are next drawn.
  void Forget_Bitmaps();

 private:
  struct Sized_Icon {
    platform::Stock_Picture Picture;
    int Width, Height;
    Icon_Owner Icon;
  };

  HICON Icon(platform::Stock_Picture picture, int width, int height);
  HBITMAP Bitmap(platform::Stock_Picture picture);

  HINSTANCE instance_;
  std::vector<Sized_Icon> icons_;
  std::array<Bitmap_Owner, 7> bitmaps_;  // by the picture's number
};

}  // namespace win32

// Pictures on a window: from the program's resources, from files, or drawn.
#pragma once

#include <vector>

#include "platform/pictures.h"
#include "platform/stock_picture.h"
#include "toolkit/label.h"

namespace toolkit {

/// A picture that lies on its window like a label, stretched to its size.
class Image : public Control {
 public:
  using Control::Control;

  [[nodiscard]] Role Kind() const override { return Role::Picture; }

  Property<platform::Stock_Picture> Picture{*this, Aspect::Appearance, platform::Stock_Picture::None};
  Property<platform::Shared_Picture> Loaded{*this, Aspect::Appearance};  ///< in place of the one above, if not empty
  Property<bool> Fixed_Border{*this, Aspect::Appearance};                ///< a single line around it
};

/// How a line is drawn: in its colour, or by inverting what lies under it.
enum class Draw_Mode { Invert = 6, Copy = 13 };

/// A picture that is kept at its own size, on a ground of its own, on which the program draws.
class Picture_Box : public Image {
 public:
  using Image::Image;

  Property<Colour> BackColor{*this, Aspect::Appearance, System_Colour(15)};
  Property<bool> Opaque{*this, Aspect::Appearance};  ///< has a ground

  /// A line without its last point, or a text from its top left on. Places in pixels from the inner top left.
  struct Drawn {
    double X = 0, Y = 0, To_X = 0, To_Y = 0;
    toolkit::Colour Colour = 0;
    Draw_Mode Mode = Draw_Mode::Copy;
    std::string Text;  ///< in Arial of 7 points; empty for a line
  };

  /// Takes off what was drawn.
  void Cls();
  void Draw(const Drawn& drawn);
  [[nodiscard]] const std::vector<Drawn>& Drawing() const { return drawing_; }

  /// The colour of the picture's pixel at a place in twips from its top left; -1 where there is none.
  [[nodiscard]] int Point(double x, double y) const;

  /// The inner size, in pixels.
  [[nodiscard]] double Inner_Width() const;
  [[nodiscard]] double Inner_Height() const;

 private:
  std::vector<Drawn> drawing_;
};

}  // namespace toolkit

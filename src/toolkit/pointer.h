// The shapes of the mouse pointer.
#pragma once

namespace toolkit {

enum class Pointer {
  Default = 0,      ///< the arrow, or what the window or the control underneath asks for
  Four_Arrows = 5,  ///< something is being moved
  Hourglass = 11,   ///< the program is busy
  // The program's own shapes.
  Cross_Hair = 99,  ///< a cross-hair inside a circle, 32 by 32 pixels
  Hand = 100,       ///< over a link
};

}  // namespace toolkit

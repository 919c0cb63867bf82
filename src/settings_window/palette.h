// The colours to choose from, as one picture, and what is drawn of a colour in the strip below it.
#pragma once

#include <array>
#include <string>

#include "platform/pictures.h"
#include "toolkit/backend.h"
#include "toolkit/image.h"

namespace settings_window {

constexpr int palette_width = 99, palette_height = 50;  ///< pixels at 96 dots an inch

/// The colour of a pixel of the palette. From left to right all hues from red to red, between two columns of grey; from
/// top to bottom from white to black.
toolkit::Colour Palette_Colour(int x, int y);

/// The palette in so many pixels, at least two each way.
platform::Shared_Picture Make_Palette(platform::Pictures& pictures, int width, int height);

/// The palette in the same twips on every screen: 99 by 50 pixels at 96 dots an inch.
platform::Shared_Picture Make_Palette(platform::Pictures& pictures, toolkit::Backend& backend);

/// How much red, green and blue a colour that is 0 or more has.
struct Colour_Parts {
  int Red = 0, Green = 0, Blue = 0;
};

Colour_Parts Split(toolkit::Colour colour);

using Colour_Forms = std::array<std::string, 3>;

/// A colour as a text: its decimal number; "#" and the parts as hexadecimal numbers, where one that is all digits has two
/// of them at least and a letter alone stays alone; and the parts as decimal numbers, joined by commas.
Colour_Forms Forms_Of(toolkit::Colour colour);

/// Draws a ramp of 256 columns, each a pixel wide, from one colour to another; what doesn't find room is cut off.
void Draw_Ramp(toolkit::Picture_Box& strip, toolkit::Colour from, toolkit::Colour to);

/// Draws a line over the strip at two thirds of its height, and above it the ten marks of a ruler with their numbers below.
void Draw_Ruler(toolkit::Picture_Box& strip);

}  // namespace settings_window

#include "settings_window/palette.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "basic/convert.h"

namespace settings_window {

namespace {

using toolkit::Draw_Mode;
using toolkit::Picture_Box;

// Hues lie on a circle of six parts, red, green and blue two parts away from each other. A part has as many steps as the
// palette has columns with a hue, so that all is counted in whole numbers and every machine draws the same palette.
constexpr int hues = palette_width - 2;
constexpr int circle = 6 * hues;
constexpr int red_place = 0, green_place = 2 * hues, blue_place = 4 * hues;
constexpr int lightest = palette_height - 1;

constexpr int last_step = 255;  // of the ramp

/// Of a hue, the part of one of the three colours: 0 to `hues`.
int Hue_Part(int hue, int place) {
  const int distance = std::abs(hue - place);
  return std::clamp(2 * hues - std::min(distance, circle - distance), 0, hues);
}

int Rounded(int number, int divisor) { return (2 * number + divisor) / (2 * divisor); }

/// A part of a hue in the lower half is darkened, in the upper half what it lacks is.
int With_Lightness(int part, int lightness) {
  if (2 * lightness <= lightest) return Rounded(255 * 2 * lightness * part, lightest * hues);
  return 255 - Rounded(255 * 2 * (lightest - lightness) * (hues - part), lightest * hues);
}

std::string Hexadecimal(int part) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  do text.insert(text.begin(), digits[static_cast<std::size_t>(part % 16)]);
  while ((part /= 16) > 0);
  const bool a_number = text.find_first_not_of("0123456789") == std::string::npos;
  return a_number && text.size() < 2 ? "0" + text : text;
}

int Blend(int step, int from, int to) {
  const double part = static_cast<double>(step) / last_step;
  return toolkit::Round_To_Even(static_cast<double>(last_step - step) / last_step * from + part * to);
}

void Invert_Line(Picture_Box& strip, double x, double y, double to_x, double to_y) {
  strip.Draw({x, y, to_x, to_y, 0, Draw_Mode::Invert, {}});
}

}  // namespace

toolkit::Colour Palette_Colour(int x, int y) {
  const int lightness = lightest - y;
  if (x == 0 || x == palette_width - 1) {
    const int grey = Rounded(255 * lightness, lightest);
    return toolkit::Rgb(grey, grey, grey);
  }
  const int hue = (x - 1) * 6;
  const auto part = [&](int place) { return With_Lightness(Hue_Part(hue, place), lightness); };
  return toolkit::Rgb(part(red_place), part(green_place), part(blue_place));
}

platform::Shared_Picture Make_Palette(platform::Pictures& pictures, int width, int height) {
  // The outermost pixels stay the outermost.
  return pictures.Make(width, height, [=](int x, int y) {
    return Palette_Colour(Rounded(x * (palette_width - 1), width - 1), Rounded(y * (palette_height - 1), height - 1));
  });
}

platform::Shared_Picture Make_Palette(platform::Pictures& pictures, toolkit::Backend& backend) {
  constexpr double usual_twips = 15;  // a pixel at 96 dots an inch
  const auto pixels = [&](int usual, toolkit::Axis axis) {
    return toolkit::Round_To_Even(usual * usual_twips / backend.Twips_Per_Pixel(axis));
  };
  return Make_Palette(pictures, pixels(palette_width, toolkit::Axis::Across),
                      pixels(palette_height, toolkit::Axis::Down));
}

Colour_Parts Split(toolkit::Colour colour) {
  const int blue = colour / 65536, rest = colour % 65536;
  return {rest % 256, rest / 256, blue};
}

Colour_Forms Forms_Of(toolkit::Colour colour) {
  const auto [red, green, blue] = Split(colour);
  return {basic::To_Text(colour), "#" + Hexadecimal(red) + Hexadecimal(green) + Hexadecimal(blue),
          basic::To_Text(red) + "," + basic::To_Text(green) + "," + basic::To_Text(blue)};
}

void Draw_Ramp(Picture_Box& strip, toolkit::Colour from, toolkit::Colour to) {
  const Colour_Parts first = Split(from), last = Split(to);
  const double height = strip.Inner_Height();
  for (int i = 0; i <= last_step; ++i) {
    const toolkit::Colour colour =
        toolkit::Rgb(Blend(i, first.Red, last.Red), Blend(i, first.Green, last.Green), Blend(i, first.Blue, last.Blue));
    const double x = i;
    strip.Draw({x, 0, x, height, colour, Draw_Mode::Copy, {}});
  }
}

void Draw_Ruler(Picture_Box& strip) {
  const double width = strip.Inner_Width(), line = 2 * strip.Inner_Height() / 3;
  Invert_Line(strip, 0, line, width, line);
  const int last = toolkit::Round_To_Even(width), step = toolkit::Round_To_Even(width / 10);
  for (int x = 0, number = 0; x <= last; x += step, ++number) {
    Invert_Line(strip, x - 1.0, line - 5, x - 1.0, line);
    if (number == 0) continue;
    const double left = x - 6.0, top = line + 1;
    strip.Draw({left, top, left, top, toolkit::System_Colour(18), Draw_Mode::Invert, basic::To_Text(number)});
  }
}

}  // namespace settings_window

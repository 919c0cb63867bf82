#include "settings_window/positions.h"

#include <algorithm>
#include <array>

namespace settings_window {

namespace {

struct Position {
  int Number;
  std::string_view Name;
  Slider_Places Places;
};

// Number 7 is the manual position.
constexpr std::array<Position, 9> positions{{{0, "Bottom Right", {2, 2}},
                                             {1, "Bottom Center", {1, 2}},
                                             {2, "Bottom Left", {0, 2}},
                                             {3, "Center Screen", {1, 1}},
                                             {4, "Top Right", {2, 0}},
                                             {5, "Top Center", {1, 0}},
                                             {6, "Top Left", {0, 0}},
                                             {8, "Center Right", {2, 1}},
                                             {9, "Center Left", {0, 1}}}};

const Position* Find(basic::Int16 number) {
  const auto* const found = std::find_if(positions.begin(), positions.end(),
                                         [&](const Position& position) { return position.Number == number.Value(); });
  return found == positions.end() ? nullptr : found;
}

}  // namespace

std::string_view Position_Name(basic::Int16 number) {
  const Position* const position = Find(number);
  return position == nullptr ? std::string_view() : position->Name;
}

const Slider_Places* Places_Of(basic::Int16 number) {
  const Position* const position = Find(number);
  return position == nullptr ? nullptr : &position->Places;
}

basic::Int16 Position_Of(const Slider_Places& places) {
  return std::find_if(positions.begin(), positions.end(),
                      [&](const Position& position) {
                        return position.Places.Horizontal == places.Horizontal &&
                               position.Places.Vertical == places.Vertical;
                      })
      ->Number;
}

}  // namespace settings_window

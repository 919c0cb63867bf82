// The day boxes of a calendar window as a user sees them.
#pragma once

#include <array>
#include <string>

#include "presentation/main_frm.h"
#include "world.h"

namespace monkey {

struct Box {
  bool visible = false;
  std::string number, caption, number_tip, caption_tip;
  bool underline = false;
  std::string fonts;  // of the number and the caption
  toolkit::Colour back = 0, number_colour = 0, caption_colour = 0;
  toolkit::Bounds place, caption_place;

  friend bool operator==(const Box&, const Box&) = default;
};

struct Snapshot {
  std::array<Box, presentation::box_count> boxes;
  std::array<std::string, presentation::days_of_week> headers;
  std::string title;
  double left = 0, top = 0, width = 0, height = 0;  // of the window, in twips
};

/// A label of the calendar window; `window` must be Main_Frm.
toolkit::Label& Label_Of(const toolkit::Form& window, const std::string& name, int index = -1);

/// The window must be there.
Snapshot Snapshot_Of(const play::World& world);

/// The same of a program that starts now, in a world of its own with the same files, settings, locale, screen, work area
/// and width of letters, and with the month on view as the present one. Nothing if it doesn't come through its start, or
/// has something to complain about.
std::optional<Snapshot> Fresh_Snapshot(play::World& world);

}  // namespace monkey

// The user's consent to today's desktops: one stored value, without which the calendar is as it always was. With it
// places have 32 bits.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "basic/int16.h"
#include "platform/settings_store.h"

namespace settings {

class Desktop_Mode {
 public:
  explicit Desktop_Mode(platform::Settings_Store& store) : store_(store) {}

  /// Reads the consent, and with it what it keeps. Called once, at the start.
  void Load();
  [[nodiscard]] bool Modern() const { return modern_; }

  /// Stores the consent, which counts from the next start on.
  void Store_Consent();

  enum Edge { left_edge = 0, top_edge = 1 };

  /// The edge of the manual place, in twips, whose nearest 16-bit number is `nearest`: the one that is kept, as long as
  /// it is near to this number, else the number itself. So a place that was set without the consent counts.
  [[nodiscard]] std::int32_t Manual_Edge(Edge edge, basic::Int16 nearest) const;

  /// Keeps an edge, if it couldn't be told from its nearest 16-bit number.
  void Keep_Manual_Edge(Edge edge, std::int32_t twips);

  /// The number itself, or the end of the 16-bit numbers that it lies beyond.
  static basic::Int16 Nearest(std::int32_t number);

 private:
  platform::Settings_Store& store_;
  bool modern_ = false;
  std::array<std::optional<std::int32_t>, 2> kept_edges_;  // by Edge
};

}  // namespace settings

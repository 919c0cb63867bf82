#include "settings/desktop_mode.h"

#include <algorithm>
#include <limits>

#include "basic/convert.h"
#include "settings/setting_keys.h"

namespace settings {

namespace {

constexpr const char* desktop = "Desktop";
constexpr const char* consent = "Modern";
constexpr const char* given = "1";
constexpr const char* edge_keys[] = {"Manual_PosX", "Manual_PosY"};  // by Edge

/// A text that is no number counts as absent: the place of the other section is there in its stead.
std::optional<std::int32_t> Number_In(const std::string& text) {
  try {
    return basic::To_Int32(text);
  } catch (const basic::Run_Error&) {
    return std::nullopt;
  }
}

}  // namespace

void Desktop_Mode::Load() {
  modern_ = store_.Get(application, desktop, consent, "") == given;
  if (!modern_) return;
  for (const Edge edge : {left_edge, top_edge})
    kept_edges_[edge] = Number_In(store_.Get(application, desktop, edge_keys[edge], ""));
}

void Desktop_Mode::Store_Consent() { store_.Save(application, desktop, consent, given); }

std::int32_t Desktop_Mode::Manual_Edge(Edge edge, basic::Int16 nearest) const {
  const std::optional<std::int32_t>& kept = kept_edges_[edge];
  return kept && Nearest(*kept) == nearest ? *kept : nearest.Value();
}

void Desktop_Mode::Keep_Manual_Edge(Edge edge, std::int32_t twips) {
  if (Manual_Edge(edge, Nearest(twips)) == twips) return;
  kept_edges_[edge] = twips;
  store_.Save(application, desktop, edge_keys[edge], basic::To_Text(twips));
}

basic::Int16 Desktop_Mode::Nearest(std::int32_t number) {
  using Limits = std::numeric_limits<std::int16_t>;
  return std::clamp<std::int32_t>(number, Limits::min(), Limits::max());
}

}  // namespace settings

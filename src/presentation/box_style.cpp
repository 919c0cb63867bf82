#include "presentation/box_style.h"

namespace presentation {

namespace {

bool Pack_Rules_Style(const settings::Settings& settings) {
  return settings.Use_Themes == 1 && settings.Use_Theme_Style == 1;
}

bool Pack_Rules_Position(const settings::Settings& settings) {
  return settings.Use_Themes == 1 && settings.Use_Theme_Pos == 1;
}

}  // namespace

bool Small_Style(const settings::Settings& settings) {
  return settings.Style == small_box && !Pack_Rules_Style(settings);
}

basic::Int16 Style_In_Force(const settings::Settings& settings, const state::Calendar_State& calendar) {
  return Pack_Rules_Style(settings) ? calendar.Pack_Box_Style : settings.Style;
}

basic::Int16 Position_In_Force(const settings::Settings& settings, const state::Calendar_State& calendar) {
  return Pack_Rules_Position(settings) ? calendar.Pack_Pos : settings.Alignment;
}

}  // namespace presentation

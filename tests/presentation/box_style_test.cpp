#include "presentation/box_style.h"

#include <gtest/gtest.h>

#include "presentation/caption_fit.h"

namespace {

/// All settings of the three switches, the box style and the pack's style that can make a difference.
template <class Check>
void For_All(Check check) {
  for (const int use_themes : {-1, 0, 1, 2})
    for (const int use_theme : {-1, 0, 1, 2})
      for (const int own : {-1, 0, 1, 2, 3})
        for (const int of_pack : {0, 1, 2, 7}) check(use_themes, use_theme, own, of_pack);
}

settings::Settings With_Style(int use_themes, int use_theme_style, int style) {
  settings::Settings settings{};
  settings.Use_Themes = use_themes;
  settings.Use_Theme_Style = use_theme_style;
  settings.Style = style;
  return settings;
}

state::Calendar_State With_Pack(int style, int position) {
  state::Calendar_State calendar;
  calendar.Pack_Box_Style = style;
  calendar.Pack_Pos = position;
  return calendar;
}

}  // namespace

TEST(Box_Style, Small_style_looks_at_the_setting_alone_and_only_where_no_pack_rules) {
  For_All([](int use_themes, int use_theme_style, int style, int) {
    const bool expected = style == 2 && !(use_themes == 1 && use_theme_style == 1);
    EXPECT_EQ(presentation::Small_Style(With_Style(use_themes, use_theme_style, style)), expected)
        << use_themes << ' ' << use_theme_style << ' ' << style;
  });
}

TEST(Box_Style, The_pack_rules_the_style_where_both_switches_are_1) {
  For_All([](int use_themes, int use_theme_style, int style, int of_pack) {
    const int expected = use_themes == 1 && use_theme_style == 1 ? of_pack : style;
    EXPECT_EQ(presentation::Style_In_Force(With_Style(use_themes, use_theme_style, style), With_Pack(of_pack, 9)),
              expected)
        << use_themes << ' ' << use_theme_style << ' ' << style << ' ' << of_pack;
  });
}

TEST(Box_Style, The_pack_rules_the_position_where_both_switches_are_1) {
  For_All([](int use_themes, int use_theme_pos, int alignment, int of_pack) {
    settings::Settings settings{};
    settings.Use_Themes = use_themes;
    settings.Use_Theme_Pos = use_theme_pos;
    settings.Alignment = alignment;
    const int expected = use_themes == 1 && use_theme_pos == 1 ? of_pack : alignment;
    EXPECT_EQ(presentation::Position_In_Force(settings, With_Pack(9, of_pack)), expected)
        << use_themes << ' ' << use_theme_pos << ' ' << alignment << ' ' << of_pack;
  });
}

TEST(Box_Style, Captions_are_fitted_for_no_style_where_a_switch_is_neither_0_nor_1) {
  For_All([](int use_themes, int use_theme_style, int style, int of_pack) {
    int expected = 0;
    if (use_themes == 0) expected = style;
    else if (use_theme_style == 0) expected = style;
    else if (use_themes == 1 && use_theme_style == 1) expected = of_pack;
    EXPECT_EQ(presentation::DDD_Style(With_Style(use_themes, use_theme_style, style), With_Pack(of_pack, 9)), expected)
        << use_themes << ' ' << use_theme_style << ' ' << style << ' ' << of_pack;
  });
}

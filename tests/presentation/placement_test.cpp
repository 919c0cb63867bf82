#include "presentation/placement.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/toolkit/fake_backend.h"

using presentation::GetDesktopRect;
using presentation::Placement;

namespace {

class Fake_Screen : public platform::Screen {
 public:
  platform::Pixel_Area Area{0, 0, 1280, 1024};
  double Across = 15, Down = 15;
  int Conversions = 0;

  platform::Pixel_Area Bounds() override { return {0, 0, 1280, 1024}; }
  platform::Pixel_Area Work_Area() override { return Area; }
  double Twips_Per_Pixel_X() override {
    ++Conversions;
    return Across;
  }
  double Twips_Per_Pixel_Y() override { return Down; }
};

class Silent_Box : public platform::Message_Box {
 public:
  platform::Box_Answer Show(const std::string&, const std::string&, platform::Box_Icon,
                            platform::Box_Buttons) override {
    return platform::Box_Answer::No;
  }
};

/// Has the consent to today's desktops, or nothing.
class Consent_Store : public platform::Settings_Store {
 public:
  bool Consent = false;

  std::string Get(const std::string&, const std::string&, const std::string& key, const std::string& text) override {
    return Consent && key == "Modern" ? "1" : text;
  }
  void Save(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

class Placement_Test : public ::testing::Test {
 protected:
  /// A work area of one pixel a twip, to set any number of twips.
  void Work_Area(int left, int top, int width, int height) {
    Screen.Across = Screen.Down = 1;
    Screen.Area = {left, top, width, height};
  }

  void Window_Of(double width, double height) {
    Made.Window.Width = width;
    Made.Window.Height = height;
  }

  std::pair<double, double> Placed(int position) {
    Made.Window.Move(-1, -1);
    Place.Position_Form(position);
    return {Made.Window.Left, Made.Window.Top};
  }

  void Consent() {
    Store.Consent = true;
    Stored.Load_Settings();
  }

  /// From the window's place to that one.
  void Drag_To(double left, double top) {
    Stored.Values.Allow_Dragging = 1;
    Place.Start_Drag(0, 0);
    Place.Drag(left - Made.Window.Left, top - Made.Window.Top);
    Place.End_Drag();
  }

  Fake_Backend Backend;
  presentation::Main_Frm Made{Backend};
  Fake_Screen Screen;
  Silent_Box Box;
  Consent_Store Store;
  settings::Stored_Settings Stored{Store};
  state::Calendar_State Calendar;
  Placement Place{Made, Screen, Box, Stored, Calendar};
};

using Corner = std::pair<double, double>;

}  // namespace

TEST_F(Placement_Test, GetDesktopRect_gives_the_work_area_in_pixels_or_in_twips) {
  Screen.Area = {-3, 20, 1000, 700};
  auto rect = GetDesktopRect(Screen, false);
  EXPECT_EQ(rect.Left, -3);
  EXPECT_EQ(rect.Top, 20);
  EXPECT_EQ(rect.Width, 1000);
  EXPECT_EQ(rect.Height, 700);
  Screen.Across = 12;
  Screen.Down = 10.5;
  rect = GetDesktopRect(Screen, true);
  EXPECT_EQ(rect.Left, -36);
  EXPECT_EQ(rect.Top, 210);
  EXPECT_EQ(rect.Width, 12000);
  EXPECT_EQ(rect.Height, 7350);
  Screen.Area = {1, 1, 3, 5};
  EXPECT_EQ(GetDesktopRect(Screen, true).Height, 52) << "52.5 goes to the even number";
  EXPECT_EQ(GetDesktopRect(Screen, true).Top, 10) << "10.5 goes to the even number";
}

TEST_F(Placement_Test, Knows_all_places) {
  Work_Area(100, 200, 20000, 14000);
  Window_Of(6450, 6725);
  EXPECT_EQ(Placed(0), Corner(13650, 7475));
  EXPECT_EQ(Placed(1), Corner(6875, 7475));
  EXPECT_EQ(Placed(2), Corner(100, 7475));
  EXPECT_EQ(Placed(3), Corner(6875, 3837));
  EXPECT_EQ(Placed(4), Corner(13650, 200));
  EXPECT_EQ(Placed(5), Corner(6875, 200));
  EXPECT_EQ(Placed(6), Corner(100, 200));
  EXPECT_EQ(Placed(8), Corner(13650, 3837));
  EXPECT_EQ(Placed(9), Corner(100, 3837));
}

TEST_F(Placement_Test, Halves_the_difference_and_rounds_down) {
  Work_Area(0, 0, 20000, 14000);
  Window_Of(6450, 6725);
  EXPECT_EQ(Placed(3), Corner(6775, 3637));
}

TEST_F(Placement_Test, Rounds_the_difference_before_it_is_halved) {
  Work_Area(0, 0, 1001, 1000);
  Window_Of(0.5, 0.5);
  EXPECT_EQ(Placed(3), Corner(500, 500)) << "1000.5 is 1000, 999.5 is 1000";
}

TEST_F(Placement_Test, Halves_towards_zero_where_the_window_is_larger) {
  Work_Area(10, 20, 100, 100);
  Window_Of(103, 105);
  EXPECT_EQ(Placed(3), Corner(9, 18));
}

TEST_F(Placement_Test, Takes_the_manual_place_as_it_is) {
  Stored.Values.Manual_PosX = -32768;
  Stored.Values.Manual_PosY = 32767;
  EXPECT_EQ(Placed(7), Corner(-32768, 32767));
}

TEST_F(Placement_Test, Moves_nothing_for_any_other_number) {
  for (const int position : {-1, 10, 11, 32767, -32768}) EXPECT_EQ(Placed(position), Corner(-1, -1)) << position;
}

TEST_F(Placement_Test, Leaves_the_unit_at_twips) {
  for (const int position : {0, 7, 10}) {
    Made.Window.Scale = toolkit::Scale_Unit::Pixels;
    Place.Position_Form(position);
    EXPECT_EQ(Made.Window.Scale, toolkit::Scale_Unit::Twips) << position;
  }
}

TEST_F(Placement_Test, Set_Repos_throws_error_6_for_a_work_area_beyond_16_bits) {
  Work_Area(-32768, 32767, 32767, 32767);
  EXPECT_EQ(Error_Of([&] { Place.Set_Repos(); }), 0);
  const platform::Pixel_Area too_large[] = {{0, 0, 32768, 0}, {0, 0, 0, 32768}, {32768, 0, 0, 0}, {0, -32769, 0, 0}};
  for (const auto& area : too_large) {
    Screen.Area = area;
    EXPECT_EQ(Error_Of([&] { Place.Set_Repos(); }), 6);
  }
  // Placing itself knows no such limit.
  Work_Area(0, 0, 100000, 100000);
  Window_Of(1000, 1000);
  EXPECT_EQ(Placed(0), Corner(99000, 99000));
}

TEST_F(Placement_Test, A_desktop_beyond_16_bits_is_told_from_other_overflows) {
  Screen.Area = {0, 0, 3840, 2185};
  EXPECT_THROW(Place.Set_Repos(), platform::Work_Area_Too_Large);
  EXPECT_THROW(Place.RePosition(), platform::Work_Area_Too_Large);
  Made.Window.Move(32768, 0);
  Stored.Values.Allow_Dragging = 1;
  EXPECT_THROW(Place.Start_Drag(0, 0), platform::Work_Area_Too_Large);
  Made.Window.Move(0, 0);
  EXPECT_THROW(Drag_To(0, 32768), platform::Work_Area_Too_Large);
}

TEST_F(Placement_Test, With_the_consent_the_work_area_has_32_bits) {
  Consent();
  Stored.Values.Alignment = 6;
  for (const platform::Pixel_Area& area : {platform::Pixel_Area{0, 0, 3840, 2160}, {-7680, -4320, 7680, 4320}}) {
    Screen.Area = area;
    for (int call = 0; call < 4; ++call) Place.RePosition();
    Made.Window.Move(-1, -1);
    Place.RePosition();
    EXPECT_EQ(Made.Window.Left(), -1) << "all four values are known by now";
    Place.Set_Repos();
    Place.RePosition();
    EXPECT_EQ(Made.Window.Left(), -1);
    EXPECT_EQ(Placed(6), Corner(area.Left * 15, area.Top * 15));
  }
}

TEST_F(Placement_Test, With_the_consent_a_drag_goes_beyond_16_bits_and_its_place_is_the_manual_one) {
  Consent();
  Drag_To(110000, -50000);
  EXPECT_EQ(Placed(7), Corner(110000, -50000));
  EXPECT_EQ(Stored.Values.Manual_PosX, 32767);
  EXPECT_EQ(Stored.Values.Manual_PosY, -32768);
  Made.Window.Move(110000, -50000);
  Drag_To(40000, 1500);
  EXPECT_EQ(Placed(7), Corner(40000, 1500));
}

TEST_F(Placement_Test, RePosition_does_nothing_while_the_work_area_stays) {
  Stored.Values.Alignment = 6;
  Place.Set_Repos();
  Made.Window.Move(-1, -1);
  Place.RePosition();
  EXPECT_EQ(Made.Window.Left(), -1);
}

TEST_F(Placement_Test, RePosition_follows_one_changed_value_a_call) {
  Stored.Values.Alignment = 6;
  Place.Set_Repos();
  Screen.Area = {10, 20, 600, 500};
  for (int call = 0; call < 4; ++call) {
    Made.Window.Move(-1, -1);
    Place.RePosition();
    EXPECT_EQ(Made.Window.Left(), 150) << call;
    EXPECT_EQ(Made.Window.Top(), 300) << call;
  }
  Made.Window.Move(-1, -1);
  Place.RePosition();
  EXPECT_EQ(Made.Window.Left(), -1) << "all four values are known by now";
}

TEST_F(Placement_Test, RePosition_follows_a_value_that_changes_back) {
  Stored.Values.Alignment = 6;
  Place.Set_Repos();
  Place.RePosition();
  const platform::Pixel_Area first = Screen.Area;
  Screen.Area = {10, 20, 600, 500};
  Place.RePosition();
  Screen.Area = first;
  Made.Window.Move(-1, -1);
  Place.RePosition();
  EXPECT_EQ(Made.Window.Left(), 0);
}

TEST_F(Placement_Test, RePosition_converts_nothing_while_the_work_area_stays) {
  Place.Set_Repos();
  Place.RePosition();
  Screen.Conversions = 0;
  Place.RePosition();
  EXPECT_EQ(Screen.Conversions, 0);
}

TEST_F(Placement_Test, RePosition_looks_at_height_width_top_and_left_in_this_order) {
  constexpr int beyond = 40000;
  struct Case {
    platform::Pixel_Area area;
    int fails_at;
  };
  for (const Case& test : {Case{{10, 20, 1000, beyond}, 1}, Case{{10, 20, beyond, 900}, 2},
                           Case{{10, beyond, 1000, 900}, 3}, Case{{beyond, 20, 1000, 900}, 4}}) {
    Work_Area(0, 0, 1280, 1024);
    Place.Set_Repos();
    Screen.Area = test.area;
    for (int call = 1; call < test.fails_at; ++call) Place.RePosition();
    EXPECT_EQ(Error_Of([&] { Place.RePosition(); }), 6) << test.fails_at;
  }
}

TEST_F(Placement_Test, RePosition_places_first_and_fails_at_what_does_not_fit_then) {
  Stored.Values.Alignment = 6;
  Place.Set_Repos();
  Screen.Area = {10, 20, 1280, 3000};
  EXPECT_EQ(Error_Of([&] { Place.RePosition(); }), 6);
  EXPECT_EQ(Made.Window.Left(), 150);
}

TEST_F(Placement_Test, The_position_in_force_is_the_packs_where_both_switches_are_1) {
  Stored.Values.Alignment = 6;
  Calendar.Pack_Pos = 7;
  Stored.Values.Manual_PosX = 33;
  Stored.Values.Use_Themes = 1;
  Place.Position_In_Force();
  EXPECT_EQ(Made.Window.Left(), 0);
  Stored.Values.Use_Theme_Pos = 1;
  Place.Position_In_Force();
  EXPECT_EQ(Made.Window.Left(), 33);
}

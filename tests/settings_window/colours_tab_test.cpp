// What of the tab "Colours" no scenario can see: drawings, looks, and events that are let run in the middle of a move.
#include <gtest/gtest.h>

#include <algorithm>

#include "settings_window/palette.h"
#include "tests/calendar/program_world.h"
#include "toolkit/label.h"
#include "toolkit/text_box.h"

namespace {

using toolkit::Label;
using toolkit::Picture_Box;

/// The settings window of the whole program, open at the colours.
class Colours_Tab_Test : public ::testing::Test, public Program_World {
 protected:
  Colours_Tab_Test() {
    Platform.Store.Save("Meridex", "Settings", "Settings Tab", "2");
    Start();
    Open_Window();
  }

  void Open_Window() {
    toolkit::Form& calendar = *Window("Main_Frm");
    Platform.Loop.Dispatch([&] {
      calendar.Activate();
      Platform.User.Press_Key(calendar, {{toolkit::key_f8}, ""});
    });
  }

  template <class Kind>
  Kind& Get(const std::string& name) {
    const auto& controls = Window("Settings_Frm")->Controls();
    const auto found = std::find_if(controls.begin(), controls.end(), [&](const auto* c) { return c->Name == name; });
    return dynamic_cast<Kind&>(**found);
  }

  /// The pointer goes to the middle of a pixel of the palette.
  void Move_To(int column, int row, bool shift) {
    const toolkit::Mouse_Event event{toolkit::Mouse_Button::None, column * 15 + 7.0, row * 15 + 7.0, shift};
    auto& palette = Get<Picture_Box>("Pal");
    Platform.Loop.Dispatch([&] { Platform.User.Move(palette.Window, &palette, event); });
  }

  std::string Number() { return Get<toolkit::Text_Box>("txCol").Text(); }
};

constexpr const char* samples[] = {"Col_Today_Pic", "Col_Normal_Pic", "Col_Num_Pic",     "Col_Text_Pic",
                                   "Col_Back_Pic",  "Col_Fore_Pic",   "Col_Inactive_Pic"};

}  // namespace

TEST_F(Colours_Tab_Test, The_palette_shows_the_colours_that_are_picked_from_it) {
  const auto& palette = Get<Picture_Box>("Pal");
  ASSERT_NE(palette.Loaded(), nullptr);
  for (const auto& [x, y] : {std::pair(0, 0), std::pair(98, 49), std::pair(40, 20)}) {
    EXPECT_EQ(palette.Loaded()->Pixel(x, y), settings_window::Palette_Colour(x, y));
    EXPECT_EQ(palette.Point(x * 15, y * 15), settings_window::Palette_Colour(x, y));
    EXPECT_EQ(palette.Point(x * 15 + 14.9, y * 15 + 14.9), settings_window::Palette_Colour(x, y));
  }
  EXPECT_EQ(palette.Point(99 * 15, 0), -1);
  EXPECT_EQ(palette.Point(0, 50 * 15), -1);
}

TEST_F(Colours_Tab_Test, Samples_palette_and_strip_have_the_cross_hair) {
  for (const char* const name : samples) {
    const auto& sample = Get<Picture_Box>(name);
    EXPECT_EQ(sample.MousePointer(), toolkit::Pointer::Cross_Hair) << name;
    EXPECT_TRUE(sample.Opaque()) << name;
    EXPECT_TRUE(sample.Fixed_Border()) << name;
  }
  EXPECT_EQ(Get<Picture_Box>("Pal").MousePointer(), toolkit::Pointer::Cross_Hair);
  EXPECT_EQ(Get<Picture_Box>("lbColor").MousePointer(), toolkit::Pointer::Cross_Hair);
}

TEST_F(Colours_Tab_Test, The_miniature_looks_like_the_calendar) {
  for (const char* const name : {"Preview_Style0_Lbl", "Preview_Style1_Lbl", "Preview_Today_Lbl"}) {
    const auto& box = Get<Label>(name);
    const auto& day = dynamic_cast<const Label&>(*Window("Main_Frm")->Controls().front());
    EXPECT_TRUE(box.Fixed_Border()) << name;
    EXPECT_FALSE(box.Transparent()) << name;
    EXPECT_EQ(box.FontName(), day.FontName()) << name;
    EXPECT_EQ(box.FontSize(), day.FontSize()) << name;
    EXPECT_EQ(box.FontBold(), day.FontBold()) << name;
  }
  for (const char* const name : {"Preview_Caption0_Lbl", "Preview_Caption1_Lbl", "Preview_Caption_Today_Lbl"})
    EXPECT_TRUE(Get<Label>(name).Transparent()) << name;
}

TEST_F(Colours_Tab_Test, With_Shift_the_strip_shows_a_ramp_from_black_and_a_ruler) {
  Move_To(20, 10, true);
  const int colour = settings_window::Palette_Colour(20, 10);
  const auto& strip = Get<Picture_Box>("lbColor");
  ASSERT_EQ(strip.Drawing().size(), 276U);
  EXPECT_EQ(strip.Drawing()[0].Colour, 0);
  EXPECT_EQ(strip.Drawing()[255].Colour, colour);
  EXPECT_EQ(strip.Drawing()[256].Mode, toolkit::Draw_Mode::Invert);
  EXPECT_EQ(strip.BackColor(), colour);
  EXPECT_EQ(Number(), std::to_string(colour));
  EXPECT_FALSE(Platform.Windows_And_Timers.Busy());
}

TEST_F(Colours_Tab_Test, The_next_ramp_takes_the_place_of_the_last) {
  Move_To(20, 10, true);
  Move_To(70, 30, true);
  const auto& strip = Get<Picture_Box>("lbColor");
  ASSERT_EQ(strip.Drawing().size(), 276U);
  EXPECT_EQ(strip.Drawing()[255].Colour, settings_window::Palette_Colour(70, 30));
}

TEST_F(Colours_Tab_Test, Without_Shift_the_strip_has_the_colour_alone) {
  Move_To(20, 10, true);
  Move_To(20, 10, false);
  const auto& strip = Get<Picture_Box>("lbColor");
  EXPECT_TRUE(strip.Drawing().empty());
  EXPECT_EQ(strip.BackColor(), settings_window::Palette_Colour(20, 10));
}

TEST_F(Colours_Tab_Test, Beside_the_picture_the_strip_stays_as_it_is) {
  Move_To(20, 10, true);
  for (const bool shift : {true, false}) {
    Move_To(99, 10, shift);
    EXPECT_EQ(Get<Picture_Box>("lbColor").Drawing().size(), 276U);
    EXPECT_EQ(Number(), std::to_string(settings_window::Palette_Colour(20, 10)));
  }
}

TEST_F(Colours_Tab_Test, A_move_lets_waiting_events_run) {
  for (const bool shift : {true, false}) {
    std::string seen;
    Platform.Time.Schedule(Platform.Time.Elapsed(), [&] { seen = Number(); });
    Move_To(5, 10, shift);
    EXPECT_EQ(seen, std::to_string(settings_window::Palette_Colour(5, 10)));
  }
}

TEST_F(Colours_Tab_Test, The_window_may_close_and_open_anew_in_the_middle_of_a_move) {
  Move_To(5, 10, false);
  Platform.Time.Schedule(Platform.Time.Elapsed(), [&] {
    Window("Settings_Frm")->Unload();
    Open_Window();
  });
  Move_To(20, 10, false);
  EXPECT_EQ(Number(), "0");
}

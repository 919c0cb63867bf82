#include "calendar/splash_frm.h"

#include <gtest/gtest.h>

#include "presentation/which_style.h"
#include "tests/toolkit/fake_backend.h"

namespace {

/// Keeps the timer that runs, so that it can be made to tick.
class Ticking_Backend : public Fake_Backend {
 public:
  toolkit::Timer* Running = nullptr;

  void Start_Timer(toolkit::Timer& timer) override { Running = &timer; }
  void Stop_Timer(toolkit::Timer&) override { Running = nullptr; }
};

class Splash_Frm_Test : public ::testing::Test {
 protected:
  Ticking_Backend Backend;
  presentation::Main_Frm Made{Backend};
  int Closed = 0;
  calendar::Splash_Frm Splash{Backend, Made, [this] { ++Closed; }};
};

}  // namespace

TEST_F(Splash_Frm_Test, Shows_the_program_for_a_second_and_a_half_without_becoming_active) {
  EXPECT_EQ(Backend.Running, nullptr);
  Splash.Show();
  EXPECT_TRUE(Splash.Window.Visible());
  EXPECT_EQ(Backend.Take().back(), "show");
  ASSERT_NE(Backend.Running, nullptr);
  EXPECT_EQ(Backend.Running->Interval, 1500);
  EXPECT_EQ(Splash.Label9.Caption(), "Meridex");
}

TEST_F(Splash_Frm_Test, Has_the_icon_beside_the_name_on_white) {
  using toolkit::Bounds;
  EXPECT_EQ(Splash.Window.BackColor(), toolkit::white);
  EXPECT_EQ(Splash.Image1.In_Twips(), (Bounds{360, 308, 720, 720}));
  EXPECT_EQ(Splash.Image1.Picture(), platform::Stock_Picture::Program_Icon);
  EXPECT_EQ(Splash.Label9.In_Twips(), (Bounds{1365, 368, 3900, 600}));
  EXPECT_EQ(Splash.Label9.FontName(), "Arial");
  EXPECT_EQ(Splash.Label9.FontSize(), 24);
  EXPECT_TRUE(Splash.Label9.FontBold());
  EXPECT_TRUE(Splash.Label9.Transparent());
}

TEST_F(Splash_Frm_Test, Goes_at_the_first_tick) {
  Splash.Show();
  Backend.Running->On_Tick();
  EXPECT_FALSE(Splash.Window.Loaded());
  EXPECT_EQ(Backend.Running, nullptr);
  EXPECT_EQ(Closed, 1);
}

TEST_F(Splash_Frm_Test, Tells_of_its_end_also_when_the_user_closes_it) {
  Splash.Show();
  Splash.Window.Close_Requested();
  EXPECT_FALSE(Splash.Window.Loaded());
  EXPECT_EQ(Backend.Running, nullptr);
  EXPECT_EQ(Closed, 1);
}

TEST_F(Splash_Frm_Test, Takes_its_place_from_the_calendar_in_twips) {
  presentation::Which_Style(Made, 2);
  Made.Window.Move(1001.5, -77);
  Made.Window.Scale = toolkit::Scale_Unit::Pixels;
  Splash.Show();
  EXPECT_EQ(Splash.Window.Width(), 5610);
  EXPECT_EQ(Splash.Window.Height(), 1335);
  EXPECT_EQ(Splash.Window.Left(), 1001.5 - 1155);
  EXPECT_EQ(Splash.Window.Top(), -77 + 1305 + 1335);
}

TEST_F(Splash_Frm_Test, Halves_odd_lengths_towards_zero) {
  Made.Window.Width = 5615;
  Made.Box_Lbl[36].Top = 1001;
  Splash.Show();
  EXPECT_EQ(Splash.Window.Left(), 2);
  EXPECT_EQ(Splash.Window.Top(), 500 + 1335);
}

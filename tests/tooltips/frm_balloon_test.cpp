#include "tooltips/frm_balloon.h"

#include "tests/tooltips/balloon_world.h"

using platform::Stock_Picture;
using tooltips::Frm_Balloon;

namespace {

// In 8 points a character is 80 twips wide and a line 240 twips high.
class Frm_Balloon_Test : public Balloon_World {
 protected:
  void Set(const std::string& text, int left = 0, int top = 0) {
    Balloon.SetBalloon("Title", text, left, top, "i", "Tahoma", 8);
  }

  /// Where a balloon opens beside box 0, which lies at 90 and 810 twips and is 825 by 915 large.
  std::pair<double, double> Placed(double main_left, double main_top) {
    Made.Window.Move(main_left, main_top);
    Frm_Balloon balloon(Backend, Screen, Made, Calendar, Calls);
    balloon.SetBalloon("Title", "Outing", 0, 0, "i", "Tahoma", 8);
    return {balloon.Window.Left, balloon.Window.Top};
  }

  Frm_Balloon Balloon{Backend, Screen, Made, Calendar, Calls};
};

using Place = std::pair<double, double>;

}  // namespace

TEST_F(Frm_Balloon_Test, Is_a_hidden_pale_yellow_window_before_it_is_set) {
  EXPECT_FALSE(Balloon.Window.Loaded());
  EXPECT_FALSE(Calendar.Tip_Showing);
  EXPECT_EQ(Balloon.Window.Border, toolkit::Form_Border::None);
  EXPECT_EQ(Balloon.Window.Width(), 4680);
  EXPECT_EQ(Balloon.Window.Height(), 1920);
  EXPECT_EQ(Balloon.Window.BackColor(), toolkit::Rgb(255, 255, 238));
  EXPECT_EQ(Balloon.Window.ForeColor(), toolkit::System_Colour(23));
  EXPECT_EQ(Balloon.Window.Outline_Corner(), 26);
  EXPECT_EQ(Balloon.lblTitle.In_Twips(), (toolkit::Bounds{480, 90, 3735, 255}));
  EXPECT_EQ(Balloon.imgDisplayIcon.In_Twips(), (toolkit::Bounds{120, 120, 240, 240}));
  EXPECT_EQ(Balloon.lblText.In_Twips().Left, 135);
  EXPECT_EQ(Balloon.lblText.In_Twips().Top, 480);
  EXPECT_EQ(Balloon.lblText.In_Twips().Width, 1845);
  EXPECT_TRUE(Balloon.lblText.AutoSize());
  for (const toolkit::Label* const label : {&Balloon.lblTitle, &Balloon.lblText}) {
    EXPECT_EQ(label->ForeColor(), toolkit::System_Colour(23)) << label->Name;
    EXPECT_TRUE(label->Transparent()) << label->Name;
    EXPECT_TRUE(label->Word_Wrap()) << label->Name;
    EXPECT_EQ(label->FontBold(), label == &Balloon.lblTitle) << label->Name;
  }
  EXPECT_EQ(Balloon.imgIconXP[0].In_Twips(), (toolkit::Bounds{0, 0, 240, 240}));
  EXPECT_FALSE(Balloon.imgIconXP[0].Visible());
}

TEST_F(Frm_Balloon_Test, Is_loaded_and_counts_as_showing_from_its_setting_on) {
  Set("Outing");
  EXPECT_TRUE(Balloon.Window.Loaded());
  EXPECT_FALSE(Balloon.Window.Visible());
  EXPECT_TRUE(Calendar.Tip_Showing);
  EXPECT_EQ(Balloon.lblTitle.Caption(), "Title");
  EXPECT_EQ(Balloon.lblText.Caption(), "Outing");
}

TEST_F(Frm_Balloon_Test, Shows_the_information_icon_for_either_case_of_its_letter) {
  for (const char* const letter : {"i", "I"}) {
    Frm_Balloon balloon(Backend, Screen, Made, Calendar, Calls);
    balloon.SetBalloon("Title", "Text", 1, 1, letter, "Tahoma", 8);
    EXPECT_TRUE(balloon.imgDisplayIcon.Visible());
    EXPECT_EQ(balloon.imgDisplayIcon.Picture(), Stock_Picture::Information_Icon);
    EXPECT_EQ(balloon.lblTitle.In_Twips().Left, 480);
  }
}

TEST_F(Frm_Balloon_Test, Puts_the_title_in_the_place_of_an_icon_that_it_has_not) {
  for (const char* const letters : {"", "x", "ii", " i"}) {
    Frm_Balloon balloon(Backend, Screen, Made, Calendar, Calls);
    balloon.SetBalloon("Title", "Text", 1, 1, letters, "Tahoma", 8);
    EXPECT_FALSE(balloon.imgDisplayIcon.Visible()) << letters;
    EXPECT_EQ(balloon.lblTitle.In_Twips().Left, 120);
  }
}

TEST_F(Frm_Balloon_Test, Takes_its_font_and_falls_back_where_Tahoma_is_missing) {
  const auto font_for = [this](const std::string& name) {
    Balloon.SetBalloon("Title", "Text", 1, 1, "i", name, 9);
    EXPECT_EQ(Balloon.lblText.FontName(), Balloon.Window.FontName());
    EXPECT_EQ(Balloon.lblTitle.FontName(), Balloon.Window.FontName());
    return Balloon.Window.FontName();
  };
  EXPECT_EQ(font_for("Tahoma, if exists"), "Tahoma");
  Backend.Has_Tahoma = false;
  EXPECT_EQ(font_for("Tahoma, if exists"), "MS Sans Serif");
  EXPECT_EQ(font_for("Tahoma"), "Tahoma");
  EXPECT_EQ(font_for("Courier New"), "Courier New");
  EXPECT_EQ(Balloon.lblText.FontSize(), 9);
  EXPECT_EQ(Balloon.lblTitle.FontSize(), 9);
  EXPECT_EQ(Balloon.Window.FontSize(), 8.25);
  EXPECT_TRUE(Balloon.lblTitle.FontBold());
  EXPECT_FALSE(Balloon.lblText.FontBold());
}

TEST_F(Frm_Balloon_Test, Is_as_wide_as_ever_and_as_high_as_its_text) {
  Set("Outing");
  EXPECT_EQ(Balloon.Window.Width(), (9 + 123 + 5) * 15);
  EXPECT_EQ(Balloon.Window.Height(), (40 + 20 + 8) * 12);
  EXPECT_EQ(Balloon.lblText.In_Twips(), (toolkit::Bounds{135, 480, 119 * 15, 240})) << "no line of the text is cut";
}

TEST_F(Frm_Balloon_Test, Wraps_its_text_at_the_width_that_is_left) {
  Set(std::string(22, 'x'));  // 1760 of 1785 twips
  EXPECT_EQ(Balloon.Window.Height(), (40 + 20 + 8) * 12);
  Frm_Balloon longer(Backend, Screen, Made, Calendar, Calls);
  longer.SetBalloon("Title", std::string(45, 'x'), 1, 1, "i", "Tahoma", 8);
  EXPECT_EQ(longer.Window.Width(), 2055);
  EXPECT_EQ(longer.Window.Height(), (40 + 60 + 8) * 12);
  EXPECT_EQ(longer.lblText.In_Twips().Height, 720);
}

TEST_F(Frm_Balloon_Test, Is_cut_one_pixel_larger_than_itself_with_round_corners) {
  Set("Outing");
  Words regions = Backend.Take();
  std::erase_if(regions, [](const std::string& told) { return !told.starts_with("round region"); });
  EXPECT_EQ(regions.back(), "round region 138 69 28");
}

TEST_F(Frm_Balloon_Test, Is_cut_anew_when_its_size_changes) {
  Set("Outing");
  Backend.Take();
  Balloon.Window.Width = Balloon.Window.Width + 10 * 15;
  Words regions = Backend.Take();
  std::erase_if(regions, [](const std::string& told) { return !told.starts_with("round region"); });
  EXPECT_EQ(regions, Words{"round region 148 69 28"});
}

TEST_F(Frm_Balloon_Test, Has_the_month_rebuilt_once_before_it_looks_for_its_place) {
  Calls.Rebuild_Month = [this] {
    Done += "month ";
    EXPECT_EQ(Balloon.Window.Height(), (40 + 20 + 8) * 12) << "it has its size by then";
    Made.Window.Move(1000, 2000);
  };
  Set("Outing");
  EXPECT_EQ(Done, "month ");
  EXPECT_EQ(Balloon.Window.Left(), 1000 + 90 + 825);
  EXPECT_EQ(Balloon.Window.Top(), 2000 + 810 + 915);
}

TEST_F(Frm_Balloon_Test, Takes_each_place_that_it_is_given_and_works_out_the_other) {
  Calendar.Tip_Box = 99;  // no box at all
  Set("Outing", 7, -8);
  EXPECT_EQ(Balloon.Window.Left(), 7);
  EXPECT_EQ(Balloon.Window.Top(), -8);
  Calendar.Tip_Box = 0;
  Set("Outing", 7, 0);
  EXPECT_EQ(Balloon.Window.Left(), 7);
  EXPECT_EQ(Balloon.Window.Top(), 1725);
  Set("Outing", 0, 9);
  EXPECT_EQ(Balloon.Window.Left(), 915);
  EXPECT_EQ(Balloon.Window.Top(), 9);
}

TEST_F(Frm_Balloon_Test, Lies_below_and_right_of_its_box_while_there_is_room) {
  // The work area is 19200 by 12288 twips large, the balloon 2055 by 816.
  EXPECT_EQ(Placed(0, 0), (Place{915, 1725}));
  EXPECT_EQ(Placed(16229, 9746), (Place{17144, 11471}));
  EXPECT_EQ(Placed(16230, 9746), (Place{14265, 11471})) << "edge to edge on the left";
  EXPECT_EQ(Placed(16229, 9747), (Place{17144, 9616})) << "with a gap of 125 twips above";
  EXPECT_EQ(Placed(16229.5, 9746.5), (Place{17144, 11472})) << "to whole twips, halves to the even one";
}

TEST_F(Frm_Balloon_Test, Compares_with_the_size_of_the_work_area_alone) {
  Screen.Area = {100, 50, 1280, 1024};
  EXPECT_EQ(Placed(16229, 9746), (Place{17144, 11471}));
  EXPECT_EQ(Placed(16230, 9747), (Place{14265, 9616}));
}

TEST_F(Frm_Balloon_Test, Finds_the_same_place_whatever_unit_the_calendar_counts_in) {
  for (const auto unit : {toolkit::Scale_Unit::Pixels, toolkit::Scale_Unit::Twips}) {
    Made.Window.Scale = unit;
    EXPECT_EQ(Placed(30, 40), (Place{945, 1765}));
  }
}

TEST_F(Frm_Balloon_Test, Watches_its_activity_from_its_showing_on) {
  Set("Outing");
  EXPECT_TRUE(Backend.Ticking.empty());
  Balloon.Show();
  EXPECT_TRUE(Balloon.Window.Visible());
  ASSERT_EQ(Backend.Ticking.size(), 1U);
  toolkit::Timer& timer = *Backend.Ticking.front();
  EXPECT_EQ(timer.Interval, 100);
  Backend.Active = &Balloon.Window;
  timer.On_Tick();
  EXPECT_TRUE(Balloon.Window.Loaded());
  Backend.Active = &Made.Window;
  timer.On_Tick();
  EXPECT_FALSE(Balloon.Window.Loaded());
  EXPECT_TRUE(Backend.Ticking.empty());
}

TEST_F(Frm_Balloon_Test, Closes_at_a_click_anywhere_and_when_it_is_left) {
  const std::function<void()>* const ways[] = {&Balloon.Window.On_Click, &Balloon.lblTitle.On_Click,
                                               &Balloon.lblText.On_Click, &Balloon.imgDisplayIcon.On_Click,
                                               &Balloon.Window.On_Deactivate};
  for (const auto* const way : ways) {
    Set("Outing");
    Balloon.Show();
    Done.clear();
    (*way)();
    EXPECT_FALSE(Balloon.Window.Loaded());
    EXPECT_FALSE(Calendar.Tip_Showing);
    EXPECT_EQ(Done, "idle ");
  }
}

TEST_F(Frm_Balloon_Test, Closing_it_twice_counts_once) {
  Set("Outing");
  Balloon.Show();
  Balloon.HideBalloon();
  Balloon.HideBalloon();
  EXPECT_EQ(Done, "month idle ");
}

TEST_F(Frm_Balloon_Test, The_last_event_of_several_balloons_tells_whether_one_shows) {
  Frm_Balloon second(Backend, Screen, Made, Calendar, Calls);
  Set("First", 1, 1);
  second.SetBalloon("Title", "Second", 1, 1, "i", "Tahoma", 8);
  Balloon.HideBalloon();
  EXPECT_FALSE(Calendar.Tip_Showing);
  EXPECT_TRUE(second.Window.Loaded());
}

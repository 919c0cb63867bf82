#include "calendar/month_grid.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/calendar/calendar_world.h"
#include "tests/toolkit/fake_backend.h"

namespace {

class Fake_Screen : public platform::Screen {
 public:
  platform::Pixel_Area Bounds() override { return {0, 0, 1280, 1024}; }
  platform::Pixel_Area Work_Area() override { return {0, 0, 1280, 1024}; }
  double Twips_Per_Pixel_X() override { return 15; }
  double Twips_Per_Pixel_Y() override { return 15; }
};

class Empty_Store : public platform::Settings_Store {
 public:
  std::string Get(const std::string&, const std::string&, const std::string&, const std::string& text) override {
    return text;
  }
  void Save(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

class Month_Grid_Test : public ::testing::Test {
 protected:
  Month_Grid_Test() {
    Stored.Load_Settings();
    Clock.Set(2004, 3, 5);
    View(3, 2004);
  }

  void View(int month, int year) {
    Calendar.View_Month = month;
    Calendar.View_Year = year;
    Grid.Setup_Boxes(month, year);
  }

  int Error_Of_Line(const std::string& line) {
    return Error_Of([&] { Grid.Enter_Date(line); });
  }

  Fake_Backend Backend;
  presentation::Main_Frm Made{Backend};
  Fake_Screen Screen;
  Fake_Clock Clock;
  Fake_Locale Locale;
  Noting_Box Box;
  Empty_Store Store;
  settings::Stored_Settings Stored{Store};
  state::Calendar_State Calendar;
  presentation::Placement Placement{Made, Screen, Box, Stored, Calendar};
  calendar::Dates Dates{Clock, Locale};
  calendar::Alerts Alerts{Dates, Box, Made.Window, Stored.Values, Calendar};
  calendar::Month_Grid Grid{Made, Placement, Alerts, Dates, Stored.Values, Calendar};
};

}  // namespace

TEST_F(Month_Grid_Test, Numbers_exactly_the_boxes_of_the_month_and_shows_them_alone) {
  for (int year = 1996; year <= 2010; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int start_day = 0; start_day <= 7; ++start_day) {
        Stored.Values.Start_Day = start_day;
        View(month, year);
        const int first = Grid.First_Box().Value();
        const int days = calendar::DaysInMonth(basic::Date_Serial(year, month, 1));
        for (int i = 0; i < 37; ++i) {
          const bool of_month = i >= first && i < first + days;
          ASSERT_EQ(Made.Box_Lbl[i].Caption(), of_month ? " " + std::to_string(i - first + 1) + " " : "");
          ASSERT_EQ(Made.Box_Lbl[i].Visible(), of_month);
          ASSERT_EQ(Made.Box_Caption_Lbl[i].Visible(), of_month);
          ASSERT_EQ(Made.Box_Caption_Lbl[i].Caption(), "");
          ASSERT_EQ(Made.Box_Lbl[i].BackColor(), 16777215);
        }
        ASSERT_EQ(Made.Window.Height(), first + days > 35 ? 6725 : 5735);
      }
    }
  }
}

TEST_F(Month_Grid_Test, Clears_what_the_boxes_held) {
  Grid.Enter_Date("8/3/2004=Tea");
  Made.Box_Lbl[7].BackColor = 1;
  Made.Box_Lbl[7].Visible = false;
  Made.Box_Caption_Lbl[36].Visible = false;
  Grid.Reset_Boxes();
  for (int i = 0; i < 37; ++i) {
    EXPECT_TRUE(Made.Box_Lbl[i].Visible());
    EXPECT_TRUE(Made.Box_Caption_Lbl[i].Visible());
    EXPECT_EQ(Made.Box_Lbl[i].Caption(), "");
    EXPECT_EQ(Made.Box_Caption_Lbl[i].Caption(), "");
    EXPECT_EQ(Made.Box_Lbl[i].BackColor(), 16777215);
  }
  EXPECT_EQ(Made.Box_Lbl[7].ToolTipText(), "Tea") << "tips are cleared by themselves";
}

TEST_F(Month_Grid_Test, Turns_boxes_into_days_and_back) {
  Stored.Values.Start_Day = 1;
  EXPECT_EQ(Grid.First_Box(), 1);
  EXPECT_EQ(Grid.Day_Of_Box(1), 1);
  EXPECT_EQ(Grid.Day_Of_Box(15), 15);
  EXPECT_EQ(Grid.Day_Of_Box(0), 0);
}

TEST_F(Month_Grid_Test, Enter_Date_throws_what_a_bad_line_throws) {
  EXPECT_EQ(Error_Of_Line("bad"), 5);
  EXPECT_EQ(Error_Of_Line("8/3=x"), 13);
  EXPECT_EQ(Error_Of_Line("8/3/99999=x"), 6);
}

TEST_F(Month_Grid_Test, Enter_Date_throws_error_9_for_a_day_of_the_month_on_view_without_a_box) {
  for (const char* const line : {"38/3/2004=x", "0/3/2004=x", "-5/3/9999=x", "32767/3/2004=x"})
    EXPECT_EQ(Error_Of_Line(line), 9) << line;
  EXPECT_EQ(Error_Of_Line("37/3/2004=x"), 0);
  EXPECT_EQ(Error_Of_Line("38/4/2004=x"), 0);
  Stored.Values.Start_Day = 1;
  EXPECT_EQ(Error_Of_Line("32767/3/2004=x"), 6) << "the box's number is too large for its type";
  EXPECT_EQ(Error_Of_Line("0/3/2004=x"), 0);
}

TEST_F(Month_Grid_Test, Enter_Date_alerts_only_behind_the_box) {
  Alerts.Take_Present_Day();
  Box.While_Open = [&] { EXPECT_EQ(Made.Box_Caption_Lbl[4].Caption(), "Tea\r\n\r\n"); };
  Grid.Enter_Date("5/3/2004=Tea");
  EXPECT_EQ(Box.Shown.size(), 1U);
}

TEST_F(Month_Grid_Test, Enter_Date_keeps_a_text_of_ten_megabytes_as_the_tip) {
  const std::string text(10'000'000, 'x');
  Grid.Enter_Date("8/3/2004=" + text);
  EXPECT_EQ(Made.Box_Lbl[7].ToolTipText(), text);
  EXPECT_EQ(Made.DotDotDot_Lbl.Caption(), text);
  Stored.Values.Style = 0;
  View(3, 2004);
  Grid.Enter_Date("8/3/2004=" + text);
  EXPECT_EQ(Made.Box_Caption_Lbl[7].Caption(), "xxxxxxx...");
}

TEST_F(Month_Grid_Test, Mark_Today_marks_one_box_of_the_present_month_alone) {
  Stored.Values.Today = 255;
  const auto marked = [&] {
    std::vector<int> boxes;
    for (int i = 0; i < 37; ++i)
      if (Made.Box_Lbl[i].BackColor() == 255) boxes.push_back(i);
    return boxes;
  };
  Grid.Mark_Today();
  EXPECT_EQ(marked(), std::vector<int>{4});
  for (const auto& [month, year] : {std::pair{4, 2004}, std::pair{3, 2005}, std::pair{2, 2004}}) {
    View(month, year);
    Grid.Mark_Today();
    EXPECT_EQ(marked(), std::vector<int>());
  }
  Clock.Set(2004, 8, 31);
  View(8, 2004);
  Grid.Mark_Today();
  EXPECT_EQ(marked(), std::vector<int>{36});
}

TEST_F(Month_Grid_Test, Set_Day_Headers_names_the_week_or_its_first_letters) {
  for (int start_day = 1; start_day <= 7; ++start_day) {
    for (const int style : {1, 2}) {
      Stored.Values.Start_Day = start_day;
      Stored.Values.Style = style;
      Grid.Set_Day_Headers();
      for (int i = 0; i < 7; ++i) {
        const std::string& name = Locale.Names.Short_Weekdays[static_cast<std::size_t>((start_day - 1 + i) % 7)];
        EXPECT_EQ(Made.Day_Lbl[i].Caption(), style == 2 ? name.substr(0, 1) : name);
      }
    }
  }
  Locale.Names.Short_Weekdays.fill("");
  EXPECT_EQ(Error_Of([&] { Grid.Set_Day_Headers(); }), 0) << "a locale without names has no first letters";
}

TEST_F(Month_Grid_Test, Counts_the_days_from_today_by_the_box_and_the_month_on_view) {
  Stored.Values.Start_Day = 2;  // March 2004 begins in box 0
  for (const auto& [box, days] : {std::pair{4, 0}, {5, 1}, {0, -4}, {30, 26}})
    EXPECT_EQ(Grid.Days_From_Today(box), days) << box;
  Clock.Set(2004, 3, 5, 23, 59, 59);
  EXPECT_EQ(Grid.Days_From_Today(5), 1) << "whatever the hour";
  View(2, 2004);
  EXPECT_EQ(Grid.Days_From_Today(Grid.First_Box() + 28), -5) << "29 February";
  View(3, 2005);
  EXPECT_EQ(Grid.Days_From_Today(Grid.First_Box() + 4), 365);
}

TEST_F(Month_Grid_Test, Selects_the_day_of_a_box_or_today) {
  Stored.Values.Start_Day = 2;
  View(4, 2004);
  Grid.Select_Day_Of_Box(Grid.First_Box() + 9);
  EXPECT_EQ(Calendar.Selected_Date, "10/4/2004");
  Grid.Select_Today();
  EXPECT_EQ(Calendar.Selected_Date, "5/3/2004");
}

#include "tests/tooltips/balloon_world.h"

using tooltips::Balloon_Title;
using tooltips::Balloons;

namespace {

class Still_Clock : public platform::Clock {
 public:
  basic::Moment At{};

  basic::Moment Now() override { return At; }
};

class Balloons_Test : public Balloon_World {
 protected:
  Balloons_Test() {
    Clock.At.Day = basic::Date_Serial(2004, 3, 5);
    Calendar.View_Year = 2004;
    Calendar.View_Month = 3;
    Made_Balloons.Calls = Calls;
    Made_Balloons.Day_Of_Box = [](basic::Int16 box) -> basic::Int16 { return box + 1; };
  }

  /// The title of the balloon that opens for a box.
  std::string Title_Of(int box) {
    Calendar.Tip_Box = box;
    Made_Balloons.Balloon_Tooltip("Outing");
    std::string title;
    for (const toolkit::Control* const control : Backend.Forms.back()->Controls())
      if (control->Name == "lblTitle") title = dynamic_cast<const toolkit::Label&>(*control).Caption();
    Made_Balloons.Unload_All();
    return title;
  }

  Still_Clock Clock;
  Balloons Made_Balloons{Backend, Screen, Clock, Made, Calendar};
};

}  // namespace

TEST(Balloon_Title, Tells_the_days_from_today) {
  EXPECT_EQ(Balloon_Title(-657434), "657434 days ago");
  EXPECT_EQ(Balloon_Title(-7), "7 days ago");
  EXPECT_EQ(Balloon_Title(-2), "2 days ago");
  EXPECT_EQ(Balloon_Title(-1), "Yesterday");
  EXPECT_EQ(Balloon_Title(0), "Today");
  EXPECT_EQ(Balloon_Title(1), "Tomorrow");
  EXPECT_EQ(Balloon_Title(2), "2 days time");
  EXPECT_EQ(Balloon_Title(300), "300 days time");
  EXPECT_EQ(Balloon_Title(2958465), "2958465 days time");
}

TEST_F(Balloons_Test, Titles_a_balloon_by_its_box_and_the_month_on_view) {
  EXPECT_EQ(Title_Of(4), "Today");
  EXPECT_EQ(Title_Of(5), "Tomorrow");
  EXPECT_EQ(Title_Of(0), "4 days ago");
  Calendar.View_Month = 2;
  EXPECT_EQ(Title_Of(28), "5 days ago") << "29 February";
  Calendar.View_Year = 2005;
  Calendar.View_Month = 3;
  EXPECT_EQ(Title_Of(4), "365 days time");
}

TEST_F(Balloons_Test, Counts_by_calendar_days_whatever_the_hour) {
  Clock.At.Micros = 86'399'000'000;
  EXPECT_EQ(Title_Of(5), "Tomorrow");
}

TEST_F(Balloons_Test, Opens_each_balloon_anew_and_keeps_none_that_has_closed) {
  Made_Balloons.Balloon_Tooltip("First");
  EXPECT_EQ(Backend.Windows, 1);
  Made_Balloons.Unload_All();
  EXPECT_EQ(Backend.Windows, 0);
  Made_Balloons.Balloon_Tooltip("Second");
  EXPECT_EQ(Backend.Windows, 1);
  EXPECT_EQ(Backend.Forms.size(), 2U);
  EXPECT_TRUE(Calendar.Tip_Showing);
  Made_Balloons.Unload_All();
  Made_Balloons.Unload_All();
  EXPECT_EQ(Backend.Windows, 0);
  EXPECT_FALSE(Calendar.Tip_Showing);
  EXPECT_EQ(Done, "month idle month idle ");
}

TEST_F(Balloons_Test, Bears_another_one_that_opens_while_the_month_is_rebuilt) {
  bool first = true;
  Made_Balloons.Calls.Rebuild_Month = [&] {
    if (!std::exchange(first, false)) return;
    Made_Balloons.Balloon_Tooltip("Inner");
    Made_Balloons.Unload_All();
  };
  Made_Balloons.Balloon_Tooltip("Outer");
  EXPECT_EQ(Backend.Windows, 1);
  EXPECT_EQ(Backend.Ticking.size(), 1U);
}

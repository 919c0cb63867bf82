#include "tests/tooltips/balloon_world.h"

using tooltips::Balloon_Title;
using tooltips::Balloons;

namespace {

class Balloons_Test : public Balloon_World {
 protected:
  /// The title of the balloon that opens for a day so far from today.
  std::string Title_Of(std::int32_t days) {
    Made_Balloons.Balloon_Tooltip("Outing", days);
    std::string title;
    for (const toolkit::Control* const control : Backend.Forms.back()->Controls())
      if (control->Name == "lblTitle") title = dynamic_cast<const toolkit::Label&>(*control).Caption();
    Made_Balloons.Unload_All();
    return title;
  }

  Balloons Made_Balloons{Backend, Screen, Made, Calendar, Calls};
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

TEST_F(Balloons_Test, Titles_a_balloon_by_its_distance_from_today) {
  EXPECT_EQ(Title_Of(0), "Today");
  EXPECT_EQ(Title_Of(1), "Tomorrow");
  EXPECT_EQ(Title_Of(-4), "4 days ago");
  EXPECT_EQ(Title_Of(365), "365 days time");
}

TEST_F(Balloons_Test, Opens_each_balloon_anew_and_keeps_none_that_has_closed) {
  Made_Balloons.Balloon_Tooltip("First", 0);
  EXPECT_EQ(Backend.Windows, 1);
  Made_Balloons.Unload_All();
  EXPECT_EQ(Backend.Windows, 0);
  Made_Balloons.Balloon_Tooltip("Second", 0);
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
  Calls.Rebuild_Month = [&] {
    if (!std::exchange(first, false)) return;
    Made_Balloons.Balloon_Tooltip("Inner", 0);
    Made_Balloons.Unload_All();
  };
  Balloons balloons(Backend, Screen, Made, Calendar, Calls);
  balloons.Balloon_Tooltip("Outer", 0);
  EXPECT_EQ(Backend.Windows, 1);
  EXPECT_EQ(Backend.Ticking.size(), 1U);
}

// What a screen reader hears of the whole program's windows.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/calendar/program_world.h"
#include "toolkit/reading.h"
#include "toolkit/text_box.h"

namespace {

using toolkit::Control;
using toolkit::Hear;
using toolkit::Heard;
using toolkit::Role;
using Texts = std::vector<std::string>;

constexpr int key_f8 = 119;

class Spoken : public ::testing::Test, public Program_World {
 protected:
  /// Starts the program on 5 March 2004 over these events.
  void Start(const Texts& events) {
    std::string bytes;
    for (const std::string& event : events) bytes += "\"" + event + "\"\r\n";
    Platform.Files.Put("C:\\Meridex\\calendar.dat", bytes);
    Program_World::Start();
  }

  /// What is heard of the visible controls of a window that are of that kind to the user.
  std::vector<Heard> All(const char* window, Role role) {
    std::vector<Heard> all;
    for (const Control* const control : toolkit::Heard_Controls(*Window(window))) {
      Heard heard = Hear(*control);
      if (heard.Visible && heard.Role == role) all.push_back(std::move(heard));
    }
    return all;
  }

  Texts Names(const char* window, Role role) {
    Texts names;
    for (const Heard& heard : All(window, role)) names.push_back(heard.Name);
    return names;
  }

  Texts Days() { return Names("Main_Frm", Role::Cell); }

  Control& Named(const char* window, const std::string& name, int index = -1) {
    for (Control* const control : Window(window)->Controls())
      if (control->Name == name && control->Index == index) return *control;
    throw std::logic_error("no " + name);
  }

  template <class Work>
  void Do(Work work) {
    Platform.Loop.Dispatch(work);
  }

  void Press(const char* window, int key) {
    Do([&] { Platform.Backend().Input.Key_Up(*Window(window), {key}); });
  }

  void Turn_To_Next_Month() {
    Do([&] { toolkit::Act_On(Named("Main_Frm", "Next_Month_Lbl")); });
  }
};

}  // namespace

TEST_F(Spoken, Each_day_of_the_month_is_heard_as_one_with_its_full_date) {
  Start({});
  const Texts days = Days();
  ASSERT_EQ(days.size(), 31U);
  EXPECT_EQ(days.front(), "1 March 2004");
  EXPECT_EQ(days.back(), "31 March 2004");
}

TEST_F(Spoken, Today_is_heard_as_today) {
  Start({});
  EXPECT_EQ(Days().at(4), "5 March 2004, today");
}

TEST_F(Spoken, An_event_is_heard_whole_however_little_of_it_has_room) {
  const std::string text = "Dentist at nine, then the bank && the post office, and the train at half past six";
  Start({"5/3/2004=Tea", "8/3/2004=" + text});
  EXPECT_EQ(Days().at(7),
            "8 March 2004, Dentist at nine, then the bank & the post office, and the train at half past six");
  EXPECT_EQ(Days().at(4), "5 March 2004, today, Tea");
}

TEST_F(Spoken, An_event_of_several_lines_is_heard_as_one) {
  Start({"8/3/2004=Dentist\r\nat nine"});
  EXPECT_EQ(Days().at(7), "8 March 2004, Dentist at nine");
}

TEST_F(Spoken, An_event_of_every_year_is_heard_like_any_other) {
  Start({"9/3/9999=Birthday"});
  EXPECT_EQ(Days().at(8), "9 March 2004, Birthday");
}

TEST_F(Spoken, In_the_small_style_the_events_that_arent_seen_are_heard) {
  Platform.Store.Save("Meridex", "Settings", "Style", "2");
  Start({"9/3/2004=Birthday"});
  EXPECT_EQ(Days().at(8), "9 March 2004, Birthday");
}

TEST_F(Spoken, Another_month_is_heard_with_its_own_days_and_events) {
  Start({"8/3/2004=Dentist", "1/4/2004=Fools"});
  Turn_To_Next_Month();
  const Texts days = Days();
  ASSERT_EQ(days.size(), 30U);
  EXPECT_EQ(days.front(), "1 April 2004, Fools");
  EXPECT_EQ(std::count_if(days.begin(), days.end(), [](const std::string& day) { return day.size() > 13; }), 1)
      << "of the month before nothing is left";
}

TEST_F(Spoken, An_event_that_has_been_cleared_isnt_heard) {
  Start({"8/3/2004=Dentist"});
  Do([&] { Named("Main_Frm", "Box_Caption_Lbl", 7).On_Double_Click(); });
  Do([&] {
    dynamic_cast<toolkit::Text_Box&>(Named("Edit_Frm", "Message_Txt")).User_Text("");
    toolkit::Act_On(Named("Edit_Frm", "Ok_Btn"));
  });
  EXPECT_EQ(Days().at(7), "8 March 2004");
}

TEST_F(Spoken, In_compact_mode_the_title_alone_is_there) {
  Start({});
  Do([&] { toolkit::Act_On(Named("Main_Frm", "Which_Month_Lbl")); });
  EXPECT_EQ(Days(), Texts{});
  EXPECT_EQ(Names("Main_Frm", Role::Push_Button), Texts{});
  EXPECT_EQ(Names("Main_Frm", Role::Text).size(), 1U);
}

TEST_F(Spoken, The_arrows_the_title_and_the_headers_are_called_by_what_they_stand_for) {
  Start({});
  EXPECT_EQ(Names("Main_Frm", Role::Push_Button), (Texts{"Previous month", "Next month"}));
  EXPECT_EQ(Names("Main_Frm", Role::Column_Header),
            (Texts{"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"}));
  const std::vector<Heard> title = All("Main_Frm", Role::Text);
  ASSERT_EQ(title.size(), 1U);
  EXPECT_EQ(title[0].Name, dynamic_cast<toolkit::Label&>(Named("Main_Frm", "Which_Month_Lbl")).Caption());
  EXPECT_EQ(Hear(*Window("Main_Frm")).Name, "Meridex");
}

TEST_F(Spoken, The_reader_opens_the_editor_where_the_user_double_clicks) {
  Start({"8/3/2004=Dentist"});
  EXPECT_EQ(All("Main_Frm", Role::Cell).at(7).Action, "Double click");
  Do([&] { toolkit::Act_On(Named("Main_Frm", "Box_Lbl", 7)); });
  ASSERT_TRUE(Window("Edit_Frm")->Visible());
  const std::vector<Heard> texts = All("Edit_Frm", Role::Text_Box);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].Name, "Monday 8th March 2004");
  EXPECT_EQ(texts[0].Value, "Dentist");
  EXPECT_TRUE(texts[0].Focused);
  EXPECT_EQ(Names("Edit_Frm", Role::Push_Button), (Texts{"OK", "Cancel", "Apply"}));
  EXPECT_EQ(Hear(*Window("Edit_Frm")).Role, Role::Dialog);
}

TEST_F(Spoken, A_balloon_is_heard_whole) {
  Platform.Store.Save("Meridex", "Settings", "Tooltips", "2");
  Start({"6/3/2004=Tea && cake"});
  Do([&] { Named("Main_Frm", "Box_Lbl", 5).On_Mouse_Down({toolkit::Mouse_Button::Left}); });
  Pass(1);
  ASSERT_NE(Window("frmBalloon"), nullptr);
  EXPECT_EQ(Hear(*Window("frmBalloon")).Name, "Tomorrow, Tea & cake");
}

TEST_F(Spoken, Every_control_of_the_settings_window_that_takes_the_keys_has_a_name) {
  Start({});
  Press("Main_Frm", key_f8);
  const toolkit::Form* const window = Window("Settings_Frm");
  ASSERT_NE(window, nullptr);
  for (const Control* const control : toolkit::Heard_Controls(*window)) {
    const Heard heard = Hear(*control);
    if (!heard.Focusable || heard.Role == Role::Tabs || !control->Visible) continue;
    EXPECT_NE(heard.Name, "") << control->Name << ' ' << control->Index;
  }
  EXPECT_EQ(Hear(Named("Settings_Frm", "Bar_Date_Cbo")).Name, "Date:");
  EXPECT_EQ(Hear(Named("Settings_Frm", "Sort_Cbo")).Name, "Sort by:");
}

TEST_F(Spoken, The_page_that_is_turned_to_is_seen_and_no_other) {
  Start({});
  Press("Main_Frm", key_f8);
  Do([&] { toolkit::Select_Part(Named("Settings_Frm", "TabStrip1"), 2); });
  EXPECT_TRUE(Hear(Named("Settings_Frm", "Splash_Chk")).Visible);
  EXPECT_FALSE(Hear(Named("Settings_Frm", "Theme_Pos_Chk")).Visible);
  EXPECT_TRUE(Hear_Part(Named("Settings_Frm", "TabStrip1"), 2).Selected);
}

// The whole program over a window system, with a clock that the case sets: a tick and a midnight under a message box
// and under a menu.
#include "main/meridex.h"
#include "tests/contract/service_world.h"

using platform::Box_Answer;

namespace {

constexpr basic::Serial_Day last_of_march_2004 = 38077;

/// Runs as the world's clock does, from the moment that was set last.
class Set_Clock : public platform::Clock {
 public:
  explicit Set_Clock(platform::Clock& real) : real_(real) {
    Set({last_of_march_2004, 12 * std::int64_t{3'600'000'000}});
  }

  void Set(const basic::Moment& moment) {
    moment_ = moment;
    set_at_ = real_.Now();
  }
  basic::Moment Now() override {
    const basic::Moment now = real_.Now();
    const std::int64_t passed = (now.Day - set_at_.Day) * std::int64_t{86'400'000'000} + now.Micros - set_at_.Micros;
    return {moment_.Day, moment_.Micros + passed};
  }

 private:
  platform::Clock& real_;
  basic::Moment moment_, set_at_;
};

class Program_Cases : public Service_Cases {
 protected:
  Program_Cases() {
    platform::Files& files = World->System().Files;
    const auto file = files.Create(files.Program_Folder() + "\\calendar.dat");
    file->Write("\"31/3/2004=Today\"\r\n\"1/4/9999=Fools\"\r\n");
  }

  platform::System System_With_Clock() {
    platform::System& system = World->System();
    return {.Clock = Clock,
            .Locale = system.Locale,
            .Files = system.Files,
            .Loop = system.Loop,
            .Message_Box = system.Message_Box,
            .Popup_Menu = system.Popup_Menu,
            .Store = system.Store,
            .Screen = system.Screen,
            .Instances = system.Instances,
            .Shell = system.Shell,
            .Registry = system.Registry,
            .Profiles = system.Profiles,
            .Wallpaper = system.Wallpaper,
            .Pictures = system.Pictures,
            .Shell_Open = system.Shell_Open,
            .File_Dialog = system.File_Dialog};
  }

  void Start() {
    World->Run([this] { Program->Start(); });
    for (toolkit::Form* const form : World->Backend().Input.Forms())
      if (form->Name == "Main_Frm") Main_Frm = form;
    ASSERT_NE(Main_Frm, nullptr);
    User.Wait(200);
  }

  toolkit::Label& Title() {
    for (toolkit::Control* const control : Main_Frm->Controls())
      if (control->Name == "Which_Month_Lbl") return dynamic_cast<toolkit::Label&>(*control);
    throw std::logic_error("no title");
  }

  /// The box of a day of the month on view.
  toolkit::Control* Box_Of(int day) {
    for (toolkit::Control* const control : Main_Frm->Controls()) {
      auto* const label = dynamic_cast<toolkit::Label*>(control);
      if (label != nullptr && label->Name == "Box_Lbl" && label->Caption == " " + std::to_string(day) + " ")
        return label;
    }
    return nullptr;
  }

  void Turn_The_Day() { Clock.Set({last_of_march_2004 + 1, 0}); }

  /// The alert of 31 March comes up in the start.
  void Start_Behind_The_Alert() {
    User.Answer(Box_Answer::OK, [] {});
    Start();
  }

  Set_Clock Clock{World->System().Clock};
  ::User& User = World->The_User();
  std::unique_ptr<Meridex> Program = std::make_unique<Meridex>(World->Backend(), System_With_Clock());
  toolkit::Form* Main_Frm = nullptr;
};

}  // namespace

TEST_F(Program_Cases, A_midnight_under_a_menu_turns_the_month_behind_it) {
  Start_Behind_The_Alert();
  EXPECT_EQ(Title().Caption(), "31st March - 2004");
  std::string title_meanwhile;
  // The new day's alert comes up over the open menu, is answered, and then the menu is left.
  User.Choose(0, 0, [&] {
    User.Answer(Box_Answer::OK, [&] { title_meanwhile = Title().Caption; });
    Turn_The_Day();
  });
  User.Press(*Main_Frm, &Title(), toolkit::Mouse_Button::Right);
  User.Wait(1500);
  EXPECT_EQ(title_meanwhile, "1st April - 2004");
  EXPECT_EQ(Title().Caption(), "1st April - 2004");
  EXPECT_TRUE(Program->State().Alerted_Today);
  EXPECT_TRUE(Main_Frm->Accepts_Input());
}

TEST_F(Program_Cases, A_midnight_under_an_alert_is_followed_by_the_new_days_own) {
  Start_Behind_The_Alert();
  int boxes = 0;
  World->Run([&] {
    User.Answer(Box_Answer::OK, [&] {
      ++boxes;
      EXPECT_FALSE(Main_Frm->Accepts_Input());
    });
    Turn_The_Day();
    User.Wait(1500);
  });
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(Title().Caption(), "1st April - 2004");
  EXPECT_EQ(Program->State().View_Month, 4);
  EXPECT_TRUE(Main_Frm->Accepts_Input());
}

TEST_F(Program_Cases, An_alert_over_a_balloon_waits_for_its_answer) {
  World->System().Store.Save("Meridex", "Settings", "Tooltips", "2");
  Start_Behind_The_Alert();
  World->System().Store.Save("Meridex", "Settings", "Tooltips", "0");
  User.Press(*Main_Frm, Box_Of(31), toolkit::Mouse_Button::Left);
  User.Wait(500);
  User.Release(*Main_Frm, Box_Of(31), toolkit::Mouse_Button::Left);
  ASSERT_TRUE(Program->State().Tip_Showing);
  bool open = false;
  User.Answer(Box_Answer::OK, [&] { open = true; });
  Turn_The_Day();
  User.Wait(1500);
  EXPECT_TRUE(open);
  EXPECT_TRUE(Program->State().Alerted_Today);
}

TEST_F(Program_Cases, The_tick_follows_the_active_window) {
  Start_Behind_The_Alert();
  User.Click(*Main_Frm, &Title());
  User.Wait(300);
  EXPECT_FALSE(Program->State().Window_Inactive);
}

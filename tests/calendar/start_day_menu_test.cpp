// "Set as Start Day" where the locale abbreviates several weekdays alike.
#include <gtest/gtest.h>

#include "tests/calendar/odd_locale.h"
#include "tests/calendar/program_world.h"

namespace {

class Start_Day_Menu : public ::testing::Test, public Program_World {
 protected:
  Start_Day_Menu() {
    Locale.Pattern = "dd/mm/";
    const platform::System own = Platform.System();
    const platform::System system{own.Clock,       Locale,         own.Files,      own.Loop,
                                  own.Message_Box, own.Popup_Menu, own.Store,      own.Screen,
                                  own.Instances,   own.Shell,      own.Registry,   own.Profiles,
                                  own.Wallpaper,   own.Pictures,   own.Shell_Open, own.File_Dialog};
    Platform.Begin_Program();
    Program = std::make_unique<Meridex>(Platform.Backend(), system);
    Platform.Loop.Dispatch([this] { Program->Start(); });
  }

  toolkit::Control& Header(int index) {
    for (toolkit::Control* const control : Window("Main_Frm")->Controls())
      if (control->Name == "Day_Lbl" && control->Index == index) return *control;
    throw std::logic_error("no header");
  }

  void Set_As_Start_Day(int index) {
    Platform.Menu.Prepare(1);
    Platform.Loop.Dispatch(
        [this, index] { Platform.User.Press(*Window("Main_Frm"), &Header(index), {toolkit::Mouse_Button::Right}); });
  }

  Odd_Locale Locale;
};

}  // namespace

TEST_F(Start_Day_Menu, Takes_the_first_from_monday_on_of_weekdays_that_are_abbreviated_alike) {
  for (const int header : {0, 3, 6}) {
    Set_As_Start_Day(header);
    EXPECT_EQ(Platform.Store.Get("Meridex", "Settings", "Start Day", ""), "2") << header;
  }
}

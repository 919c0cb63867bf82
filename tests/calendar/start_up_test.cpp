// The parts of the start that only other processes see, and the end.
#include <gtest/gtest.h>

#include "tests/calendar/program_world.h"

namespace {

const std::string path = "C:\\Meridex\\calendar.dat";

class Start_Up_Test : public ::testing::Test, public Program_World {
 protected:
  /// What the program's own hidden window is called while the first alert is open.
  std::string Title_In_The_Load() {
    Platform.Files.Put(path, "\"5/3/2004=Tea\"\r\n");
    Platform.Message_Box.Prepare(platform::Box_Answer::OK, 1'000'000);
    std::string title;
    Platform.Time.Schedule(Platform.Time.Elapsed() + 500'000, [&] { title = Platform.Instances.Title(); });
    Start();
    return title;
  }

  /// The system's close request to the program, as a newer start posts it. Says whether the program goes on.
  bool Goes_On_Behind_Close_Request() {
    try {
      Platform.Loop.Dispatch([this] { Platform.Instances.On_Close_Request(); });
      return true;
    } catch (const platform::Program_Quit&) {
      return false;
    }
  }

  void Show_Desktop() { Platform.Shell.Set_Chain(memory::Shell_Chain::Icon_List); }
};

}  // namespace

TEST_F(Start_Up_Test, Is_called_Meridex_Loading_until_it_has_looked_for_an_older_instance) {
  Platform.Begin_Program();
  EXPECT_EQ(Platform.Instances.Title(), "Meridex Loading");
  EXPECT_EQ(Title_In_The_Load(), "Meridex") << "the title comes first of all, with or without another instance";
  Platform.Instances.Add("Meridex");
  EXPECT_EQ(Title_In_The_Load(), "Meridex");
}

TEST_F(Start_Up_Test, Has_the_title_also_where_a_setting_ends_it) {
  Platform.Store.Save("Meridex", "Settings", "Style", "x");
  try {
    Start();
    ADD_FAILURE() << "the start must fail";
  } catch (const platform::Program_Quit&) {
    EXPECT_EQ(Platform.Loop.Failure(), 13);
  }
  EXPECT_EQ(Platform.Instances.Title(), "Meridex");
  EXPECT_FALSE(Window("Main_Frm")->Visible());
}

TEST_F(Start_Up_Test, Goes_when_a_newer_start_asks_it_to) {
  Start();
  EXPECT_FALSE(Goes_On_Behind_Close_Request());
  EXPECT_EQ(Window("Main_Frm"), nullptr);
  EXPECT_EQ(Platform.Loop.Failure(), std::nullopt);
}

TEST_F(Start_Up_Test, Lives_until_the_splash_has_gone) {
  Show_Desktop();
  Start();
  EXPECT_TRUE(Goes_On_Behind_Close_Request());
  EXPECT_EQ(Window("Main_Frm"), nullptr);
  ASSERT_NE(Window("Splash_Frm"), nullptr);
  Pass(1.4);
  EXPECT_NE(Window("Splash_Frm"), nullptr);
  EXPECT_THROW(Pass(0.1), platform::Program_Quit);
  EXPECT_EQ(Window("Splash_Frm"), nullptr);
}

TEST_F(Start_Up_Test, Goes_with_a_splash_that_the_user_closes) {
  Show_Desktop();
  Start();
  EXPECT_TRUE(Goes_On_Behind_Close_Request());
  EXPECT_THROW(Platform.Loop.Dispatch([this] { Window("Splash_Frm")->Close_Requested(); }), platform::Program_Quit);
}

TEST_F(Start_Up_Test, Goes_in_the_middle_of_its_load_too) {
  Platform.Files.Put(path, "\"5/3/2004=Tea\"\r\n");
  Platform.Message_Box.Prepare(platform::Box_Answer::OK, 1'000'000);
  Platform.Time.Schedule(Platform.Time.Elapsed() + 500'000,
                         [this] { Platform.Loop.Dispatch([this] { Platform.Instances.On_Close_Request(); }); });
  EXPECT_THROW(Start(), platform::Program_Quit);
  EXPECT_EQ(Window("Main_Frm"), nullptr);
  EXPECT_EQ(Platform.Loop.Failure(), std::nullopt);
}

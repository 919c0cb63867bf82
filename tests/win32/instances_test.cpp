// The window by which instances know each other, among windows of the same title.
#include "platform/instances.h"

#include "tests/win32/window_on_screen.h"
#include "win32/handle.h"

namespace {

class Instances_Test : public Window_On_Screen {
 protected:
  /// A window of another program, which lies in front of the hidden ones.
  static win32::Window_Owner Foreign_Window(const char* title) {
    win32::Window_Owner made(
        CreateWindowExA(0, "STATIC", title, WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
    SetWindowPos(made.Get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return made;
  }

  platform::Instances& Instances = Platform.System().Instances;
};

}  // namespace

TEST_F(Instances_Test, A_folder_window_of_the_same_title_in_front_isnt_taken_for_an_instance) {
  Instances.Set_Title("Meridex");
  const win32::Window_Owner folder = Foreign_Window("Meridex");
  ASSERT_EQ(FindWindowA(nullptr, "Meridex"), folder.Get());
  const HWND found = win32::To_Window(Instances.Find_Window("Meridex"));
  EXPECT_EQ(found, FindWindowA("Meridex_Instance", nullptr));
}

TEST_F(Instances_Test, Without_an_instance_of_the_title_any_window_of_it_is_found) {
  const win32::Window_Owner folder = Foreign_Window("Meridex");
  EXPECT_EQ(win32::To_Window(Instances.Find_Window("Meridex")), folder.Get());
  EXPECT_EQ(Instances.Find_Window("Meridex - 2 Characters"), 0U);
}

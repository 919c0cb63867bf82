// What becomes of a window that the system doesn't make.
#include "basic/run_error.h"
#include "tests/win32/window_on_screen.h"
#include "toolkit/text_box.h"
#include "win32/drag_tip.h"
#include "win32/tip_window.h"

namespace {

std::string refused;  // the class of which the system makes no window

LRESULT CALLBACK Refuse(int code, WPARAM w, LPARAM l) {
  char name[64] = "";
  if (code == HCBT_CREATEWND) GetClassNameA(reinterpret_cast<HWND>(w), name, sizeof name);
  if (code == HCBT_CREATEWND && lstrcmpiA(name, refused.c_str()) == 0) return 1;
  return CallNextHookEx(nullptr, code, w, l);
}

/// Makes the system refuse windows of a class for as long as it lives.
class Refusal {
 public:
  explicit Refusal(const char* window_class) : hook_(SetWindowsHookExA(WH_CBT, Refuse, nullptr, GetCurrentThreadId())) {
    refused = window_class;
  }
  Refusal(const Refusal&) = delete;
  Refusal& operator=(const Refusal&) = delete;
  ~Refusal() { UnhookWindowsHookEx(hook_); }

 private:
  HHOOK hook_;
};

/// The number of the error that the work ends with, 0 for none.
int Error_Of(const std::function<void()>& work) {
  try {
    work();
  } catch (const basic::Run_Error& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace

using Window_Failure = Window_On_Screen;

TEST_F(Window_Failure, A_form_without_a_window_is_error_429) {
  const Refusal refusal("Meridex_Form");
  EXPECT_EQ(Error_Of([&] { Window.Load(); }), 429);
}

TEST_F(Window_Failure, A_control_without_a_window_is_error_429) {
  toolkit::Text_Box box(Window, "Text1");
  const Refusal refusal("Edit");
  EXPECT_EQ(Error_Of([&] { Window.Load(); }), 429);
}

TEST_F(Window_Failure, A_hidden_window_that_isnt_made_is_error_429) {
  const Refusal refusal("Meridex_Instance");
  EXPECT_EQ(Error_Of([] { win32::Win32_Platform{nullptr}; }), 429);
}

TEST_F(Window_Failure, A_tip_without_a_window_is_error_429) {
  Show();
  win32::Common_Controls controls;
  win32::Drag_Tip drag_tip(controls);
  win32::Tip_Window tip(controls);
  const Refusal refusal("tooltips_class32");
  EXPECT_EQ(Error_Of([&] { drag_tip.Show(Handle(), {}, "Month 6"); }), 429);
  EXPECT_EQ(Error_Of([&] { tip.Watch(Handle(), {0, 0, 9, 9}, "Dentist"); }), 429);
}

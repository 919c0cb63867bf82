#include "win32/win32_message_box.h"

#include "win32/form_window.h"

namespace win32 {

namespace {

UINT Flag_Of(platform::Box_Icon icon) {
  switch (icon) {
    case platform::Box_Icon::None: break;
    case platform::Box_Icon::Information: return MB_ICONINFORMATION;
    case platform::Box_Icon::Exclamation: return MB_ICONEXCLAMATION;
    case platform::Box_Icon::Critical: return MB_ICONHAND;
    case platform::Box_Icon::Question: return MB_ICONQUESTION;
  }
  return 0;
}

UINT Flag_Of(platform::Box_Buttons buttons) {
  switch (buttons) {
    case platform::Box_Buttons::OK: break;
    case platform::Box_Buttons::Yes_No: return MB_YESNO;
    case platform::Box_Buttons::Yes_No_Cancel: return MB_YESNOCANCEL;
  }
  return MB_OK;
}

platform::Box_Answer Answer_Of(int result) {
  switch (result) {
    case IDYES: return platform::Box_Answer::Yes;
    case IDNO: return platform::Box_Answer::No;
    case IDCANCEL: return platform::Box_Answer::Cancel;
    default: return platform::Box_Answer::OK;
  }
}

/// Keeps the other windows of the program from the user while a box is open: the system sees to the owner alone.
class Others_Disabled {
 public:
  Others_Disabled(const Window_List& windows, HWND owner) {
    for (const Form_Window* const window : windows.All())
      if (window->Window() != owner && EnableWindow(window->Window(), FALSE) == 0)
        disabled_.push_back(window->Window());
  }
  Others_Disabled(const Others_Disabled&) = delete;
  Others_Disabled& operator=(const Others_Disabled&) = delete;
  ~Others_Disabled() {
    for (const HWND window : disabled_) EnableWindow(window, TRUE);
  }

 private:
  std::vector<HWND> disabled_;
};

}  // namespace

platform::Box_Answer Win32_Message_Box::Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                                             platform::Box_Buttons buttons) {
  context_.Guard.Throw_If_Ending();
  context_.Windows.Settle();
  ReleaseCapture();
  const HWND owner = GetActiveWindow();
  int result = 0;
  {
    const Others_Disabled others(context_.Windows, owner);
    result = MessageBoxA(owner, text.c_str(), title.c_str(),
                         Flag_Of(icon) | Flag_Of(buttons) | MB_SETFOREGROUND | MB_TASKMODAL);
  }
  context_.Guard.Throw_If_Ending();
  return Answer_Of(result);
}

}  // namespace win32

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

}  // namespace

platform::Box_Answer Win32_Message_Box::Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                                             platform::Box_Buttons buttons) {
  context_.Guard.Throw_If_Ending();
  context_.Windows.Settle();
  const HWND owner = GetActiveWindow();
  toolkit::Form* const active = backend_.Active_Form();
  int result = 0;
  {
    // The system itself disables the owner, and enables it before it hands the activity back.
    const toolkit::Input::Modal modal(backend_.Input, active);
    result = MessageBoxA(owner, text.c_str(), title.c_str(),
                         Flag_Of(icon) | Flag_Of(buttons) | MB_SETFOREGROUND | MB_TASKMODAL);
  }
  context_.Guard.Throw_If_Ending();
  // To a window that was disabled meanwhile it hands nothing back.
  if (backend_.Input.Is_There(active) && active->Visible()) active->Activate();
  return Answer_Of(result);
}

}  // namespace win32

#include "win32/win32_message_box.h"

#include "win32/behind_box.h"

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

/// A box that couldn't be shown, or was closed by the system, counts as not agreed to.
platform::Box_Answer Answer_Of(int result, platform::Box_Buttons buttons) {
  using platform::Box_Answer;
  switch (result) {
    case IDYES: return Box_Answer::Yes;
    case IDNO: return Box_Answer::No;
    case IDCANCEL: return Box_Answer::Cancel;
    default: break;
  }
  if (buttons == platform::Box_Buttons::OK) return Box_Answer::OK;
  return buttons == platform::Box_Buttons::Yes_No ? Box_Answer::No : Box_Answer::Cancel;
}

/// The window that owns a box, and would take it along when it is destroyed: the active dialog or the calendar, never a
/// window that closes by itself. The calendar is the program's first window; as a part of the desktop it owns nothing.
const Program_Window* Owner_Of_Box(const Window_List& windows, const Program_Window* active) {
  if (active != nullptr && active->Form().Border != toolkit::Form_Border::None) return active;
  const Program_Window* const calendar = windows.All().empty() ? nullptr : windows.All().front();
  return calendar != nullptr && calendar->Form().Visible() && !calendar->Embedded() ? calendar : nullptr;
}

}  // namespace

platform::Box_Answer Win32_Message_Box::Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                                             platform::Box_Buttons buttons) {
  context_.Guard.Throw_If_Ending();
  context_.Windows.Settle();
  context_.Common_Controls.Start();
  // Another box may be active; then it is the owner.
  const HWND active = Own_Active_Window();
  Program_Window* const active_form = context_.Windows.Around(active);
  const bool over_another_box = active != nullptr && active_form == nullptr;
  const Program_Window* const owner = over_another_box ? nullptr : Owner_Of_Box(context_.Windows, active_form);
  const HWND owner_window = owner != nullptr ? owner->Window() : over_another_box ? active : nullptr;
  int result = 0;
  {
    const Behind_Box behind(context_, active_form);
    // The system itself disables the owner, and enables it before it hands the activity back.
    const toolkit::Input::Modal modal(backend_.Input, owner != nullptr ? &owner->Form() : nullptr);
    result = MessageBoxA(owner_window, text.c_str(), title.c_str(),
                         Flag_Of(icon) | Flag_Of(buttons) | MB_SETFOREGROUND | MB_TASKMODAL);
  }
  context_.Guard.Throw_If_Ending();
  if (active_form != nullptr) Give_Back_To(context_, active_form);
  backend_.Input.Catch_Up();
  return Answer_Of(result, buttons);
}

}  // namespace win32

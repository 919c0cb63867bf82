#include "win32/guard.h"

#include "platform/event_loop.h"
#include "win32/windows_api.h"

namespace win32 {

void Guard::Quit() noexcept {
  ending_ = true;
  PostQuitMessage(0);
  // The loop of an open menu may ignore the message to quit.
  if (const auto end_menu = Find_Function<BOOL WINAPI()>(GetModuleHandleA("user32.dll"), "EndMenu")) end_menu();
}

void Guard::Throw_If_Ending() const {
  if (ending_) throw platform::Program_Quit();
}

void Guard::Caught() noexcept {
  try {
    throw;
  } catch (const platform::Program_Quit&) {
    // The ordinary end, on its way out of a handler that waited.
  } catch (...) {
    if (failure_ == nullptr) failure_ = std::current_exception();
  }
  if (!ending_) Quit();
}

}  // namespace win32

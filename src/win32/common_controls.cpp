#include "win32/common_controls.h"

#include <commctrl.h>

#include "win32/system_library.h"

namespace win32 {

bool Common_Controls::Start() {
  if (started_) return true;
  if (!library_) library_ = System_Library("comctl32.dll");
  // The first versions of the library have the plain function alone, which knows all the kinds that we use.
  const INITCOMMONCONTROLSEX kinds = {sizeof kinds, ICC_WIN95_CLASSES};
  const auto start_kinds =
      Find_Function<BOOL WINAPI(const INITCOMMONCONTROLSEX*)>(library_.Get(), "InitCommonControlsEx");
  const auto start_all = Find_Function<void WINAPI()>(library_.Get(), "InitCommonControls");
  if (start_all == nullptr) return false;
  start_all();
  if (start_kinds != nullptr) start_kinds(&kinds);
  return started_ = true;
}

}  // namespace win32

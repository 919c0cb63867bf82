#include "win32/code_page.h"

namespace win32 {

void Warn_Of_Utf8(UINT code_page, platform::Settings_Store& store, platform::Message_Box& box) {
  constexpr char application[] = "Meridex", section[] = "System", key[] = "Told of UTF-8";
  if (code_page != CP_UTF8 || store.Get(application, section, key, "0") == "1") return;
  try {
    store.Save(application, section, key, "1");
  } catch (const basic::Run_Error&) {
    // Without a note it is told again at the next start, which is better than no start.
  }
  box.Show("Meridex",
           "Windows is set to use UTF-8 in all programs. Letters with accents, and those of other scripts, in events "
           "that were written before that don't show as they were.\r\n\r\nThey do again when the language settings of "
           "Windows for non-Unicode programs no longer ask for UTF-8.",
           platform::Box_Icon::Exclamation, platform::Box_Buttons::OK);
}

}  // namespace win32

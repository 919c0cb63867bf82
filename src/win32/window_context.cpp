#include "win32/window_context.h"

#include "toolkit/input.h"

namespace win32 {

void Window_List::Settle() {
  // By index: settling sends messages, which may settle the windows again.
  for (std::size_t i = 0; i < windows_.size(); ++i) windows_[i]->Settle();
}

Program_Window* Window_List::Around(HWND window) const {
  if (window == nullptr) return nullptr;
  for (Program_Window* const form : windows_)
    if (form->Window() == window || IsChild(form->Window(), window) != 0) return form;
  return nullptr;
}

void Window_Context::Note_Pointer(const toolkit::Input& input) {
  if (input.Mouse_Window() == nullptr) GetCursorPos(&Pointer);
}

}  // namespace win32

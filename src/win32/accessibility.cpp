#include "win32/accessibility.h"

#include <utility>

#include "win32/system_library.h"

namespace win32 {

Accessibility::~Accessibility() {
  const auto uninitialise = Find_Function<void WINAPI()>(ole_.Get(), "CoUninitialize");
  if (initialised_ && uninitialise != nullptr) uninitialise();
}

bool Accessibility::Start() {
  if (!std::exchange(load_tried_, true) && !Load()) answer_ = nullptr;
  return answer_ != nullptr;
}

bool Accessibility::Load() {
  readers_ = System_Library("oleacc.dll");
  ole_ = System_Library("ole32.dll");
  automation_ = System_Library("oleaut32.dll");
  answer_ = Find_Function<Answer_Function>(readers_.Get(), "LresultFromObject");
  object_ = Find_Function<Object_Function>(readers_.Get(), "AccessibleObjectFromWindow");
  text_ = Find_Function<Text_Function>(automation_.Get(), "SysAllocStringLen");
  const auto initialise = Find_Function<HRESULT WINAPI(void*)>(ole_.Get(), "CoInitialize");
  if (answer_ == nullptr || object_ == nullptr || text_ == nullptr || initialise == nullptr) return false;
  // The objects go to other processes by this thread's messages.
  initialised_ = SUCCEEDED(initialise(nullptr));
  return initialised_;
}

IDispatch* Accessibility::Object_Of(HWND window, LONG number) const {
  void* found = nullptr;
  const HRESULT result = object_(window, static_cast<DWORD>(number), accessible_id, &found);
  return SUCCEEDED(result) ? static_cast<IDispatch*>(found) : nullptr;
}

BSTR Accessibility::Text(std::string_view text) const {
  if (text.empty()) return nullptr;
  const std::wstring wide = Wide(text);
  return text_(wide.data(), static_cast<UINT>(wide.size()));
}

// A system that can't say whether anyone listens is told always; it looks for listeners itself.
void Accessibility::Tell(DWORD event, HWND window, LONG child) {
  if (!std::exchange(tell_looked_up_, true)) {
    const HMODULE user = GetModuleHandleA("user32.dll");
    listening_ = Find_Function<Listening_Function>(user, "IsWinEventHookInstalled");
    tell_ = Find_Function<Tell_Function>(user, "NotifyWinEvent");
  }
  if (tell_ == nullptr || (listening_ != nullptr && listening_(event) == 0)) return;
  tell_(event, window, OBJID_CLIENT, child);
}

}  // namespace win32

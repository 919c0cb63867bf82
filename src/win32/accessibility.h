// The system's services for screen readers. Nothing of them is loaded until a reader asks for a window; the first
// systems may lack them, and then no reader asks.
#pragma once

#include <string_view>

#include "win32/handle.h"

// Behind the system's header, whose lean form leaves them out.
#include <objbase.h>
#include <oleauto.h>

namespace win32 {

class Accessibility {
 public:
  Accessibility() = default;
  Accessibility(const Accessibility&) = delete;
  Accessibility& operator=(const Accessibility&) = delete;
  ~Accessibility();

  /// Loads what is needed to answer; returns false where the system has it not.
  bool Start();

  // Only after Start.

  /// The answer to a reader's WM_GETOBJECT with `w`.
  LRESULT Answer(WPARAM w, IUnknown* object) const { return answer_(accessible_id, w, object); }

  /// The object that a window gives for one of the OBJID numbers: its own, or else the system's. The caller releases
  /// it; nullptr if there is none.
  [[nodiscard]] IDispatch* Object_Of(HWND window, LONG number) const;

  /// A text for a reader, who frees it; nullptr for an empty one.
  [[nodiscard]] BSTR Text(std::string_view text) const;

  // At any time.

  /// Tells readers of a change in the window: of the child with that number, 0 for the window as a whole. Costs next to
  /// nothing while none listens. Readers may ask the window before this returns.
  void Tell(DWORD event, HWND window, LONG child);

  static constexpr IID accessible_id = {0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

 private:
  bool Load();

  using Answer_Function = LRESULT WINAPI(REFIID, WPARAM, IUnknown*);
  using Object_Function = HRESULT WINAPI(HWND, DWORD, REFIID, void**);
  using Text_Function = BSTR WINAPI(const OLECHAR*, UINT);
  using Listening_Function = BOOL WINAPI(DWORD);
  using Tell_Function = void WINAPI(DWORD, HWND, LONG, LONG);

  Library_Owner ole_, automation_, readers_;
  Answer_Function* answer_ = nullptr;
  Object_Function* object_ = nullptr;
  Text_Function* text_ = nullptr;
  bool load_tried_ = false, initialised_ = false;

  Listening_Function* listening_ = nullptr;
  Tell_Function* tell_ = nullptr;
  bool tell_looked_up_ = false;
};

}  // namespace win32

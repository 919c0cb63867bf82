// Owners of the system's handles: one template, and one name for each kind of handle and each way to release it.
#pragma once

#include <utility>

#include "win32/windows_api.h"

namespace win32 {

/// Owns one handle; 0 is none. `Release` is a function object that releases a handle.
template <class Raw, class Release>
class Owner {
 public:
  Owner() = default;
  explicit Owner(Raw raw) noexcept : raw_(raw) {}
  Owner(Owner&& other) noexcept : raw_(std::exchange(other.raw_, Raw())) {}
  Owner& operator=(Owner&& other) noexcept {
    if (this != &other) Reset(std::exchange(other.raw_, Raw()));
    return *this;
  }
  ~Owner() { Reset(); }

  [[nodiscard]] Raw Get() const noexcept { return raw_; }
  explicit operator bool() const noexcept { return raw_ != Raw(); }

  void Reset(Raw raw = Raw()) noexcept {
    const Raw old = std::exchange(raw_, raw);
    if (old != Raw()) Release()(old);
  }

  /// Gives up the handle: from now on the caller owns it.
  [[nodiscard]] Raw Take() noexcept { return std::exchange(raw_, Raw()); }

 private:
  Raw raw_{};
};

struct Delete_Graphic {
  void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};
struct Delete_Context {
  void operator()(HDC context) const noexcept { DeleteDC(context); }
};
struct Destroy_Window {
  void operator()(HWND window) const noexcept {
    // Detach first: destroying the window must not call back into an object that is going away.
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
  }
};
struct Destroy_Menu {
  void operator()(HMENU menu) const noexcept { DestroyMenu(menu); }
};
struct Destroy_Icon {
  void operator()(HICON icon) const noexcept { DestroyIcon(icon); }
};
struct Close_Handle {
  void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
};
struct Close_Search {
  void operator()(HANDLE search) const noexcept { FindClose(search); }
};
struct Close_Key {
  void operator()(HKEY key) const noexcept { RegCloseKey(key); }
};
struct Free_Library {
  void operator()(HMODULE library) const noexcept { FreeLibrary(library); }
};

using Font_Owner = Owner<HFONT, Delete_Graphic>;
using Bitmap_Owner = Owner<HBITMAP, Delete_Graphic>;
using Brush_Owner = Owner<HBRUSH, Delete_Graphic>;
using Pen_Owner = Owner<HPEN, Delete_Graphic>;
using Region_Owner = Owner<HRGN, Delete_Graphic>;
using Context_Owner = Owner<HDC, Delete_Context>;
using Window_Owner = Owner<HWND, Destroy_Window>;
using Menu_Owner = Owner<HMENU, Destroy_Menu>;
using Icon_Owner = Owner<HICON, Destroy_Icon>;
using Handle_Owner = Owner<HANDLE, Close_Handle>;
using Search_Owner = Owner<HANDLE, Close_Search>;
using Key_Owner = Owner<HKEY, Close_Key>;
using Library_Owner = Owner<HMODULE, Free_Library>;

/// The calls that open files and searches return INVALID_HANDLE_VALUE for a failure, all others nullptr.
inline HANDLE Valid_Or_None(HANDLE handle) { return handle == INVALID_HANDLE_VALUE ? nullptr : handle; }

}  // namespace win32

#include "desktop_windows.h"

#include <commctrl.h>

#include <cstdlib>
#include <string>

#include "report.h"
#include "wallpaper_painter.h"

namespace desktop {

namespace {

constexpr COLORREF icon_text_back = RGB(0, 0, 128);
constexpr COLORREF icon_text = RGB(255, 255, 255);

WNDPROC list_view_proc = nullptr;

std::string Environment(const char* name) {
  char text[64] = "";
  const DWORD length = GetEnvironmentVariableA(name, text, sizeof text);
  return length < sizeof text ? std::string(text) : std::string();
}

LRESULT Move_Work_Area(WPARAM wparam, LPARAM lparam) {
  RECT area = {static_cast<short>(LOWORD(wparam)), static_cast<short>(HIWORD(wparam)),
               static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
  return SystemParametersInfoA(SPI_SETWORKAREA, 0, &area, 0);
}

LRESULT CALLBACK Shell_Proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_ERASEBKGND: {
      RECT area;
      GetClientRect(window, &area);
      Paint_Ground(reinterpret_cast<HDC>(wparam), area.right, area.bottom);
      return 1;
    }
    case WM_SETTINGCHANGE:
      Report("setting change");
      RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      break;
    case WM_LBUTTONDOWN:
      Report("press desktop %d %d", static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam)));
      break;
    case work_area_message: return Move_Work_Area(wparam, lparam);
    default: break;
  }
  return DefWindowProcA(window, message, wparam, lparam);
}

/// The list view's own procedure, behind a report of what the calendar asks of it and of presses that reach the icons.
LRESULT CALLBACK List_Proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case LVM_GETTEXTCOLOR: Report("get text colour"); break;
    case LVM_GETTEXTBKCOLOR: Report("get text back colour"); break;
    case LVM_SETTEXTBKCOLOR: Report("set text back colour %d", static_cast<int>(lparam)); break;
    case WM_PAINT: Report("paint icons"); break;
    case WM_LBUTTONDOWN:
      Report("press icons %d %d", static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam)));
      break;
    default: break;
  }
  return CallWindowProcA(list_view_proc, window, message, wparam, lparam);
}

void Register(const char* name) {
  WNDCLASSA kind = {};
  kind.lpfnWndProc = Shell_Proc;
  kind.hInstance = GetModuleHandleA(nullptr);
  kind.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  kind.lpszClassName = name;
  RegisterClassA(&kind);
}

void Fill_Icons(HWND list) {
  const HIMAGELIST images = ImageList_Create(32, 32, ILC_COLOR24 | ILC_MASK, 1, 1);
  ImageList_AddIcon(images, LoadIconA(nullptr, IDI_APPLICATION));
  SendMessageA(list, LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
  char names[][16] = {"My Computer", "Documents", "Recycle Bin", "Letters"};
  int number = 0;
  for (char* const name : names) {
    LVITEMA item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = number++;
    item.pszText = name;
    SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
  }
}

void Make_List_View(HWND view, int width, int height) {
  const HWND list = CreateWindowExA(0, WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | LVS_ICON, 0, 0,
                                    width, height, view, nullptr, GetModuleHandleA(nullptr), nullptr);
  const std::string back = Environment("MERIDEX_DESKTOP_ICON_BACK");
  const LPARAM colour = back.empty() ? static_cast<LPARAM>(icon_text_back) : std::atoi(back.c_str());
  SendMessageA(list, LVM_SETBKCOLOR, 0, static_cast<LPARAM>(CLR_NONE));
  SendMessageA(list, LVM_SETTEXTBKCOLOR, 0, colour);
  SendMessageA(list, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(icon_text));
  Fill_Icons(list);
  list_view_proc =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(List_Proc)));
}

}  // namespace

void Make_Desktop_Windows() {
  InitCommonControls();
  Register("Progman");
  Register("SHELLDLL_DefView");
  const int width = GetSystemMetrics(SM_CXSCREEN);
  const int height = GetSystemMetrics(SM_CYSCREEN);
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  const std::string chain = Environment("MERIDEX_DESKTOP_CHAIN");
  const HWND progman = CreateWindowExA(WS_EX_NOACTIVATE, "Progman", "Program Manager", WS_POPUP | WS_CLIPCHILDREN, 0, 0,
                                       width, height, nullptr, nullptr, instance, nullptr);
  if (chain != "progman") {
    const HWND view =
        CreateWindowExA(0, "SHELLDLL_DefView", "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0,
                        width, height, progman, nullptr, instance, nullptr);
    if (chain != "defview") Make_List_View(view, width, height);
  }
  ShowWindow(progman, SW_SHOWNA);
  UpdateWindow(progman);
}

}  // namespace desktop

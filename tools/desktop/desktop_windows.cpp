#include "desktop_windows.h"

#include <commctrl.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "paint_watch.h"
#include "report.h"
#include "wallpaper_painter.h"

namespace desktop {

namespace {

constexpr COLORREF icon_text_back = RGB(0, 0, 128);
constexpr COLORREF icon_text = RGB(255, 255, 255);

constexpr DWORD no_redirection_bitmap = 0x00200000;
constexpr DWORD child = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

WNDPROC list_view_proc = nullptr;
std::vector<HWND> top_windows;
HWND progman = nullptr, worker = nullptr, view = nullptr;
int beyond_left = 0, beyond_top = 0;  // how far the screens reach beyond the first one, in pixels

std::string Environment(const char* name) {
  char text[64] = "";
  const DWORD length = GetEnvironmentVariableA(name, text, sizeof text);
  return length < sizeof text ? std::string(text) : std::string();
}

void Repaint(HWND top) { RedrawWindow(top, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN); }

int Number(const char* name) { return std::atoi(Environment(name).c_str()); }

SIZE Size_Of_Desktop() {
  return {GetSystemMetrics(SM_CXSCREEN) + beyond_left, GetSystemMetrics(SM_CYSCREEN) + beyond_top};
}

LRESULT Move_Work_Area(WPARAM wparam, LPARAM lparam) {
  RECT area = {static_cast<short>(LOWORD(wparam)), static_cast<short>(HIWORD(wparam)),
               static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
  return SystemParametersInfoA(SPI_SETWORKAREA, 0, &area, 0);
}

void End_Or_Begin_Again(bool again) {
  Report(again ? "the shell begins again" : "the shell ends");
  for (const HWND window : top_windows) DestroyWindow(window);
  top_windows.clear();
  worker = nullptr;
  if (again) Make_Desktop_Windows();
}

void Reach_Beyond(int left, int top) {
  beyond_left = left;
  beyond_top = top;
  const auto [width, height] = Size_Of_Desktop();
  for (const HWND window : top_windows)
    SetWindowPos(window, nullptr, -left, -top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
  for (const HWND window : {view, FindWindowExA(view, nullptr, WC_LISTVIEWA, nullptr)})
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
  Report("the desktop begins at %d %d", -left, -top);
}

void Move_View(bool to_worker);

LRESULT CALLBACK Shell_Proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_ERASEBKGND: {
      RECT area;
      GetClientRect(window, &area);
      Paint_Ground(reinterpret_cast<HDC>(wparam), area.right, area.bottom);
      Put_Marks(reinterpret_cast<HDC>(wparam), window);
      return 1;
    }
    case WM_SETTINGCHANGE:
      Report("setting change");
      Repaint(window);
      break;
    case WM_LBUTTONDOWN:
      Report("press desktop %d %d", static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam)));
      break;
    case work_area_message: return Move_Work_Area(wparam, lparam);
    case end_message: End_Or_Begin_Again(wparam != 0); return 0;
    case screens_message: Reach_Beyond(static_cast<int>(wparam), static_cast<int>(lparam)); return 0;
    case view_message: Move_View(wparam != 0); return 0;
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

/// What is painted at the same moment as Wine's own desktop can be lost in part, so what lies on the ground is painted once
/// more a little later.
void CALLBACK Watch_Painting(HWND top, UINT, UINT_PTR, DWORD) {
  constexpr int a_little = 10;  // calls
  static int waiting = 0;
  if (A_Mark_Is_Gone()) {
    Report("paint again");
    Repaint(top);
    waiting = a_little;
  } else if (waiting > 0 && --waiting == 0) {
    RedrawWindow(top, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  }
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

struct Kind {
  DWORD Extended;
  const char* Class;
  DWORD Style;
};

/// As large as the screen, and larger by what lies left of it and above it.
HWND Make_Window(const Kind& kind, const char* title, HWND parent, int left, int top) {
  const auto [width, height] = Size_Of_Desktop();
  return CreateWindowExA(kind.Extended, kind.Class, title, kind.Style, left, top, width, height, parent, nullptr,
                         GetModuleHandleA(nullptr), nullptr);
}

HWND Make_Top_Window(const char* name, const char* title, DWORD extended) {
  const HWND window =
      Make_Window({extended, name, WS_POPUP | WS_CLIPCHILDREN}, title, nullptr, -beyond_left, -beyond_top);
  top_windows.push_back(window);
  return window;
}

void Make_List_View() {
  const HWND list = Make_Window({0, WC_LISTVIEWA, child | LVS_ICON}, "", view, 0, 0);
  const std::string back = Environment("MERIDEX_DESKTOP_ICON_BACK");
  const LPARAM colour = back.empty() ? static_cast<LPARAM>(icon_text_back) : std::atoi(back.c_str());
  SendMessageA(list, LVM_SETBKCOLOR, 0, static_cast<LPARAM>(CLR_NONE));
  SendMessageA(list, LVM_SETTEXTBKCOLOR, 0, colour);
  SendMessageA(list, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(icon_text));
  Fill_Icons(list);
  list_view_proc =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(List_Proc)));
}

void Show_And_Watch(HWND top) {
  ShowWindow(top, SW_SHOWNA);
  UpdateWindow(top);
  SetTimer(top, 1, 20, Watch_Painting);
}

/// A "WorkerW" without the view isn't seen.
void Move_View(bool to_worker) {
  if (worker == nullptr) worker = Make_Top_Window("WorkerW", "", 0);
  const HWND from = to_worker ? progman : worker, to = to_worker ? worker : progman;
  KillTimer(from, 1);
  SetParent(view, to);
  if (from == worker) ShowWindow(worker, SW_HIDE);
  Show_And_Watch(to);
  Report("the view is in the %s", to_worker ? "worker" : "program manager");
}

}  // namespace

void Make_Desktop_Windows() {
  InitCommonControls();
  for (const char* const name : {"Progman", "WorkerW", "SHELLDLL_DefView"}) Register(name);
  const std::string chain = Environment("MERIDEX_DESKTOP_CHAIN");
  beyond_left = Number("MERIDEX_DESKTOP_BEYOND_LEFT");
  beyond_top = Number("MERIDEX_DESKTOP_BEYOND_TOP");
  progman = Make_Top_Window("Progman", "Program Manager", chain == "raised" ? no_redirection_bitmap : 0);
  if (chain == "workerw") {
    worker = Make_Top_Window("WorkerW", "", 0);
    Make_Top_Window("WorkerW", "", 0);  // one for the picture, before the one with the icons
  }
  const HWND icons_top = worker != nullptr ? worker : progman;
  if (chain != "progman") {
    view = Make_Window({0, "SHELLDLL_DefView", child | WS_CLIPCHILDREN}, "", icons_top, 0, 0);
    if (chain != "defview") Make_List_View();
  }
  ShowWindow(progman, SW_SHOWNA);
  Show_And_Watch(icons_top);
}

}  // namespace desktop

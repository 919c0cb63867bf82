// The system's own services for the cases, and a user with a real mouse and real keys.
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <vector>

#include "tests/contract/service_world.h"
#include "tests/win32/native_parts.h"
#include "tests/win32/shell_thread.h"
#include "win32/win32_platform.h"

namespace {

using platform::Box_Answer;
using toolkit::Control;
using toolkit::Form;
using toolkit::Mouse_Button;

constexpr UINT while_open = 500;  // milliseconds

/// What is to be done when a box or a menu has been open for a while; returns false to be asked again a moment later.
/// The system serves one at a time.
std::function<bool()> due;

void CALLBACK Do_What_Is_Due(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  const std::function<bool()> work = std::exchange(due, nullptr);
  if (!work || work()) return;
  due = work;
  constexpr UINT a_moment = 50;  // milliseconds
  SetTimer(nullptr, 0, a_moment, Do_What_Is_Due);
}

BOOL CALLBACK Find_Box(HWND window, LPARAM found) {
  char window_class[32] = "";
  GetClassNameA(window, window_class, sizeof window_class);
  if (std::string(window_class) != "#32770" || IsWindowVisible(window) == 0) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

/// The foremost box of the program that is on the screen, nullptr if there is none.
HWND Open_Box() {
  HWND box = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), Find_Box, reinterpret_cast<LPARAM>(&box));
  return box;
}

class System_User : public User {
 public:
  explicit System_User(win32::Win32_Platform& platform) : platform_(platform) {}

  void Press(Form& window, Control* control, Mouse_Button button) override {
    Point_At(window, control);
    mouse_event(Flag(button, true), 0, 0, 0, 0);
    Wait(50);
  }
  void Move(Form& window, Control* control) override { Point_At(window, control); }
  void Release(Form& window, Control* control, Mouse_Button button) override {
    Point_At(window, control);
    mouse_event(Flag(button, false), 0, 0, 0, 0);
    Wait(50);
  }
  void Press_Key(Pressed_Key key) override {
    switch (key) {
      case Pressed_Key::Tab: return Key(VK_TAB);
      case Pressed_Key::Enter: return Key(VK_RETURN);
      case Pressed_Key::Escape: return Key(VK_ESCAPE);
      case Pressed_Key::Space: return Key(VK_SPACE);
      case Pressed_Key::F9: return Key(VK_F9);
      case Pressed_Key::Up: return Key(VK_UP);
      case Pressed_Key::Down: return Key(VK_DOWN);
      case Pressed_Key::Left: return Key(VK_LEFT);
      case Pressed_Key::Right: return Key(VK_RIGHT);
      case Pressed_Key::Page_Down: return Key(VK_NEXT);
      case Pressed_Key::Home: return Key(VK_HOME);
      case Pressed_Key::End: return Key(VK_END);
      case Pressed_Key::Alt_O:
        keybd_event(VK_MENU, 0x38, 0, 0);
        Key('O');
        keybd_event(VK_MENU, 0x38, KEYEVENTF_KEYUP, 0);
        Wait(50);
    }
  }
  void Type(char letter) override { Key(static_cast<BYTE>(letter - 'a' + 'A')); }

  void Paste(toolkit::Text_Box&, const std::string& text) override {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::copy_n(text.c_str(), text.size() + 1, static_cast<char*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    OpenClipboard(nullptr);
    EmptyClipboard();
    SetClipboardData(CF_TEXT, memory);
    CloseClipboard();
    keybd_event(VK_CONTROL, 0x1D, 0, 0);
    Key('V');
    keybd_event(VK_CONTROL, 0x1D, KEYEVENTF_KEYUP, 0);
    Wait(50);
  }

  void Click_Item(toolkit::List_Box& list, int item) override { Click_At(Middle_Of_Item(Window_Of(list), item)); }
  void Click_Tab(toolkit::Tab_Strip& strip, int tab) override { Click_At(Middle_Of_Tab(Window_Of(strip), tab - 1)); }
  void Choose_Item(toolkit::Combo_Box& box, int item) override {
    Click(box.Window, &box);
    Click_At(Middle_Of_Item(Dropped_List(Window_Of(box)), item));
  }
  void Drag_Thumb(toolkit::Slider& slider, int to) override {
    const HWND window = Window_Of(slider);
    Point_At(Middle_Of_Thumb(window));
    mouse_event(Flag(Mouse_Button::Left, true), 0, 0, 0, 0);
    Wait(50);
    Point_At(Place_On_Slider(window, to));
    mouse_event(Flag(Mouse_Button::Left, false), 0, 0, 0, 0);
    Wait(50);
  }
  std::vector<std::string> Shown_Items(toolkit::Item_List& list) override { return Items_In(Window_Of(list)); }

  void Answer(Box_Answer answer, std::function<void()> meanwhile) override {
    Later([=, meanwhile = std::move(meanwhile)] {
      const HWND box = Open_Box();
      // The first message that a box serves may come before it is on the screen.
      if (box == nullptr) return false;
      meanwhile();
      PostMessageA(Open_Box(), WM_COMMAND, Id_Of(answer), 0);
      return true;
    });
  }
  void Choose(int place, int, std::function<void()> meanwhile) override {
    Later([=, meanwhile = std::move(meanwhile)] {
      meanwhile();
      const HWND any = GetActiveWindow();
      for (int i = 0; i < place; ++i) PostMessageA(any, WM_KEYDOWN, VK_DOWN, 0);
      PostMessageA(any, WM_KEYDOWN, place == 0 ? VK_ESCAPE : VK_RETURN, 0);
      return true;
    });
  }
  void Wait(std::int64_t milliseconds) override {
    const DWORD start = GetTickCount();
    for (DWORD gone = 0; gone < milliseconds; gone = GetTickCount() - start)
      platform_.System().Loop.Wait_Events((milliseconds - gone) * 1000);
  }

 private:
  static DWORD Flag(Mouse_Button button, bool down) {
    if (button == Mouse_Button::Left) return down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP;
    if (button == Mouse_Button::Right) return down ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_RIGHTUP;
    return down ? MOUSEEVENTF_MIDDLEDOWN : MOUSEEVENTF_MIDDLEUP;
  }
  static WPARAM Id_Of(Box_Answer answer) {
    switch (answer) {
      case Box_Answer::Yes: return IDYES;
      case Box_Answer::No: return IDNO;
      case Box_Answer::Cancel: return IDCANCEL;
      default: return IDOK;
    }
  }
  void Key(BYTE code) {
    const auto scan = static_cast<BYTE>(MapVirtualKeyA(code, 0));
    keybd_event(code, scan, 0, 0);
    keybd_event(code, scan, KEYEVENTF_KEYUP, 0);
    Wait(50);
  }
  HWND Window_Of(const Control& control) {
    return Native_Part(reinterpret_cast<HWND>(control.Window.Handle()), Pixel_In(control.In_Window()));
  }
  void Click_At(POINT on_screen) {
    Point_At(on_screen);
    for (const bool down : {true, false}) {
      mouse_event(Flag(Mouse_Button::Left, down), 0, 0, 0, 0);
      Wait(50);
    }
  }
  POINT Pixel_In(const toolkit::Bounds& place) {
    return {
        static_cast<LONG>((place.Left + place.Width / 2) / platform_.Backend().Twips_Per_Pixel(toolkit::Axis::Across)),
        static_cast<LONG>((place.Top + place.Height / 2) / platform_.Backend().Twips_Per_Pixel(toolkit::Axis::Down))};
  }
  void Point_At(Form& window, Control* control) {
    toolkit::Bounds place{window.Width - 30, window.Height - 30, 0, 0};
    if (control != nullptr) place = control->In_Window();
    POINT at = Pixel_In(place);
    ClientToScreen(reinterpret_cast<HWND>(window.Handle()), &at);
    Point_At(at);
  }
  void Point_At(POINT at) {
    // The display's own echo of an earlier move may come late, and puts the pointer back.
    for (int tries = 0, there = 0; tries < 50 && there < 2; ++tries) {
      POINT now = {};
      GetCursorPos(&now);
      there = now.x == at.x && now.y == at.y ? there + 1 : 0;
      if (there == 0) SetCursorPos(at.x, at.y);
      Wait(30);
    }
  }
  static void Later(std::function<bool()> work) {
    due = std::move(work);
    SetTimer(nullptr, 0, while_open, Do_What_Is_Due);
  }

  win32::Win32_Platform& platform_;
};

class System_World : public Service_World {
 public:
  platform::System& System() override { return platform_.System(); }
  toolkit::Backend& Backend() override { return platform_.Backend(); }
  User& The_User() override { return user_; }
  void Run(const std::function<void()>& work) override { work(); }
  void Begin_Shell(int back, int text) override { shell_.emplace(back, text); }
  void Hang_Shell() override { shell_->Hang(); }
  void End_Shell() override { shell_.reset(); }
  void Make_Folder(const std::string& name) override {
    std::filesystem::create_directories(System().Files.Program_Folder() + '\\' + name);
  }
  void Set_Read_Only(const std::string& name, bool on) override {
    const std::string path = System().Files.Program_Folder() + '\\' + name;
    SetFileAttributesA(path.c_str(), on ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
  }
  void Hide(const std::string& name) override {
    SetFileAttributesA((System().Files.Program_Folder() + '\\' + name).c_str(), FILE_ATTRIBUTE_HIDDEN);
  }

 private:
  win32::Win32_Platform platform_{nullptr};
  System_User user_{platform_};
  std::optional<Shell_Thread> shell_;
};

}  // namespace

std::unique_ptr<Service_World> Make_Service_World() { return std::make_unique<System_World>(); }

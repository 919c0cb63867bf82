// What the system tells top-level windows alone reaches the calendar inside another program's window too.
#include <algorithm>

#include <gtest/gtest.h>

#include <stdexcept>
#include "win32/win32_backend.h"
#include "win32/win32_popup_menu.h"

namespace {

/// A window that lies in another one, as the calendar does in the shell's.
class Child_Window final : public win32::Program_Window {
 public:
  explicit Child_Window(HWND parent) : parent_(parent) {}

  [[nodiscard]] HWND Window() const override { return window_.Get(); }
  [[nodiscard]] toolkit::Form& Form() const override { throw std::logic_error("no form"); }
  void Settle() override {}
  void Look_Changed(UINT message) override { Told.push_back(message); }
  bool Take_Key(const MSG&) override { return false; }
  platform::Adoption Embed(HWND) override { return platform::Adoption::Done; }
  [[nodiscard]] bool Embedded() const override { return true; }

  [[nodiscard]] bool Told_Of(UINT message) const { return std::find(Told.begin(), Told.end(), message) != Told.end(); }

  std::vector<UINT> Told;

 private:
  HWND parent_;
  win32::Window_Owner window_{
      CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 9, 9, parent_, nullptr, nullptr, nullptr)};
};

class Broadcasts_Test : public ::testing::Test {
 protected:
  Broadcasts_Test() { Context.Windows.Add(Calendar); }
  ~Broadcasts_Test() override { SetSysColors(1, &menu, &Before); }

  void Set_Menu_Colour(COLORREF colour) { SetSysColors(1, &menu, &colour); }

  /// A pixel of the ground that a picture of the menus is drawn on.
  COLORREF Ground() {
    const win32::Context_Owner screen(CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    const win32::Bitmap_Owner drawn(CreateCompatibleBitmap(screen.Get(), 16, 16));
    const win32::Context_Owner context(CreateCompatibleDC(nullptr));
    const HGDIOBJ before = SelectObject(context.Get(), drawn.Get());
    Context.Pictures.Draw(context.Get(), platform::Stock_Picture::Clear, {0, 0, 16, 16});
    const COLORREF ground = GetPixel(context.Get(), 0, 0);
    SelectObject(context.Get(), before);
    return ground;
  }

  static constexpr int menu = COLOR_MENU;
  const COLORREF Before = GetSysColor(menu);
  win32::Window_Context Context{GetModuleHandleA(nullptr), GetACP()};
  win32::Win32_Backend Backend{Context};
  win32::Window_Owner Shell{CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr)};
  Child_Window Calendar{Shell.Get()};
};

DWORD kind_of_picture = 0;

/// Changes the menus' colour while a menu is open, and looks at the picture of its only item.
void CALLBACK Change_Colour(HWND, UINT, UINT_PTR timer, DWORD) {
  constexpr UINT menu_of_window = 0x01E1;  // MN_GETHMENU
  constexpr int menu = COLOR_MENU;
  const HWND open = FindWindowA("#32768", nullptr);
  if (open == nullptr || IsWindowVisible(open) == 0) return;
  KillTimer(nullptr, timer);
  const COLORREF colour = RGB(20, 40, 60);
  SetSysColors(1, &menu, &colour);
  MENUITEMINFOA item = {};
  item.cbSize = sizeof item;
  item.fMask = MIIM_CHECKMARKS;
  GetMenuItemInfoA(reinterpret_cast<HMENU>(SendMessageA(open, menu_of_window, 0, 0)), 0, TRUE, &item);
  kind_of_picture = GetObjectType(item.hbmpUnchecked);
  EndMenu();
}

}  // namespace

TEST_F(Broadcasts_Test, An_open_menu_keeps_its_pictures_when_the_colours_change) {
  const win32::Window_Owner owner(
      CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
  win32::Win32_Popup_Menu menus(Context, Backend.Input);
  platform::Menu_Item item;
  item.Number = 1;
  item.Text = "Clear";
  item.Picture = platform::Stock_Picture::Clear;
  kind_of_picture = 0;
  ASSERT_NE(Ground(), CLR_INVALID);
  SetTimer(nullptr, 0, 50, Change_Colour);
  menus.Track(win32::To_Handle(owner.Get()), {item});
  EXPECT_EQ(kind_of_picture, static_cast<DWORD>(OBJ_BITMAP));
}

TEST_F(Broadcasts_Test, An_embedded_window_hears_of_new_colours) {
  Set_Menu_Colour(RGB(20, 40, 60));
  EXPECT_TRUE(Calendar.Told_Of(WM_SYSCOLORCHANGE));
}

TEST_F(Broadcasts_Test, An_embedded_window_hears_of_a_new_style) {
  constexpr UINT style_changed = 0x031A;  // WM_THEMECHANGED
  SendMessageA(FindWindowA("Meridex_Broadcasts", nullptr), style_changed, 0, 0);
  EXPECT_TRUE(Calendar.Told_Of(style_changed));
}

TEST_F(Broadcasts_Test, The_menus_bitmaps_stand_on_the_present_colour_of_the_menus) {
  Set_Menu_Colour(RGB(20, 40, 60));
  EXPECT_EQ(Ground(), RGB(20, 40, 60));
  Set_Menu_Colour(RGB(200, 180, 160));
  EXPECT_EQ(Ground(), RGB(200, 180, 160));
}

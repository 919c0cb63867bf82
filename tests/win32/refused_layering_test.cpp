// A shell's window that keeps no bitmap for its children, on a system that lets no child keep its own: the calendar would
// not be seen there, and stays an ordinary window.
#include "tests/win32/window_on_screen.h"
#include "win32/handle.h"

namespace {

constexpr LONG layered = 0x00080000;
constexpr DWORD no_redirection_bitmap = 0x00200000;

using platform::Adoption;

int refusals = 0;

/// Takes the style away again before it is set, as such a system does.
LRESULT CALLBACK Refuses_Layers(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_STYLECHANGING && static_cast<int>(w) == GWL_EXSTYLE) {
    auto& style = *reinterpret_cast<STYLESTRUCT*>(l);
    if ((style.styleNew & layered) != 0) ++refusals;
    style.styleNew &= ~static_cast<DWORD>(layered);
  }
  return CallWindowProcA(reinterpret_cast<WNDPROC>(GetPropA(window, "before")), window, message, w, l);
}

class Refused_Layering : public Window_On_Screen {
 protected:
  Refused_Layering() {
    refusals = 0;
    Show();
    SetPropA(Handle(), "before", reinterpret_cast<HANDLE>(GetWindowLongPtrA(Handle(), GWLP_WNDPROC)));
    SetWindowLongPtrA(Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Refuses_Layers));
    GetWindowRect(Handle(), &Before);
  }
  ~Refused_Layering() override { Window.Unload(); }

  static win32::Window_Owner Make(DWORD extended) {
    return win32::Window_Owner(CreateWindowExA(extended, "Static", "", WS_POPUP | WS_VISIBLE, -300, -200, 1600, 1200,
                                               nullptr, nullptr, nullptr, nullptr));
  }
  Adoption Move_To(const win32::Window_Owner& parent) {
    return Platform.System().Shell.Set_Parent(Window.Handle(), win32::To_Handle(parent.Get()));
  }

  void Expect_Ordinary() const {
    EXPECT_EQ(GetAncestor(Handle(), GA_PARENT), GetDesktopWindow());
    EXPECT_EQ(GetWindowLongA(Handle(), GWL_EXSTYLE) & layered, 0);
    EXPECT_EQ(GetWindowLongA(Handle(), GWL_STYLE) & WS_CHILD, 0);
    EXPECT_TRUE(IsWindowVisible(Handle()));
    RECT now = {};
    GetWindowRect(Handle(), &now);
    EXPECT_TRUE(EqualRect(&Before, &now)) << now.left << ' ' << now.top;
  }

  /// Whether the window lies somewhere behind that one.
  [[nodiscard]] bool Lies_Behind(HWND other) const {
    HWND next = GetWindow(Handle(), GW_HWNDPREV);
    while (next != nullptr && next != other) next = GetWindow(next, GW_HWNDPREV);
    return next != nullptr;
  }

  RECT Before{};
};

}  // namespace

TEST_F(Refused_Layering, The_window_stays_an_ordinary_one_at_its_place) {
  const win32::Window_Owner raised = Make(no_redirection_bitmap);
  EXPECT_EQ(Move_To(raised), Adoption::Unseen);
  EXPECT_EQ(refusals, 1);
  Expect_Ordinary();
  Window.Move(3000, 2250);
  Wait(10);
  RECT now = {};
  GetWindowRect(Handle(), &now);
  EXPECT_EQ(now.left, 200) << "it goes by the screen's corner, not the shell's";
}

TEST_F(Refused_Layering, It_keeps_its_place_among_the_others_and_what_it_owns) {
  toolkit::Form owned(Backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog, &Window);
  owned.Load();
  constexpr UINT stay = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
  const win32::Window_Owner raised = Make(no_redirection_bitmap), above = Make(0);
  SetWindowPos(above.Get(), HWND_TOP, 0, 0, 0, 0, stay);
  SetWindowPos(Handle(), above.Get(), 0, 0, 0, 0, stay | SWP_NOOWNERZORDER);
  ASSERT_TRUE(Lies_Behind(above.Get()));
  EXPECT_EQ(Move_To(raised), Adoption::Unseen);
  EXPECT_TRUE(Lies_Behind(above.Get()));
  EXPECT_EQ(GetWindow(win32::To_Window(owned.Handle()), GW_OWNER), Handle());
  owned.Unload();
}

TEST_F(Refused_Layering, A_part_of_another_desktop_goes_behind_all_others) {
  const win32::Window_Owner plain = Make(0), raised = Make(no_redirection_bitmap);
  ASSERT_EQ(Move_To(plain), Adoption::Done);
  EXPECT_EQ(Move_To(raised), Adoption::Unseen);
  Expect_Ordinary();
  EXPECT_TRUE(Lies_Behind(raised.Get()));
}

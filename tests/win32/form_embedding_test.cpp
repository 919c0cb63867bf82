// A window as a child of the shell's: its place, and what becomes of it when the shell's window goes.
#include "tests/win32/native_parts.h"
#include "tests/win32/window_on_screen.h"
#include "toolkit/command_button.h"
#include "toolkit/input.h"
#include "toolkit/label.h"
#include "toolkit/text_box.h"
#include "win32/handle.h"

namespace {

constexpr LONG layered = 0x00080000;
constexpr DWORD no_redirection_bitmap = 0x00200000;

using platform::Adoption;

/// Asks a window to close, once, in the middle of the system's work on this one's place.
LRESULT CALLBACK Closes_While_It_Moves(HWND window, UINT message, WPARAM w, LPARAM l) {
  const auto before = reinterpret_cast<WNDPROC>(GetPropA(window, "before"));
  if (message == WM_WINDOWPOSCHANGING)
    if (const auto asked = static_cast<HWND>(RemovePropA(window, "ask"))) SendMessageA(asked, WM_CLOSE, 0, 0);
  return CallWindowProcA(before, window, message, w, l);
}

/// Destroys a window, once, where this one is about to become layered.
LRESULT CALLBACK Ends_A_Window_When_Layered(HWND window, UINT message, WPARAM w, LPARAM l) {
  const auto before = reinterpret_cast<WNDPROC>(GetPropA(window, "before"));
  const auto* const styles = reinterpret_cast<const STYLESTRUCT*>(l);
  if (message == WM_STYLECHANGING && static_cast<int>(w) == GWL_EXSTYLE && (styles->styleNew & layered) != 0)
    if (const auto ended = static_cast<HWND>(RemovePropA(window, "end"))) DestroyWindow(ended);
  return CallWindowProcA(before, window, message, w, l);
}

class Form_Embedding : public Window_On_Screen {
 protected:
  Form_Embedding() {
    Text.Place({150, 150, 1500, 600});
    Button.Place({150, 1500, 1500, 600});
    Window.On_Close = [this] { ++Closed; };
    Show();
  }
  ~Form_Embedding() override {
    Window.Unload();
    DestroyWindow(Parent);
  }

  void Make_Parent(DWORD extended = 0) {
    Parent = CreateWindowExA(extended, "Static", "", WS_POPUP | WS_VISIBLE, -300, -200, 1600, 1200, nullptr, nullptr,
                             nullptr, nullptr);
  }
  bool Embed(DWORD extended = 0) {
    Make_Parent(extended);
    return Move_To(win32::To_Handle(Parent)) == Adoption::Done;
  }
  Adoption Move_To(platform::Window_Handle parent) {
    return Platform.System().Shell.Set_Parent(Window.Handle(), parent);
  }

  /// The next change of the window's place asks that window to close.
  void Ask_While_It_Moves(HWND asked) {
    SetPropA(Handle(), "ask", asked);
    Go_Before(&Closes_While_It_Moves);
  }
  void Go_Before(WNDPROC procedure) {
    SetPropA(Handle(), "before", reinterpret_cast<HANDLE>(GetWindowLongPtrA(Handle(), GWLP_WNDPROC)));
    SetWindowLongPtrA(Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  }

  void End_Parent() {
    DestroyWindow(Parent);
    Wait(50);
  }

  [[nodiscard]] RECT Place() const {
    RECT place = {};
    GetWindowRect(Handle(), &place);
    return place;
  }

  toolkit::Text_Box Text{Window, "Text"};
  toolkit::Command_Button Button{Window, "Button"};
  HWND Parent = nullptr;
  int Closed = 0;
};

}  // namespace

TEST_F(Form_Embedding, A_window_in_a_parent_keeps_its_place_on_the_screen) {
  const RECT before = Place();
  EXPECT_EQ(before.left, 100);
  ASSERT_TRUE(Embed());
  EXPECT_EQ(GetAncestor(Handle(), GA_PARENT), Parent);
  RECT now = Place();
  EXPECT_TRUE(EqualRect(&before, &now)) << now.left << ' ' << now.top;
  EXPECT_EQ(Window.Left(), 1500);
  Window.Move(3000, 2250);
  Wait(10);
  now = Place();
  EXPECT_EQ(now.left, 200);
  EXPECT_EQ(now.top, 150);
}

TEST_F(Form_Embedding, A_place_that_the_user_gives_it_there_is_told_as_one_of_the_screen) {
  ASSERT_TRUE(Embed());
  SetWindowPos(Handle(), nullptr, 300 + 40, 200 + 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(Window.Left(), 600);
  EXPECT_EQ(Window.Top(), 450);
}

TEST_F(Form_Embedding, A_parent_whose_corner_moves_leaves_it_at_its_place_on_the_screen) {
  for (const DWORD extended : {DWORD{0}, DWORD{WS_EX_LAYOUTRTL}}) {
    ASSERT_TRUE(Embed(extended));
    const RECT before = Place();
    for (const RECT& to : {RECT{-500, 0, 1300, 1000}, RECT{0, 0, 1300, 1000}}) {
      SetWindowPos(Parent, nullptr, to.left, to.top, to.right - to.left, to.bottom - to.top, SWP_NOZORDER);
      Wait(50);
      const RECT now = Place();
      EXPECT_TRUE(EqualRect(&before, &now)) << now.left << ' ' << now.top;
      EXPECT_EQ(Window.Left(), 1500);
    }
    End_Parent();
  }
}

TEST_F(Form_Embedding, In_a_parent_written_from_right_to_left_too) {
  ASSERT_TRUE(Embed(WS_EX_LAYOUTRTL));
  RECT place = Place();
  EXPECT_EQ(place.left, 100);
  Window.Move(3000, 2250);
  Wait(10);
  place = Place();
  EXPECT_EQ(place.left, 200);
  EXPECT_EQ(Window.Left(), 3000);
  RECT wanted = place;
  OffsetRect(&wanted, -160, -120);
  MapWindowPoints(nullptr, Parent, reinterpret_cast<POINT*>(&wanted), 2);
  SetWindowPos(Handle(), nullptr, wanted.left, wanted.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  place = Place();
  EXPECT_EQ(place.left, 40);
  EXPECT_EQ(Window.Left(), 600);
  EXPECT_EQ(Window.Top(), 450);
}

TEST_F(Form_Embedding, A_parent_without_a_bitmap_makes_it_layered) {
  ASSERT_TRUE(Embed(no_redirection_bitmap));
  EXPECT_NE(GetWindowLongA(Handle(), GWL_EXSTYLE) & layered, 0);
  EXPECT_EQ(GetAncestor(Handle(), GA_PARENT), Parent);
}

TEST_F(Form_Embedding, With_its_parent_gone_it_is_made_anew_with_all_that_it_held) {
  Text.Text = "Choir";
  Button.Enabled = false;
  ASSERT_TRUE(Embed());
  const RECT before = Place();
  const HWND old = Handle();
  End_Parent();
  ASSERT_NE(Handle(), old);
  ASSERT_TRUE(IsWindow(Handle()));
  EXPECT_TRUE(IsWindowVisible(Handle()));
  const RECT now = Place();
  EXPECT_TRUE(EqualRect(&before, &now));
  char text[32] = "";
  GetWindowTextA(Child("Edit"), text, sizeof text);
  EXPECT_STREQ(text, "Choir");
  EXPECT_FALSE(IsWindowEnabled(Child("Button")));
  Button.Enabled = true;
  EXPECT_TRUE(IsWindowEnabled(Child("Button"))) << "the form's changes reach the new one";
}

TEST_F(Form_Embedding, A_window_that_it_owned_before_stays_when_the_parent_goes) {
  toolkit::Form owned(Backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog, &Window);
  owned.Show();
  const HWND handle = win32::To_Window(owned.Handle());
  EXPECT_EQ(GetWindow(handle, GW_OWNER), Handle());
  ASSERT_TRUE(Embed());
  EXPECT_EQ(GetWindow(handle, GW_OWNER), nullptr);
  End_Parent();
  EXPECT_TRUE(IsWindow(handle));
  owned.Unload();
}

TEST_F(Form_Embedding, Without_a_parent_it_stays_an_ordinary_window) {
  const RECT before = Place();
  EXPECT_EQ(Move_To(1), Adoption::Failed);
  const RECT now = Place();
  EXPECT_TRUE(EqualRect(&before, &now));
  Window.Move(3000, 2250);
  Wait(10);
  EXPECT_EQ(Place().left, 200);
}

TEST_F(Form_Embedding, It_can_be_embedded_again_after_that) {
  ASSERT_TRUE(Embed());
  End_Parent();
  ASSERT_TRUE(Embed());
  EXPECT_EQ(GetAncestor(Handle(), GA_PARENT), Parent);
}

TEST_F(Form_Embedding, A_move_that_comes_before_it_is_made_anew_fails_and_does_no_harm) {
  ASSERT_TRUE(Embed());
  const HWND old = Parent;
  Make_Parent();
  DestroyWindow(old);
  EXPECT_EQ(Move_To(win32::To_Handle(Parent)), Adoption::Failed);
  Wait(50);
  ASSERT_TRUE(IsWindow(Handle()));
  EXPECT_TRUE(IsWindowVisible(Handle()));
  EXPECT_EQ(Move_To(win32::To_Handle(Parent)), Adoption::Done);
}

TEST_F(Form_Embedding, A_parent_that_goes_before_the_window_is_layered_leaves_it_to_be_made_anew) {
  Make_Parent(no_redirection_bitmap);
  SetPropA(Handle(), "end", Parent);
  Go_Before(&Ends_A_Window_When_Layered);
  EXPECT_EQ(Move_To(win32::To_Handle(Parent)), Adoption::Failed) << "another shell may take it";
  EXPECT_FALSE(IsWindow(Parent)) << "it has gone meanwhile";
  Wait(50);
  ASSERT_TRUE(IsWindow(Handle()));
  EXPECT_TRUE(IsWindowVisible(Handle()));
  EXPECT_TRUE(Embed());
}

TEST_F(Form_Embedding, Its_region_is_the_new_windows_too) {
  Window.Set_Round_Region(200, 100, 20);
  ASSERT_TRUE(Embed());
  End_Parent();
  RECT box = {};
  const HRGN region = CreateRectRgn(0, 0, 0, 0);
  ASSERT_NE(GetWindowRgn(Handle(), region), ERROR);
  GetRgnBox(region, &box);
  DeleteObject(region);
  EXPECT_LE(box.right, 200);
  EXPECT_LE(box.bottom, 100);
}

TEST_F(Form_Embedding, A_hidden_window_stays_hidden) {
  Window.Hide();
  ASSERT_TRUE(Embed());
  End_Parent();
  ASSERT_TRUE(IsWindow(Handle()));
  EXPECT_FALSE(IsWindowVisible(Handle()));
}

TEST_F(Form_Embedding, A_close_request_that_comes_while_the_window_settles_waits_its_turn) {
  Ask_While_It_Moves(Handle());
  Window.On_Close = [this] {
    ++Closed;
    Window.Unload();
  };
  Window.Move(3000, 3000);
  Window.Refresh();  // settles
  EXPECT_TRUE(Window.Loaded());
  Wait(50);
  EXPECT_FALSE(Window.Loaded());
  EXPECT_EQ(Closed, 1);
}

TEST_F(Form_Embedding, A_close_request_that_comes_while_it_is_embedded_waits_its_turn) {
  Ask_While_It_Moves(Handle());
  Window.On_Close = [this] {
    ++Closed;
    Window.Unload();
  };
  EXPECT_TRUE(Embed());
  ASSERT_TRUE(Window.Loaded());
  EXPECT_EQ(GetPropA(Handle(), "ask"), nullptr) << "it was asked";
  Wait(50);
  EXPECT_FALSE(Window.Loaded());
  EXPECT_EQ(Closed, 1);
}

TEST_F(Form_Embedding, So_does_another_instances_request_that_the_program_shall_end) {
  platform::Instances& instances = Platform.System().Instances;
  instances.On_Close_Request = [this] { ++Closed; };
  Ask_While_It_Moves(FindWindowA("Meridex_Instance", nullptr));
  EXPECT_TRUE(Embed());
  EXPECT_EQ(GetPropA(Handle(), "ask"), nullptr) << "it was asked";
  EXPECT_EQ(Closed, 0);
  Wait(50);
  EXPECT_EQ(Closed, 1);
  instances.On_Close_Request = nullptr;
}

TEST_F(Form_Embedding, A_move_that_fails_leaves_the_order_and_what_it_owns) {
  toolkit::Form owned(Backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog, &Window);
  owned.Load();
  const win32::Window_Owner above(
      CreateWindowExA(0, "Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
  SetWindowPos(above.Get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  SetWindowPos(Handle(), above.Get(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
  const auto lies_below = [&] {
    HWND next = GetWindow(Handle(), GW_HWNDPREV);
    while (next != nullptr && next != above.Get()) next = GetWindow(next, GW_HWNDPREV);
    return next != nullptr;
  };
  ASSERT_TRUE(lies_below());
  EXPECT_EQ(Move_To(1), Adoption::Failed);
  EXPECT_TRUE(lies_below());
  EXPECT_EQ(GetWindow(win32::To_Window(owned.Handle()), GW_OWNER), Handle());
  owned.Unload();
}

TEST_F(Form_Embedding, A_press_is_dropped_when_the_parent_goes) {
  toolkit::Label label(Window, "Day");
  label.Place({3000, 150, 1500, 600});
  int released = 0;
  label.On_Mouse_Up = [&](const toolkit::Mouse_Event&) { ++released; };
  ASSERT_TRUE(Embed());
  const LPARAM at = MAKELPARAM(220, 20);
  SendMessageA(Handle(), WM_LBUTTONDOWN, MK_LBUTTON, at);
  ASSERT_EQ(Backend.Input.Mouse_Window(), &Window);
  End_Parent();
  EXPECT_EQ(Backend.Input.Mouse_Window(), nullptr);
  SendMessageA(Handle(), WM_LBUTTONUP, 0, at);
  EXPECT_EQ(released, 0);
}

TEST_F(Form_Embedding, An_active_window_hears_once_that_it_isnt_when_the_parent_goes) {
  int went = 0;
  Window.On_Deactivate = [&] { ++went; };
  ASSERT_TRUE(Embed());
  Window.Activate();
  Wait(50);
  ASSERT_EQ(GetActiveWindow(), Handle());
  went = 0;
  End_Parent();
  EXPECT_EQ(went, 1);
  Window.On_Deactivate = nullptr;
}

TEST_F(Form_Embedding, A_window_that_opened_over_it_stays_when_the_parent_goes) {
  ASSERT_TRUE(Embed());
  toolkit::Form balloon(Backend, "frmBalloon", toolkit::Form_Border::None, &Window);
  balloon.Show();
  const HWND handle = win32::To_Window(balloon.Handle());
  End_Parent();
  EXPECT_TRUE(IsWindow(handle));
  EXPECT_TRUE(IsWindowVisible(handle));
  EXPECT_TRUE(IsWindowVisible(Handle()));
  balloon.Unload();
}

TEST_F(Form_Embedding, The_new_window_follows_its_tips_under_a_pointer_at_rest) {
  toolkit::Label label(Window, "Day");
  label.Place({3000, 150, 1500, 600});
  label.ToolTipText = "Choir";
  ASSERT_TRUE(Embed());
  const auto point_at_label = [this] {
    POINT at = {220, 20};
    ClientToScreen(Handle(), &at);
    for (int tries = 0; tries < 10; ++tries) {
      SetCursorPos(at.x - tries % 2, at.y);
      Wait(20);
    }
  };
  point_at_label();
  label.ToolTipText = "Dentist";  // looked at by a message that is still to come
  End_Parent();
  point_at_label();
  Wait(1500);
  ASSERT_NE(Shown_Tip(), nullptr);
  label.ToolTipText = "";
  Wait(100);
  EXPECT_EQ(Shown_Tip(), nullptr);
}

// A form's window as a child of the shell's window: how it gets there, its place in it, and how it is made anew when
// the shell has gone and taken it along.
#include "toolkit/input.h"
#include "win32/form_window.h"

namespace win32 {

namespace {

// Of systems newer than the first ones.
constexpr LONG no_redirection_bitmap = 0x00200000;  // what children of such a window paint isn't kept for them
constexpr LONG layered = 0x00080000;                // keeps it itself
constexpr DWORD by_alpha = 2;

/// The window keeps the style of a popup, since a window with the style of a child can never be active. Only during the
/// move it has the style of a child, since some systems make a popup active when it moves to another parent.
bool Move_Under(HWND window, HWND parent) {
  const LONG style = GetWindowLongA(window, GWL_STYLE);
  constexpr LONG popup = static_cast<LONG>(WS_POPUP), child = WS_CHILD;
  SetWindowLongA(window, GWL_STYLE, (style & ~popup) | child);
  const bool moved = SetParent(window, parent) != nullptr;
  SetWindowLongA(window, GWL_STYLE, style);
  return moved;
}

/// Comes after the move: a window that is layered while it moves can stay unseen. Not every system lets a child be
/// layered.
bool Become_Layered(HWND window) {
  const auto set_attributes = Find_Function<BOOL WINAPI(HWND, COLORREF, BYTE, DWORD)>(GetModuleHandleA("user32.dll"),
                                                                                      "SetLayeredWindowAttributes");
  if (set_attributes == nullptr) return false;
  SetWindowLongA(window, GWL_EXSTYLE, GetWindowLongA(window, GWL_EXSTYLE) | layered);
  return (GetWindowLongA(window, GWL_EXSTYLE) & layered) != 0 && set_attributes(window, 0, 255, by_alpha) != 0;
}

void Become_Plain(HWND window) {
  const LONG style = GetWindowLongA(window, GWL_EXSTYLE);
  if ((style & layered) != 0) SetWindowLongA(window, GWL_EXSTYLE, style & ~layered);
}

void Become_Ordinary(HWND window) {
  Become_Plain(window);
  Move_Under(window, nullptr);
}

/// While one lives, its flag is set.
class Set_Meanwhile {
 public:
  explicit Set_Meanwhile(bool& flag) : flag_(flag) { flag_ = true; }
  Set_Meanwhile(const Set_Meanwhile&) = delete;
  Set_Meanwhile& operator=(const Set_Meanwhile&) = delete;
  ~Set_Meanwhile() { flag_ = false; }

 private:
  bool& flag_;
};

}  // namespace

/// A child can't own windows: they would be the shell's, and go with it.
void Form_Window::Give_Up_Owned() {
  tip_.Forget();
  for (const Program_Window* const other : context_.Windows.All())
    if (GetWindow(other->Window(), GW_OWNER) == Window()) SetWindowLongPtrA(other->Window(), GWLP_HWNDPARENT, 0);
}

/// The shell may end at any moment of this, and the window with it. What is gone is left to the next Settle.
platform::Adoption Form_Window::Embed(HWND parent) {
  using enum platform::Adoption;
  if (IsWindow(Window()) == 0) return Failed;
  const Work_On_Windows::Step step(context_.Work);
  context_.Note_Pointer(form_.System().Input);
  const Set_Meanwhile in_between(in_between_);
  const HWND before = Embedded() ? HWND_BOTTOM : GetWindow(Window(), GW_HWNDPREV);
  Become_Plain(Window());
  const bool keeps_bitmap = (GetWindowLongA(parent, GWL_EXSTYLE) & no_redirection_bitmap) == 0;
  const bool moved = Move_Under(Window(), parent);
  const bool seen = moved && (keeps_bitmap || Become_Layered(Window()));
  if (seen) Give_Up_Owned();
  if (moved || Embedded()) {
    if (!seen) Become_Ordinary(Window());
    parent_ = seen ? parent : nullptr;
    context_.Embedded = seen;
    const RECT place = Place_In_Parent();
    SetWindowPos(Window(), seen ? HWND_TOP : before, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    surface_.Repaint_All();
  }
  if (seen) return Done;
  return moved && IsWindow(Window()) != 0 ? Unseen : Failed;
}

RECT Form_Window::Place_In_Parent() {
  RECT place = place_;
  if (parent_ == nullptr) return place;
  GetWindowRect(parent_, &parent_place_);
  MapWindowPoints(nullptr, parent_, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

/// The shell's window covers all screens. When one is added or taken away at the left or above, its corner moves, and
/// this window moves with it. No message reports that.
void Form_Window::Follow_Parent() {
  RECT now = {};
  if (GetWindowRect(parent_, &now) != 0 && EqualRect(&now, &parent_place_) == 0) Put_In_Place();
}

/// The shell's window has been destroyed, and this one with it: the form gets a new one, an ordinary one behind all
/// others, as the desktop was.
void Form_Window::Make_Anew() {
  const Set_Meanwhile in_between(in_between_);
  toolkit::Input& input = form_.System().Input;
  if (input.Mouse_Window() == &form_) input.Mouse_Lost();
  if (context_.Active == this) {
    context_.Active = nullptr;
    input.Activity_Went(form_);
  }
  if (Embedded()) context_.Embedded = false;
  parent_ = nullptr;
  tip_.Forget();
  natives_.clear();
  Make_Window();
  // What was posted to the old window went with it.
  tip_check_posted_ = false;
  Tell_Of_Activity_Later();
  natives_changed_ = true;
  if (!std::holds_alternative<std::monostate>(shape_)) Settle_Region();
  if (!form_.Visible()) return;
  constexpr UINT stay = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
  SetWindowPos(Window(), HWND_BOTTOM, 0, 0, 0, 0, stay | SWP_SHOWWINDOW);
  surface_.Repaint_All();
}

}  // namespace win32

#include "win32/accessible_native.h"

#include "win32/accessible_form.h"
#include "win32/native_control.h"

namespace win32 {

HWND Accessible_Native::Window() const { return native_.Window(); }

int Accessible_Native::Count() const { return native_.Control().Part_Count(); }

/// What the user sees of a part, in pixels of the window in which it lies; empty if it is scrolled out of that.
RECT Accessible_Native::Seen_Place(int part) const {
  const RECT place = native_.Part_Place(part);
  RECT client = {}, seen = {};
  GetClientRect(native_.Parts_Window(), &client);
  IntersectRect(&seen, &place, &client);
  return seen;
}

toolkit::Heard Accessible_Native::Hear(int number) const {
  if (number == 0) return toolkit::Hear(native_.Control());
  toolkit::Heard heard = toolkit::Hear_Part(native_.Control(), number - 1);
  const RECT seen = Seen_Place(number - 1);
  heard.Scrolled_Out = IsRectEmpty(&seen) != 0;
  return heard;
}

RECT Accessible_Native::Place(int number) const {
  RECT place;
  if (number == 0) {
    GetWindowRect(Window(), &place);
    return place;
  }
  place = native_.Part_Place(number - 1);
  MapWindowPoints(native_.Parts_Window(), nullptr, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

int Accessible_Native::At(POINT on_screen) const {
  ScreenToClient(native_.Parts_Window(), &on_screen);
  for (int part = 0; part < Count(); ++part) {
    const RECT seen = Seen_Place(part);
    if (PtInRect(&seen, on_screen) != 0) return part + 1;
  }
  return 0;
}

/// The parts follow each other, whichever way the reader goes.
int Accessible_Native::Beside(int number, toolkit::Way way) const {
  using enum toolkit::Way;
  const bool back = way == Previous || way == Left || way == Up;
  if (number == 0) return back ? Count() : (Count() > 0 ? 1 : 0);
  return back ? number - 1 : (number < Count() ? number + 1 : 0);
}

int Accessible_Native::Focused() const {
  const int selected = Selected();
  if (selected > 0 && Hear(selected).Focused) return selected;
  return Hear(0).Focused ? 0 : -1;
}

int Accessible_Native::Selected() const { return native_.Control().Selected_Part() + 1; }

IDispatch* Accessible_Native::Parent() const { return Services().Object_Of(GetParent(Window()), OBJID_CLIENT); }

int Accessible_Native::Number_In_Parent() const { return Accessible_Form::Number_In_Form(native_.Control()); }

void Accessible_Native::Fulfil(int number, Wish wish) const {
  Accessible_Form::Fulfil(native_.Control(), number - 1, wish);
}

}  // namespace win32

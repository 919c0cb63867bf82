#include "win32/accessible_object.h"

#include "win32/guard.h"

namespace win32 {

namespace {

using toolkit::Heard;
using toolkit::Role;
using toolkit::Way;

const VARIANT itself = [] {
  VARIANT number = {};
  number.vt = VT_I4;
  return number;
}();

LONG System_Role(Role role) {
  switch (role) {
    case Role::Window: return ROLE_SYSTEM_CLIENT;
    case Role::Dialog: return ROLE_SYSTEM_DIALOG;
    case Role::Text: return ROLE_SYSTEM_STATICTEXT;
    case Role::Picture: return ROLE_SYSTEM_GRAPHIC;
    case Role::Group: return ROLE_SYSTEM_GROUPING;
    case Role::Push_Button: return ROLE_SYSTEM_PUSHBUTTON;
    case Role::Check_Box: return ROLE_SYSTEM_CHECKBUTTON;
    case Role::Option_Button: return ROLE_SYSTEM_RADIOBUTTON;
    case Role::Text_Box: return ROLE_SYSTEM_TEXT;
    case Role::List: return ROLE_SYSTEM_LIST;
    case Role::List_Item: return ROLE_SYSTEM_LISTITEM;
    case Role::Drop_Down: return ROLE_SYSTEM_COMBOBOX;
    case Role::Slider: return ROLE_SYSTEM_SLIDER;
    case Role::Tabs: return ROLE_SYSTEM_PAGETABLIST;
    case Role::Tab: return ROLE_SYSTEM_PAGETAB;
    case Role::Column_Header: return ROLE_SYSTEM_COLUMNHEADER;
    case Role::Cell: return ROLE_SYSTEM_CELL;
  }
  return ROLE_SYSTEM_CLIENT;
}

LONG System_State(const Heard& heard) {
  const auto where = [](bool is, int state) { return is ? LONG{state} : LONG{0}; };
  return where(!heard.Visible, STATE_SYSTEM_INVISIBLE) | where(heard.Scrolled_Out, STATE_SYSTEM_OFFSCREEN) |
         where(!heard.Available, STATE_SYSTEM_UNAVAILABLE) |
         where(heard.Focusable && heard.Available, STATE_SYSTEM_FOCUSABLE) |
         where(heard.Focused, STATE_SYSTEM_FOCUSED) | where(heard.Selectable, STATE_SYSTEM_SELECTABLE) |
         where(heard.Selected, STATE_SYSTEM_SELECTED) | where(heard.Marks.Checked, STATE_SYSTEM_CHECKED) |
         where(heard.Marks.Pressed, STATE_SYSTEM_PRESSED) | where(heard.Marks.Default, STATE_SYSTEM_DEFAULT) |
         where(heard.Role == Role::Text || heard.Role == Role::Cell, STATE_SYSTEM_READONLY);
}

void Set_Number(VARIANT* to, LONG number) {
  to->vt = VT_I4;
  to->lVal = number;
}

}  // namespace

/// Puts a question to the window: `work` gets it and the number that is asked for.
template <class Work>
HRESULT Accessible_Object::Ask(const VARIANT& number, Work work) const {
  if (window_ == nullptr || Guard::Broken_Off()) return CO_E_OBJNOTCONNECTED;
  try {
    if (number.vt != VT_I4 || number.lVal < 0 || number.lVal > window_->Count()) return E_INVALIDARG;
    return work(*window_, static_cast<int>(number.lVal));
  } catch (...) {
    return E_FAIL;
  }
}

template <class Choose>
HRESULT Accessible_Object::Ask_Text(const VARIANT& number, BSTR* text, Choose choose) const {
  if (text == nullptr) return E_INVALIDARG;
  *text = nullptr;
  return Ask(number, [&](const Accessible_Window& window, int asked) {
    *text = window.Services().Text(choose(window.Hear(asked)));
    return *text != nullptr ? S_OK : S_FALSE;
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == Accessibility::accessible_id)
    *object = static_cast<IAccessible*>(this);
  else if (id == __uuidof(IOleWindow)) *object = static_cast<IOleWindow*>(this);
  else return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

DECLSPEC_NOTHROW STDMETHODIMP_(ULONG) Accessible_Object::AddRef() {
  return static_cast<ULONG>(InterlockedIncrement(&references_));
}

DECLSPEC_NOTHROW STDMETHODIMP_(ULONG) Accessible_Object::Release() {
  const LONG left = InterlockedDecrement(&references_);
  if (left == 0) delete this;
  return static_cast<ULONG>(left);
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::GetWindow(HWND* window) {
  if (window == nullptr) return E_INVALIDARG;
  return Ask(itself, [&](const Accessible_Window& asked, int) {
    *window = asked.Window();
    return S_OK;
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accParent(IDispatch** parent) {
  if (parent == nullptr) return E_INVALIDARG;
  *parent = nullptr;
  return Ask(itself, [&](const Accessible_Window& window, int) {
    *parent = window.Parent();
    return *parent != nullptr ? S_OK : S_FALSE;
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accChildCount(long* count) {
  if (count == nullptr) return E_INVALIDARG;
  return Ask(itself, [&](const Accessible_Window& window, int) {
    *count = window.Count();
    return S_OK;
  });
}

/// Only what has a window of its own has an object of its own.
DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accChild(VARIANT number, IDispatch** child) {
  if (child == nullptr) return E_INVALIDARG;
  *child = nullptr;
  return Ask(number, [&](const Accessible_Window& window, int asked) {
    if (const HWND own = window.Window_Of(asked)) *child = window.Services().Object_Of(own, OBJID_CLIENT);
    return *child != nullptr ? S_OK : S_FALSE;
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accName(VARIANT number, BSTR* name) {
  return Ask_Text(number, name, [](const Heard& heard) { return heard.Name; });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accValue(VARIANT number, BSTR* value) {
  return Ask_Text(number, value, [](const Heard& heard) { return heard.Value.value_or(""); });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accKeyboardShortcut(VARIANT number, BSTR* keys) {
  return Ask_Text(number, keys, [](const Heard& heard) {
    return heard.Accelerator != 0 ? std::string("Alt+") + heard.Accelerator : std::string();
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accDefaultAction(VARIANT number, BSTR* action) {
  return Ask_Text(number, action, [](const Heard& heard) { return heard.Action; });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accRole(VARIANT number, VARIANT* role) {
  if (role == nullptr) return E_INVALIDARG;
  return Ask(number, [&](const Accessible_Window& window, int asked) {
    Set_Number(role, System_Role(window.Hear(asked).Role));
    return S_OK;
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accState(VARIANT number, VARIANT* state) {
  if (state == nullptr) return E_INVALIDARG;
  return Ask(number, [&](const Accessible_Window& window, int asked) {
    Set_Number(state, System_State(window.Hear(asked)));
    return S_OK;
  });
}

/// Hands out a part of the window as the object that it has, or else by its number.
HRESULT Accessible_Object::Give(int number, VARIANT* to) const {
  const HWND own = window_->Window_Of(number);
  IDispatch* const object = own != nullptr ? window_->Services().Object_Of(own, OBJID_CLIENT) : nullptr;
  if (object == nullptr) {
    Set_Number(to, number);
    return S_OK;
  }
  to->vt = VT_DISPATCH;
  to->pdispVal = object;
  return S_OK;
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accFocus(VARIANT* focused) {
  if (focused == nullptr) return E_INVALIDARG;
  focused->vt = VT_EMPTY;
  return Ask(itself, [&](const Accessible_Window& window, int) {
    const int number = window.Focused();
    return number < 0 ? S_FALSE : Give(number, focused);
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::get_accSelection(VARIANT* selected) {
  if (selected == nullptr) return E_INVALIDARG;
  selected->vt = VT_EMPTY;
  return Ask(itself, [&](const Accessible_Window& window, int) {
    const int number = window.Selected();
    return number <= 0 ? S_FALSE : Give(number, selected);
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::accSelect(long flags, VARIANT number) {
  return Ask(number, [&](const Accessible_Window& window, int asked) -> HRESULT {
    const Heard heard = window.Hear(asked);
    const bool focus = (flags & SELFLAG_TAKEFOCUS) != 0, select = (flags & SELFLAG_TAKESELECTION) != 0;
    if ((select && !heard.Selectable) || (flags & ~(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0)
      return E_INVALIDARG;
    if (focus && !heard.Focusable) return S_FALSE;
    if (focus) window.Fulfil(asked, Wish::Focus);
    if (select) window.Fulfil(asked, Wish::Act);
    return S_OK;
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::accLocation(long* left, long* top, long* width, long* height,
                                                             VARIANT number) {
  if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) return E_INVALIDARG;
  return Ask(number, [&](const Accessible_Window& window, int asked) {
    const RECT place = window.Place(asked);
    *left = place.left;
    *top = place.top;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
  });
}

/// From the window itself to what lies beside it. That is the parent's to tell, with a number of the parent's.
HRESULT Accessible_Object::Navigate_From_Itself(long direction, VARIANT* to) const {
  VARIANT number = itself;
  number.lVal = window_->Number_In_Parent();
  IDispatch* const parent = number.lVal != 0 ? window_->Parent() : nullptr;
  if (parent == nullptr) return S_FALSE;
  IAccessible* accessible = nullptr;
  HRESULT result = parent->QueryInterface(Accessibility::accessible_id, reinterpret_cast<void**>(&accessible));
  if (accessible != nullptr) {
    result = accessible->accNavigate(direction, number, to);
    accessible->Release();
  }
  parent->Release();
  return result;
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::accNavigate(long direction, VARIANT from, VARIANT* to) {
  if (to == nullptr) return E_INVALIDARG;
  to->vt = VT_EMPTY;
  return Ask(from, [&](const Accessible_Window& window, int asked) -> HRESULT {
    const bool child = direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD;
    if (child && asked != 0) return S_FALSE;  // what lies in the window has no children
    if (!child && asked == 0) return Navigate_From_Itself(direction, to);
    int number = 0;
    switch (direction) {
      case NAVDIR_FIRSTCHILD:
      case NAVDIR_NEXT: number = window.Beside(asked, Way::Next); break;
      case NAVDIR_LASTCHILD:
      case NAVDIR_PREVIOUS: number = window.Beside(asked, Way::Previous); break;
      case NAVDIR_LEFT: number = window.Beside(asked, Way::Left); break;
      case NAVDIR_RIGHT: number = window.Beside(asked, Way::Right); break;
      case NAVDIR_UP: number = window.Beside(asked, Way::Up); break;
      case NAVDIR_DOWN: number = window.Beside(asked, Way::Down); break;
      default: return E_INVALIDARG;
    }
    return number == 0 ? S_FALSE : Give(number, to);
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::accHitTest(long x, long y, VARIANT* hit) {
  if (hit == nullptr) return E_INVALIDARG;
  hit->vt = VT_EMPTY;
  return Ask(itself, [&](const Accessible_Window& window, int) {
    const RECT place = window.Place(0);
    const POINT at = {x, y};
    return PtInRect(&place, at) == 0 ? S_FALSE : Give(window.At(at), hit);
  });
}

DECLSPEC_NOTHROW STDMETHODIMP Accessible_Object::accDoDefaultAction(VARIANT number) {
  return Ask(number, [](const Accessible_Window& window, int asked) -> HRESULT {
    if (window.Hear(asked).Action.empty()) return DISP_E_MEMBERNOTFOUND;
    window.Fulfil(asked, Wish::Act);
    return S_OK;
  });
}

Accessible_Window::~Accessible_Window() {
  if (object_ == nullptr) return;
  object_->Disconnect();
  object_->Release();
}

bool Accessible_Window::Answer(WPARAM w, LPARAM l, LRESULT& result) {
  // Some systems extend the number's sign to the parameter's width, others don't.
  if (static_cast<LONG>(static_cast<DWORD>(l)) != OBJID_CLIENT || !accessibility_.Start()) return false;
  if (object_ == nullptr) object_ = new Accessible_Object(*this);
  result = accessibility_.Answer(w, static_cast<IAccessible*>(object_));
  return true;
}

}  // namespace win32

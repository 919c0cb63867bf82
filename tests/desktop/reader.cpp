// A screen reader in small: what a window of another program tells of itself, read by the system's own way.
//
//   desktop_reader read WINDOW           the window and all that is read in it, as one JSON object
//   desktop_reader hit WINDOW X Y        what is at a pixel of the screen
//   desktop_reader walk WINDOW           the names on the way from the first one to the last, each by the step to the
// next   desktop_reader act WINDOW NAME       the default action of the visible thing of that name
//   desktop_reader focus WINDOW NAME     gives it the focus
//   desktop_reader hold WINDOW           holds on to it until it is gone, and then asks for its name: prints "held",
// and in the                                        end the number of the error
//   desktop_reader listen                each new name and new order that a window tells, one JSON object a line; until
// it                                        is ended
//
// WINDOW is a handle. Each byte of a text above 0x7E is \u00XX.
#include <windows.h>

#include <oleacc.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

/// Owns one reference.
template <class Interface>
class Held {
 public:
  Held() = default;
  Held(const Held& other) : object_(other.object_) {
    if (object_ != nullptr) object_->AddRef();
  }
  Held& operator=(const Held&) = delete;
  ~Held() {
    if (object_ != nullptr) object_->Release();
  }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  Interface** Address() { return &object_; }

 private:
  Interface* object_ = nullptr;
};

/// A thing that is read: an object, or one of its numbers.
struct Thing {
  Held<IAccessible> Object;
  VARIANT Number{};

  Thing() { Number.vt = VT_I4; }
};

std::string Quoted(const wchar_t* text, UINT length) {
  std::string quoted = "\"";
  for (UINT i = 0; i < length; ++i) {
    char code[8];
    const unsigned unit = text[i];
    const bool plain = unit >= 0x20 && unit <= 0x7E && unit != '"' && unit != '\\';
    std::snprintf(code, sizeof code, plain ? "%c" : "\\u%04x", unit);
    quoted += code;
  }
  return quoted + '"';
}

/// A text of a thing, in quotes, or null.
using Text_Question = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
std::string Text_Of(const Thing& thing, Text_Question question) {
  BSTR text = nullptr;
  IAccessible* const object = thing.Object.operator->();
  if ((object->*question)(thing.Number, &text) != S_OK) return "null";
  std::string quoted = Quoted(text, SysStringLen(text));
  SysFreeString(text);
  return quoted;
}

using Number_Question = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, VARIANT*);
long Number_Of(const Thing& thing, Number_Question question) {
  VARIANT answer{};
  IAccessible* const object = thing.Object.operator->();
  return SUCCEEDED((object->*question)(thing.Number, &answer)) && answer.vt == VT_I4 ? answer.lVal : -1;
}

bool Visible(const Thing& thing) {
  return (Number_Of(thing, &IAccessible::get_accState) & STATE_SYSTEM_INVISIBLE) == 0;
}

/// Without the closing brace.
std::string In_Json(const Thing& thing) {
  long left = 0, top = 0, width = 0, height = 0;
  thing.Object->accLocation(&left, &top, &width, &height, thing.Number);
  char numbers[160];
  std::snprintf(numbers, sizeof numbers, "{\"number\":%ld,\"role\":%ld,\"state\":%ld,\"rect\":[%ld,%ld,%ld,%ld]",
                thing.Number.lVal, Number_Of(thing, &IAccessible::get_accRole),
                Number_Of(thing, &IAccessible::get_accState), left, top, left + width, top + height);
  return numbers + std::string(",\"name\":") + Text_Of(thing, &IAccessible::get_accName) +
         ",\"value\":" + Text_Of(thing, &IAccessible::get_accValue) +
         ",\"action\":" + Text_Of(thing, &IAccessible::get_accDefaultAction) +
         ",\"keys\":" + Text_Of(thing, &IAccessible::get_accKeyboardShortcut);
}

Thing Child_Of(const Thing& parent, long number) {
  Held<IDispatch> object;
  Thing child;
  VARIANT which{};
  which.vt = VT_I4;
  which.lVal = number;
  if (parent.Object->get_accChild(which, object.Address()) == S_OK &&
      SUCCEEDED(object->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(child.Object.Address()))))
    return child;
  Thing simple{parent};
  simple.Number = which;
  return simple;
}

long Count_Of(const Thing& thing) {
  long count = 0;
  if (thing.Number.lVal == 0) thing.Object->get_accChildCount(&count);
  return count;
}

void Print_Tree(const Thing& thing) {
  std::printf("%s,\"children\":[", In_Json(thing).c_str());
  for (long i = 1; i <= Count_Of(thing); ++i) {
    if (i > 1) std::printf(",");
    Print_Tree(Child_Of(thing, i));
  }
  std::printf("]}");
}

/// What an answer stands for: a number of the asked object, or another object.
bool Take(const Thing& asked, VARIANT& answer, Thing& to) {
  if (answer.vt == VT_DISPATCH) {
    const bool is = SUCCEEDED(
        answer.pdispVal->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(to.Object.Address())));
    VariantClear(&answer);
    return is;
  }
  if (answer.vt != VT_I4) return false;
  asked.Object->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(to.Object.Address()));
  to.Number = answer;
  return true;
}

int Hit(const Thing& window, long x, long y) {
  VARIANT answer{};
  Thing hit;
  if (window.Object->accHitTest(x, y, &answer) != S_OK || !Take(window, answer, hit)) return 1;
  std::printf("%s}\n", In_Json(hit).c_str());
  return 0;
}

/// Numbers of the window alone: what has an object of its own isn't gone on from.
int Walk(const Thing& window) {
  VARIANT at{};
  at.vt = VT_I4;
  for (long direction = NAVDIR_FIRSTCHILD;; direction = NAVDIR_NEXT) {
    VARIANT next{};
    if (window.Object->accNavigate(direction, at, &next) != S_OK || next.vt != VT_I4) return 0;
    Thing thing{window};
    thing.Number = at = next;
    std::printf("%s\n", Text_Of(thing, &IAccessible::get_accName).c_str());
  }
}

/// The first visible thing of that name, in quotes.
bool Find(const Thing& from, const std::string& name, Thing& found) {
  for (long i = 1; i <= Count_Of(from); ++i) {
    const Thing child = Child_Of(from, i);
    if (Visible(child) && Text_Of(child, &IAccessible::get_accName) == name) {
      child.Object->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(found.Object.Address()));
      found.Number = child.Number;
      return true;
    }
    if (Find(child, name, found)) return true;
  }
  return false;
}

int Do(const Thing& window, const char* what, const char* name) {
  Thing thing;
  if (!Find(window, '"' + std::string(name) + '"', thing)) return 1;
  const HRESULT done = std::strcmp(what, "act") == 0 ? thing.Object->accDoDefaultAction(thing.Number)
                                                     : thing.Object->accSelect(SELFLAG_TAKEFOCUS, thing.Number);
  return done == S_OK ? 0 : 1;
}

int Hold(const Thing& thing, HWND window) {
  constexpr DWORD longest = 60000;  // milliseconds
  std::printf("\"held\"\n");
  std::fflush(stdout);
  for (const DWORD start = GetTickCount(); IsWindow(window) != 0 && GetTickCount() - start < longest;) Sleep(20);
  BSTR name = nullptr;
  std::printf("%lu\n", static_cast<unsigned long>(thing.Object->get_accName(thing.Number, &name)));
  return 0;
}

void CALLBACK Print_Event(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD) {
  if (object != OBJID_CLIENT || (event != EVENT_OBJECT_NAMECHANGE && event != EVENT_OBJECT_REORDER)) return;
  std::printf("{\"event\":\"%s\",\"window\":%lld,\"number\":%ld}\n", event == EVENT_OBJECT_REORDER ? "order" : "name",
              static_cast<long long>(reinterpret_cast<LONG_PTR>(window)), child);
  std::fflush(stdout);
}

int Listen() {
  SetWinEventHook(EVENT_OBJECT_REORDER, EVENT_OBJECT_NAMECHANGE, nullptr, Print_Event, 0, 0, WINEVENT_OUTOFCONTEXT);
  std::printf("{\"event\":\"ready\"}\n");
  std::fflush(stdout);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  CoInitialize(nullptr);
  const std::string what = count > 1 ? arguments[1] : "";
  if (what == "listen") return Listen();
  if (count < 3) return 2;
  const auto handle = reinterpret_cast<HWND>(static_cast<LONG_PTR>(std::atoll(arguments[2])));
  Thing window;
  const HRESULT found = AccessibleObjectFromWindow(handle, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                                   reinterpret_cast<void**>(window.Object.Address()));
  if (FAILED(found)) return 3;
  if (what == "read") {
    Print_Tree(window);
    std::printf("\n");
    return 0;
  }
  if (what == "walk") return Walk(window);
  if (what == "hold") return Hold(window, handle);
  if (what == "hit" && count == 5) return Hit(window, std::atol(arguments[3]), std::atol(arguments[4]));
  if ((what == "act" || what == "focus") && count == 4) return Do(window, what.c_str(), arguments[3]);
  return 2;
}

#include "win32/form_window.h"

#include <algorithm>
#include <array>
#include <utility>

#include "toolkit/input.h"

namespace win32 {

namespace {

constexpr char class_name[] = "Meridex_Form";

HRGN Make_Region(const std::vector<toolkit::Pixel_Rect>& rects) {
  if (rects.empty()) return CreateRectRgn(0, 0, 0, 0);
  std::vector<char> bytes(sizeof(RGNDATAHEADER) + rects.size() * sizeof(RECT));
  auto* const data = reinterpret_cast<RGNDATA*>(bytes.data());
  data->rdh = {sizeof(RGNDATAHEADER), RDH_RECTANGLES, static_cast<DWORD>(rects.size()), 0, {}};
  auto* to = reinterpret_cast<RECT*>(data->Buffer);
  RECT& all = data->rdh.rcBound;
  for (const toolkit::Pixel_Rect& rect : rects) {
    *to = {rect.Left, rect.Top, rect.Right, rect.Bottom};
    UnionRect(&all, &all, to++);
  }
  return ExtCreateRegion(nullptr, static_cast<DWORD>(bytes.size()), data);
}

/// A window without a frame gets no title: nobody would see it, and a newer instance that looks for this one by title
/// must find its hidden window.
const char* Title_Of(const toolkit::Form& form) {
  return form.Border == toolkit::Form_Border::None ? "" : form.Caption().c_str();
}

/// The window that this one stays in front of. The shell's window, to which the calendar belongs as a part of the
/// desktop, never owns windows of ours.
HWND Owner_Of(const toolkit::Form& form) {
  if (form.Owner == nullptr || !form.Owner->Loaded()) return nullptr;
  const HWND owner = To_Window(form.Owner->Handle());
  const auto ancestor = Find_Function<HWND WINAPI(HWND, UINT)>(GetModuleHandleA("user32.dll"), "GetAncestor");
  const bool embedded = ancestor != nullptr && ancestor(owner, GA_PARENT) != GetDesktopWindow();
  return embedded ? nullptr : owner;
}

/// The painting of what of a window is marked.
class Painting {
 public:
  explicit Painting(HWND window) : window_(window) { BeginPaint(window, &session_); }
  Painting(const Painting&) = delete;
  Painting& operator=(const Painting&) = delete;
  ~Painting() { EndPaint(window_, &session_); }

  [[nodiscard]] HDC Target() const { return session_.hdc; }
  [[nodiscard]] const RECT& Area() const { return session_.rcPaint; }

 private:
  HWND window_;
  PAINTSTRUCT session_{};
};

}  // namespace

Frame_Style Style_Of(toolkit::Form_Border border) {
  if (border == toolkit::Form_Border::Fixed_Dialog)
    return {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, WS_EX_DLGMODALFRAME};
  // As a tool window it has no button in the task bar.
  return {WS_POPUP | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW};
}

toolkit::Control* Control_At(const toolkit::Form& form, const Scale& scale, POINT pixel) {
  const auto& controls = form.Controls();
  const auto hit = std::find_if(controls.rbegin(), controls.rend(), [&](const toolkit::Control* control) {
    const RECT place = scale.Pixels(control->In_Twips());
    return control->Visible && PtInRect(&place, pixel) != 0;
  });
  return hit == controls.rend() ? nullptr : *hit;
}

void Form_Window::Register_Class(HINSTANCE instance) {
  WNDCLASSA description = {};
  if (GetClassInfoA(instance, class_name, &description) != 0) return;
  description = {};
  description.style = CS_DBLCLKS;
  description.lpfnWndProc = Procedure;
  description.hInstance = instance;
  description.lpszClassName = class_name;
  RegisterClassA(&description);
}

Form_Window::Form_Window(toolkit::Form& form, Window_Context& context)
    : form_(form), context_(context), place_(Wanted_Place()), tip_(context.Common_Controls) {
  Register_Class(context.Instance);
  const Frame_Style frame = Style_Of(form.Border);
  window_.Reset(CreateWindowExA(frame.Extended, class_name, Title_Of(form), frame.Style, place_.left, place_.top,
                                place_.right - place_.left, place_.bottom - place_.top, Owner_Of(form), nullptr,
                                context.Instance, nullptr));
  SetWindowLongPtrA(Window(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  if (form.Border == toolkit::Form_Border::Fixed_Dialog) {
    for (const auto& [kind, across, down] :
         {std::array{ICON_SMALL, SM_CXSMICON, SM_CYSMICON}, std::array{ICON_BIG, SM_CXICON, SM_CYICON}}) {
      const HICON icon = context.Pictures.Frame_Icon(GetSystemMetrics(across), GetSystemMetrics(down));
      SendMessageA(Window(), WM_SETICON, static_cast<WPARAM>(kind), reinterpret_cast<LPARAM>(icon));
    }
  }
  if (!form.Accepts_Input()) EnableWindow(Window(), FALSE);
  for (toolkit::Control* const control : form.Controls()) {
    if (auto native = Make_Native_Control(Window(), *control, context)) natives_.push_back(std::move(native));
    else Painted(*control);
  }
  context.Windows.Add(*this);
}

Form_Window::~Form_Window() {
  context_.Windows.Remove(*this);
  if (context_.Active == this) context_.Active = nullptr;
  if (context_.Behind_Box == this) context_.Behind_Box = nullptr;
  // Detach first: destroying the window must not call back into a form that is going away.
  SetWindowLongPtrA(Window(), GWLP_USERDATA, 0);
}

void Form_Window::Show(bool activate) {
  shown_ = true;
  Settle();
  context_.Note_Pointer(form_.System().Input);
  constexpr UINT stay = SWP_NOMOVE | SWP_NOSIZE;
  SetWindowPos(Window(), HWND_TOP, 0, 0, 0, 0, stay | SWP_SHOWWINDOW | (activate ? 0 : SWP_NOACTIVATE));
  if (!activate) return;
  SetForegroundWindow(Window());
  SetActiveWindow(Window());
}

void Form_Window::Hide() {
  shown_ = false;
  context_.Note_Pointer(form_.System().Input);
  ShowWindow(Window(), SW_HIDE);
}

// Inside another program's window a press would make that window active and give it the keys.
void Form_Window::Activate() {
  if (GetActiveWindow() != Window()) SetActiveWindow(Window());
  const HWND focus = GetFocus();
  if (focus != Window() && (focus == nullptr || IsChild(Window(), focus) == 0)) Focus(form_.Focused());
}

bool Form_Window::Minimised() const { return IsIconic(Window()) != 0; }

void Form_Window::Focus(toolkit::Control* control) {
  const Native_Control* const native = control != nullptr ? Native(*control) : nullptr;
  SetFocus(native != nullptr ? native->Window() : Window());
}

void Form_Window::Release_Mouse() {
  if (GetCapture() == Window()) ReleaseCapture();
}

void Form_Window::Form_Changed(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  if (aspect == Bounds) moved_ = true;
  if (aspect == Caption) SetWindowTextA(Window(), Title_Of(form_));
  if (aspect == Enabled) EnableWindow(Window(), form_.Accepts_Input());
  if (aspect == Appearance) Repaint_All();
  POINT at;
  if (aspect == Pointer && GetCursorPos(&at) != 0 && (GetCapture() == Window() || WindowFromPoint(at) == Window()))
    Set_Pointer(reinterpret_cast<WPARAM>(Window()), HTCLIENT);
}

RECT Form_Window::Wanted_Place() const {
  // The size is rounded by itself: a window that only moves keeps it.
  const Scale& scale = context_.Scale;
  const int left = scale.Pixels_X(form_.Left), top = scale.Pixels_Y(form_.Top);
  return {left, top, left + scale.Pixels_X(form_.Width), top + scale.Pixels_Y(form_.Height)};
}

void Form_Window::Set_Region(const toolkit::Region& region) {
  if (!round_ && region == region_) return;
  round_ = false;
  region_ = region;
  new_region_.Reset(Make_Region(region.Rects()));
  cut_ = true;
}

void Form_Window::Set_Round_Region(int width, int height, int corner) {
  round_ = true;
  new_region_.Reset(CreateRoundRectRgn(0, 0, width, height, corner, corner));
  cut_ = true;
}

void Form_Window::Settle() {
  if (std::exchange(moved_, false)) Settle_Place();
  if (std::exchange(cut_, false)) Settle_Region();
  if (all_marked_ || !marks_.empty()) Settle_Marks();
}

void Form_Window::Settle_Place() {
  const RECT wanted = Wanted_Place();
  if (EqualRect(&wanted, &place_) != 0) return;
  const bool same_size = wanted.right - wanted.left == place_.right - place_.left &&
                         wanted.bottom - wanted.top == place_.bottom - place_.top;
  // An outline follows the size as a whole.
  if (!same_size && form_.Outline_Corner != 0) Repaint_All();
  place_ = wanted;
  context_.Note_Pointer(form_.System().Input);
  SetWindowPos(Window(), nullptr, wanted.left, wanted.top, wanted.right - wanted.left, wanted.bottom - wanted.top,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void Form_Window::Settle_Region() {
  context_.Note_Pointer(form_.System().Input);
  // From here on the system owns the region.
  SetWindowRgn(Window(), new_region_.Take(), TRUE);
  Repaint_All();
}

void Form_Window::Settle_Marks() {
  constexpr std::size_t few = 4;
  if (std::exchange(all_marked_, false)) {
    InvalidateRect(Window(), nullptr, FALSE);
  } else if (marks_.size() <= few) {
    for (const RECT& mark : marks_) InvalidateRect(Window(), &mark, FALSE);
  } else {
    // What lies between them is painted faster than each of them is told.
    RECT all = {};
    for (const RECT& mark : marks_) UnionRect(&all, &all, &mark);
    InvalidateRect(Window(), &all, FALSE);
  }
  marks_.clear();
}

void Form_Window::Repaint_All() { all_marked_ = shown_; }

/// The entry of a label or picture; nullptr for any other control.
Painted_Control* Form_Window::Painted(const toolkit::Control& control) {
  const auto known = std::find_if(painted_.begin(), painted_.end(),
                                  [&](const Painted_Control& painted) { return painted.Control == &control; });
  if (known != painted_.end()) return &*known;
  const auto* const label = dynamic_cast<const toolkit::Label*>(&control);
  const auto* const image = dynamic_cast<const toolkit::Image*>(&control);
  if (label == nullptr && image == nullptr) return nullptr;
  Painted_Control& painted = painted_.emplace_back();
  painted.Control = &control;
  painted.Label = label;
  painted.Image = image;
  Update_Painted(painted, false);
  return &painted;
}

Native_Control* Form_Window::Native(const toolkit::Control& control) const {
  const auto found = std::find_if(natives_.begin(), natives_.end(),
                                  [&](const auto& native) { return &native->Control() == &control; });
  return found == natives_.end() ? nullptr : found->get();
}

void Form_Window::Control_Changed(toolkit::Control& control, toolkit::Aspect aspect) {
  if (Native_Control* const native = Native(control)) native->Changed(aspect);
  else if (Painted_Control* const painted = Painted(control)) Painted_Changed(*painted, aspect);
}

void Form_Window::Painted_Changed(Painted_Control& painted, toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Bounds:
    case Visible: Update_Painted(painted, true); break;
    case Appearance: painted.Face = nullptr; [[fallthrough]];
    case Caption: Mark(painted); break;
    default: break;
  }
  if (aspect == Bounds || aspect == Visible || aspect == Tool_Tip) Tips_Changed();
}

void Form_Window::Update_Painted(Painted_Control& painted, bool repaint) {
  const RECT place = context_.Scale.Pixels(painted.Control->In_Twips());
  const bool shown = painted.Control->Visible;
  if (shown == painted.Shown && EqualRect(&place, &painted.Place) != 0) return;
  if (repaint && painted.Shown && !painted.Waiting) Mark(painted.Place);
  painted.Place = place;
  painted.Shown = shown;
  painted.Waiting = false;
  if (repaint) Mark(painted);
}

/// Marks a control for painting, once for however many changes come before the painting.
void Form_Window::Mark(Painted_Control& painted) {
  if (!painted.Shown || painted.Waiting) return;
  painted.Waiting = true;
  Mark(painted.Place);
}

/// A hidden window is painted as a whole when it is shown.
void Form_Window::Mark(const RECT& place) {
  if (shown_ && !all_marked_) marks_.push_back(place);
}

void Form_Window::Paint() {
  for (Painted_Control& painted : painted_) painted.Waiting = false;
  const Painting painting(Window());
  RECT client;
  GetClientRect(Window(), &client);
  context_.Painter.Paint(painting.Target(), painting.Area(), client, form_, painted_);
}

}  // namespace win32

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
HWND Owner_Of(const toolkit::Form& form, const Window_List& windows) {
  if (form.Owner == nullptr || !form.Owner->Loaded()) return nullptr;
  const Program_Window* const owner = windows.Around(To_Window(form.Owner->Handle()));
  return owner == nullptr || owner->Embedded() ? nullptr : owner->Window();
}

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
    if (!control->On_View()) return false;
    const RECT place = scale.Pixels(control->In_Window());
    return PtInRect(&place, pixel) != 0;
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
    : form_(form), context_(context), place_(Wanted_Place()), surface_(form, context), tip_(context.Common_Controls),
      accessible_(form, context.Scale, context.Accessibility) {
  Register_Class(context.Instance);
  Make_Window();
  context.Windows.Add(*this);
}

/// Makes the system's window for the form as it is, hidden, with all that it holds.
void Form_Window::Make_Window() {
  const Frame_Style frame = Style_Of(form_.Border);
  window_.Reset(Made(CreateWindowExA(frame.Extended, class_name, Title_Of(form_), frame.Style, place_.left, place_.top,
                                     place_.right - place_.left, place_.bottom - place_.top,
                                     Owner_Of(form_, context_.Windows), nullptr, context_.Instance, nullptr)));
  SetWindowLongPtrA(Window(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  if (form_.Border == toolkit::Form_Border::Fixed_Dialog) {
    for (const auto& [kind, across, down] :
         {std::array{ICON_SMALL, SM_CXSMICON, SM_CYSMICON}, std::array{ICON_BIG, SM_CXICON, SM_CYICON}}) {
      const HICON icon = context_.Pictures.Frame_Icon(GetSystemMetrics(across), GetSystemMetrics(down));
      SendMessageA(Window(), WM_SETICON, static_cast<WPARAM>(kind), reinterpret_cast<LPARAM>(icon));
    }
  }
  if (!form_.Accepts_Input()) EnableWindow(Window(), FALSE);
  surface_.Begin(Window());
  for (toolkit::Control* const control : form_.Controls())
    if (auto native = Make_Native_Control(Window(), *control, context_)) natives_.push_back(std::move(native));
}

Form_Window::~Form_Window() {
  context_.Windows.Remove(*this);
  if (context_.Active == this) context_.Active = nullptr;
  if (context_.Behind_Box == this) context_.Behind_Box = nullptr;
  // Detach first: destroying the window must not call back into a form that is going away.
  SetWindowLongPtrA(Window(), GWLP_USERDATA, 0);
}

void Form_Window::Show(bool activate) {
  surface_.Set_Shown(true);
  Settle();
  context_.Note_Pointer(form_.System().Input);
  constexpr UINT stay = SWP_NOMOVE | SWP_NOSIZE;
  SetWindowPos(Window(), HWND_TOP, 0, 0, 0, 0, stay | SWP_SHOWWINDOW | (activate ? 0 : SWP_NOACTIVATE));
  if (!activate) return;
  SetForegroundWindow(Window());
  SetActiveWindow(Window());
}

void Form_Window::Hide() {
  surface_.Set_Shown(false);
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

// An active window gives the activity on, any other leaves it where it is.
void Form_Window::Set_Minimised(bool minimised) {
  const int how = GetActiveWindow() == Window() ? SW_MINIMIZE : SW_SHOWMINNOACTIVE;
  ShowWindow(Window(), minimised ? how : SW_RESTORE);
  // Not every system takes the activity from a window without a box for that.
  if (minimised && GetActiveWindow() == Window()) SetActiveWindow(Next_Behind());
}

/// The next window of the program behind this one that the user can reach; nullptr if there is none.
HWND Form_Window::Next_Behind() const {
  const auto& windows = context_.Windows.All();
  for (HWND next = GetWindow(Window(), GW_HWNDNEXT); next != nullptr; next = GetWindow(next, GW_HWNDNEXT)) {
    const bool reachable = IsWindowVisible(next) != 0 && IsWindowEnabled(next) != 0 && IsIconic(next) == 0;
    const auto is_next = [next](const Program_Window* window) { return window->Window() == next; };
    if (reachable && std::any_of(windows.begin(), windows.end(), is_next)) return next;
  }
  return nullptr;
}

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
  if (aspect == Appearance) surface_.Repaint_All();
  if (aspect == Pointer) Show_Pointer(nullptr);
}

// The native controls paint themselves, in the same way.
void Form_Window::Paint_Now() {
  Settle();
  UpdateWindow(Window());
  for (const auto& native : natives_) UpdateWindow(native->Window());
}

RECT Form_Window::Wanted_Place() const {
  // The size is rounded by itself: a window that only moves keeps it.
  const Scale& scale = context_.Scale;
  const int left = scale.Pixels_X(form_.Left), top = scale.Pixels_Y(form_.Top);
  return {left, top, left + scale.Pixels_X(form_.Width), top + scale.Pixels_Y(form_.Height)};
}

void Form_Window::Set_Region(const toolkit::Region& region) {
  const auto* const present = std::get_if<toolkit::Region>(&shape_);
  if (present != nullptr && region == *present) return;
  shape_ = region;
  cut_ = true;
}

void Form_Window::Set_Round_Region(int width, int height, int corner) {
  shape_ = Round_Shape{width, height, corner};
  cut_ = true;
}

void Form_Window::Settle() {
  const Work_On_Windows::Step step(context_.Work);
  if (!in_between_ && IsWindow(Window()) == 0) Make_Anew();
  if (std::exchange(moved_, false)) Settle_Place();
  if (Embedded()) Follow_Parent();
  if (std::exchange(cut_, false)) Settle_Region();
  if (std::exchange(natives_changed_, false)) Settle_Natives();
  surface_.Settle();
  accessible_.Settle();
}

void Form_Window::Settle_Natives() {
  for (const auto& native : natives_) native->Settle();
}

void Form_Window::Settle_Place() {
  const RECT wanted = Wanted_Place();
  if (EqualRect(&wanted, &place_) != 0) return;
  const bool same_size = wanted.right - wanted.left == place_.right - place_.left &&
                         wanted.bottom - wanted.top == place_.bottom - place_.top;
  // An outline follows the size as a whole.
  if (!same_size && form_.Outline_Corner != 0) surface_.Repaint_All();
  place_ = wanted;
  Put_In_Place();
}

/// Tells the system where the window is.
void Form_Window::Put_In_Place() {
  if (Minimised()) return Place_For_Return();
  context_.Note_Pointer(form_.System().Input);
  const RECT place = Place_In_Parent();
  // What lies in another window is painted anew: not every system brings all of its pixels along.
  const UINT pixels = parent_ != nullptr ? SWP_NOCOPYBITS : 0;
  SetWindowPos(Window(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | pixels);
}

/// A window that is an icon has its place when it comes back. The system counts that from the corner of the work area.
void Form_Window::Place_For_Return() {
  WINDOWPLACEMENT placement = {};
  placement.length = sizeof placement;
  GetWindowPlacement(Window(), &placement);
  placement.rcNormalPosition = Place_In_Parent();
  RECT work_area = {};
  if ((Style_Of(form_.Border).Extended & WS_EX_TOOLWINDOW) == 0)
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work_area, 0);
  OffsetRect(&placement.rcNormalPosition, -work_area.left, -work_area.top);
  placement.showCmd = SW_SHOWMINNOACTIVE;
  SetWindowPlacement(Window(), &placement);
}

void Form_Window::Settle_Region() {
  context_.Note_Pointer(form_.System().Input);
  HRGN region = nullptr;
  if (const auto* const rects = std::get_if<toolkit::Region>(&shape_)) region = Make_Region(rects->Rects());
  if (const auto* const round = std::get_if<Round_Shape>(&shape_))
    region = CreateRoundRectRgn(0, 0, round->Width, round->Height, round->Corner, round->Corner);
  // From here on the system owns the region.
  SetWindowRgn(Window(), region, TRUE);
  surface_.Repaint_All();
}

Native_Control* Form_Window::Native(const toolkit::Control& control) const {
  const auto found = std::find_if(natives_.begin(), natives_.end(),
                                  [&](const auto& native) { return &native->Control() == &control; });
  return found == natives_.end() ? nullptr : found->get();
}

platform::Window_Handle Form_Window::Handle_Of(const toolkit::Control& control) const {
  const Native_Control* const native = Native(control);
  return native == nullptr ? 0 : To_Handle(native->Window());
}

Native_Control* Form_Window::Native(HWND window) const {
  const auto found =
      std::find_if(natives_.begin(), natives_.end(), [&](const auto& native) { return native->Window() == window; });
  return found == natives_.end() ? nullptr : found->get();
}

void Form_Window::Control_Changed(toolkit::Control& control, toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  if (aspect == Pointer) return Show_Pointer(&control);
  if (Native_Control* const native = Native(control)) {
    natives_changed_ = true;
    native->Changed(aspect);
  } else {
    surface_.Changed(control, aspect);
  }
  accessible_.Changed(control, aspect);
  if (aspect == Bounds || aspect == Visible || aspect == Tool_Tip) Tips_Changed();
}

}  // namespace win32

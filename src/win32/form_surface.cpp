#include "win32/form_surface.h"

#include <algorithm>
#include <utility>

namespace win32 {

namespace {

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

void Form_Surface::Begin(HWND window) {
  window_ = window;
  for (const toolkit::Control* const control : form_.Controls()) Painted(*control);
}

/// The entry of a painted control; nullptr for any other.
Painted_Control* Form_Surface::Painted(const toolkit::Control& control) {
  const auto known = std::find_if(painted_.begin(), painted_.end(),
                                  [&](const Painted_Entry& entry) { return entry.Control == &control; });
  if (known != painted_.end()) return known->Painted.get();
  auto made = Make_Painted_Control(control);
  if (made == nullptr) return nullptr;
  Painted_Control& painted = *made;
  painted_.push_back({&control, std::move(made)});
  Update(control, painted, false);
  return &painted;
}

void Form_Surface::Changed(const toolkit::Control& control, toolkit::Aspect aspect) {
  Painted_Control* const painted = Painted(control);
  if (painted == nullptr) return;
  if (aspect == toolkit::Aspect::Bounds || aspect == toolkit::Aspect::Visible) Update(control, *painted, true);
  else if (painted->Shows(aspect)) Mark(*painted);
}

void Form_Surface::Update(const toolkit::Control& control, Painted_Control& painted, bool repaint) {
  const RECT place = context_.Scale.Pixels(control.In_Window());
  const bool shown = control.On_View();
  if (shown == painted.Shown && EqualRect(&place, &painted.Place) != 0) return;
  if (repaint && painted.Shown && !painted.Waiting) Mark(painted.Place);
  painted.Place = place;
  painted.Shown = shown;
  painted.Waiting = false;
  if (repaint) Mark(painted);
}

/// Marks a control for painting, once for however many changes come before the painting.
void Form_Surface::Mark(Painted_Control& painted) {
  if (!painted.Shown || painted.Waiting) return;
  painted.Waiting = true;
  Mark(painted.Place);
}

void Form_Surface::Mark(const RECT& place) {
  if (shown_ && !all_marked_) marks_.push_back(place);
}

void Form_Surface::Settle_Marks() {
  constexpr std::size_t few = 4;
  if (std::exchange(all_marked_, false)) {
    InvalidateRect(window_, nullptr, FALSE);
  } else if (marks_.size() <= few) {
    for (const RECT& mark : marks_) InvalidateRect(window_, &mark, FALSE);
  } else {
    // What lies between them is painted faster than each of them is told.
    RECT all = {};
    for (const RECT& mark : marks_) UnionRect(&all, &all, &mark);
    InvalidateRect(window_, &all, FALSE);
  }
  marks_.clear();
}

void Form_Surface::Paint() {
  for (const Painted_Entry& entry : painted_) entry.Painted->Waiting = false;
  const Painting painting(window_);
  RECT client;
  GetClientRect(window_, &client);
  context_.Painter.Paint(painting.Target(), painting.Area(), client, form_, painted_);
}

}  // namespace win32

// How long after a mouse button the screen is as it will stay: bench_click_time press|release|f8 X Y [X Y]...
// Presses and releases the left button at each place, and prints for each the milliseconds from the press or the release
// to the last change of the screen that followed it; or from F8, pressed after that, and Escape undoes it. Fails if there is
// none within 3 seconds.
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <X11/keysym.h>
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr double longest_wait = 3000;  // milliseconds
constexpr double stillness = 450;      // and nothing more will follow; longer than a press is held for the balloon
constexpr useconds_t between = 60000;  // microseconds from the press to the release

using Clock = std::chrono::steady_clock;

double Milliseconds_Since(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

class Screen_Watch {
 public:
  explicit Screen_Watch(Display* display) : display_(display) {
    int error_base = 0;
    if (XDamageQueryExtension(display, &event_base_, &error_base) == 0) std::exit(2);
    XDamageCreate(display, DefaultRootWindow(display), XDamageReportRawRectangles);
    XSync(display, False);
  }

  /// The milliseconds from `start` to the last change, -1 if there is none. The answer comes when all has been still.
  double Last_Change(Clock::time_point start) {
    double last = -1;
    while (Milliseconds_Since(start) < (last < 0 ? longest_wait : last + stillness)) {
      pollfd socket{ConnectionNumber(display_), POLLIN, 0};
      if (XPending(display_) == 0) poll(&socket, 1, 20);
      while (XPending(display_) > 0) {
        XEvent event;
        XNextEvent(display_, &event);
        if (event.type == event_base_ + XDamageNotify) last = Milliseconds_Since(start);
      }
    }
    return last;
  }

 private:
  Display* display_;
  int event_base_ = 0;
};

void Button(Display* display, bool down) {
  XTestFakeButtonEvent(display, 1, down ? True : False, CurrentTime);
  XFlush(display);
}

void Key(Display* display, KeySym key) {
  const KeyCode code = XKeysymToKeycode(display, key);
  XTestFakeKeyEvent(display, code, True, CurrentTime);
  XTestFakeKeyEvent(display, code, False, CurrentTime);
  XFlush(display);
}

/// From F8 on to the window that it opens; Escape closes that again.
double Open_By_F8(Display* display, Screen_Watch& watch) {
  Button(display, true);
  Button(display, false);
  watch.Last_Change(Clock::now() - std::chrono::milliseconds(2500));
  const auto start = Clock::now();
  Key(display, XK_F8);
  const double passed = watch.Last_Change(start);
  Key(display, XK_Escape);
  watch.Last_Change(Clock::now() - std::chrono::milliseconds(2500));
  return passed;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 4 || count % 2 != 0) return 2;
  const bool from_press = std::string_view(arguments[1]) == "press";
  const bool by_f8 = std::string_view(arguments[1]) == "f8";
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) return 2;
  Screen_Watch watch(display);
  for (int i = 2; i < count; i += 2) {
    XTestFakeMotionEvent(display, -1, std::atoi(arguments[i]), std::atoi(arguments[i + 1]), CurrentTime);
    XSync(display, False);
    watch.Last_Change(Clock::now() - std::chrono::milliseconds(2500));  // what the pointer itself changes
    auto start = Clock::now();
    if (!by_f8) Button(display, true);
    double passed = 0;
    if (by_f8) {
      passed = Open_By_F8(display, watch);
    } else if (from_press) {
      passed = watch.Last_Change(start);
      Button(display, false);
    } else {
      usleep(between);
      start = Clock::now();
      Button(display, false);
      passed = watch.Last_Change(start);
    }
    if (passed < 0) return 1;
    std::printf("%.1f\n", passed);
  }
  XCloseDisplay(display);
  return 0;
}

// From the start of a program to its first window on the display: bench_first_map COMMAND...
// Prints the milliseconds from before the fork to the first new top window that is mapped and at least 32 pixels wide and
// high, and its width, then ends the command. Fails after 30 seconds.
#include <X11/Xlib.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace {

constexpr int smallest = 32;  // pixels
constexpr double patience = 30000;

using Clock = std::chrono::steady_clock;

double Milliseconds_Since(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// The width of the window if it stands on the screen, 0 if it doesn't.
int Width_On_Screen(Display* display, Window window) {
  XWindowAttributes about;
  const bool stands = XGetWindowAttributes(display, window, &about) != 0 && about.map_state == IsViewable &&
                      about.width >= smallest && about.height >= smallest;
  return stands ? about.width : 0;
}

/// Windows that were there before don't move or change size meanwhile, so any window that does is a new one.
Window Window_Of(const XEvent& event) {
  if (event.type == MapNotify) return event.xmap.window;
  return event.type == ConfigureNotify ? event.xconfigure.window : 0;
}

/// Prints what was measured; false if no window comes.
bool Wait_For_Window(Display* display, Clock::time_point start) {
  while (Milliseconds_Since(start) < patience) {
    while (XPending(display) > 0) {
      XEvent event;
      XNextEvent(display, &event);
      const double passed = Milliseconds_Since(start);
      const Window window = Window_Of(event);
      const int width = window != 0 ? Width_On_Screen(display, window) : 0;
      if (width > 0) return std::printf("%.1f %d\n", passed, width) > 0;
    }
    pollfd display_socket{ConnectionNumber(display), POLLIN, 0};
    poll(&display_socket, 1, 100);
  }
  return false;
}

/// In a process group of its own, so that all that it starts can be ended with it.
pid_t Start(Display* display, char** command) {
  const pid_t process = fork();
  if (process != 0) return process;
  close(ConnectionNumber(display));
  setpgid(0, 0);
  execvp(command[0], command);
  _exit(127);
}

void End(pid_t process) {
  kill(-process, SIGTERM);
  for (int tries = 0; tries < 100; ++tries) {
    if (waitpid(process, nullptr, WNOHANG) == process) return;
    usleep(20000);
  }
  kill(-process, SIGKILL);
  waitpid(process, nullptr, 0);
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) return 2;
  Display* const display = XOpenDisplay(nullptr);
  if (display == nullptr) return 2;
  XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });  // a window may be gone when it is looked at
  XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
  XSync(display, False);
  const auto start = Clock::now();
  const pid_t process = Start(display, arguments + 1);
  const bool came = Wait_For_Window(display, start);
  End(process);
  XCloseDisplay(display);
  return came ? 0 : 1;
}

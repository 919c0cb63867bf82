#include "win32/instance_window.h"

#include "win32/program_path.h"

namespace win32 {

namespace {

constexpr char window_class[] = "Meridex_Instance";

/// The same name in all processes of this executable.
std::string Mutex_Name() {
  const std::string path = Program_Path();
  std::string name = "Meridex instance " + path.substr(path.rfind('\\') + 1);
  CharLowerA(name.data());
  return name;
}

}  // namespace

Instance_Window::Instance_Window(Window_Context& context)
    : Hidden_Window(context.Instance, context.Guard, window_class, "Meridex Loading"), work_(context.Work) {
  mutex_.Reset(CreateMutexA(nullptr, FALSE, Mutex_Name().c_str()));
  other_is_running_ = GetLastError() == ERROR_ALREADY_EXISTS;
}

platform::Window_Handle Instance_Window::Find_Window(const std::string& title) {
  const HWND of_instance = FindWindowA(window_class, title.c_str());
  return To_Handle(of_instance != nullptr ? of_instance : FindWindowA(nullptr, title.c_str()));
}

void Instance_Window::Post(platform::Window_Handle window, unsigned message) {
  PostMessageA(To_Window(window), message, 0, 0);
}

void Instance_Window::Set_Title(const std::string& title) { SetWindowTextA(Window(), title.c_str()); }

bool Instance_Window::Message(UINT message, WPARAM) {
  if (message != platform::close_request) return false;
  if (!work_.Put_Off_Close(Window()) && On_Close_Request) On_Close_Request();
  return true;
}

}  // namespace win32

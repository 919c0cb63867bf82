// The hidden window by which instances of the program know each other.
#pragma once

#include "platform/instances.h"
#include "win32/hidden_window.h"
#include "win32/window_context.h"

namespace win32 {

class Instance_Window final : public platform::Instances, private Hidden_Window {
 public:
  explicit Instance_Window(Window_Context& context);
  ~Instance_Window() override = default;

  bool Other_Is_Running() override { return other_is_running_; }
  platform::Window_Handle Find_Window(const std::string& title) override;
  void Post(platform::Window_Handle window, unsigned message) override;
  void Set_Title(const std::string& title) override;

 private:
  bool Message(UINT message, WPARAM w) override;

  const Work_On_Windows& work_;
  Handle_Owner mutex_;  // held for as long as the process runs; its name is the executable's
  bool other_is_running_ = false;
};

}  // namespace win32

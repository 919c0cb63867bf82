// Other instances of the calendar and other programs, as far as this instance can see them: the titles of their
// windows, and what was posted to them.
#pragma once

#include <utility>
#include <vector>

#include "platform/instances.h"

namespace memory {

class Memory_Instances : public platform::Instances {
 public:
  bool Other_Is_Running() override { return other_is_running_; }

  /// Finds windows of other instances and programs before this one's own.
  platform::Window_Handle Find_Window(const std::string& title) override;

  /// A close request to this instance's own window calls On_Close_Request at once; any other message to it throws
  /// std::logic_error. A message to a window that doesn't exist is lost.
  void Post(platform::Window_Handle window, unsigned message) override;
  void Set_Title(const std::string& title) override { title_ = title; }

  /// From now on another instance runs, with a hidden window of that title.
  void Add(const std::string& title) {
    others_.push_back(title);
    other_is_running_ = true;
  }

  /// Another program shows a window of that title; it doesn't count as an instance.
  void Add_Foreign(const std::string& title) { others_.push_back(title); }

  /// A process of the program starts: its hidden window gets its first title, and On_Close_Request is empty.
  void Enter();

  [[nodiscard]] const std::string& Title() const { return title_; }

  struct Posted {
    std::string Title;
    unsigned Message;
  };

  /// What was posted to other windows since the last call.
  std::vector<Posted> Take_Posted() { return std::exchange(posted_, {}); }

 private:
  std::string title_ = "Meridex Loading";
  std::vector<std::string> others_;  // the titles of windows that aren't this process's
  bool other_is_running_ = false;
  std::vector<Posted> posted_;
};

}  // namespace memory

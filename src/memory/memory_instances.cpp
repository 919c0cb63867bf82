#include "memory/memory_instances.h"

#include <algorithm>
#include <stdexcept>

#include "memory/letter_case.h"

namespace memory {

namespace {

constexpr platform::Window_Handle own_window = 0x20000;
constexpr platform::Window_Handle first_other = 0x20001;

}  // namespace

void Memory_Instances::Enter() {
  title_ = "Meridex Loading";
  On_Close_Request = nullptr;
}

platform::Window_Handle Memory_Instances::Find_Window(const std::string& title) {
  const auto found =
      std::find_if(others_.begin(), others_.end(), [&](const std::string& other) { return Same_Name(other, title); });
  if (found != others_.end()) return first_other + static_cast<platform::Window_Handle>(found - others_.begin());
  return Same_Name(title_, title) ? own_window : 0;
}

void Memory_Instances::Post(platform::Window_Handle window, unsigned message) {
  if (window == own_window) {
    if (message != platform::close_request) throw std::logic_error("a message that the hidden window doesn't know");
    if (On_Close_Request) On_Close_Request();
    return;
  }
  if (window >= first_other && window - first_other < others_.size())
    posted_.push_back({others_[window - first_other], message});
}

}  // namespace memory

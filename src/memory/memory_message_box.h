// Message boxes that are answered from answers prepared in advance, and remembered.
#pragma once

#include <deque>
#include <utility>
#include <vector>

#include "memory/memory_loop.h"
#include "platform/message_box.h"
#include "toolkit/input.h"

namespace memory {

class Memory_Message_Box : public platform::Message_Box {
 public:
  Memory_Message_Box(Memory_Loop& loop, toolkit::Input& input) : loop_(loop), input_(input) {}

  /// Returns the first prepared answer for which the box has a button. If there is none, returns OK for a box with only
  /// OK, otherwise Cancel if the box has that button, else No.
  platform::Box_Answer Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                            platform::Box_Buttons buttons) override;

  /// Prepares the answer for a box to come, which first stays open for `micros` microseconds while events are served.
  void Prepare(platform::Box_Answer answer, std::int64_t micros = 0) { prepared_.push_back({answer, micros}); }

  struct Shown {
    std::string Title, Text;
    platform::Box_Icon Icon;
    platform::Box_Buttons Buttons;
    platform::Box_Answer Answer;  ///< for a box that is still open the one that it will get
  };

  /// The boxes shown since the last call, in that order.
  std::vector<Shown> Take_Shown() { return std::exchange(shown_, {}); }

 private:
  struct Prepared {
    platform::Box_Answer answer;
    std::int64_t micros;
  };

  Prepared Answer_For(platform::Box_Buttons buttons);

  Memory_Loop& loop_;
  toolkit::Input& input_;
  std::deque<Prepared> prepared_;
  std::vector<Shown> shown_;
};

}  // namespace memory

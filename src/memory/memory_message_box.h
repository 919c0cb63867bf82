// Message boxes that are answered by a list made up in advance, and remembered.
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

  /// Takes the first prepared answer for which the box has a button. Without one a box with only OK gets OK, any other
  /// Cancel if it has it, else No.
  platform::Box_Answer Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                            platform::Box_Buttons buttons) override;

  /// An answer for a box to come; the box stays open for `micros` first, with events being served.
  void Prepare(platform::Box_Answer answer, std::int64_t micros = 0) { prepared_.push_back({answer, micros}); }

  struct Shown {
    std::string Title, Text;
    platform::Box_Icon Icon;
    platform::Box_Buttons Buttons;
    platform::Box_Answer Answer;  ///< of a box that is still open, the one that it will get
  };

  /// The boxes since the last call, in the order of showing.
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

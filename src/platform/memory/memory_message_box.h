// Message boxes that are answered by a list made up in advance, and remembered.
#pragma once

#include <deque>
#include <utility>
#include <vector>

#include "platform/memory/memory_loop.h"
#include "platform/message_box.h"

namespace platform::memory {

class Memory_Message_Box : public Message_Box {
 public:
  explicit Memory_Message_Box(Memory_Loop& loop) : loop_(loop) {}

  /// Takes the first prepared answer for which the box has a button. Without one a box with only OK gets OK, any other
  /// Cancel if it has it, else No.
  Box_Answer Show(const std::string& title, const std::string& text, Box_Icon icon, Box_Buttons buttons) override;

  /// An answer for a box to come; the box stays open for `micros` first, with events being served.
  void Prepare(Box_Answer answer, std::int64_t micros = 0) { prepared_.push_back({answer, micros}); }

  struct Shown {
    std::string Title, Text;
    Box_Icon Icon;
    Box_Buttons Buttons;
    Box_Answer Answer;  ///< of a box that is still open, the one that it will get
  };

  /// The boxes since the last call, in the order of showing.
  std::vector<Shown> Take_Shown() { return std::exchange(shown_, {}); }

 private:
  struct Prepared {
    Box_Answer answer;
    std::int64_t micros;
  };

  Prepared Answer_For(Box_Buttons buttons);

  Memory_Loop& loop_;
  std::deque<Prepared> prepared_;
  std::vector<Shown> shown_;
};

}  // namespace platform::memory

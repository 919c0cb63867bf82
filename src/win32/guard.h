// The one place that catches exceptions before they leave a callback of the system. The first one other than
// Program_Quit is kept for the report, and ends the program.
#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace win32 {

class Guard {
 public:
  /// Called after each `work` that ran to its end.
  std::function<void()> Afterwards;

  /// Runs `work`, as a callback of the system asks. Returns false if it threw, or wasn't run since the program is
  /// ending or broken off.
  template <class Work>
  bool Run(Work&& work) noexcept {
    if (ending_ || broken_) return false;
    try {
      work();
      if (Afterwards) Afterwards();
      return true;
    } catch (...) {
      Caught();
      return false;
    }
  }

  /// Ends the program: its message loops end, the innermost first.
  void Quit() noexcept;
  [[nodiscard]] bool Ending() const noexcept { return ending_; }

  /// Throws Program_Quit once the program is ending. A wait inside a handler calls it before it returns.
  void Throw_If_Ending() const;

  /// The exception that ended the program; none after an ordinary end.
  [[nodiscard]] std::exception_ptr Failure() const noexcept { return failure_; }

  /// A failure that can't be caught has broken the program off: from now on no callback runs anything of it. Returns false
  /// if that was so already.
  static bool Break_Off() noexcept { return !std::exchange(broken_, true); }
  [[nodiscard]] static bool Broken_Off() noexcept { return broken_; }

 private:
  void Caught() noexcept;

  inline static bool broken_ = false;
  bool ending_ = false;
  std::exception_ptr failure_;
};

}  // namespace win32

// The one place where an exception ends that would otherwise leave a callback of the system. The first one that isn't
// the ordinary end is kept for the report, and the program ends with it.
#pragma once

#include <exception>
#include <functional>

namespace win32 {

class Guard {
 public:
  /// What follows each work that ran to its end.
  std::function<void()> Afterwards;

  /// Runs what the system called for. Returns whether it ran to its end. Once the program is ending nothing runs any more.
  template <class Work>
  bool Run(Work&& work) noexcept {
    if (ending_) return false;
    try {
      work();
      if (Afterwards) Afterwards();
      return true;
    } catch (...) {
      Caught();
      return false;
    }
  }

  /// The message loops end, the innermost first.
  void Quit() noexcept;
  [[nodiscard]] bool Ending() const noexcept { return ending_; }

  /// Throws Program_Quit once the program is ending: what a wait inside a handler does when it comes back.
  void Throw_If_Ending() const;

  /// What the program ended with; none after an ordinary end.
  [[nodiscard]] std::exception_ptr Failure() const noexcept { return failure_; }

 private:
  void Caught() noexcept;

  bool ending_ = false;
  std::exception_ptr failure_;
};

}  // namespace win32

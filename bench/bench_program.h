// The whole program, on the in-memory platform but for the service that reads its files: what the measurements turn the
// months and play the ticks of.
#pragma once

#include "main/meridex.h"
#include "memory/memory_platform.h"
#include "toolkit/item_list.h"

namespace bench {

/// The in-memory windows and timers; they remember the timer of the tick.
class Watched_Backend final : public memory::Memory_Backend {
 public:
  using Memory_Backend::Memory_Backend;

  void Start_Timer(toolkit::Timer& timer) override;

  toolkit::Timer* Date_Timer = nullptr;
};

class Bench_Program {
 public:
  /// Starts the program on 5 March 2004 with the files' calendar.dat and all settings at their defaults, and lets it
  /// come to rest. Throws std::runtime_error if it doesn't.
  explicit Bench_Program(platform::Files& files);
  Bench_Program(const Bench_Program&) = delete;
  Bench_Program& operator=(const Bench_Program&) = delete;
  ~Bench_Program();

  /// The left button goes up over an arrow of the title row.
  void Next_Month() { next_->On_Mouse_Up({toolkit::Mouse_Button::Left}); }
  void Previous_Month() { previous_->On_Mouse_Up({toolkit::Mouse_Button::Left}); }

  /// One tick, as the timer's running out calls it. The virtual time stands still in it.
  void Tick() { backend_.Date_Timer->On_Tick(); }

  /// Lets virtual time go on, with the ticks that fall due.
  void Play(std::int64_t micros) { platform_.Time.Run_Until(platform_.Time.Elapsed() + micros); }

  /// The in-memory message box remembers what it showed, such as the alerts of a new day.
  void Forget_Messages() { platform_.Message_Box.Take_Shown(); }

  /// Opens the settings window by its key.
  void Open_Settings();
  /// Fills the list of all events, in their order; returns how many entries it has. The settings window must be open.
  int Sort_Events();

  /// How many boxes of the month on view show an event.
  [[nodiscard]] int Boxes_With_Events() const;

 private:
  static toolkit::Control* Find_Control(const toolkit::Form* window, const char* name);
  platform::System System_With(platform::Files& files);

  memory::Memory_Platform platform_;
  Watched_Backend backend_{platform_.Time, platform_.Loop, platform_.Screen};
  Meridex program_;
  toolkit::Form* window_ = nullptr;
  toolkit::Control* next_ = nullptr;
  toolkit::Control* previous_ = nullptr;
  toolkit::Control* overview_ = nullptr;
  toolkit::List_Box* events_ = nullptr;
};

}  // namespace bench

// One world for a program to run in: the in-memory platform, the running program, and what has become of it. All code of
// the program runs through Run, Wait or Start, which are the one place where its end is noticed.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "memory/memory_platform.h"
#include "state/calendar_state.h"
#include "toolkit/form.h"

class Meridex;

namespace play {

class World {
 public:
  using Printer = std::function<void(const std::string& line)>;

  explicit World(Printer print);
  World(const World&) = delete;
  World& operator=(const World&) = delete;
  ~World();

  memory::Memory_Platform Platform;

  /// The item of a list, or the tab, that the left button was pressed on last.
  struct Item_Press {
    const toolkit::Control* Control = nullptr;
    int Item = 0;
    bool operator==(const Item_Press&) const = default;
  };
  std::optional<Item_Press> Pressed_Item;

  void Print(const std::string& line) const { print_(line); }

  /// Starts the program, in place of one that runs. Within a handler of the program that one is unwound first.
  void Start();

  /// How many programs have been started: a gesture that began in one doesn't go on in the next.
  [[nodiscard]] int Starts() const { return starts_; }

  /// The program has been started and has ended since.
  [[nodiscard]] bool Has_Ended() const { return ended_; }

  /// The shared variables of the running program; nullptr if there is none.
  [[nodiscard]] const state::Calendar_State* State() const;

  /// Does something to the program, as the user or a message would, and what is due at once. If the program ends by it,
  /// it is taken down, and an error that ended it is printed; within a handler Program_Quit is thrown instead.
  void Run(const std::function<void()>& act);

  /// Lets time pass. It passes whole, also if the program ends meanwhile.
  void Wait(std::int64_t micros);

  /// The window of that name, nullptr if it isn't loaded. Of several the newest.
  [[nodiscard]] toolkit::Form* Find_Window(std::string_view name) const { return Platform.Windows().Find(name); }

  /// Whether these are still there, to be asked after any code of the program has run. The control may be nullptr.
  [[nodiscard]] bool Is_There(const toolkit::Form* window, const toolkit::Control* control) const;

 private:
  void Settle();
  void Take_Down();

  Printer print_;
  std::unique_ptr<Meridex> program_;
  int depth_ = 0;  // of handlers within handlers
  int starts_ = 0;
  bool ended_ = false;
  bool restart_ = false;
};

}  // namespace play

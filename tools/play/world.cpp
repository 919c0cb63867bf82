#include "world.h"

#include <algorithm>
#include <utility>

#include "main/meridex.h"
#include "text_form.h"

namespace play {

namespace {

// Longer than a wait for a time of day can last, if it ends at all.
constexpr std::int64_t patience = std::int64_t{25} * 3600 * memory::micros_of_a_second;

class Depth {
 public:
  explicit Depth(int& depth) : depth_(depth) { ++depth_; }
  Depth(const Depth&) = delete;
  Depth& operator=(const Depth&) = delete;
  ~Depth() { --depth_; }

 private:
  int& depth_;
};

}  // namespace

World::World(Printer print) : print_(std::move(print)) { Platform.Time.Set_Now(To_Moment("2004-03-05", "09:00:00")); }

World::~World() { Take_Down(); }

void World::Take_Down() {
  Platform.End_Program();
  program_.reset();
}

void World::Start() {
  if (depth_ > 0) {
    restart_ = true;
    Platform.Loop.Quit();
    throw platform::Program_Quit();
  }
  Take_Down();
  ++starts_;
  Platform.Begin_Program();
  ended_ = false;
  Run([this] {
    program_ = std::make_unique<Meridex>(Platform.Backend(), Platform.System());
    program_->Start();
  });
}

const state::Calendar_State* World::State() const { return program_ == nullptr ? nullptr : &program_->State(); }

void World::Run(const std::function<void()>& act) {
  const auto whole = [&] {
    act();
    Platform.Time.Run_Until(Platform.Time.Elapsed());
  };
  if (depth_ > 0) {
    Platform.Loop.Dispatch(whole);
    return;
  }
  Platform.Loop.Set_Patience(Platform.Time.Elapsed() + patience);
  try {
    const Depth depth(depth_);
    Platform.Loop.Dispatch(whole);
  } catch (const platform::Program_Quit&) {
    // Settle sees it.
  }
  Settle();
}

/// The program has come to rest. If it is told to quit, it is over.
void World::Settle() {
  if (!Platform.Loop.Quitting()) return;
  const std::optional<int> failure = Platform.Loop.Failure();
  Take_Down();
  Platform.Loop.Reset();
  ended_ = true;
  if (failure) Print("ended: error " + std::to_string(*failure));
  if (std::exchange(restart_, false)) Start();
}

void World::Wait(std::int64_t micros) {
  const std::int64_t end = Platform.Time.Elapsed() + micros;
  bool passed = false;
  while (!passed) {
    Run([&] {
      Platform.Loop.Set_Patience(end + patience);
      Platform.Time.Run_Until(end);
      passed = true;
    });
  }
}

bool World::Is_There(const toolkit::Form* window, const toolkit::Control* control) const {
  return Platform.Windows_And_Timers.Input.Is_There(window, control);
}

}  // namespace play

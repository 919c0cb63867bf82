// The user with the mouse. A gesture's events lie in the queue together: a handler that waits finds the next one there.
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "commands.h"
#include "target.h"
#include "text_form.h"

namespace play {

namespace {

using toolkit::Mouse_Button;
using toolkit::Mouse_Event;

constexpr Mouse_Event left_click{Mouse_Button::Left};

std::optional<Mouse_Button> Button_Of(const std::string& word) {
  constexpr std::array<std::pair<std::string_view, Mouse_Button>, 3> names{
      {{"left", Mouse_Button::Left}, {"right", Mouse_Button::Right}, {"middle", Mouse_Button::Middle}}};
  for (const auto& [name, button] : names)
    if (word == name) return button;
  return std::nullopt;
}

/// Reads `BUTTON [X Y]` from the second word on.
Mouse_Event Event_Of(const Words& words) {
  const auto button = Button_Of(words[1]);
  if (!button) throw Cannot_Play("no mouse button: " + words[1]);
  if (words.size() == 3) throw Cannot_Play("X without Y");
  if (words.size() < 4) return {*button, 0, 0};
  return {*button, To_Number(words[2]), To_Number(words[3])};
}

void Press(World& world, const Target& target, const Mouse_Event& event, bool twice = false) {
  if (!Can_Be_Reached(world, target)) return;
  auto& user = world.Platform.User;
  if (event.Button == Mouse_Button::Left) {
    world.Pressed_Item.reset();
    // The second press of a double-click is no click of its own.
    if (target.Item && !twice) world.Pressed_Item = {target.Control, *target.Item};
  }
  if (twice) user.Press_Twice(*target.Window, target.Control, event);
  else user.Press(*target.Window, target.Control, event);
}

/// An item is picked where the button goes down and up over it.
void Release(World& world, const Target& target, const Mouse_Event& event) {
  if (!world.Is_There(target.Window, target.Control)) return;
  const bool held = world.Platform.Windows_And_Timers.Input.Holds(event.Button);
  world.Platform.User.Release(*target.Window, target.Control, event);
  if (!target.Item || event.Button != Mouse_Button::Left || !held) return;
  const World::Item_Press released{target.Control, *target.Item};
  if (std::exchange(world.Pressed_Item, std::nullopt) == released && Can_Be_Reached(world, target))
    memory::Memory_User::Pick(*target.Control, *target.Item);
}

/// The place of a move or a release. A control that has the mouse sees it also over what can't be reached.
std::optional<Target> Find_Place(const World& world, const std::string& name) {
  if (world.Platform.Windows().Mouse() != nullptr)
    if (auto target = Find_Target(world, name)) return target;
  return Reach(world, name);
}

/// A row of events that happen one right after the other.
class Gesture {
 public:
  using Step = std::function<void()>;

  Gesture(World& world, std::vector<Step> steps) : world_(world), start_(world.Starts()), steps_(std::move(steps)) {}
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;
  ~Gesture() {
    for (const auto& ticket : tickets_) world_.Platform.Time.Cancel(ticket);
  }

  void Play() {
    auto& time = world_.Platform.Time;
    for (std::size_t i = 1; i < steps_.size(); ++i)
      tickets_.push_back(time.Schedule(time.Elapsed(), [this] { world_.Run([this] { Next(); }); }));
    world_.Run([this] {
      while (next_ < steps_.size()) Next();
    });
  }

 private:
  void Next() {
    if (next_ == steps_.size()) return;
    const Step& step = steps_[next_++];
    if (world_.Starts() == start_) step();
  }

  World& world_;
  const int start_;
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  std::vector<memory::Virtual_Time::Ticket> tickets_;
};

void Play_Press(World& world, const Words& words) {
  const Mouse_Event event = Event_Of(words);
  if (const auto target = Reach(world, words[0])) world.Run([&] { Press(world, *target, event); });
}

void Play_Release(World& world, const Words& words) {
  const Mouse_Event event = Event_Of(words);
  if (const auto target = Find_Place(world, words[0])) world.Run([&] { Release(world, *target, event); });
}

void Play_Hold(World& world, const Words& words) {
  const Mouse_Event event = Event_Of({words[0], words[1]});
  const std::int64_t micros = To_Micros(words[2]);
  const auto target = Reach(world, words[0]);
  if (!target) return;
  auto& time = world.Platform.Time;
  const std::int64_t end = time.Elapsed() + micros;
  const auto ticket = time.Schedule(end, [&world, target, event, start = world.Starts()] {
    if (world.Starts() == start) world.Run([&] { Release(world, *target, event); });
  });
  world.Run([&] { Press(world, *target, event); });
  if (world.Has_Ended()) time.Cancel(ticket);
  else world.Wait(std::max<std::int64_t>(end - time.Elapsed(), 0));
}

void Play_Move(World& world, const Words& words) {
  Words rest(words.begin() + 1, words.end());
  Mouse_Event event;
  if (!rest.empty() && rest.back() == "shift") {
    event.Shift = true;
    rest.pop_back();
  }
  if (!rest.empty()) {
    if (const auto button = Button_Of(rest.front())) {
      event.Button = *button;
      rest.erase(rest.begin());
    }
  }
  if (!rest.empty() && rest.size() != 2) throw Cannot_Play("move wants CONTROL [BUTTON] [X Y] [shift]");
  if (!rest.empty()) {
    event.X = To_Number(rest[0]);
    event.Y = To_Number(rest[1]);
  }
  const auto target = Find_Place(world, words[0]);
  if (target) world.Run([&] { world.Platform.User.Move(*target->Window, target->Control, event); });
}

void Play_Click(World& world, const Words& words) {
  const auto target = Reach(world, words[0]);
  if (!target) return;
  Gesture(world, {[&] { Press(world, *target, left_click); }, [&] { Release(world, *target, left_click); }}).Play();
}

void Play_Double_Click(World& world, const Words& words) {
  const auto target = Reach(world, words[0]);
  if (!target) return;
  Gesture(world, {[&] { Press(world, *target, left_click); }, [&] { Release(world, *target, left_click); },
                  [&] { Press(world, *target, left_click, true); }, [&] { Release(world, *target, left_click); }})
      .Play();
}

}  // namespace

std::span<const Entry> Mouse_Commands() {
  static constexpr std::array<Entry, 6> entries{{{"press", 2, 4, Play_Press},
                                                 {"release", 2, 4, Play_Release},
                                                 {"hold", 3, 3, Play_Hold},
                                                 {"move", 1, 5, Play_Move},
                                                 {"click", 1, 1, Play_Click},
                                                 {"dblclick", 1, 1, Play_Double_Click}}};
  return entries;
}

}  // namespace play

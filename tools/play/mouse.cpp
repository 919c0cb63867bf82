// The user with the mouse. A gesture's events lie in the queue together: a handler that waits finds the next one there.
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "commands.h"
#include "target.h"
#include "text_form.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/image.h"

namespace play {

namespace {

using toolkit::Mouse_Button;

struct Mouse_Event {
  Mouse_Button button = Mouse_Button::Left;
  double x = 0, y = 0;  // twips within the control
};

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

bool Takes_Focus(toolkit::Control& control) {
  return dynamic_cast<toolkit::Label*>(&control) == nullptr && dynamic_cast<toolkit::Image*>(&control) == nullptr;
}

/// What a click does to a control of its kind.
void Click_On(const Target& target) {
  if (target.Control == nullptr) {
    if (target.Window->On_Click) target.Window->On_Click();
  } else if (auto* const box = dynamic_cast<toolkit::Check_Box*>(target.Control)) {
    box->User_Click();
  } else if (auto* const button = dynamic_cast<toolkit::Command_Button*>(target.Control)) {
    button->User_Click();
  } else if (target.Control->On_Click) {
    target.Control->On_Click();
  }
}

void Press(World& world, const Target& target, const Mouse_Event& event) {
  if (!Bring_Up(world, target)) return;
  world.Pressed = target.Control;
  if (target.Control == nullptr) return;
  if (Takes_Focus(*target.Control)) target.Window->Set_Focus(*target.Control);
  if (target.Control->On_Mouse_Down) target.Control->On_Mouse_Down(event.button, event.x, event.y);
}

void Release(World& world, const Target& target, const Mouse_Event& event) {
  const bool was_pressed = std::exchange(world.Pressed, nullptr) == target.Control;
  if (!Can_Be_Reached(world, target)) return;
  bool inside = true;
  if (target.Control != nullptr) {
    const toolkit::Bounds& place = target.Control->In_Twips();
    inside = toolkit::Bounds{0, 0, place.Width, place.Height}.Contains(event.x, event.y);
    if (target.Control->On_Mouse_Up) target.Control->On_Mouse_Up(event.button, event.x, event.y);
  }
  const bool clicked = was_pressed && inside && event.button == Mouse_Button::Left;
  if (clicked && Can_Be_Reached(world, target)) Click_On(target);
}

void Double(World& world, const Target& target) {
  if (!Can_Be_Reached(world, target) || target.Control == nullptr) return;
  // The release that follows is no second click.
  world.Pressed = nullptr;
  if (target.Control->On_Double_Click) target.Control->On_Double_Click();
}

/// A row of events that happen one right after the other.
class Gesture {
 public:
  using Step = std::function<void()>;

  Gesture(World& world, std::vector<Step> steps) : world_(world), steps_(std::move(steps)) {}
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
    if (next_ < steps_.size()) steps_[next_++]();
  }

  World& world_;
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
  if (const auto target = Reach(world, words[0])) world.Run([&] { Release(world, *target, event); });
}

void Play_Hold(World& world, const Words& words) {
  const Mouse_Event event = Event_Of({words[0], words[1]});
  const std::int64_t micros = To_Micros(words[2]);
  const auto target = Reach(world, words[0]);
  if (!target) return;
  auto& time = world.Platform.Time;
  const std::int64_t end = time.Elapsed() + micros;
  const auto ticket =
      time.Schedule(end, [&world, target, event] { world.Run([&] { Release(world, *target, event); }); });
  world.Run([&] { Press(world, *target, event); });
  if (world.Has_Ended()) time.Cancel(ticket);
  else world.Wait(std::max<std::int64_t>(end - time.Elapsed(), 0));
}

void Play_Move(World& world, const Words& words) {
  Words rest(words.begin() + 1, words.end());
  Mouse_Event event{Mouse_Button::None, 0, 0};
  if (!rest.empty() && rest.back() == "shift") rest.pop_back();
  if (!rest.empty()) {
    if (const auto button = Button_Of(rest.front())) {
      event.button = *button;
      rest.erase(rest.begin());
    }
  }
  if (!rest.empty() && rest.size() != 2) throw Cannot_Play("move wants CONTROL [BUTTON] [X Y] [shift]");
  if (!rest.empty()) {
    event.x = To_Number(rest[0]);
    event.y = To_Number(rest[1]);
  }
  const auto target = Reach(world, words[0]);
  if (!target || target->Control == nullptr) return;
  world.Run([&] {
    if (target->Control->On_Mouse_Move) target->Control->On_Mouse_Move(event.button, event.x, event.y);
  });
}

void Play_Click(World& world, const Words& words) {
  const auto target = Reach(world, words[0]);
  if (!target) return;
  Gesture(world, {[&] { Press(world, *target, {}); }, [&] { Release(world, *target, {}); }}).Play();
}

void Play_Double_Click(World& world, const Words& words) {
  const auto target = Reach(world, words[0]);
  if (!target) return;
  const auto release = [&] { Release(world, *target, {}); };
  Gesture(world, {[&] { Press(world, *target, {}); }, release, [&] { Double(world, *target); }, release}).Play();
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

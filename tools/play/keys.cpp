// The user with the keys, with whole controls and windows, and waiting.
#include <array>
#include <utility>

#include "basic/text.h"
#include "commands.h"
#include "target.h"
#include "text_form.h"
#include "toolkit/text_box.h"

namespace play {

namespace {

using memory::Typed_Key;

struct Named_Key {
  std::string_view name;
  Typed_Key key;
};

constexpr std::array<Named_Key, 12> named_keys{{{"Enter", {{toolkit::key_enter}, "\r\n"}},
                                                {"Escape", {{toolkit::key_escape}, {}}},
                                                {"Space", {{toolkit::key_space}, " "}},
                                                {"Tab", {{toolkit::key_tab}, {}}},
                                                {"Up", {{toolkit::key_up}, {}}},
                                                {"Down", {{toolkit::key_down}, {}}},
                                                {"Left", {{toolkit::key_left}, {}}},
                                                {"Right", {{toolkit::key_right}, {}}},
                                                {"Home", {{toolkit::key_home}, {}}},
                                                {"End", {{toolkit::key_end}, {}}},
                                                {"PageUp", {{toolkit::key_page_up}, {}}},
                                                {"PageDown", {{toolkit::key_page_down}, {}}}}};

bool Is_Letter_Or_Digit(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'); }

/// A key without what is held beside it. `name` outlives the key.
Typed_Key Plain_Key(std::string_view name) {
  for (const Named_Key& named : named_keys)
    if (name == named.name) return named.key;
  if (name.size() == 1) {
    const char capital = basic::Upper_Case(name).front();
    // Which key a sign is on depends on the keyboard; the program asks for none of them.
    return {{Is_Letter_Or_Digit(capital) ? capital : 0}, name};
  }
  if (name.starts_with('F')) {
    const int number = To_Whole(name.substr(1));
    if (number >= 1 && number <= 12) return {{toolkit::key_f1 + number - 1}, {}};
  }
  throw Cannot_Play("no such key: " + std::string(name));
}

bool Take_Off(std::string_view& name, std::string_view prefix) {
  if (!name.starts_with(prefix) || name.size() == prefix.size()) return false;
  name.remove_prefix(prefix.size());
  return true;
}

Typed_Key Key_Of(std::string_view name) {
  toolkit::Key held;
  for (bool any = true; any;) {
    const bool shift = Take_Off(name, "Shift+"), ctrl = Take_Off(name, "Ctrl+"), alt = Take_Off(name, "Alt+");
    held.Shift |= shift;
    held.Ctrl |= ctrl;
    held.Alt |= alt;
    any = shift || ctrl || alt;
  }
  Typed_Key key = Plain_Key(name);
  held.Code = key.Key.Code;
  key.Key = held;
  return key;
}

void Play_Key(World& world, const Words& words) {
  const Typed_Key key = Key_Of(words[0]);
  toolkit::Form* const active = world.Platform.Windows().Active();
  toolkit::Form* const window = active != nullptr ? active : world.Find_Window("Main_Frm");
  const Target target{window != nullptr ? window->Name : "Main_Frm", window, nullptr, {}};
  if (!Can_Be_Reached(world, target)) return world.Print("refused " + target.Name);
  world.Run([&] {
    if (active == nullptr) world.Platform.Windows().Activate(window);
    if (Can_Be_Reached(world, target)) world.Platform.User.Press_Key(*window, key);
  });
}

void Play_Type(World& world, const Words& words) {
  const auto target = Reach(world, words[0]);
  if (!target) return;
  auto* const box = dynamic_cast<toolkit::Text_Box*>(target->Control);
  if (box == nullptr) throw Cannot_Play("no text box: " + words[0]);
  world.Run([&] { world.Platform.User.Type(*box, words[1]); });
}

void Play_Select(World& world, const Words& words) {
  const auto target = Reach(world, words[0]);
  if (!target) return;
  auto* const box = dynamic_cast<toolkit::Combo_Box*>(target->Control);
  if (box == nullptr) throw Cannot_Play("no drop-down list: " + words[0]);
  int item = 0;
  while (item < box->ListCount() && box->List(item) != words[1]) ++item;
  if (item == box->ListCount()) throw Cannot_Play(words[0] + " has no entry " + Quoted(words[1]));
  world.Run([&] { world.Platform.User.Choose(*box, words[1]); });
}

void Play_Slide(World& world, const Words& words) {
  const int value = To_Whole(words[1]);
  const auto target = Reach(world, words[0]);
  if (!target) return;
  auto* const slider = dynamic_cast<toolkit::Slider*>(target->Control);
  if (slider == nullptr) throw Cannot_Play("no slider: " + words[0]);
  if (value < slider->Min || value > slider->Max) throw Cannot_Play("no place of the slider: " + words[1]);
  world.Run([&] { world.Platform.User.Slide(*slider, value); });
}

/// The target must be a window.
std::optional<Target> Reach_Window(const World& world, const std::string& name) {
  auto target = Reach(world, name);
  if (target && target->Control != nullptr) throw Cannot_Play("no window: " + name);
  return target;
}

void Play_Activate(World& world, const Words& words) {
  if (words[0] == "none") {
    world.Run([&] { world.Platform.Windows().Activate(nullptr); });
  } else if (const auto target = Reach_Window(world, words[0])) {
    world.Run([&] { world.Platform.Windows().Activate(target->Window); });
  }
}

void Play_Close(World& world, const Words& words) {
  if (const auto target = Reach_Window(world, words[0])) world.Run([&] { target->Window->Close_Requested(); });
}

void Play_Wait(World& world, const Words& words) { world.Wait(To_Micros(words[0])); }

}  // namespace

std::span<const Entry> Key_Commands() {
  static constexpr std::array<Entry, 7> entries{{{"key", 1, 1, Play_Key},
                                                 {"type", 2, 2, Play_Type},
                                                 {"select", 2, 2, Play_Select},
                                                 {"slide", 2, 2, Play_Slide},
                                                 {"activate", 1, 1, Play_Activate},
                                                 {"close", 1, 1, Play_Close},
                                                 {"wait", 1, 1, Play_Wait}}};
  return entries;
}

}  // namespace play

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

constexpr int enter = 13;
constexpr int escape = 27;
constexpr int before_f1 = 111;

/// A key by its virtual key code, and the text that it types, if any.
struct Key {
  int code;
  std::string_view typed;
};

Key Key_Of(const std::string& name) {
  if (name == "Enter") return {enter, "\r\n"};
  if (name == "Escape") return {escape, {}};
  if (name.size() == 1) return {static_cast<unsigned char>(basic::Upper_Case(name).front()), name};
  if (name.starts_with('F')) {
    const int number = To_Whole(std::string_view(name).substr(1));
    if (number >= 1 && number <= 12) return {before_f1 + number, {}};
  }
  throw Cannot_Play("no such key: " + name);
}

/// The text box of the window that has the focus and can take what is typed.
toolkit::Text_Box* Focused_Text_Box(World& world, const toolkit::Form& window) {
  const auto* const peer = world.Platform.Windows().Peer_Of(window);
  auto* const box = peer == nullptr ? nullptr : dynamic_cast<toolkit::Text_Box*>(peer->Focused());
  return box != nullptr && box->Visible && box->Enabled ? box : nullptr;
}

void Press_Key(World& world, const Target& target, const Key& key) {
  toolkit::Form& window = *target.Window;
  if (key.code == enter && window.Enter_Pressed()) return;
  if (key.code == escape && window.Escape_Pressed()) return;
  if (!key.typed.empty())
    if (toolkit::Text_Box* const box = Focused_Text_Box(world, window)) box->User_Character(key.typed);
  if (world.Is_There(&window, nullptr)) window.Key_Up(key.code);
}

void Play_Key(World& world, const Words& words) {
  const Key key = Key_Of(words[0]);
  const toolkit::Form* const active = world.Platform.Windows().Active();
  const auto target = Reach(world, active == nullptr ? "Main_Frm" : active->Name);
  if (!target) return;
  world.Run([&] {
    if (Bring_Up(world, *target)) Press_Key(world, *target, key);
  });
}

void Play_Type(World& world, const Words& words) {
  const auto target = Reach(world, words[0]);
  if (!target) return;
  auto* const box = dynamic_cast<toolkit::Text_Box*>(target->Control);
  if (box == nullptr) throw Cannot_Play("no text box: " + words[0]);
  world.Run([&] {
    if (!Bring_Up(world, *target)) return;
    target->Window->Set_Focus(*box);
    box->SelStart.Keep(static_cast<int>(words[1].size()));
    box->SelLength.Keep(0);
    box->User_Text(words[1]);
  });
}

void Play_Select(World& world, const Words& words) {
  if (Reach(world, words[0])) throw Cannot_Play("no drop-down list: " + words[0]);
}

void Play_Slide(World& world, const Words& words) {
  To_Whole(words[1]);
  if (Reach(world, words[0])) throw Cannot_Play("no slider: " + words[0]);
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

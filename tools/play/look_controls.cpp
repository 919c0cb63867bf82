// What windows and controls show.
#include <array>

#include "commands.h"
#include "presentation/main_frm.h"
#include "properties.h"
#include "text_form.h"
#include "toolkit/image.h"

namespace play {

namespace {

using toolkit::Form;

/// Where the property starts after its control: the last point outside parentheses.
std::size_t Property_Point(const std::string& word) {
  const std::size_t end = word.ends_with(')') ? word.rfind('(') : std::string::npos;
  return word.rfind('.', end);
}

void Play_Show(World& world, const Words& words) {
  const std::size_t point = Property_Point(words[0]);
  if (point == std::string::npos) throw Cannot_Play("show wants CONTROL.PROPERTY");
  const std::string name = words[0].substr(0, point);
  const std::string property = words[0].substr(point + 1);
  Check_Property(property);
  const auto target = Find_Target(world, name);
  world.Print(target ? words[0] + " = " + Property_Text(*target, property) : name + " absent");
}

const toolkit::Label* Find_Label(const World& world, const std::string& name) {
  const auto target = Find_Target(world, name);
  return target ? dynamic_cast<const toolkit::Label*>(target->Control) : nullptr;
}

std::string Text_Of(const toolkit::Label* label) { return Quoted(label == nullptr ? std::string() : label->Caption()); }

void Play_Boxes(World& world, const Words& /*words*/) {
  for (int i = 0; i < presentation::box_count; ++i) {
    const std::string index = "(" + std::to_string(i) + ")";
    const toolkit::Label* const box = Find_Label(world, "Main_Frm.Box_Lbl" + index);
    if (box == nullptr || !box->Visible) continue;
    const toolkit::Label* const caption = Find_Label(world, "Main_Frm.Box_Caption_Lbl" + index);
    std::string line = "box " + std::to_string(i) + ' ' + Text_Of(box) + ' ' + Text_Of(caption);
    line += " back " + std::to_string(box->BackColor());
    if (box->FontUnderline) line += " underline";
    if (!box->ToolTipText().empty()) line += " tip " + Quoted(box->ToolTipText());
    world.Print(line);
  }
}

std::string Place_Text(const Form& window) {
  return Number_Text(window.Left) + ' ' + Number_Text(window.Top) + ' ' + Number_Text(window.Width) + ' ' +
         Number_Text(window.Height);
}

void Play_Windows(World& world, const Words& /*words*/) {
  const auto& windows = world.Platform.Windows();
  for (const Form* const window : windows.In_Order_Of_Showing())
    world.Print("window " + window->Name + ' ' + Place_Text(*window) + (window == windows.Active() ? " active" : ""));
}

void Play_Region(World& world, const Words& words) {
  const Form* const window = world.Find_Window(words[0]);
  if (window == nullptr) return world.Print(words[0] + " absent");
  const auto& region = world.Platform.Windows().Peer_Of(*window)->Region();
  if (!region) return world.Print("none");
  for (const toolkit::Pixel_Rect& rect : region->Rects())
    world.Print(std::to_string(rect.Left) + ' ' + std::to_string(rect.Top) + ' ' + std::to_string(rect.Right) + ' ' +
                std::to_string(rect.Bottom));
}

void Play_Balloon(World& world, const Words& /*words*/) {
  const Form* const window = world.Find_Window("frmBalloon");
  if (window == nullptr || !window->Visible()) return world.Print("no balloon");
  const auto icon = Find_Target(world, "frmBalloon.imgDisplayIcon");
  const bool has_icon = icon && icon->Control->Visible;
  world.Print("balloon " + Text_Of(Find_Label(world, "frmBalloon.lblTitle")) + ' ' +
              Text_Of(Find_Label(world, "frmBalloon.lblText")) + ' ' + Place_Text(*window) +
              (has_icon ? " icon" : " noicon"));
}

void Play_Parent(World& world, const Words& /*words*/) {
  const Form* const main = world.Find_Window("Main_Frm");
  const bool embedded = main != nullptr && world.Platform.Shell.Part_Of_Desktop(main->Handle());
  world.Print(embedded ? std::string("parent ") + world.Platform.Shell.Icons_Are_In() : "parent none");
}

using state::Calendar_State;

std::string In_Form(const std::string& text) { return Quoted(text); }
std::string In_Form(bool value) { return Truth_Text(value); }
std::string In_Form(basic::Int16 number) { return std::to_string(number.Value()); }

template <auto Member>
std::string Variable(const Calendar_State& state) {
  return In_Form(state.*Member);
}

struct Variable_Entry {
  std::string_view name;
  std::string (*text)(const Calendar_State& state);
};

constexpr std::array<Variable_Entry, 13> variables{{{"Selected_Date", Variable<&Calendar_State::Selected_Date>},
                                                    {"View_Month", Variable<&Calendar_State::View_Month>},
                                                    {"View_Year", Variable<&Calendar_State::View_Year>},
                                                    {"Current_Box", Variable<&Calendar_State::Current_Box>},
                                                    {"Tip_Box", Variable<&Calendar_State::Tip_Box>},
                                                    {"Mouse_Released", Variable<&Calendar_State::Mouse_Released>},
                                                    {"Window_Inactive", Variable<&Calendar_State::Window_Inactive>},
                                                    {"Alerted_Today", Variable<&Calendar_State::Alerted_Today>},
                                                    {"Compact_On", Variable<&Calendar_State::Compact_On>},
                                                    {"Auto_Compacted", Variable<&Calendar_State::Auto_Compacted>},
                                                    {"Tip_Showing", Variable<&Calendar_State::Tip_Showing>},
                                                    {"Pack_Box_Style", Variable<&Calendar_State::Pack_Box_Style>},
                                                    {"Pack_Pos", Variable<&Calendar_State::Pack_Pos>}}};

void Play_State(World& world, const Words& words) {
  for (const Variable_Entry& variable : variables) {
    if (words[0] != variable.name) continue;
    const Calendar_State* const state = world.State();
    return world.Print(state == nullptr ? words[0] + " absent" : words[0] + " = " + variable.text(*state));
  }
  throw Cannot_Play("no such variable: " + words[0]);
}

}  // namespace

std::span<const Entry> Control_Looks() {
  static constexpr std::array<Entry, 7> entries{{{"show", 1, 1, Play_Show},
                                                 {"boxes", 0, 0, Play_Boxes},
                                                 {"windows", 0, 0, Play_Windows},
                                                 {"region", 1, 1, Play_Region},
                                                 {"balloon", 0, 0, Play_Balloon},
                                                 {"parent", 0, 0, Play_Parent},
                                                 {"state", 1, 1, Play_State}}};
  return entries;
}

}  // namespace play

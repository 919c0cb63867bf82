#include "window_actions.h"

#include "nasty.h"
#include "nasty_files.h"
#include "text_form.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/frame.h"
#include "toolkit/image.h"
#include "toolkit/item_list.h"
#include "toolkit/label.h"
#include "toolkit/option_button.h"
#include "toolkit/slider.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"

namespace monkey {

namespace {

constexpr int tab_count = 8;
constexpr int exchange_tab = 7;

std::string Full_Name(const toolkit::Control& control) {
  const std::string name = control.Window.Name + "." + control.Name;
  return control.Index < 0 ? name : name + "(" + std::to_string(control.Index) + ")";
}

template <class Kind>
bool Is(const toolkit::Control& control) {
  return dynamic_cast<const Kind*>(&control) != nullptr;
}

/// Where files come from and go to. Some are no files, or such as the calendar works with.
constexpr const char* places[] = {"io/a.csv",    "io/b.csv",        "io/a.ini",     "io/a.txt",
                                  "io/a.dat",    "io/no_extension", "calendar.dat", "CALENDAR.DAT",
                                  "data.bak",    "gone/a.csv",      "io",           "D:\\a.csv",
                                  "Notes/x.txt", "io/\xE4 & b.dat", "cancel",       "Default/settings.ini",
                                  "io/full.csv"};

}  // namespace

std::vector<toolkit::Form*> Window_Actions::Windows() const {
  std::vector<toolkit::Form*> windows = world_.Platform.Windows().In_Order_Of_Showing();
  std::erase_if(windows, [](const toolkit::Form* window) {
    return window->Name != "Settings_Frm" && window->Name != "Edit_Frm" && window->Name != "frmBalloon";
  });
  return windows;
}

std::string Window_Actions::Open_Settings() {
  switch (random_.Below(3)) {
    case 0: return "choose 3\npress Box_Lbl(10) right";
    case 1: return "activate Main_Frm\nkey F8";
    default: return "activate Main_Frm\nkey F8\nclick TabStrip1(" + std::to_string(random_.Below(tab_count) + 1) + ")";
  }
}

std::string Window_Actions::Hold_An_Event() {
  std::vector<int> marked;
  for (const toolkit::Control* const control : world_.Find_Window("Main_Frm")->Controls()) {
    const auto* const label = dynamic_cast<const toolkit::Label*>(control);
    if (label != nullptr && label->Name == "Box_Lbl" && label->FontUnderline) marked.push_back(label->Index);
  }
  const int box = marked.empty() ? random_.Below(37) : random_.One_Of(marked);
  return "hold Box_Lbl(" + std::to_string(box) + ") left 0.5";
}

std::string Window_Actions::Next() {
  const toolkit::Form& window = *random_.One_Of(Windows());
  const bool settings = window.Name == "Settings_Frm";
  const int kind = random_.Below(100);
  if (settings && kind < 8) return Exchange();
  if (settings && kind < 18)
    return "click Settings_Frm.TabStrip1(" + std::to_string(random_.Below(tab_count) + 1) + ")";
  if (settings && kind < 21) return "click Settings_Frm.Apply_Btn";
  if (settings && kind < 24) return Overview();
  if (kind < 32) return random_.Once_In(3) ? "activate " + window.Name + "\n" + Key() : Key();
  if (kind < 36) return "activate " + std::string(random_.Once_In(3) ? "none" : window.Name);
  if (kind < 37) return "close " + window.Name;
  return On_Control(window);
}

/// The list of all events, in some order.
std::string Window_Actions::Overview() {
  static constexpr const char* orders[] = {"Ascending Date", "Descending Date", "Date Added"};
  const std::string list = "click Settings_Frm.TabStrip1(1)\nclick Settings_Frm.Overview_Opt";
  if (random_.Once_In(2)) return list;
  return list + "\nselect Settings_Frm.Sort_Cbo " + play::Quoted(random_.One_Of(orders));
}

std::string Window_Actions::Key() {
  static constexpr const char* names[] = {"Tab",        "Tab",   "Shift+Tab", "Space", "Space",  "Up",
                                          "Down",       "Left",  "Right",     "Home",  "End",    "PageUp",
                                          "PageDown",   "Enter", "Escape",    "Alt+O", "Alt+F4", "Alt+x",
                                          "Ctrl+Enter", "F1",    "F8",        "F9",    "d",      "\"\\\"\""};
  const std::string name = random_.One_Of(names);
  // Of the keys that close a window fewer.
  const bool closes = name == "Enter" || name == "Escape" || name == "Alt+F4";
  return "key " + (closes && !random_.Once_In(4) ? "Tab" : name);
}

/// One of those on view, and once in a while any, which will be refused.
std::string Window_Actions::On_Control(const toolkit::Form& window) {
  std::vector<const toolkit::Control*> on_view;
  for (const toolkit::Control* const control : window.Controls())
    if (control->On_View() && !Is<toolkit::Frame>(*control)) on_view.push_back(control);
  const bool any = on_view.empty() || random_.Once_In(20);
  const toolkit::Control& control = any ? *random_.One_Of(window.Controls()) : *random_.One_Of(on_view);
  // The preview takes long.
  if (control.Name == "Preview_Btn" && !random_.Once_In(8)) return "click Settings_Frm.Theme_Use_Chk";
  return Gesture(control);
}

std::string Window_Actions::Gesture(const toolkit::Control& control) {
  const std::string name = Full_Name(control);
  if (random_.Once_In(12)) return "dblclick " + name;
  if (random_.Once_In(12)) return "hold " + name + Mouse_Button() + " 0." + std::to_string(random_.Below(5));
  if (random_.Once_In(25)) return "press " + name + Mouse_Button();
  if (random_.Once_In(25)) return "release " + name + Mouse_Button();
  if (const auto* const slider = dynamic_cast<const toolkit::Slider*>(&control)) return On_Slider(*slider);
  if (const auto* const list = dynamic_cast<const toolkit::Item_List*>(&control)) return On_List(*list, name);
  if (Is<toolkit::Tab_Strip>(control))
    return "click " + name + "(" + std::to_string(random_.Below(tab_count) + 1) + ")";
  if (Is<toolkit::Text_Box>(control)) return "type " + name + " " + play::Quoted(Typed_Text(random_));
  if (control.Name == "Pal") return On_Palette();
  if (Is<toolkit::Picture_Box>(control)) return On_Picture(name);
  if (Is<toolkit::Check_Box>(control) || Is<toolkit::Command_Button>(control)) return Answers() + "click " + name;
  return "click " + name;
}

std::string Window_Actions::On_Slider(const toolkit::Slider& slider) {
  return "slide " + Full_Name(slider) + " " + std::to_string(slider.Min + random_.Below(slider.Max - slider.Min + 1));
}

std::string Window_Actions::On_List(const toolkit::Item_List& list, const std::string& name) {
  if (list.ListCount() == 0) return "click " + name;
  const int item = random_.Below(list.ListCount());
  if (Is<toolkit::Combo_Box>(list)) return "select " + name + " " + play::Quoted(list.List(item));
  const std::string entry = name + "(" + std::to_string(item) + ")";
  return random_.Once_In(3) ? Answers() + "dblclick " + entry : "click " + entry;
}

std::string Window_Actions::On_Picture(const std::string& name) {
  return random_.Once_In(3) ? On_Palette() : "click " + name;
}

std::string Window_Actions::On_Palette() {
  const std::string move = "move Settings_Frm.Pal" + std::string(random_.Once_In(4) ? " left " : " ") +
                           std::to_string(random_.Below(1800) - 100) + " " + std::to_string(random_.Below(1000) - 100) +
                           (random_.Once_In(4) ? " shift" : "");
  return random_.Once_In(3) ? move : move + "\nclick Settings_Frm.Pal";
}

std::string Window_Actions::Mouse_Button() {
  static constexpr const char* buttons[] = {" left", " left", " right", " middle"};
  return random_.One_Of(buttons);
}

/// What the next boxes are answered; nothing most of the time.
std::string Window_Actions::Answers() {
  static constexpr const char* answers[] = {"answer Yes\n", "answer No\n", "answer Cancel\n", "answer Yes\n",
                                            "answer OK\n"};
  std::string lines;
  while (random_.Once_In(2)) lines += random_.One_Of(answers);
  return lines;
}

/// An import or an export, with the file that its dialog is answered and with what the boxes behind it are.
std::string Window_Actions::Exchange() {
  const bool import = random_.Once_In(2);
  const int button = random_.Below(import ? 3 : 4);
  std::string lines = "click Settings_Frm.TabStrip1(" + std::to_string(exchange_tab) + ")\n";
  if (import && !random_.Once_In(4)) {
    lines += Input_File(button);
  } else {
    if (random_.Once_In(30)) lines += "full io/full.csv\n";
    lines += std::string("pick ") + play::Quoted(random_.One_Of(places));
    if (random_.Once_In(10)) lines += " after 0.5";
    lines += "\n";
  }
  return lines + Answers() + "click Settings_Frm." + (import ? "Import_Btn(" : "Export_Btn(") + std::to_string(button) +
         ")";
}

std::string Window_Actions::Input_File(int button) {
  constexpr int configuration = 1, csv = 2;
  switch (button) {
    case configuration: return "put io/in.ini " + play::Quoted(Config_File(random_)) + "\npick io/in.ini\n";
    case csv: return "put io/in.csv " + play::Quoted(Csv_File(random_)) + "\npick io/in.csv\n";
    default: {
      const std::string bytes = random_.Once_In(6) ? Bad_File(random_) : Good_File(random_);
      return "put io/in.dat " + play::Quoted(bytes) + "\npick io/in.dat\n";
    }
  }
}

}  // namespace monkey

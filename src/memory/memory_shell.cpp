#include "memory/memory_shell.h"

#include <stdexcept>

#include "memory/letter_case.h"

namespace memory {

namespace {

// The handle of each window is `base` plus its place in the chain.
constexpr platform::Window_Handle base = 0x10000;
constexpr platform::Window_Handle progman = base + static_cast<platform::Window_Handle>(Shell_Chain::Progman);
constexpr platform::Window_Handle def_view = base + static_cast<platform::Window_Handle>(Shell_Chain::Def_View);
constexpr platform::Window_Handle icon_list = base + static_cast<platform::Window_Handle>(Shell_Chain::Icon_List);

}  // namespace

bool Memory_Shell::Exists(platform::Window_Handle window) const {
  return window > base && window <= base + static_cast<platform::Window_Handle>(chain_);
}

platform::Window_Handle Memory_Shell::Find_Top_Window(const std::string& window_class, const std::string& caption) {
  const bool wanted = Same_Name(window_class, "Progman") && Same_Name(caption, "Program Manager");
  return wanted && Exists(progman) ? progman : 0;
}

platform::Window_Handle Memory_Shell::Find_Child(platform::Window_Handle parent, const std::string& window_class) {
  const bool is_view = parent == progman && Same_Name(window_class, "SHELLDLL_DefView");
  const bool is_list = parent == def_view && Same_Name(window_class, "SysListView32");
  const platform::Window_Handle child = is_view ? def_view : is_list ? icon_list : 0;
  return Exists(child) ? child : 0;
}

int Memory_Shell::Send(platform::Window_Handle window, unsigned message, int parameter) {
  if (!Exists(window)) return 0;
  if (window != icon_list) throw std::logic_error("a message to a desktop window that knows none");
  switch (message) {
    case platform::get_text_colour: return icon_text_;
    case platform::get_text_back_colour: return icon_back_;
    case platform::set_text_back_colour: icon_back_ = parameter; return 1;
    default: throw std::logic_error("a message that the list of icons doesn't know");
  }
}

void Memory_Shell::Invalidate(platform::Window_Handle window) {
  if (window == icon_list && Exists(window)) invalid_ = true;
}

void Memory_Shell::Update(platform::Window_Handle window) {
  if (window == icon_list && Exists(window) && std::exchange(invalid_, false)) ++repaints_;
}

void Memory_Shell::Set_Icon_Colours(int back, int text) {
  icon_back_ = back;
  icon_text_ = text;
}

bool Memory_Shell::Under_Progman(platform::Window_Handle window) const {
  const auto found = parents_.find(window);
  return found != parents_.end() && found->second == progman;
}

}  // namespace memory

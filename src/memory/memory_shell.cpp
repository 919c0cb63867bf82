#include "memory/memory_shell.h"

#include <stdexcept>

#include "memory/letter_case.h"

namespace memory {

using platform::Window_Handle;

// The handle of each window is its number in its life of the shell.
Window_Handle Memory_Shell::Handle_Of(Part part) const {
  return static_cast<Window_Handle>(0x10000 + life_ * 16 + static_cast<int>(part));
}

bool Memory_Shell::Exists(Window_Handle window) {
  const auto last = [this] {
    switch (chain_) {
      case Shell_Chain::None: return Window_Handle{};
      case Shell_Chain::Progman: return Handle_Of(Part::Progman);
      case Shell_Chain::Def_View: return Handle_Of(Part::Def_View);
      case Shell_Chain::Icon_List: return Handle_Of(Part::Icon_List);
    }
    return Window_Handle{};
  };
  return window >= Handle_Of(worker_ ? Part::First_Worker : Part::Progman) && window <= last();
}

Window_Handle Memory_Shell::If_There(Part part) { return Exists(Handle_Of(part)) ? Handle_Of(part) : 0; }

Window_Handle Memory_Shell::Find_Top_Window(const char* window_class, const char* caption) {
  const bool wanted = Same_Name(window_class, "Progman") && Same_Name(caption, "Program Manager");
  return wanted ? If_There(Part::Progman) : 0;
}

Window_Handle Memory_Shell::Find_Next_Top_Window(Window_Handle after, const char* window_class) {
  if (!Same_Name(window_class, "WorkerW")) return 0;
  if (after == 0) return If_There(Part::First_Worker);
  return after == Handle_Of(Part::First_Worker) ? If_There(Part::Second_Worker) : 0;
}

Window_Handle Memory_Shell::Find_Child(Window_Handle parent, const char* window_class) {
  if (parent == Handle_Of(Holder_Of_View()) && Same_Name(window_class, "SHELLDLL_DefView"))
    return If_There(Part::Def_View);
  if (parent == Handle_Of(Part::Def_View) && Same_Name(window_class, "SysListView32")) return If_There(Part::Icon_List);
  return 0;
}

platform::Adoption Memory_Shell::Set_Parent(Window_Handle window, Window_Handle parent) {
  ++moves_;
  if (std::exchange(fail_once_, false)) return platform::Adoption::Failed;
  if (refuse_) return platform::Adoption::Unseen;
  parents_[window] = parent;
  return platform::Adoption::Done;
}

/// Waits for the answer.
bool Memory_Shell::Answers(Window_Handle window, int patience) {
  if (!Exists(window)) return false;
  const bool in_time = answers_left_ > 0 && answer_time_ < patience;
  waits_ += in_time ? answer_time_ : patience;
  if (in_time && answers_left_ != endless) --answers_left_;
  return in_time;
}

std::optional<int> Memory_Shell::Send(Window_Handle window, unsigned message, int parameter, int patience) {
  if (!Answers(window, patience)) return std::nullopt;
  if (window != Handle_Of(Part::Icon_List)) throw std::logic_error("a message to a desktop window that knows none");
  switch (message) {
    case platform::get_text_colour: return icon_text_;
    case platform::get_text_back_colour: return icon_back_;
    case platform::set_text_back_colour: icon_back_ = parameter; return 1;
    default: throw std::logic_error("a message that the list of icons doesn't know");
  }
}

void Memory_Shell::Invalidate(Window_Handle window) {
  if (window == Handle_Of(Part::Icon_List) && Exists(window)) invalid_ = true;
}

bool Memory_Shell::Update(Window_Handle window, int patience) {
  if (!Answers(window, patience)) return false;
  if (window == Handle_Of(Part::Icon_List) && std::exchange(invalid_, false)) ++repaints_;
  return true;
}

void Memory_Shell::Set_Icon_Colours(int back, int text) {
  icon_back_ = back;
  icon_text_ = text;
}

bool Memory_Shell::Part_Of_Desktop(Window_Handle window) {
  const auto found = parents_.find(window);
  return found != parents_.end() && found->second == Handle_Of(Holder_Of_View()) && Exists(found->second);
}

}  // namespace memory

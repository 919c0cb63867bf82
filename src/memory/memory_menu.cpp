#include "memory/memory_menu.h"

#include <algorithm>
#include <stdexcept>

#include "toolkit/form.h"

namespace memory {

int Memory_Menu::Track(platform::Window_Handle owner, const std::vector<platform::Menu_Item>& items) {
  const toolkit::Form* const window = windows_.Find(owner);
  if (window == nullptr) throw std::logic_error("a menu without an owner");
  shown_.push_back({window->Name, items});
  int number = 0;
  {
    const toolkit::Input::Modal menu(input_);
    if (!prepared_.empty()) {
      const Prepared choice = prepared_.front();
      prepared_.pop_front();
      number = choice.number;
      if (choice.micros > 0) loop_.Serve(choice.micros);
    }
  }
  loop_.Dispatch([this] { input_.Catch_Up(); });
  const bool choosable = std::any_of(items.begin(), items.end(), [number](const platform::Menu_Item& item) {
    return item.Number == number && !item.Grey;
  });
  return choosable ? number : 0;
}

}  // namespace memory

#include "memory/memory_menu.h"

#include <algorithm>
#include <stdexcept>

#include "toolkit/form.h"

namespace memory {

int Memory_Menu::Track(platform::Window_Handle owner, const std::vector<platform::Menu_Item>& items) {
  const toolkit::Form* const window = windows_.Find(owner);
  if (window == nullptr) throw std::logic_error("a menu without an owner");
  shown_.push_back({window->Name, items});
  const toolkit::Input::Modal menu(input_);
  if (prepared_.empty()) return 0;
  const auto [number, micros] = prepared_.front();
  prepared_.pop_front();
  if (micros > 0) loop_.Serve(micros);
  const bool choosable = std::any_of(items.begin(), items.end(), [number = number](const platform::Menu_Item& item) {
    return item.Number == number && !item.Grey;
  });
  return choosable ? number : 0;
}

}  // namespace memory

#include "platform/memory/memory_menu.h"

#include <algorithm>

namespace platform::memory {

int Memory_Menu::Track(Window_Handle owner, const std::vector<Menu_Item>& items) {
  shown_.push_back({owner, items});
  if (prepared_.empty()) return 0;
  const int number = prepared_.front();
  prepared_.pop_front();
  const bool choosable = std::any_of(items.begin(), items.end(), [number](const Menu_Item& item) {
    return item.Number == number && !item.Grey;
  });
  return choosable ? number : 0;
}

}  // namespace platform::memory

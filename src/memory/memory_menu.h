// Popup menus that are answered by a list made up in advance, and remembered.
#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "memory/memory_windows.h"
#include "platform/popup_menu.h"

namespace memory {

class Memory_Menu : public platform::Popup_Menu {
 public:
  explicit Memory_Menu(const Memory_Windows& windows) : windows_(windows) {}

  /// Takes the next prepared number; 0 for none, and for one that is grey or isn't in the menu. Throws std::logic_error
  /// if the owner is no window.
  int Track(platform::Window_Handle owner, const std::vector<platform::Menu_Item>& items) override;

  void Prepare(int number) { prepared_.push_back(number); }

  struct Shown {
    std::string Owner;  ///< the window's name
    std::vector<platform::Menu_Item> Items;
  };

  /// The menus since the last call.
  std::vector<Shown> Take_Shown() { return std::exchange(shown_, {}); }

 private:
  const Memory_Windows& windows_;
  std::deque<int> prepared_;
  std::vector<Shown> shown_;
};

}  // namespace memory

// Popup menus that are answered from choices prepared in advance, and remembered. While one is open it has the mouse
// and the keys, so that no window of the program gets input.
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
  Memory_Menu(const Memory_Windows& windows, Memory_Loop& loop, toolkit::Input& input)
      : windows_(windows), loop_(loop), input_(input) {}

  /// Returns the next prepared number; 0 if there is none, or if its item is grey or not in the menu. Throws
  /// std::logic_error if the owner isn't a window of the program.
  int Track(platform::Window_Handle owner, const std::vector<platform::Menu_Item>& items) override;

  /// Prepares the choice for a menu to come, which first stays open for `micros` microseconds while events are served.
  void Prepare(int number, std::int64_t micros = 0) { prepared_.push_back({number, micros}); }

  struct Shown {
    std::string Owner;  ///< the window's name
    std::vector<platform::Menu_Item> Items;
  };

  /// The menus shown since the last call.
  std::vector<Shown> Take_Shown() { return std::exchange(shown_, {}); }

 private:
  struct Prepared {
    int number;
    std::int64_t micros;
  };

  const Memory_Windows& windows_;
  Memory_Loop& loop_;
  toolkit::Input& input_;
  std::deque<Prepared> prepared_;
  std::vector<Shown> shown_;
};

}  // namespace memory

// The system's popup menus, each built for one choice and destroyed after it.
#pragma once

#include <string>
#include <vector>

#include "platform/stock_picture.h"
#include "platform/window_handle.h"

namespace platform {

struct Menu_Item {
  int Number = 0;  ///< returned if the item is chosen; not 0
  std::string Text;
  bool Grey = false;  ///< shown, but can't be chosen
  Stock_Picture Picture = Stock_Picture::None;
};

class Popup_Menu {
 public:
  virtual ~Popup_Menu() = default;

  /// Shows the items at the pointer, centred on it, and waits for the choice; events are served meanwhile. Returns the
  /// number of the chosen item, 0 for none. Throws Program_Quit once the program has been told to quit.
  ///
  /// **Any handler may run meanwhile: it may unload any window, and may change what the choice is about.**
  virtual int Track(Window_Handle owner, const std::vector<Menu_Item>& items) = 0;
};

}  // namespace platform

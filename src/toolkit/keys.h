// Keys as the window system numbers them.
#pragma once

namespace toolkit {

enum Key_Code : int {
  key_tab = 9,
  key_enter = 13,
  key_escape = 27,
  key_space = 32,
  key_page_up = 33,
  key_page_down = 34,
  key_end = 35,
  key_home = 36,
  key_left = 37,
  key_up = 38,
  key_right = 39,
  key_down = 40,
  key_f1 = 112,
  key_f2 = 113,
  key_f3 = 114,
  key_f4 = 115,
  key_f5 = 116,
  key_f8 = 119,
  key_f9 = 120,
  key_f10 = 121,
  key_f12 = 123,
};

/// A key that goes down or up, with the keys that are held beside it. Letters and digits have the code of their capital.
struct Key {
  int Code = 0;
  bool Shift = false, Ctrl = false, Alt = false;
};

}  // namespace toolkit

// The library of the system's tips, sliders and tabs. It is loaded with the first of them: a start without any is the
// quicker for it.
#pragma once

#include "win32/handle.h"

namespace win32 {

class Common_Controls {
 public:
  /// Makes the classes of the library known. Returns false where there is no such library.
  bool Start();

 private:
  Library_Owner library_;
  bool started_ = false;
};

}  // namespace win32

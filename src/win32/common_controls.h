// The library of the system's controls. It is loaded before the first control, tip or message box: with the manifest's
// version of it some systems show no box at all until it is loaded. A start without any is the quicker for it.
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

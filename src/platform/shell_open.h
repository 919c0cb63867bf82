// Addresses and documents that the system opens with the user's own programs.
#pragma once

#include <string>

namespace platform {

class Shell_Open {
 public:
  virtual ~Shell_Open() = default;

  /// Opens an address or a document with the system's program for it, which starts in `directory`. A failure is silent.
  virtual void Open(const std::string& address, const std::string& directory) = 0;
};

}  // namespace platform

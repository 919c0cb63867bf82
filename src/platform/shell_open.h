// What the user's system opens for us: addresses and documents.
#pragma once

#include <string>

namespace platform {

class Shell_Open {
 public:
  virtual ~Shell_Open() = default;

  /// Opens an address with the program that the system has for it; a failure isn't told.
  virtual void Open(const std::string& address, const std::string& directory) = 0;
};

}  // namespace platform

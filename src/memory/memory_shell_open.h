// What the program gave the system to open.
#pragma once

#include <utility>
#include <vector>

#include "platform/shell_open.h"

namespace memory {

class Memory_Shell_Open : public platform::Shell_Open {
 public:
  void Open(const std::string& address, const std::string& /*directory*/) override { launched_.push_back(address); }

  /// The addresses since the last call.
  std::vector<std::string> Take_Launched() { return std::exchange(launched_, {}); }

 private:
  std::vector<std::string> launched_;
};

}  // namespace memory

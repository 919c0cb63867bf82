// Addresses, opened by the system's shell.
#pragma once

#include "platform/shell_open.h"
#include "win32/handle.h"

namespace win32 {

class Shell_Launcher final : public platform::Shell_Open {
 public:
  void Open(const std::string& address, const std::string& directory) override;

 private:
  Library_Owner library_;  // stays: the shell may go on working after the call
};

}  // namespace win32

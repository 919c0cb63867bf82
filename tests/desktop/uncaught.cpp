// Fails where nothing can catch it: desktop_uncaught noexcept, within, or nothing.
//
//   noexcept   a failure leaves a function that lets none out
//   within     a failure leaves a destructor that runs because of another one
//   nothing    the end comes without any failure
#include <cstring>
#include <exception>

#include "basic/run_error.h"
#include "win32/win32_platform.h"
#include "win32/windows_api.h"

namespace {

using basic::Error_Number;

void Fail(Error_Number number) { throw basic::Run_Error(number); }

void Let_Nothing_Out() noexcept { Fail(Error_Number::Disk_Full); }

struct Fails_As_It_Goes {
  ~Fails_As_It_Goes() noexcept(false) { Fail(Error_Number::Permission_Denied); }
};

void Fail_Twice() {
  const Fails_As_It_Goes guest;
  Fail(Error_Number::Disk_Full);
}

}  // namespace

int main(int count, char** arguments) {
  const auto asked_for = [&](const char* way) { return count == 2 && std::strcmp(arguments[1], way) == 0; };
  win32::Win32_Platform platform(GetModuleHandleA(nullptr));
  platform.Run([&] {
    if (asked_for("noexcept")) Let_Nothing_Out();
    if (asked_for("within")) Fail_Twice();
    if (asked_for("nothing")) std::terminate();
  });
  return 0;
}

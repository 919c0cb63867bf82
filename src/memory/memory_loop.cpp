#include "memory/memory_loop.h"

#include "basic/run_error.h"

namespace memory {

void Memory_Loop::Check_Quit() const {
  if (quitting_) throw platform::Program_Quit();
}

void Memory_Loop::Wait_Events(std::int64_t micros) {
  Check_Quit();
  if (patience_ && time_.Elapsed() > *patience_) throw Endless_Wait();
  time_.Step(time_.Elapsed() + micros);
  Check_Quit();
}

void Memory_Loop::Dispatch(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const basic::Run_Error& error) {
    // Not thrown on as it is: a handler that waits around this one must not catch an error that isn't its own.
    failure_ = error.Number();
    quitting_ = true;
  }
  Check_Quit();
}

void Memory_Loop::Serve(std::int64_t micros) {
  const std::int64_t end = time_.Elapsed() + micros;
  while (time_.Step(end)) Check_Quit();
  Check_Quit();
}

void Memory_Loop::Reset() {
  quitting_ = false;
  failure_.reset();
}

}  // namespace memory

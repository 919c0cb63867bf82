// The message loop of the one thread, and the waits inside handlers that go on serving messages.
#pragma once

#include "platform/event_loop.h"
#include "win32/window_context.h"

namespace win32 {

class Message_Loop final : public platform::Event_Loop {
 public:
  explicit Message_Loop(Window_Context& context) : context_(context) {}

  void Wait_Events(std::int64_t micros) override;
  void Quit() override { context_.Guard.Quit(); }

  /// Serves messages until the program ends.
  void Run();

 private:
  bool Serve_Waiting();
  void Dispatch(MSG& message);

  Window_Context& context_;
};

}  // namespace win32

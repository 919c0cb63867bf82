#include "memory/memory_message_box.h"

#include <algorithm>

namespace memory {

namespace {

bool Has_Button(platform::Box_Buttons buttons, platform::Box_Answer answer) {
  switch (answer) {
    case platform::Box_Answer::OK: return buttons == platform::Box_Buttons::OK;
    case platform::Box_Answer::Yes:
    case platform::Box_Answer::No: return buttons != platform::Box_Buttons::OK;
    case platform::Box_Answer::Cancel: return buttons == platform::Box_Buttons::Yes_No_Cancel;
  }
  return false;
}

platform::Box_Answer Default_Answer(platform::Box_Buttons buttons) {
  switch (buttons) {
    case platform::Box_Buttons::OK: return platform::Box_Answer::OK;
    case platform::Box_Buttons::Yes_No: return platform::Box_Answer::No;
    case platform::Box_Buttons::Yes_No_Cancel: break;
  }
  return platform::Box_Answer::Cancel;
}

}  // namespace

Memory_Message_Box::Prepared Memory_Message_Box::Answer_For(platform::Box_Buttons buttons) {
  const auto found = std::find_if(prepared_.begin(), prepared_.end(),
                                  [buttons](const Prepared& prepared) { return Has_Button(buttons, prepared.answer); });
  if (found == prepared_.end()) return {Default_Answer(buttons), 0};
  const Prepared taken = *found;
  prepared_.erase(found);
  return taken;
}

platform::Box_Answer Memory_Message_Box::Show(const std::string& title, const std::string& text,
                                              platform::Box_Icon icon, platform::Box_Buttons buttons) {
  const Prepared taken = Answer_For(buttons);
  shown_.push_back({title, text, icon, buttons, taken.answer});
  {
    const toolkit::Input::Modal modal(input_);
    if (taken.micros > 0) loop_.Serve(taken.micros);
  }
  loop_.Dispatch([this] { input_.Catch_Up(); });
  return taken.answer;
}

}  // namespace memory

#include "platform/memory/memory_message_box.h"

#include <algorithm>

namespace platform::memory {

namespace {

bool Has_Button(Box_Buttons buttons, Box_Answer answer) {
  switch (answer) {
    case Box_Answer::OK: return buttons == Box_Buttons::OK;
    case Box_Answer::Yes:
    case Box_Answer::No: return buttons != Box_Buttons::OK;
    case Box_Answer::Cancel: return buttons == Box_Buttons::Yes_No_Cancel;
  }
  return false;
}

Box_Answer Default_Answer(Box_Buttons buttons) {
  switch (buttons) {
    case Box_Buttons::OK: return Box_Answer::OK;
    case Box_Buttons::Yes_No: return Box_Answer::No;
    case Box_Buttons::Yes_No_Cancel: break;
  }
  return Box_Answer::Cancel;
}

}  // namespace

Memory_Message_Box::Prepared Memory_Message_Box::Answer_For(Box_Buttons buttons) {
  const auto found = std::find_if(prepared_.begin(), prepared_.end(),
                                  [buttons](const Prepared& prepared) { return Has_Button(buttons, prepared.answer); });
  if (found == prepared_.end()) return {Default_Answer(buttons), 0};
  const Prepared taken = *found;
  prepared_.erase(found);
  return taken;
}

Box_Answer Memory_Message_Box::Show(const std::string& title, const std::string& text, Box_Icon icon,
                                    Box_Buttons buttons) {
  const Prepared taken = Answer_For(buttons);
  shown_.push_back({title, text, icon, buttons, taken.answer});
  if (taken.micros > 0) loop_.Serve(taken.micros);
  return taken.answer;
}

}  // namespace platform::memory

// The system's code page, in which all texts are.
#pragma once

#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "win32/windows_api.h"

namespace win32 {

/// Tells the user, once for all starts, where the system has UTF-8 for its code page: events that were written in
/// another one don't read as they were.
void Warn_Of_Utf8(UINT code_page, platform::Settings_Store& store, platform::Message_Box& box);

}  // namespace win32

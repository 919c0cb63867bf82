// All services of one platform, as a backend hands them out. A unit takes the services that it uses, never the bundle.
#pragma once

#include "platform/clock.h"
#include "platform/desktop_shell.h"
#include "platform/event_loop.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/instances.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "platform/pictures.h"
#include "platform/popup_menu.h"
#include "platform/profile_files.h"
#include "platform/registry_keys.h"
#include "platform/screen.h"
#include "platform/settings_store.h"
#include "platform/shell_open.h"
#include "platform/wallpaper.h"

namespace platform {

struct System {
  platform::Clock& Clock;
  platform::Locale& Locale;
  platform::Files& Files;
  platform::Event_Loop& Loop;
  platform::Message_Box& Message_Box;
  platform::Popup_Menu& Popup_Menu;
  platform::Settings_Store& Store;
  platform::Screen& Screen;
  platform::Instances& Instances;
  platform::Desktop_Shell& Shell;
  platform::Registry_Keys& Registry;
  platform::Profile_Files& Profiles;
  platform::Wallpaper& Wallpaper;
  platform::Pictures& Pictures;
  platform::Shell_Open& Shell_Open;
  platform::File_Dialog& File_Dialog;
};

}  // namespace platform

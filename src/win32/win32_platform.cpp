#include "win32/win32_platform.h"

#include <exception>
#include <string>

#include "basic/run_error.h"
#include "platform/screen.h"
#include "win32/code_page.h"
#include "win32/desktop.h"
#include "win32/disk_files.h"
#include "win32/instance_window.h"
#include "win32/local_clock.h"
#include "win32/message_loop.h"
#include "win32/registry_services.h"
#include "win32/shell_launcher.h"
#include "win32/system_library.h"
#include "win32/system_pictures.h"
#include "win32/system_profiles.h"
#include "win32/user_locale.h"
#include "win32/win32_backend.h"
#include "win32/win32_file_dialog.h"
#include "win32/win32_message_box.h"
#include "win32/win32_popup_menu.h"

namespace win32 {

struct Win32_Platform::Parts {
  Parts(HINSTANCE instance, UINT code_page) : Context(instance, code_page) {}

  Window_Context Context;
  Instance_Window Instances{Context};
  Win32_Backend Backend{Context};
  Local_Clock Clock;
  User_Locale Locale;
  Disk_Files Files;
  Message_Loop Loop{Context};
  Win32_Message_Box Message_Box{Context, Backend};
  Win32_File_Dialog File_Dialog{Context, Backend};
  Win32_Popup_Menu Popup_Menu{Context, Backend.Input};
  Registry_Store Store;
  Primary_Screen Screen{Context.Scale};
  Shell_Windows Shell{Context};
  System_Registry Registry;
  System_Profiles Profiles;
  Desktop_Picture Wallpaper;
  System_Pictures Pictures;
  Shell_Launcher Launcher;
  platform::System System{Clock,     Locale, Files,    Loop,     Message_Box, Popup_Menu, Store,    Screen,
                          Instances, Shell,  Registry, Profiles, Wallpaper,   Pictures,   Launcher, File_Dialog};
};

namespace {

constexpr const char* large_desktop =
    "Your desktop is larger than this calendar was first made for.\r\n\r\n"
    "Would you like it to work on large desktops from now on? It then opens right away and won't ask again; your "
    "events and settings stay as they are.\r\n\r\n"
    "If you choose No, the calendar closes.";

bool Is_Large_Desktop(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const platform::Work_Area_Too_Large&) {
    return true;
  } catch (...) {
    return false;
  }
}

std::string Report_Of(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const basic::Run_Error& error) {
    return "Error " + std::to_string(error.Number()) + ": " + error.what();
  } catch (const std::bad_alloc&) {
    return "There is not enough memory.";
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "Unknown error";
  }
}

/// A box of a program that has ended. Returns the system's number of the button.
int Last_Box(const std::string& text, UINT flags) {
  // A box closes at once if it finds the message to quit in the queue.
  MSG message;
  while (PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) continue;
  Common_Controls controls;
  controls.Start();
  return MessageBoxA(nullptr, text.c_str(), "Meridex", flags | MB_SETFOREGROUND | MB_TASKMODAL);
}

}  // namespace

Win32_Platform::End Win32_Platform::Report_Failure(const std::exception_ptr& failure) {
  if (!Is_Large_Desktop(failure)) {
    Last_Box(Report_Of(failure), MB_OK | MB_ICONHAND);
    return End::Failure;
  }
  return Last_Box(large_desktop, MB_YESNO | MB_ICONQUESTION) == IDYES ? End::Consent : End::Failure;
}

Win32_Platform::Win32_Platform(void* instance) : Win32_Platform(instance, GetACP()) {}

Win32_Platform::Win32_Platform(void* instance, unsigned code_page) {
  Keep_To_System_Libraries();
  parts_ = std::make_unique<Parts>(static_cast<HINSTANCE>(instance), code_page);
}

Win32_Platform::~Win32_Platform() = default;

toolkit::Backend& Win32_Platform::Backend() { return parts_->Backend; }

platform::System& Win32_Platform::System() { return parts_->System; }

Win32_Platform::End Win32_Platform::Run(const std::function<void()>& start) {
  Guard& guard = parts_->Context.Guard;
  guard.Run([&] {
    Warn_Of_Utf8(parts_->Context.Code_Page, parts_->Store, parts_->Message_Box);
    start();
  });
  parts_->Loop.Run();
  if (guard.Failure() == nullptr) return End::Ordinary;
  return Report_Failure(guard.Failure());
}

}  // namespace win32

/// The end of a program in which a failure can't be caught, since it comes out of the middle of another. Stands for the
/// run-time library's own handler, which would write where nobody reads, and bring 46 kB along to spell names.
void __gnu_cxx::__verbose_terminate_handler() {
  // The box serves messages; nothing of the program runs under it.
  if (win32::Guard::Break_Off()) try {
      const std::exception_ptr failure = std::current_exception();
      win32::Last_Box(failure == nullptr ? "Unknown error" : win32::Report_Of(failure), MB_OK | MB_ICONHAND);
    } catch (...) {  // there is no memory left to tell it
    }
  TerminateProcess(GetCurrentProcess(), 1);
}

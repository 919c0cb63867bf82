// The tab "About": name, version and makers of the program, and a link to its homepage.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/shell_open.h"
#include "toolkit/frame.h"
#include "toolkit/image.h"

namespace settings_window {

/// What the system is given to open for a homepage: an address as it stands, a file by its full path.
std::string Homepage_Target(const std::string& homepage, const std::string& program_folder);

class About_Tab {
 public:
  About_Tab(toolkit::Frame& page, platform::Shell_Open& shell, platform::Files& files);

  toolkit::Image Image1;
  toolkit::Label Label9, Label10, Label1, Label5, Label7, Label8, Link_Lbl, Label11, Label12;

  /// Opens the homepage. Whether it could be opened isn't told.
  void gotoweb();

 private:
  void Make_Link();

  platform::Shell_Open& shell_;
  platform::Files& files_;
};

}  // namespace settings_window

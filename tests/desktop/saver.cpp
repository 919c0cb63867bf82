// Saves the event of one day again and again, with the user's consent to today's desktops, until it is killed. Each
// time the text is a number more; it tells the number once it is saved.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "events/event_file.h"
#include "win32/disk_files.h"

namespace {

class Consent : public platform::Settings_Store {
 public:
  std::string Get(const std::string&, const std::string&, const std::string& key, const std::string& text) override {
    return key == "Modern" ? "1" : text;
  }
  void Save(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

void Tell(const std::string& line) {
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

class Failure_Teller : public platform::Message_Box {
 public:
  platform::Box_Answer Show(const std::string&, const std::string& text, platform::Box_Icon,
                            platform::Box_Buttons) override {
    Tell(text + "\n");
    std::exit(3);
  }
};

}  // namespace

int main() {
  Consent store;
  settings::Desktop_Mode desktop(store);
  desktop.Load();
  win32::Disk_Files files;
  basic::File_Channel channel(files);
  Failure_Teller failures;
  state::Calendar_State calendar;
  calendar.Selected_Date = "5/3/2004";
  events::Event_File file(files, channel, failures, calendar, desktop);
  file.Recover();
  for (int number = std::atoi(file.Get_Message().c_str());; ++number) {
    Tell(std::to_string(number) + "\n");
    events::Day_Event event;
    event.Text = std::to_string(number + 1);
    file.Load_File();
    file.Check_For_Pre(event.Text, event);
  }
}

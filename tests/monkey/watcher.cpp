#include "watcher.h"

#include <algorithm>
#include <utility>

#include "text_form.h"
#include "toolkit/tab_strip.h"

namespace monkey {

namespace {

constexpr std::string_view error_line = "ended: error ";
constexpr std::size_t tab_count = 8;

}  // namespace

bool Brought_Up::Box_Said(std::string_view beginning) const {
  return std::any_of(boxes.begin(), boxes.end(), [&](const auto& box) { return box.Text.starts_with(beginning); });
}

bool Brought_Up::Dialog_Got_File(std::string_view title) const {
  return std::any_of(dialogs.begin(), dialogs.end(),
                     [&](const auto& dialog) { return dialog.Title == title && dialog.Path; });
}

void Watcher::Hear(const std::string& line) {
  if (line.starts_with("refused ")) {
    refused_now_ = true;
    ++refused_;
  }
  if (!line.starts_with(error_line)) return;
  error_ = play::To_Whole(std::string_view(line).substr(error_line.size()));
}

void Watcher::Before() {
  error_.reset();
  refused_now_ = false;
  starts_before_ = world_.Starts();
  elapsed_before_ = world_.Platform.Time.Elapsed();
}

Brought_Up Watcher::After(bool nested) {
  Brought_Up brought;
  brought.boxes = world_.Platform.Message_Box.Take_Shown();
  brought.dialogs = world_.Platform.File_Dialog.Take_Shown();
  brought.error = error_;
  brought.started = world_.Starts() != starts_before_;
  brought.refused = refused_now_;
  brought.nested = nested;
  brought.micros = world_.Platform.Time.Elapsed() - elapsed_before_;
  starts_ += world_.Starts() - starts_before_;
  boxes_ += static_cast<int>(brought.boxes.size());
  dialogs_ += static_cast<int>(brought.dialogs.size());
  for (const auto& dialog : brought.dialogs) files_ += dialog.Path ? 1 : 0;
  menus_ += static_cast<int>(world_.Platform.Menu.Take_Shown().size());
  world_.Platform.Wallpaper.Take_Settings();
  world_.Platform.Shell_Open.Take_Launched();
  Count_Windows();
  Count_Tab();
  return brought;
}

void Watcher::Count_Windows() {
  std::set<platform::Window_Handle> now;
  for (const toolkit::Form* const window : world_.Platform.Windows().In_Order_Of_Showing()) {
    now.insert(window->Handle());
    if (!seen_.contains(window->Handle())) ++windows_[window->Name];
  }
  seen_ = std::move(now);
}

void Watcher::Count_Tab() {
  const std::string before = std::exchange(tab_, "");
  const toolkit::Form* const window = world_.Find_Window("Settings_Frm");
  if (window == nullptr) return;
  for (const toolkit::Control* const control : window->Controls())
    if (const auto* const strip = dynamic_cast<const toolkit::Tab_Strip*>(control))
      tab_ = strip->Captions.at(static_cast<std::size_t>(strip->Selected - 1));
  if (tab_ != before) ++tabs_[tab_];
}

std::string Watcher::Told() const {
  std::string told = "windows opened:";
  for (const auto& [name, count] : windows_) told += " " + name + " " + std::to_string(count);
  told += "\ntabs shown:";
  for (const auto& [name, count] : tabs_) told += " " + name + " " + std::to_string(count);
  told += "\nmessage boxes answered: " + std::to_string(boxes_) + ", menus: " + std::to_string(menus_) +
          ", file dialogs: " + std::to_string(dialogs_) + ", with a file: " + std::to_string(files_) +
          "\ngestures refused: " + std::to_string(refused_) + "\nstarts: " + std::to_string(starts_) + "\n";
  return told;
}

std::string Watcher::Missed() const {
  std::string missed;
  for (const char* const name : {"Main_Frm", "Splash_Frm", "Edit_Frm", "Settings_Frm", "frmBalloon"})
    if (!windows_.contains(name)) missed += std::string(" ") + name;
  if (tabs_.size() < tab_count) missed += " some tab";
  if (boxes_ == 0) missed += " message boxes";
  if (menus_ == 0) missed += " menus";
  if (files_ == 0) missed += " file dialogs with a file";
  if (starts_ < 2) missed += " starts anew";
  return missed;
}

}  // namespace monkey

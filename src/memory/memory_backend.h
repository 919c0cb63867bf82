// The window system in memory: it gives the forms their windows, ticks their timers in virtual time, and measures text
// as if every character were equally wide in every font. Nothing is rounded to pixels.
#pragma once

#include <map>

#include "memory/memory_peer.h"
#include "platform/screen.h"
#include "toolkit/backend.h"

namespace memory {

class Memory_Backend : public toolkit::Backend {
 public:
  Memory_Backend(Virtual_Time& time, Memory_Loop& loop, platform::Screen& screen);

  std::unique_ptr<toolkit::Form_Peer> Make_Peer(toolkit::Form& form) override;

  /// A tick never comes late: while the handler of a tick waits, the next ticks of the same timer run within it.
  void Start_Timer(toolkit::Timer& timer) override;
  void Stop_Timer(toolkit::Timer& timer) override;
  toolkit::Form* Active_Form() override { return Windows.Active(); }
  double Twips_Per_Pixel(toolkit::Axis axis) override;

  /// Borders take no room: a window is as large as its client area.
  double Frame_Size(toolkit::Form_Border /*border*/, toolkit::Axis /*axis*/) override { return 0; }
  double Screen_Size(toolkit::Axis axis) override;

  void Show_Busy(bool busy) override {
    if (busy) ++times_busy_;
    busy_ = busy;
  }
  [[nodiscard]] int Times_Busy() const { return times_busy_; }
  [[nodiscard]] bool Busy() const { return busy_; }

  /// Every font exists.
  std::string Font_Given_For(const std::string& name) override { return name; }
  double Text_Width(const toolkit::Font& font, std::string_view text) override;
  double Text_Height(const toolkit::Font& font, std::string_view text, double width) override;
  std::size_t Longest_Beginning(const toolkit::Font& font, std::string_view text, double limit) override;

  /// The width of one character in twips; CR and LF have none.
  void Set_Character_Width(double twips) { character_width_ = twips; }
  [[nodiscard]] double Character_Width() const { return character_width_; }

  Memory_Windows Windows;

 private:
  [[nodiscard]] double Width_Of(char character) const;
  [[nodiscard]] double Width_Of(std::string_view text) const;
  [[nodiscard]] int Lines_Of(std::string_view paragraph, double width) const;
  void Tick(toolkit::Timer& timer);

  Virtual_Time& time_;
  Memory_Loop& loop_;
  platform::Screen& screen_;
  double character_width_ = 90;
  bool busy_ = false;
  int times_busy_ = 0;
  platform::Window_Handle last_handle_;
  std::map<toolkit::Timer*, Virtual_Time::Ticket> ticking_;
};

}  // namespace memory

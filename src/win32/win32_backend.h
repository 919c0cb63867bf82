// The toolkit's window system on Windows.
#pragma once

#include "win32/broadcasts.h"

namespace win32 {

class Win32_Backend final : public toolkit::Backend {
 public:
  explicit Win32_Backend(Window_Context& context) : context_(context), broadcasts_(context) {}

  std::unique_ptr<toolkit::Form_Peer> Make_Peer(toolkit::Form& form) override;
  void Start_Timer(toolkit::Timer& timer) override { context_.Timers.Start(timer); }
  void Stop_Timer(toolkit::Timer& timer) override { context_.Timers.Stop(timer); }
  toolkit::Form* Active_Form() override;
  double Twips_Per_Pixel(toolkit::Axis axis) override;
  double Frame_Size(toolkit::Form_Border border, toolkit::Axis axis) override;
  double Screen_Size(toolkit::Axis axis) override;
  void Show_Busy(bool busy) override { context_.Pointers.Set_Busy(busy); }
  std::string Font_Given_For(const std::string& name) override;
  double Text_Width(const toolkit::Font& font, std::string_view text) override;
  double Text_Height(const toolkit::Font& font, std::string_view text, double width) override;
  std::size_t Longest_Beginning(const toolkit::Font& font, std::string_view text, double limit) override;

 private:
  Window_Context& context_;
  Broadcasts broadcasts_;
};

}  // namespace win32

// The screen, the desktop's picture and the windows of its shell.
#pragma once

#include "platform/desktop_shell.h"
#include "platform/screen.h"
#include "platform/wallpaper.h"
#include "win32/window_context.h"

namespace win32 {

class Primary_Screen final : public platform::Screen {
 public:
  explicit Primary_Screen(const Scale& scale) : scale_(scale) {}

  platform::Pixel_Area Bounds() override;
  platform::Pixel_Area Work_Area() override;
  double Twips_Per_Pixel_X() override { return scale_.X; }
  double Twips_Per_Pixel_Y() override { return scale_.Y; }

 private:
  const Scale& scale_;
};

class Desktop_Picture final : public platform::Wallpaper {
 public:
  void Set_Picture(const std::string& path) override;
};

class Shell_Windows final : public platform::Desktop_Shell {
 public:
  explicit Shell_Windows(Window_Context& context) : context_(context) {}

  platform::Window_Handle Find_Top_Window(const char* window_class, const char* caption) override;
  platform::Window_Handle Find_Next_Top_Window(platform::Window_Handle after, const char* window_class) override;
  bool Exists(platform::Window_Handle window) override;
  platform::Window_Handle Find_Child(platform::Window_Handle parent, const char* window_class) override;
  std::optional<int> Send(platform::Window_Handle window, unsigned message, int parameter, int patience) override;
  platform::Adoption Set_Parent(platform::Window_Handle window, platform::Window_Handle parent) override;
  void Invalidate(platform::Window_Handle window) override;
  bool Update(platform::Window_Handle window, int patience) override;

 private:
  Window_Context& context_;
};

}  // namespace win32

// The screen, the desktop's picture and the windows of its shell.
#pragma once

#include "platform/desktop_shell.h"
#include "platform/screen.h"
#include "platform/wallpaper.h"
#include "platform/win32/scale.h"

namespace platform::win32 {

class Primary_Screen final : public Screen {
 public:
  explicit Primary_Screen(const Scale& scale) : scale_(scale) {}

  Pixel_Area Bounds() override;
  Pixel_Area Work_Area() override;
  double Twips_Per_Pixel_X() override { return scale_.X; }
  double Twips_Per_Pixel_Y() override { return scale_.Y; }

 private:
  const Scale& scale_;
};

class Desktop_Picture final : public Wallpaper {
 public:
  void Set_Picture(const std::string& path) override;
};

class Shell_Windows final : public Desktop_Shell {
 public:
  Window_Handle Find_Top_Window(const std::string& window_class, const std::string& caption) override;
  Window_Handle Find_Child(Window_Handle parent, const std::string& window_class) override;
  int Send(Window_Handle window, unsigned message, int parameter) override;
  void Set_Parent(Window_Handle window, Window_Handle parent) override;
  void Invalidate(Window_Handle window) override;
  void Update(Window_Handle window) override;
};

}  // namespace platform::win32

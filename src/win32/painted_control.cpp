#include "win32/painted_control.h"

#include "win32/painted_pictures.h"
#include "win32/painted_texts.h"

namespace win32 {

std::unique_ptr<Painted_Control> Make_Painted_Control(const toolkit::Control& control) {
  if (const auto* const label = dynamic_cast<const toolkit::Label*>(&control))
    return std::make_unique<Painted_Label>(*label);
  if (const auto* const box = dynamic_cast<const toolkit::Picture_Box*>(&control))
    return std::make_unique<Painted_Picture_Box>(*box);
  if (const auto* const image = dynamic_cast<const toolkit::Image*>(&control))
    return std::make_unique<Painted_Image>(*image);
  if (const auto* const frame = dynamic_cast<const toolkit::Frame*>(&control))
    return std::make_unique<Painted_Frame>(*frame);
  return nullptr;
}

}  // namespace win32

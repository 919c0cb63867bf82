#include "toolkit/accelerator.h"

#include "basic/text.h"

namespace toolkit {

std::string Without_Marks(std::string_view caption) {
  std::string shown;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    shown += caption[i];
  }
  return shown;
}

char Accelerator_Of(std::string_view caption) {
  for (std::size_t at = caption.find('&'); at != std::string_view::npos && at + 1 < caption.size();
       at = caption.find('&', at + 2))
    if (caption[at + 1] != '&') return basic::Upper_Case(caption.substr(at + 1, 1)).front();
  return 0;
}

}  // namespace toolkit

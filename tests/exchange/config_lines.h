// All lines of a configuration file.
#pragma once

#include <string>
#include <vector>

#include "exchange/config.h"

inline std::vector<std::string> Config_Lines(const exchange::Shown_Values& shown) {
  std::vector<std::string> lines;
  for (int i = 0; i < exchange::config_lines; ++i) lines.push_back(exchange::Config_Line(shown, i));
  return lines;
}

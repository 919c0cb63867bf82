// The text of a scenario, cut into commands: one a line, words separated by blanks, quoted where they hold any.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text_form.h"

namespace play {

struct Command {
  std::string Name;
  std::vector<std::string> Words;  ///< what stands after the name, without quotes and escapes
  int Line = 0;                    ///< from 1 on
};

/// What is wrong in which line.
struct Scenario_Error : Cannot_Play {
  Scenario_Error(int line, const std::string& why) : Cannot_Play(why), Line(line) {}

  int Line;
};

/// Throws Scenario_Error. A last word `<<END` (any word after the signs) of a line that begins with `put` stands for
/// the lines that follow up to a line END, each ended by CR LF.
std::vector<Command> Read_Scenario(std::string_view text);

}  // namespace play

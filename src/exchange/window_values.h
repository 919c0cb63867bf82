// What the settings window shows, for the configuration file: applied or not.
#pragma once

#include <optional>

#include "settings/settings.h"

namespace exchange {

struct Shown_Values {
  /// All but those below.
  settings::Settings Values{};

  std::string Idle_Time;  ///< as its list shows it

  /// What the options that are on stand for; nothing where none of a group is on.
  std::optional<basic::Int16> Style, Position, Title_Row_Source, Tips;
};

class Window_Values {
 public:
  [[nodiscard]] virtual Shown_Values Shown() const = 0;

 protected:
  ~Window_Values() = default;
};

}  // namespace exchange

// What the event file reads from the event editor, and the one thing that it tells it.
#pragma once

#include <string>

namespace events {

class Editor_Input {
 public:
  /// The text as it stands in the editor, "" while there is no editor.
  [[nodiscard]] virtual std::string Message_Text() const = 0;

  /// Whether "every year" is ticked, and its ticking.
  [[nodiscard]] virtual bool Every_Year() const = 0;
  virtual void Tick_Every_Year() = 0;

 protected:
  ~Editor_Input() = default;
};

}  // namespace events

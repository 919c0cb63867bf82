// The desktop's windows in memory: "Progman", the view in it, and the list of icons in the view. A test decides which
// of them exist.
#pragma once

#include <map>
#include <utility>

#include "platform/desktop_shell.h"

namespace memory {

/// Which of the desktop's windows exist: those up to the one named.
enum class Shell_Chain { None, Progman, Def_View, Icon_List };

class Memory_Shell : public platform::Desktop_Shell {
 public:
  platform::Window_Handle Find_Top_Window(const std::string& window_class, const std::string& caption) override;
  platform::Window_Handle Find_Child(platform::Window_Handle parent, const std::string& window_class) override;

  /// The list of icons answers the three messages for its colours. Any other message, or one to another window of the
  /// desktop, throws std::logic_error; a window that doesn't exist answers 0.
  int Send(platform::Window_Handle window, unsigned message, int parameter) override;
  void Set_Parent(platform::Window_Handle window, platform::Window_Handle parent) override {
    parents_[window] = parent;
  }
  void Invalidate(platform::Window_Handle window) override;
  void Update(platform::Window_Handle window) override;

  void Set_Chain(Shell_Chain chain) { chain_ = chain; }

  /// The text background (platform::no_colour for none) and the text colour of the list of icons.
  void Set_Icon_Colours(int back, int text);
  [[nodiscard]] int Icon_Back() const { return icon_back_; }

  /// How often the list of icons has been repainted since the last call.
  int Take_Repaints() { return std::exchange(repaints_, 0); }

  /// Returns true if the window was made a child of "Progman".
  [[nodiscard]] bool Under_Progman(platform::Window_Handle window) const;

 private:
  [[nodiscard]] bool Exists(platform::Window_Handle window) const;

  Shell_Chain chain_ = Shell_Chain::None;
  int icon_back_ = platform::no_colour, icon_text_ = 16777215;
  bool invalid_ = false;
  int repaints_ = 0;
  std::map<platform::Window_Handle, platform::Window_Handle> parents_;
};

}  // namespace memory

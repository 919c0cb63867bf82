// The desktop's windows in memory: "Progman", the view in it, and the list of icons in the view. A test decides which
// of them exist.
#pragma once

#include <limits>
#include <map>
#include <utility>

#include "platform/desktop_shell.h"

namespace memory {

/// Which of the desktop's windows exist: those up to the one named.
enum class Shell_Chain { None, Progman, Def_View, Icon_List };

class Memory_Shell : public platform::Desktop_Shell {
 public:
  platform::Window_Handle Find_Top_Window(const char* window_class, const char* caption) override;
  platform::Window_Handle Find_Next_Top_Window(platform::Window_Handle after, const char* window_class) override;
  bool Exists(platform::Window_Handle window) override;
  platform::Window_Handle Find_Child(platform::Window_Handle parent, const char* window_class) override;

  /// The list of icons answers the three messages for its colours. Any other message, or one to another window of the
  /// desktop, throws std::logic_error.
  std::optional<int> Send(platform::Window_Handle window, unsigned message, int parameter, int patience) override;
  platform::Adoption Set_Parent(platform::Window_Handle window, platform::Window_Handle parent) override;
  void Invalidate(platform::Window_Handle window) override;
  bool Update(platform::Window_Handle window, int patience) override;

  void Set_Chain(Shell_Chain chain) { chain_ = chain; }

  /// Two windows of the class "WorkerW" lie before "Progman", and the view is in the second of them.
  void Set_Worker(bool worker) { worker_ = worker; }

  /// The class of the window that holds the view of the icons.
  [[nodiscard]] const char* Icons_Are_In() const { return worker_ ? "WorkerW" : "Progman"; }

  /// The desktop's windows can't show a child: none becomes one.
  void Refuse_Children(bool refuse) { refuse_ = refuse; }

  /// The next attempt to make a window a child fails, as in a shell that is just starting.
  void Fail_Once() { fail_once_ = true; }

  /// From now on no window answers, or after that many answers more.
  void Hang(bool hang) { answers_left_ = hang ? 0 : endless; }
  void Hang_After(int answers) { answers_left_ = answers; }

  /// Each answer takes that long, in milliseconds.
  void Answer_After(int milliseconds) { answer_time_ = milliseconds; }

  /// How long answers have been waited for since the last call, in milliseconds.
  int Take_Waits() { return std::exchange(waits_, 0); }

  /// The shell ends and comes again, with windows of other handles. What was a child of the old ones is one no longer.
  void Restart() { ++life_; }

  /// The text background (platform::no_colour for none) and the text colour of the list of icons.
  void Set_Icon_Colours(int back, int text);
  [[nodiscard]] int Icon_Back() const { return icon_back_; }

  /// How often the list of icons has been repainted since the last call.
  int Take_Repaints() { return std::exchange(repaints_, 0); }

  /// How often a window was to become a child of another one.
  [[nodiscard]] int Moves() const { return moves_; }

  /// Whether the window is a child of the one that holds the view of the icons.
  [[nodiscard]] bool Part_Of_Desktop(platform::Window_Handle window);

 private:
  enum class Part { First_Worker = 1, Second_Worker, Progman, Def_View, Icon_List };

  static constexpr int endless = std::numeric_limits<int>::max();

  [[nodiscard]] platform::Window_Handle Handle_Of(Part part) const;
  [[nodiscard]] platform::Window_Handle If_There(Part part);
  [[nodiscard]] bool Answers(platform::Window_Handle window, int patience);
  [[nodiscard]] Part Holder_Of_View() const { return worker_ ? Part::Second_Worker : Part::Progman; }

  Shell_Chain chain_ = Shell_Chain::None;
  bool worker_ = false;
  bool refuse_ = false, fail_once_ = false;
  int life_ = 0;
  int icon_back_ = platform::no_colour, icon_text_ = 16777215;
  bool invalid_ = false;
  int repaints_ = 0;
  int moves_ = 0;
  int answers_left_ = endless;
  int answer_time_ = 0, waits_ = 0;  // milliseconds
  std::map<platform::Window_Handle, platform::Window_Handle> parents_;
};

}  // namespace memory

// All windows of the in-memory platform: which exist, in what order they were shown, which is in front and which is
// active.
//
// When the active window closes, the one that was active before it becomes active again, as the system activates an
// owner or the next window; that may be a window of another program.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "memory/memory_loop.h"
#include "toolkit/form.h"

namespace memory {

/// A window, as the list of windows knows it.
class Memory_Window {
 public:
  [[nodiscard]] virtual toolkit::Form& Form() const = 0;
  [[nodiscard]] virtual platform::Window_Handle Handle() const = 0;

  /// The region that the window was last cut to, if any.
  [[nodiscard]] virtual const std::optional<toolkit::Region>& Region() const = 0;

 protected:
  ~Memory_Window() = default;
};

class Memory_Windows {
 public:
  Memory_Windows(Virtual_Time& time, Memory_Loop& loop, toolkit::Input& input)
      : time_(time), loop_(loop), input_(input) {}

  // Called by the windows themselves.
  void Add(Memory_Window& peer) { loaded_.push_back(&peer); }
  void Remove(Memory_Window& peer);
  void Shown(Memory_Window& peer, bool activate);
  void Hidden(Memory_Window& peer);
  void Minimised(Memory_Window& peer, bool minimised);
  void Give_Mouse(const Memory_Window* peer) { mouse_ = peer; }

  /// Makes the form the active window; nullptr: makes a window of another program active. The form that was active and
  /// the one that is now are both told.
  void Activate(toolkit::Form* form);
  [[nodiscard]] toolkit::Form* Active() const;

  /// The window that gets all moves and releases of the mouse; nullptr if the one under the pointer gets them.
  [[nodiscard]] const Memory_Window* Mouse() const { return mouse_; }

  /// The newest loaded form of that name, nullptr if there is none.
  [[nodiscard]] toolkit::Form* Find(std::string_view name) const;
  [[nodiscard]] toolkit::Form* Find(platform::Window_Handle handle) const;

  /// The window of a form, nullptr if the form isn't loaded.
  [[nodiscard]] Memory_Window* Peer_Of(const toolkit::Form& form) const;

  /// The visible forms in the order in which they became so.
  [[nodiscard]] std::vector<toolkit::Form*> In_Order_Of_Showing() const;

  /// All loaded forms: the visible ones from the front to the back, then the hidden ones.
  [[nodiscard]] std::vector<toolkit::Form*> From_The_Front() const;

  /// Called when the program ends: from now on no form is told what happens to the windows.
  void Silence() { silent_ = true; }

  /// Called when a program starts: none of its windows is active.
  void Begin();

 private:
  using Peers = std::vector<Memory_Window*>;

  [[nodiscard]] bool Is_Loaded(const Memory_Window* peer) const;
  [[nodiscard]] Memory_Window* Active_Peer() const { return activations_.empty() ? nullptr : activations_.back(); }
  void Make_Active(Memory_Window* peer);
  void Tell_Activated(Memory_Window* peer);
  void Tell_Deactivated(Memory_Window* peer);
  void Take_Off(Memory_Window& peer);

  Virtual_Time& time_;
  Memory_Loop& loop_;
  toolkit::Input& input_;
  Peers loaded_;       // in the order of loading
  Peers shown_;        // the visible ones in the order of showing
  Peers front_;        // the visible ones, the foremost last
  Peers activations_;  // the visible ones that were active, the active one last; nullptr is another program
  const Memory_Window* mouse_ = nullptr;
  bool silent_ = false;
};

}  // namespace memory

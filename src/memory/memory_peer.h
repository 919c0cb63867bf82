// A window of the in-memory platform: remembers what its form has told it, for the tests to look at.
#pragma once

#include <optional>

#include "memory/memory_windows.h"
#include "toolkit/backend.h"

namespace memory {

/// How often a form has called each function of its window.
struct Peer_Counts {
  int Shows = 0, Hides = 0, Form_Changes = 0, Control_Changes = 0, Regions = 0;
};

class Memory_Peer : public toolkit::Form_Peer, public Memory_Window {
 public:
  Memory_Peer(Memory_Windows& windows, toolkit::Form& form, platform::Window_Handle handle);
  Memory_Peer(const Memory_Peer&) = delete;
  Memory_Peer& operator=(const Memory_Peer&) = delete;
  ~Memory_Peer() override;

  void Show(bool activate) override;
  void Hide() override;
  void Activate() override;
  void Form_Changed(toolkit::Aspect aspect) override;

  /// Throws std::logic_error for a control of another window.
  void Control_Changed(toolkit::Control& control, toolkit::Aspect aspect) override;
  void Paint_Now() override {}
  void Set_Region(const toolkit::Region& region) override;
  void Set_Round_Region(int width, int height, int corner) override;
  [[nodiscard]] bool Minimised() const override { return minimised_; }
  void Set_Minimised(bool minimised) override;

  /// Throws std::logic_error for a control of another window, and while this one isn't active.
  void Focus(toolkit::Control* control) override;
  void Capture_Mouse() override;
  void Release_Mouse() override;
  [[nodiscard]] platform::Window_Handle Handle() const override { return handle_; }
  [[nodiscard]] platform::Window_Handle Handle_Of(const toolkit::Control& control) const override;

  [[nodiscard]] toolkit::Form& Form() const override { return form_; }
  [[nodiscard]] const std::optional<toolkit::Region>& Region() const override { return region_; }

  /// The control that was last given the keys. It may no longer exist: only compare the pointer.
  [[nodiscard]] const toolkit::Control* Focused() const { return focused_; }
  [[nodiscard]] const Peer_Counts& Counts() const { return counts_; }

 private:
  [[nodiscard]] bool Has(const toolkit::Control& control) const;

  Memory_Windows& windows_;
  toolkit::Form& form_;
  const platform::Window_Handle handle_;
  std::optional<toolkit::Region> region_;
  const toolkit::Control* focused_ = nullptr;
  bool minimised_ = false;
  Peer_Counts counts_;
};

}  // namespace memory

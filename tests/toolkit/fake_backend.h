// A window system that remembers what it was told, in words.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/backend.h"
#include "toolkit/control.h"
#include "toolkit/form.h"
#include "toolkit/timer.h"

using Words = std::vector<std::string>;

inline std::string In_Words(toolkit::Aspect aspect) {
  switch (aspect) {
    case toolkit::Aspect::Bounds: return "bounds";
    case toolkit::Aspect::Visible: return "visible";
    case toolkit::Aspect::Enabled: return "enabled";
    case toolkit::Aspect::Caption: return "caption";
    case toolkit::Aspect::Value: return "value";
    case toolkit::Aspect::Items: return "items";
    case toolkit::Aspect::Appearance: return "appearance";
    case toolkit::Aspect::Tool_Tip: return "tool tip";
    case toolkit::Aspect::Selection: return "selection";
    case toolkit::Aspect::Default_Button: return "default button";
    case toolkit::Aspect::Held: return "held";
    case toolkit::Aspect::Pointer: return "pointer";
    case toolkit::Aspect::Drag_Tip: return "drag tip";
  }
  return "?";
}

class Fake_Backend : public toolkit::Backend {
 public:
  Words Told;       ///< all that the windows were told, in order
  int Windows = 0;  ///< windows that exist at this moment
  int Heights_Measured = 0;
  bool Minimised = false;  ///< what each window says
  toolkit::Form* Active = nullptr;
  toolkit::Region Last_Region;

  /// What was told since the last call.
  Words Take() {
    Words taken;
    taken.swap(Told);
    return taken;
  }

  std::unique_ptr<toolkit::Form_Peer> Make_Peer(toolkit::Form& form) override {
    Told.push_back("make " + form.Name);
    return std::make_unique<Peer>(*this, form);
  }
  void Start_Timer(toolkit::Timer& timer) override { Told.push_back("start " + timer.Name); }
  void Stop_Timer(toolkit::Timer& timer) override { Told.push_back("stop " + timer.Name); }
  toolkit::Form* Active_Form() override { return Active; }
  double Twips_Per_Pixel(toolkit::Axis axis) override { return axis == toolkit::Axis::Across ? 15 : 12; }
  double Frame_Size(toolkit::Form_Border border, toolkit::Axis axis) override {
    if (border == toolkit::Form_Border::None) return 0;
    return axis == toolkit::Axis::Across ? 90 : 375;
  }
  double Screen_Size(toolkit::Axis axis) override { return axis == toolkit::Axis::Across ? 12000 : 9000; }

  void Show_Busy(bool busy) override { Told.emplace_back(busy ? "busy" : "not busy"); }

  std::string Font_Given_For(const std::string& name) override { return name == "Absent" ? "Arial" : name; }

  /// Ten twips a character and point, twice that in bold.
  double Text_Width(const toolkit::Font& font, std::string_view text) override {
    return 10 * font.Size * static_cast<double>(text.size()) * (font.Bold ? 2 : 1);
  }
  /// Thirty twips a line and point, broken anywhere.
  double Text_Height(const toolkit::Font& font, std::string_view text, double width) override {
    ++Heights_Measured;
    return 30 * font.Size * std::max(1.0, std::ceil(Text_Width(font, text) / width));
  }
  std::size_t Longest_Beginning(const toolkit::Font& font, std::string_view text, double limit) override {
    std::size_t length = text.size();
    while (length > 0 && Text_Width(font, text.substr(0, length)) >= limit) --length;
    return length;
  }

 private:
  class Peer : public toolkit::Form_Peer {
   public:
    Peer(Fake_Backend& backend, toolkit::Form& form) : backend_(backend), form_(form) { ++backend_.Windows; }
    ~Peer() override {
      --backend_.Windows;
      if (backend_.Active == &form_) backend_.Active = nullptr;
      backend_.Told.emplace_back("remove");
    }

    void Show(bool activate) override { backend_.Told.emplace_back(activate ? "show active" : "show"); }
    void Hide() override { backend_.Told.emplace_back("hide"); }
    void Activate() override {
      toolkit::Form* const before = std::exchange(backend_.Active, &form_);
      if (before == &form_) return;
      backend_.Told.push_back("activate " + form_.Name);
      if (before != nullptr) backend_.Input.Activity_Went(*before);
      backend_.Input.Activity_Came(form_);
    }
    void Form_Changed(toolkit::Aspect aspect) override { backend_.Told.push_back("form " + In_Words(aspect)); }
    void Control_Changed(toolkit::Control& control, toolkit::Aspect aspect) override {
      backend_.Told.push_back(control.Name + ' ' + In_Words(aspect));
    }
    void Paint_Now() override { backend_.Told.emplace_back("paint"); }
    void Set_Region(const toolkit::Region& region) override {
      backend_.Last_Region = region;
      backend_.Told.push_back("region of " + std::to_string(region.Rects().size()));
    }
    void Set_Round_Region(int width, int height, int corner) override {
      backend_.Told.push_back("round region " + std::to_string(width) + ' ' + std::to_string(height) + ' ' +
                              std::to_string(corner));
    }
    [[nodiscard]] bool Minimised() const override { return backend_.Minimised; }
    void Set_Minimised(bool minimised) override {
      backend_.Minimised = minimised;
      backend_.Told.emplace_back(minimised ? "minimise" : "restore");
    }
    void Focus(toolkit::Control* control) override {
      backend_.Told.push_back("focus " + (control != nullptr ? control->Name : "window"));
    }
    void Capture_Mouse() override { backend_.Told.emplace_back("capture"); }
    void Release_Mouse() override { backend_.Told.emplace_back("release"); }
    [[nodiscard]] platform::Window_Handle Handle() const override { return 4711; }
    [[nodiscard]] platform::Window_Handle Handle_Of(const toolkit::Control& /*control*/) const override { return 4712; }

   private:
    Fake_Backend& backend_;
    toolkit::Form& form_;
  };
};

/// A loaded window whose making has been told already.
class Loaded_Form {
 public:
  Fake_Backend Backend;
  toolkit::Form Window{Backend, "Main_Frm"};

  Loaded_Form() {
    Window.Load();
    Backend.Take();
  }
};

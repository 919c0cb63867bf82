// What a balloon stands in: a window system whose timers a test can tick, a screen and the calendar's window.
#pragma once

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "tooltips/balloon_tooltip.h"

/// Fifteen twips a pixel across and twelve down, as the window system has it.
class Balloon_Screen : public platform::Screen {
 public:
  platform::Pixel_Area Area{0, 0, 1280, 1024};

  platform::Pixel_Area Bounds() override { return {0, 0, 1280, 1024}; }
  platform::Pixel_Area Work_Area() override { return Area; }
  double Twips_Per_Pixel_X() override { return 15; }
  double Twips_Per_Pixel_Y() override { return 12; }
};

class Balloon_Backend : public Fake_Backend {
 public:
  std::vector<const toolkit::Form*> Forms;  ///< all that were ever loaded; only the last is sure to be there
  std::vector<toolkit::Timer*> Ticking;
  bool Has_Tahoma = true;

  std::unique_ptr<toolkit::Form_Peer> Make_Peer(toolkit::Form& form) override {
    Forms.push_back(&form);
    return Fake_Backend::Make_Peer(form);
  }
  void Start_Timer(toolkit::Timer& timer) override {
    Fake_Backend::Start_Timer(timer);
    Ticking.push_back(&timer);
  }
  void Stop_Timer(toolkit::Timer& timer) override {
    Fake_Backend::Stop_Timer(timer);
    std::erase(Ticking, &timer);
  }
  std::string Font_Given_For(const std::string& name) override {
    return name == "Tahoma" && !Has_Tahoma ? "Arial" : name;
  }
};

class Balloon_World : public ::testing::Test {
 protected:
  Balloon_World() {
    Calls.Rebuild_Month = [this] { Done += "month "; };
    Calls.Idle_Restart = [this] { Done += "idle "; };
  }

  Balloon_Backend Backend;
  Balloon_Screen Screen;
  presentation::Main_Frm Made{Backend};
  state::Calendar_State Calendar;
  tooltips::Balloon_Calls Calls;
  std::string Done;  ///< what was called of the calendar, in order
};

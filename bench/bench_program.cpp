#include "bench/bench_program.h"

#include <algorithm>
#include <stdexcept>

namespace bench {

namespace {

constexpr std::int64_t nine_in_the_morning = 9 * 3600 * memory::micros_of_a_second;
constexpr std::int64_t time_to_rest = 5 * memory::micros_of_a_second;

}  // namespace

void Watched_Backend::Start_Timer(toolkit::Timer& timer) {
  if (timer.Name == "Dectect_Date_Timer") Date_Timer = &timer;
  Memory_Backend::Start_Timer(timer);
}

Bench_Program::Bench_Program(platform::Files& files) : program_(backend_, System_With(files)) {
  program_.Start();
  window_ = backend_.Windows.Find("Main_Frm");
  next_ = Find_Control(window_, "Next_Month_Lbl");
  previous_ = Find_Control(window_, "Prev_Month_Lbl");
  if (next_ == nullptr || previous_ == nullptr || backend_.Date_Timer == nullptr)
    throw std::runtime_error("the program didn't start");
  Play(time_to_rest);
  backend_.Windows.Activate(window_);
  Tick();
  if (!platform_.Message_Box.Take_Shown().empty())
    throw std::runtime_error("the program showed a message at its start");
  if (Boxes_With_Events() == 0) throw std::runtime_error("the month on view shows no event");
}

Bench_Program::~Bench_Program() { backend_.Windows.Silence(); }

platform::System Bench_Program::System_With(platform::Files& files) {
  platform_.Time.Set_Now({basic::Date_Serial(2004, 3, 5), nine_in_the_morning});
  platform_.Begin_Program();
  const platform::System all = platform_.System();
  return {all.Clock,     all.Locale,   files,          all.Loop,       all.Message_Box, all.Popup_Menu,
          all.Store,     all.Screen,   all.Instances,  all.Shell,      all.Registry,    all.Profiles,
          all.Wallpaper, all.Pictures, all.Shell_Open, all.File_Dialog};
}

void Bench_Program::Open_Settings() {
  window_->On_Key_Up(toolkit::key_f8);
  const toolkit::Form* const settings = backend_.Windows.Find("Settings_Frm");
  overview_ = Find_Control(settings, "Overview_Opt");
  events_ = dynamic_cast<toolkit::List_Box*>(Find_Control(settings, "Events_Lst"));
  if (overview_ == nullptr || events_ == nullptr) throw std::runtime_error("the settings window didn't open");
}

int Bench_Program::Sort_Events() {
  overview_->On_Click();
  return events_->ListCount();
}

toolkit::Control* Bench_Program::Find_Control(const toolkit::Form* window, const char* name) {
  if (window == nullptr) return nullptr;
  const auto& controls = window->Controls();
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const auto* c) { return c->Name == name; });
  return found == controls.end() ? nullptr : *found;
}

int Bench_Program::Boxes_With_Events() const {
  return static_cast<int>(std::ranges::count_if(window_->Controls(), [](const toolkit::Control* control) {
    const auto* const label = dynamic_cast<const toolkit::Label*>(control);
    return label != nullptr && label->Name == "Box_Caption_Lbl" && label->Visible && !label->Caption().empty();
  }));
}

}  // namespace bench

#include "presentation/desktop_embedding.h"

#include <utility>

namespace presentation {

namespace {

constexpr char top_class[] = "Progman", top_caption[] = "Program Manager", worker_class[] = "WorkerW";
constexpr char view_class[] = "SHELLDLL_DefView", list_class[] = "SysListView32";

// How long the shell is waited for, in milliseconds. At the start of a session it is busy; on the tick the user would
// feel it.
constexpr int patience_at_start = 10'000, patience_on_tick = 200;

// A shell that is only busy answers within a few ticks; one that hangs isn't asked for five seconds.
constexpr int misses_of_a_busy_shell = 2, ticks_without_questions = 50;

}  // namespace

Desktop_Embedding::Desktop_Embedding(platform::Desktop_Shell& shell, Main_Frm& main_frm,
                                     const settings::Settings& settings, state::Calendar_State& calendar,
                                     std::function<void()> show_splash)
    : shell_(shell), main_frm_(main_frm), settings_(settings), calendar_(calendar),
      show_splash_(std::move(show_splash)) {}

void Desktop_Embedding::No_ShowDesktop_and_IconColours() {
  const platform::Window_Handle progman = shell_.Find_Top_Window(top_class, top_caption);
  if (progman == 0) return;
  if (settings_.Show_Splash == 1) show_splash_();
  // A move to a shell that hangs would never end, so it comes only after answers.
  if (Find_Icons(progman) && Learn_Colours(patience_at_start)) Enter_Desktop();
}

/// On newer systems the view of the icons may be in one of several other windows.
bool Desktop_Embedding::Find_Icons(platform::Window_Handle progman) {
  iconlist_hwnd_ = 0;
  icons_top_hwnd_ = progman;
  defview_hwnd_ = shell_.Find_Child(progman, view_class);
  if (defview_hwnd_ == 0) {
    icons_top_hwnd_ = 0;
    do {
      icons_top_hwnd_ = shell_.Find_Next_Top_Window(icons_top_hwnd_, worker_class);
      if (icons_top_hwnd_ == 0) return false;
      defview_hwnd_ = shell_.Find_Child(icons_top_hwnd_, view_class);
    } while (defview_hwnd_ == 0);
  }
  iconlist_hwnd_ = shell_.Find_Child(defview_hwnd_, list_class);
  return iconlist_hwnd_ != 0;
}

/// Both colours or none: returns false where the icons don't answer.
bool Desktop_Embedding::Learn_Colours(int patience) {
  const auto back = shell_.Send(iconlist_hwnd_, platform::get_text_back_colour, 0, patience);
  if (!back) return false;
  const auto text = shell_.Send(iconlist_hwnd_, platform::get_text_colour, 0, patience);
  if (!text) return false;
  calendar_.Desktop_Back_Colour = *back;
  calendar_.Desktop_Text_Colour = *text;
  return true;
}

bool Desktop_Embedding::Enter_Desktop() {
  const platform::Adoption adoption = shell_.Set_Parent(main_frm_.Window.Handle(), icons_top_hwnd_);
  const bool done = adoption == platform::Adoption::Done;
  embedded_ = done ? main_frm_.Window.Handle() : 0;
  refused_ = adoption == platform::Adoption::Unseen ? icons_top_hwnd_ : 0;
  return done;
}

bool Desktop_Embedding::Embedded() const {
  return embedded_ != 0 && embedded_ == main_frm_.Window.Handle() && shell_.Exists(iconlist_hwnd_) &&
         shell_.Find_Child(icons_top_hwnd_, view_class) == defview_hwnd_;
}

bool Desktop_Embedding::Embed_Again() {
  if (ticks_left_alone_ > 0 || Embedded()) return false;
  embedded_ = 0;
  iconlist_hwnd_ = 0;
  const platform::Window_Handle progman = shell_.Find_Top_Window(top_class, top_caption);
  if (progman == 0 || !Find_Icons(progman) || icons_top_hwnd_ == refused_) return false;
  const bool answers = Learn_Colours(patience_on_tick);
  Count_Misses(answers);
  return answers && Enter_Desktop();
}

void Desktop_Embedding::Keep_Desktop_Text_Clear() {
  if (ticks_left_alone_ > 0) {
    --ticks_left_alone_;
    return;
  }
  // Icons that have gone are no silent ones: the calendar comes back to the new ones at the next look.
  if (settings_.Trans_Icons != 1 || iconlist_hwnd_ == 0 || !shell_.Exists(iconlist_hwnd_)) return;
  Count_Misses(Clear_Text());
}

void Desktop_Embedding::Count_Misses(bool answered) {
  if (answered) misses_ = 0;
  else if (++misses_ > misses_of_a_busy_shell) ticks_left_alone_ = ticks_without_questions;
}

/// Returns false where the icons don't answer.
bool Desktop_Embedding::Clear_Text() {
  const auto back = shell_.Send(iconlist_hwnd_, platform::get_text_back_colour, 0, patience_on_tick);
  if (back == platform::no_colour) return true;
  if (!back) return false;
  const auto set = shell_.Send(iconlist_hwnd_, platform::set_text_back_colour, platform::no_colour, patience_on_tick);
  // Without an answer too: the message still waits there, and once it is served nothing else tells that it was.
  shell_.Invalidate(iconlist_hwnd_);
  return set && shell_.Update(iconlist_hwnd_, patience_on_tick);
}

}  // namespace presentation

#include "presentation/desktop_embedding.h"

#include <string>
#include <utility>

namespace presentation {

namespace {

// Made once: the tick asks for some of them, and allocates nothing.
const std::string top_class = "Progman", top_caption = "Program Manager", worker_class = "WorkerW";
const std::string view_class = "SHELLDLL_DefView", list_class = "SysListView32";

}  // namespace

Desktop_Embedding::Desktop_Embedding(platform::Desktop_Shell& shell, Main_Frm& main_frm,
                                     const settings::Settings& settings, state::Calendar_State& calendar,
                                     std::function<void()> show_splash)
    : shell_(shell), main_frm_(main_frm), settings_(settings), calendar_(calendar),
      show_splash_(std::move(show_splash)) {}

void Desktop_Embedding::No_ShowDesktop_and_IconColours() {
  progman_hwnd_ = shell_.Find_Top_Window(top_class, top_caption);
  if (progman_hwnd_ == 0) return;
  if (settings_.Show_Splash == 1) show_splash_();
  Find_Icons();
  Enter_Desktop();
}

/// On newer systems the view of the icons may be in one of several other windows.
void Desktop_Embedding::Find_Icons() {
  iconlist_hwnd_ = 0;
  icons_top_hwnd_ = progman_hwnd_;
  defview_hwnd_ = shell_.Find_Child(progman_hwnd_, view_class);
  if (defview_hwnd_ == 0) {
    icons_top_hwnd_ = 0;
    do {
      icons_top_hwnd_ = shell_.Find_Next_Top_Window(icons_top_hwnd_, worker_class);
      if (icons_top_hwnd_ == 0) return;
      defview_hwnd_ = shell_.Find_Child(icons_top_hwnd_, view_class);
    } while (defview_hwnd_ == 0);
  }
  iconlist_hwnd_ = shell_.Find_Child(defview_hwnd_, list_class);
}

bool Desktop_Embedding::Enter_Desktop() {
  if (iconlist_hwnd_ == 0 || icons_top_hwnd_ == refused_) return false;
  calendar_.Desktop_Back_Colour = shell_.Send(iconlist_hwnd_, platform::get_text_back_colour, 0);
  calendar_.Desktop_Text_Colour = shell_.Send(iconlist_hwnd_, platform::get_text_colour, 0);
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
  if (Embedded()) return false;
  embedded_ = 0;
  iconlist_hwnd_ = 0;
  progman_hwnd_ = shell_.Find_Top_Window(top_class, top_caption);
  if (progman_hwnd_ == 0) return false;
  Find_Icons();
  return Enter_Desktop();
}

void Desktop_Embedding::Keep_Desktop_Text_Clear() {
  if (settings_.Trans_Icons != 1 || iconlist_hwnd_ == 0) return;
  if (shell_.Send(iconlist_hwnd_, platform::get_text_back_colour, 0) == platform::no_colour) return;
  shell_.Send(iconlist_hwnd_, platform::set_text_back_colour, platform::no_colour);
  shell_.Invalidate(iconlist_hwnd_);
  shell_.Update(iconlist_hwnd_);
}

}  // namespace presentation

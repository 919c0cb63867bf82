#include "presentation/desktop_embedding.h"

namespace presentation {

namespace {

// The list view's messages.
constexpr unsigned get_text_colour = 4131;
constexpr unsigned get_text_back_colour = 4133;
constexpr unsigned set_text_back_colour = 4134;
constexpr int no_colour = -1;

}  // namespace

Desktop_Embedding::Desktop_Embedding(platform::Desktop_Shell& shell, Arrangement& arrangement,
                                     const settings::Settings& settings, state::Calendar_State& calendar)
    : shell_(shell), arrangement_(arrangement), settings_(settings), calendar_(calendar) {}

void Desktop_Embedding::No_ShowDesktop_and_IconColours() {
  progman_hwnd_ = shell_.Find_Top_Window("Progman", "Program Manager");
  if (progman_hwnd_ == 0) return;
  if (settings_.Show_Splash == 1) Show_Splash();
  defview_hwnd_ = shell_.Find_Child(progman_hwnd_, "SHELLDLL_DefView");
  if (defview_hwnd_ == 0) return;
  iconlist_hwnd_ = shell_.Find_Child(defview_hwnd_, "SysListView32");
  if (iconlist_hwnd_ == 0) return;
  calendar_.Desktop_Back_Colour = shell_.Send(iconlist_hwnd_, get_text_back_colour, 0);
  calendar_.Desktop_Text_Colour = shell_.Send(iconlist_hwnd_, get_text_colour, 0);
  shell_.Set_Parent(arrangement_.Main_Frm.Handle(), progman_hwnd_);
}

void Desktop_Embedding::Keep_Desktop_Text_Clear() {
  if (iconlist_hwnd_ == 0) return;
  if (shell_.Send(iconlist_hwnd_, get_text_back_colour, 0) == no_colour) return;
  shell_.Send(iconlist_hwnd_, set_text_back_colour, no_colour);
  shell_.Invalidate(iconlist_hwnd_);
  shell_.Update(iconlist_hwnd_);
}

}  // namespace presentation

// Which of the system's controls a control of the toolkit is.
#include "toolkit/dialog_owner.h"
#include "win32/native_buttons.h"
#include "win32/native_lists.h"
#include "win32/native_slider.h"
#include "win32/native_tab_strip.h"
#include "win32/native_text_box.h"

namespace win32 {

namespace {

/// A window that is never shown.
class Native_Dialog_Owner final : public Native_Control {
 public:
  Native_Dialog_Owner(HWND parent, toolkit::Dialog_Owner& control, Window_Context& context)
      : Native_Control(parent, control, context) {
    Make({"STATIC", 0, 0});
  }

 private:
  void Show(toolkit::Aspect /*aspect*/) override {}
};

/// A `Native` if the control is of that kind.
template <class Native, class Kind>
bool Make(std::unique_ptr<Native_Control>& made, HWND parent, toolkit::Control& control, Window_Context& context) {
  auto* const of_kind = dynamic_cast<Kind*>(&control);
  if (of_kind != nullptr) made = std::make_unique<Native>(parent, *of_kind, context);
  return of_kind != nullptr;
}

}  // namespace

std::unique_ptr<Native_Control> Make_Native_Control(HWND parent, toolkit::Control& control, Window_Context& context) {
  std::unique_ptr<Native_Control> made;
  static_cast<void>(Make<Native_Text_Box, toolkit::Text_Box>(made, parent, control, context) ||
                    Make<Native_Check_Box, toolkit::Check_Box>(made, parent, control, context) ||
                    Make<Native_Option_Button, toolkit::Option_Button>(made, parent, control, context) ||
                    Make<Native_Push_Button, toolkit::Command_Button>(made, parent, control, context) ||
                    Make<Native_List_Box, toolkit::List_Box>(made, parent, control, context) ||
                    Make<Native_Combo_Box, toolkit::Combo_Box>(made, parent, control, context) ||
                    Make<Native_Slider, toolkit::Slider>(made, parent, control, context) ||
                    Make<Native_Tab_Strip, toolkit::Tab_Strip>(made, parent, control, context) ||
                    Make<Native_Dialog_Owner, toolkit::Dialog_Owner>(made, parent, control, context));
  return made;
}

}  // namespace win32

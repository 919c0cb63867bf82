// A text box of several lines with a vertical scroll bar. Line ends are CR LF.
#pragma once

#include "toolkit/label.h"

namespace toolkit {

class Text_Box : public Control, public Font_Properties {
 public:
  Text_Box(const Container& container, std::string name, int index = -1);

  Property<std::string> Text{*this, Aspect::Caption};
  /// The selection. What lies outside the text is cut off.
  Property<int> SelStart{*this, Aspect::Selection};   ///< characters before the selection
  Property<int> SelLength{*this, Aspect::Selection};  ///< characters selected

  /// After each change of the text, by the user or by the program.
  std::function<void()> On_Change;

  /// What the user typed or pasted: the whole text as the box shows it now.
  void User_Text(std::string text);

  /// A character typed by the user in place of the selection.
  void User_Character(std::string_view character);

  void Changed(Aspect aspect) override;

  [[nodiscard]] bool Takes_Focus() const override { return true; }
  [[nodiscard]] Role Kind() const override { return Role::Text_Box; }
  [[nodiscard]] std::optional<std::string> Shown_Value() const override { return Text(); }

  /// Selects the whole text, as in every dialog.
  void Focused_By_Key() override;

 private:
  void Keep_Selection_Inside();
};

}  // namespace toolkit

// A strip of tabs above the pages of a window. The pages are the window's affair.
#pragma once

#include <vector>

#include "toolkit/label.h"

namespace toolkit {

class Tab_Strip : public Control, public Font_Properties {
 public:
  Tab_Strip(const Container& container, std::string name, std::vector<std::string> captions);

  const std::vector<std::string> Captions;  ///< "&&" shows one "&"

  /// The number of the selected tab, from 1 on. A tab that gets selected clicks.
  Property<int> Selected{*this, Aspect::Value, 1};

  /// The user turns to a tab.
  void User_Select(int tab);

  /// The turning to a tab is the click.
  void User_Click() override {}

  void Changed(Aspect aspect) override;

  [[nodiscard]] bool Takes_Focus() const override { return true; }
  [[nodiscard]] Role Kind() const override { return Role::Tabs; }
  [[nodiscard]] int Part_Count() const override { return static_cast<int>(Captions.size()); }
  [[nodiscard]] std::string Part_Text(int part) const override;
  [[nodiscard]] int Selected_Part() const override { return Selected - 1; }
  void Select_Part(int part) override { User_Select(part + 1); }
  bool Key_Down(const Key& key) override;
};

}  // namespace toolkit

#include "toolkit/item_list.h"

#include <algorithm>
#include <utility>

#include "basic/run_error.h"
#include "basic/text.h"
#include "toolkit/form.h"
#include "toolkit/item_order.h"

namespace toolkit {

namespace {

constexpr int items_of_a_dropped_list = 8;

}  // namespace

Item_List::Item_List(const Container& container, std::string name, int index, Order order)
    : Control(container, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)), order_(order) {}

void Item_List::Clear() {
  if (items_.empty()) return;
  items_.clear();
  sorted_ = 0;
  index_ = -1;
  Changed(Aspect::Items);
}

void Item_List::Add_Item(std::string text) {
  items_.push_back(std::move(text));
  if (order_ == Order::Sorted) index_ = -1;
  Changed(Aspect::Items);
}

void Item_List::Remove_Item(int index) {
  Check(index);
  Sort();
  items_.erase(items_.begin() + index);
  sorted_ = items_.size();
  if (index == index_) index_ = -1;
  else if (index < index_) --index_;
  Changed(Aspect::Items);
}

const std::string& Item_List::List(int index) const {
  Check(index);
  Sort();
  return items_[static_cast<std::size_t>(index)];
}

void Item_List::Check(int index) const {
  if (index < 0 || index >= ListCount()) throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
}

/// Thousands of items come one by one: they are sorted when one is asked for.
void Item_List::Sort() const {
  if (order_ == Order::As_Added || sorted_ == items_.size()) return;
  const auto new_ones = items_.begin() + static_cast<std::ptrdiff_t>(sorted_);
  std::stable_sort(new_ones, items_.end(), Sorts_Before);
  std::inplace_merge(items_.begin(), new_ones, items_.end(), Sorts_Before);
  sorted_ = items_.size();
}

void Item_List::Select(int index) {
  if (index != -1) Check(index);
  if (std::exchange(index_, index) != index) Changed(Aspect::Selection);
  if (index != -1 && On_Click) On_Click();
}

bool Item_List::Select_Text(std::string_view text) {
  const std::string wanted = basic::Upper_Case(text);
  Sort();
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [&](const std::string& item) { return basic::Upper_Case(item) == wanted; });
  if (found == items_.end()) return false;
  Select(static_cast<int>(found - items_.begin()));
  return true;
}

void Item_List::User_Select(int index) {
  if (On_View() && Usable()) Select(index);
}

bool Item_List::Key_Down(const Key& key) {
  if (key.Ctrl) return false;
  int to = index_;
  switch (key.Code) {
    case key_up: --to; break;
    case key_down: ++to; break;
    case key_page_up: to -= Page(); break;
    case key_page_down: to += Page(); break;
    case key_home: to = 0; break;
    case key_end: to = ListCount() - 1; break;
    default: return false;
  }
  if (ListCount() == 0) return true;
  to = std::clamp(to, 0, ListCount() - 1);
  if (to != index_) User_Select(to);
  return true;
}

List_Box::List_Box(const Container& container, std::string name, Order order, int index)
    : Item_List(container, std::move(name), index, order) {}

int List_Box::Page() const {
  const double line = Window.System().Text_Height({FontName, FontSize, FontBold, FontItalic, FontUnderline}, "X", 1000);
  return std::max(static_cast<int>(In_Twips().Height / line) - 1, 1);
}

Combo_Box::Combo_Box(const Container& container, std::string name, int index)
    : Item_List(container, std::move(name), index, Order::As_Added) {}

int Combo_Box::Page() const { return items_of_a_dropped_list - 1; }

}  // namespace toolkit

// What list boxes and drop-down lists have in common: texts in an order, of which at most one is selected.
//
// A selection is a click, whoever makes it: the user, or the program, which clicks even where the entry was selected before.
#pragma once

#include <vector>

#include "toolkit/label.h"

namespace toolkit {

class Item_List : public Control, public Font_Properties {
 public:
  enum class Order { As_Added, Sorted };

  /// How many changes come before the window system hears of them, it hears of them once, when it asks for the items.
  void Clear();

  /// In a sorted list the selection goes by it.
  void Add_Item(std::string text);

  /// Throws error 5 where there is no such item. The selection goes with its item.
  void Remove_Item(int index);

  [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }

  /// Throws error 5 where there is no such item.
  [[nodiscard]] const std::string& List(int index) const;

  /// The selected item, -1 for none; and its text, "" for none.
  [[nodiscard]] int ListIndex() const { return index_; }
  [[nodiscard]] std::string Text() const { return index_ < 0 ? std::string() : List(index_); }

  /// Selects an item and clicks; -1 selects none and doesn't click. Throws error 5 where there is no such item.
  void Select(int index);

  /// Selects the first item of that text, without regard to case. Returns false, with nothing done, if there is none.
  bool Select_Text(std::string_view text);

  /// The user picks an item.
  void User_Select(int index);

  /// The picking of an item is the click.
  void User_Click() override {}

  [[nodiscard]] bool Takes_Focus() const override { return true; }

  [[nodiscard]] int Part_Count() const override { return ListCount(); }
  [[nodiscard]] std::string Part_Text(int part) const override { return List(part); }
  [[nodiscard]] int Selected_Part() const override { return ListIndex(); }
  void Select_Part(int part) override { User_Select(part); }

  /// Up, Down, Home, End and the pages move the selection.
  bool Key_Down(const Key& key) override;

 protected:
  Item_List(const Container& container, std::string name, int index, Order order);

  /// How many items a page has.
  [[nodiscard]] virtual int Page() const = 0;

 private:
  void Check(int index) const;
  void Sort() const;

  const Order order_;
  mutable std::vector<std::string> items_;
  mutable std::size_t sorted_ = 0;  // how many from the front on are sorted already
  int index_ = -1;
};

class List_Box : public Item_List {
 public:
  explicit List_Box(const Container& container, std::string name, Order order = Order::As_Added, int index = -1);

  [[nodiscard]] Role Kind() const override { return Role::List; }

 private:
  [[nodiscard]] int Page() const override;
};

/// A drop-down list, without an edit field.
class Combo_Box : public Item_List {
 public:
  explicit Combo_Box(const Container& container, std::string name, int index = -1);

  [[nodiscard]] Role Kind() const override { return Role::Drop_Down; }
  [[nodiscard]] std::optional<std::string> Shown_Value() const override { return Text(); }

 private:
  [[nodiscard]] int Page() const override;
};

}  // namespace toolkit

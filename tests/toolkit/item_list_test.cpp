#include "toolkit/item_list.h"

#include "tests/basic/error_of.h"
#include "tests/toolkit/input_world.h"
#include "toolkit/frame.h"

using toolkit::Combo_Box;
using toolkit::Item_List;
using toolkit::List_Box;

namespace {

class Item_List_Test : public Input_Test {
 protected:
  Item_List_Test() {
    for (Item_List* const list : All()) {
      list->On_Click = [this, list] { Clicked.push_back(list->Text()); };
      for (const char* const text : {"pear", "Apple", "fig"}) list->Add_Item(text);
    }
    Backend.Take();
  }

  std::array<Item_List*, 3> All() { return {&Plain, &Sorted, &Combo}; }

  static Words Items(const Item_List& list) {
    Words items;
    for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
    return items;
  }

  Words Take_Clicked() {
    Words taken;
    taken.swap(Clicked);
    return taken;
  }

  toolkit::Frame Page{Window, "Page_Fra"};
  List_Box Plain{Page, "Plain_Lst"};
  List_Box Sorted{Page, "Sorted_Lst", Item_List::Order::Sorted};
  Combo_Box Combo{Page, "Combo_Cbo"};
  Words Clicked;
};

}  // namespace

TEST_F(Item_List_Test, Keeps_its_items_as_they_were_added_unless_it_sorts_them) {
  EXPECT_EQ(Items(Plain), (Words{"pear", "Apple", "fig"}));
  EXPECT_EQ(Items(Combo), (Words{"pear", "Apple", "fig"}));
  EXPECT_EQ(Items(Sorted), (Words{"Apple", "fig", "pear"}));
  EXPECT_EQ(Sorted.ListCount(), 3);
}

TEST_F(Item_List_Test, A_sorted_list_takes_later_items_into_their_places) {
  EXPECT_EQ(Sorted.List(0), "Apple");
  Sorted.Add_Item("banana");
  Sorted.Add_Item("");
  Sorted.Add_Item("zebra");
  EXPECT_EQ(Items(Sorted), (Words{"", "Apple", "banana", "fig", "pear", "zebra"}));
  Sorted.Remove_Item(1);
  Sorted.Add_Item("apple");
  Sorted.Add_Item("Apple");
  EXPECT_EQ(Items(Sorted), (Words{"", "apple", "Apple", "banana", "fig", "pear", "zebra"}));
  Sorted.Clear();
  Sorted.Add_Item("b");
  Sorted.Add_Item("a");
  EXPECT_EQ(Items(Sorted), (Words{"a", "b"}));
}

TEST_F(Item_List_Test, Throws_error_5_for_an_item_that_is_not_there) {
  for (Item_List* const list : All()) {
    list->Select(1);
    for (const int index : {-2, 3, 32768}) {
      EXPECT_EQ(Error_Of([&] { list->Select(index); }), 5) << index;
      EXPECT_EQ(Error_Of([&] { static_cast<void>(list->List(index)); }), 5) << index;
      EXPECT_EQ(Error_Of([&] { list->Remove_Item(index); }), 5) << index;
    }
    EXPECT_EQ(Error_Of([&] { static_cast<void>(list->List(-1)); }), 5);
    EXPECT_EQ(Error_Of([&] { list->Remove_Item(-1); }), 5);
    EXPECT_EQ(list->ListIndex(), 1) << "and nothing is done";
    EXPECT_EQ(list->ListCount(), 3);
  }
  EXPECT_EQ(Take_Clicked().size(), 3U);
}

TEST_F(Item_List_Test, Has_nothing_selected_at_first) {
  for (const Item_List* const list : All()) {
    EXPECT_EQ(list->ListIndex(), -1);
    EXPECT_EQ(list->Text(), "");
  }
}

TEST_F(Item_List_Test, A_selection_clicks_even_where_the_item_was_selected_before) {
  Plain.Select(2);
  EXPECT_EQ(Plain.Text(), "fig");
  Plain.Select(2);
  Plain.User_Select(2);
  Plain.User_Select(0);
  EXPECT_EQ(Take_Clicked(), (Words{"fig", "fig", "fig", "pear"}));
  EXPECT_EQ(Backend.Take(), (Words{"Plain_Lst selection", "Plain_Lst selection"}))
      << "the window system hears of changes";
}

TEST_F(Item_List_Test, To_select_none_is_no_click) {
  Plain.Select(2);
  Take_Clicked();
  Plain.Select(-1);
  EXPECT_EQ(Plain.ListIndex(), -1);
  EXPECT_EQ(Take_Clicked(), Words{});
  EXPECT_EQ(Backend.Take(), (Words{"Plain_Lst selection", "Plain_Lst selection"}));
}

TEST_F(Item_List_Test, Selects_the_first_item_of_a_text_without_regard_to_case) {
  Plain.Add_Item("FIG");
  EXPECT_TRUE(Plain.Select_Text("Fig"));
  EXPECT_EQ(Plain.ListIndex(), 2);
  EXPECT_TRUE(Plain.Select_Text("fig"));
  EXPECT_TRUE(Sorted.Select_Text("PEAR"));
  EXPECT_EQ(Sorted.ListIndex(), 2);
  EXPECT_EQ(Take_Clicked(), (Words{"fig", "fig", "pear"}));
  EXPECT_FALSE(Plain.Select_Text("fi"));
  EXPECT_FALSE(Plain.Select_Text(""));
  EXPECT_EQ(Plain.ListIndex(), 2);
  EXPECT_EQ(Take_Clicked(), Words{});
}

TEST_F(Item_List_Test, The_user_selects_nothing_in_a_list_that_is_disabled_or_not_on_view) {
  Page.Visible = false;
  Plain.User_Select(0);
  Page.Visible = true;
  Page.Enabled = false;
  Plain.User_Select(0);
  Page.Enabled = true;
  Plain.Enabled = false;
  Plain.User_Select(0);
  EXPECT_EQ(Take_Clicked(), Words{});
  EXPECT_EQ(Plain.ListIndex(), -1);
  Plain.Select(0);
  EXPECT_EQ(Take_Clicked(), Words{"pear"}) << "but the program does";
}

TEST_F(Item_List_Test, The_selection_goes_with_its_item) {
  Plain.Select(1);
  Plain.Remove_Item(2);
  EXPECT_EQ(Plain.Text(), "Apple");
  Plain.Remove_Item(0);
  EXPECT_EQ(Plain.ListIndex(), 0);
  EXPECT_EQ(Plain.Text(), "Apple");
  Plain.Add_Item("last");
  EXPECT_EQ(Plain.Text(), "Apple");
  Plain.Remove_Item(0);
  EXPECT_EQ(Plain.ListIndex(), -1);
  EXPECT_EQ(Items(Plain), Words{"last"});
  EXPECT_EQ(Take_Clicked(), Words{"Apple"});
}

TEST_F(Item_List_Test, In_a_sorted_list_the_selection_goes_by_a_new_item) {
  Sorted.Select(2);
  Sorted.Add_Item("zebra");
  EXPECT_EQ(Sorted.ListIndex(), -1);
  EXPECT_EQ(Sorted.Text(), "");
}

TEST_F(Item_List_Test, Clearing_takes_the_selection_along_and_clicks_nothing) {
  Plain.Select(2);
  Take_Clicked();
  Backend.Take();
  Plain.Clear();
  Plain.Clear();
  EXPECT_EQ(Plain.ListCount(), 0);
  EXPECT_EQ(Plain.ListIndex(), -1);
  EXPECT_EQ(Take_Clicked(), Words{});
  EXPECT_EQ(Backend.Take(), Words{"Plain_Lst items"}) << "to clear an empty list is nothing";
}

TEST_F(Item_List_Test, Tells_of_its_items_when_they_change) {
  Plain.Add_Item("x");
  Plain.Remove_Item(0);
  EXPECT_EQ(Backend.Take(), (Words{"Plain_Lst items", "Plain_Lst items"}));
}

TEST_F(Item_List_Test, The_arrows_and_their_kind_move_the_selection) {
  for (const int key : {toolkit::key_down, toolkit::key_down, toolkit::key_up, toolkit::key_end, toolkit::key_home})
    EXPECT_TRUE(Plain.Key_Down({key}));
  EXPECT_EQ(Take_Clicked(), (Words{"pear", "Apple", "pear", "fig", "pear"}));
  EXPECT_TRUE(Plain.Key_Down({toolkit::key_up}));
  EXPECT_TRUE(Plain.Key_Down({toolkit::key_home}));
  EXPECT_EQ(Take_Clicked(), Words{}) << "at the end of its way it stays, without a click";
  Plain.Select(-1);
  EXPECT_TRUE(Plain.Key_Down({toolkit::key_up}));
  EXPECT_EQ(Take_Clicked(), Words{"pear"});
}

TEST_F(Item_List_Test, Other_keys_and_those_with_ctrl_are_not_its_own) {
  EXPECT_FALSE(Plain.Key_Down({toolkit::key_left}));
  EXPECT_FALSE(Plain.Key_Down({toolkit::key_space}));
  EXPECT_FALSE(Plain.Key_Down({toolkit::key_down, false, true, false}));
  EXPECT_EQ(Take_Clicked(), Words{});
}

TEST_F(Item_List_Test, An_empty_list_uses_its_keys_up_and_does_nothing) {
  Plain.Clear();
  EXPECT_TRUE(Plain.Key_Down({toolkit::key_down}));
  EXPECT_TRUE(Plain.Key_Down({toolkit::key_end}));
  EXPECT_EQ(Take_Clicked(), Words{});
}

TEST_F(Item_List_Test, A_page_of_a_list_box_is_as_long_as_the_box_is_high) {
  for (int i = 0; i < 20; ++i) Plain.Add_Item(std::to_string(i));
  Plain.Height = 5 * 30 * 8.25 + 1;
  Plain.Select(0);
  Plain.Key_Down({toolkit::key_page_down});
  EXPECT_EQ(Plain.ListIndex(), 4) << "five lines, one of which stays in sight";
  Plain.Key_Down({toolkit::key_page_up});
  EXPECT_EQ(Plain.ListIndex(), 0);
  Plain.Height = 1;
  Plain.Key_Down({toolkit::key_page_down});
  EXPECT_EQ(Plain.ListIndex(), 1);
}

TEST_F(Item_List_Test, A_page_of_a_drop_down_list_is_seven_items) {
  for (int i = 0; i < 20; ++i) Combo.Add_Item(std::to_string(i));
  Combo.Select(0);
  Combo.Key_Down({toolkit::key_page_down});
  EXPECT_EQ(Combo.ListIndex(), 7);
  Combo.Select(22);
  Combo.Key_Down({toolkit::key_page_up});
  EXPECT_EQ(Combo.ListIndex(), 15);
}

TEST_F(Item_List_Test, The_press_and_release_on_a_list_is_no_click_of_its_own) {
  Plain.Place({700, 700, 300, 300});
  Press(&Plain, Left(710, 710));
  Release(&Plain, Left(710, 710));
  EXPECT_EQ(Take_Clicked(), Words{});
  EXPECT_EQ(Window.Focused(), &Plain);
}

TEST_F(Item_List_Test, Bears_a_click_that_changes_the_list_or_closes_the_window) {
  Plain.On_Click = [this] { Plain.Clear(); };
  Plain.Select(1);
  EXPECT_EQ(Plain.ListCount(), 0);
  Sorted.On_Click = [this] { Window.Unload(); };
  EXPECT_TRUE(Sorted.Key_Down({toolkit::key_down}));
  EXPECT_FALSE(Window.Loaded());
  Combo.On_Click = nullptr;
  Combo.Select(0);
  EXPECT_EQ(Combo.Text(), "pear");
}

// What the toolkit relies on of list boxes and drop-down lists.
#include "tests/contract/window_world.h"
#include "toolkit/frame.h"

namespace {

class List_Cases : public Window_Cases {
 protected:
  List_Cases() {
    Dialog.Move(7500, 1500);
    Dialog.Set_Client_Size(6000, 4200);
    Page.Place({150, 150, 5700, 3900});
    List.Place({150, 150, 2400, 1800});
    Sorted.Place({3000, 150, 2400, 1800});
    Box.Place({150, 2400, 2400, 315});
    for (toolkit::Item_List* const list : All)
      list->On_Click = [this, list] { Log += list->Name + std::to_string(list->ListIndex()) + " "; };
    Show(Dialog);
    Fill(List, {"Ant", "Bee", "Cat", "Dog"});
    Fill(Box, {"Red", "Green", "Blue"});
    Take();
  }

  void Fill(toolkit::Item_List& list, const std::vector<std::string>& items) {
    World->Run([&] {
      for (const std::string& item : items) list.Add_Item(item);
    });
    User.Wait(50);
  }

  void Press(std::initializer_list<Pressed_Key> keys) {
    for (const Pressed_Key key : keys) User.Press_Key(key);
  }

  Form Dialog{Backend, "Settings_Frm", Form_Border::Fixed_Dialog};
  toolkit::Frame Page{Dialog, "Page"};
  toolkit::List_Box List{Page, "List"};
  toolkit::List_Box Sorted{Page, "Sorted", toolkit::Item_List::Order::Sorted};
  toolkit::Combo_Box Box{Page, "Box"};
  toolkit::Command_Button Ok{Dialog, "Ok"};
  const std::array<toolkit::Item_List*, 3> All{&List, &Sorted, &Box};
};

using Items = std::vector<std::string>;

}  // namespace

TEST_F(List_Cases, A_click_on_an_item_selects_it_and_gives_the_focus) {
  User.Click_Item(List, 2);
  EXPECT_EQ(Take(), "List2 ");
  EXPECT_EQ(List.Text(), "Cat");
  EXPECT_EQ(Dialog.Focused(), &List);
  User.Click_Item(List, 0);
  EXPECT_EQ(Take(), "List0 ");
  User.Wait(600);  // else the two are a double-click
  User.Click_Item(List, 0);
  EXPECT_EQ(Take(), "List0 ") << "a click is one also where nothing changes";
}

TEST_F(List_Cases, The_keys_move_the_selection_by_one_each) {
  User.Click_Item(List, 1);
  Take();
  Press({Pressed_Key::Down, Pressed_Key::Down, Pressed_Key::Down, Pressed_Key::Up});
  EXPECT_EQ(Take(), "List2 List3 List2 ");
  Press({Pressed_Key::Home, Pressed_Key::End});
  EXPECT_EQ(Take(), "List0 List3 ");
}

TEST_F(List_Cases, The_keys_of_a_closed_drop_down_list_move_its_selection) {
  World->Run([&] { Dialog.Set_Focus(Box); });
  User.Wait(50);
  Press({Pressed_Key::Down, Pressed_Key::Down, Pressed_Key::Up, Pressed_Key::End});
  EXPECT_EQ(Take(), "Box0 Box1 Box0 Box2 ");
  EXPECT_EQ(Box.Text(), "Blue");
}

TEST_F(List_Cases, An_item_is_chosen_in_the_dropped_list) {
  User.Choose_Item(Box, 1);
  EXPECT_EQ(Take(), "Box1 ");
  EXPECT_EQ(Box.Text(), "Green");
  EXPECT_EQ(Dialog.Focused(), &Box);
  User.Press_Key(Pressed_Key::Down);
  EXPECT_EQ(Take(), "Box2 ") << "the list is closed";
}

TEST_F(List_Cases, Items_are_shown_in_their_order_however_they_came) {
  Fill(Sorted, {"pear", "10", "Apple", "9", "Zebra", "banana"});
  EXPECT_EQ(User.Shown_Items(Sorted), (Items{"10", "9", "Apple", "banana", "pear", "Zebra"}));
  World->Run([&] {
    Sorted.Remove_Item(1);
    Sorted.Add_Item("cherry");
  });
  User.Wait(50);
  EXPECT_EQ(User.Shown_Items(Sorted), (Items{"10", "Apple", "banana", "cherry", "pear", "Zebra"}));
  User.Click_Item(Sorted, 3);
  EXPECT_EQ(Sorted.Text(), "cherry");
  EXPECT_EQ(User.Shown_Items(List), (Items{"Ant", "Bee", "Cat", "Dog"}));
  EXPECT_EQ(User.Shown_Items(Box), (Items{"Red", "Green", "Blue"}));
}

TEST_F(List_Cases, A_list_that_is_filled_while_hidden_has_its_items_and_its_selection_when_it_is_shown) {
  World->Run([&] {
    Page.Visible = false;
    List.Clear();
    for (const char* const item : {"One", "Two", "Three"}) List.Add_Item(item);
    List.Select(1);
  });
  Take();
  World->Run([&] { Page.Visible = true; });
  User.Wait(100);
  EXPECT_EQ(User.Shown_Items(List), (Items{"One", "Two", "Three"}));
  World->Run([&] { Dialog.Set_Focus(List); });
  User.Press_Key(Pressed_Key::Down);
  EXPECT_EQ(Take(), "List2 ");
}

TEST_F(List_Cases, A_disabled_list_takes_no_click) {
  World->Run([&] { Page.Enabled = false; });
  User.Wait(50);
  User.Click_Item(List, 2);
  EXPECT_EQ(Take(), "");
  EXPECT_EQ(List.ListIndex(), -1);
}

TEST_F(List_Cases, What_the_program_selects_is_where_the_keys_go_on) {
  World->Run([&] {
    List.Select(2);
    Dialog.Set_Focus(List);
  });
  User.Wait(50);
  User.Press_Key(Pressed_Key::Down);
  EXPECT_EQ(Take(), "List2 List3 ");
}

// What a list costs: nothing while it is hidden, and little when it is shown with as many items as it may have.
#include <iostream>

#include "tests/win32/window_on_screen.h"
#include "toolkit/frame.h"
#include "toolkit/item_list.h"

namespace {

constexpr int most_items = 32767;

class Native_Lists : public Window_On_Screen {
 protected:
  Native_Lists() {
    Page.Place({0, 0, 6000, 4500});
    Page.Visible = false;
    List.Place({150, 150, 3000, 3000});
    Box.Place({3300, 150, 2400, 315});
    Show();
  }

  static void Fill(toolkit::Item_List& list, int count) {
    for (int i = 0; i < count; ++i)
      list.Add_Item("28/02/2004 = An event of a usual length, number " + std::to_string(i));
  }

  template <class Work>
  static int Milliseconds_Of(const Work& work) {
    const DWORD start = GetTickCount();
    work();
    const auto taken = static_cast<int>(GetTickCount() - start);
    std::cout << taken << " ms\n";
    return taken;
  }

  [[nodiscard]] LRESULT Listed() const { return SendMessageA(Child("ListBox"), LB_GETCOUNT, 0, 0); }

  toolkit::Frame Page{Window, "Page"};
  toolkit::List_Box List{Page, "List"};
  toolkit::Combo_Box Box{Page, "Box"};
};

}  // namespace

TEST_F(Native_Lists, The_most_items_are_shown_at_once_when_the_list_comes_on_view) {
  Fill(List, most_items);
  Wait(50);
  EXPECT_EQ(Listed(), 0) << "a hidden list costs nothing";
  const int taken = Milliseconds_Of([this] {
    Page.Visible = true;
    Wait(1);
    UpdateWindow(Child("ListBox"));
  });
  EXPECT_EQ(Listed(), most_items);
  EXPECT_LT(taken, 1000);
}

TEST_F(Native_Lists, Of_many_changes_the_system_hears_once) {
  Page.Visible = true;
  Wait(50);
  const int taken = Milliseconds_Of([this] {
    for (int times = 0; times < 3; ++times) {
      List.Clear();
      Fill(List, most_items);
    }
    Wait(1);
  });
  EXPECT_EQ(Listed(), most_items);
  EXPECT_LT(taken, 1000);
}

TEST_F(Native_Lists, A_wider_entry_than_the_list_can_be_scrolled_to) {
  Page.Visible = true;
  List.Add_Item("short");
  Wait(50);
  RECT client = {};
  GetClientRect(Child("ListBox"), &client);
  EXPECT_LT(SendMessageA(Child("ListBox"), LB_GETHORIZONTALEXTENT, 0, 0), client.right);
  List.Add_Item(std::string(200, 'w'));
  Wait(50);
  EXPECT_GT(SendMessageA(Child("ListBox"), LB_GETHORIZONTALEXTENT, 0, 0), client.right);
}

TEST_F(Native_Lists, A_closed_drop_down_list_lies_in_the_middle_of_its_height_and_drops_eight_items) {
  Page.Visible = true;
  Fill(Box, 20);
  const double pixel = Backend.Twips_Per_Pixel(toolkit::Axis::Down);
  LONG natural = 0;
  for (const double height : {315.0, 240.0, 420.0, 600.0}) {
    Box.Height = height;
    Wait(50);
    RECT closed = {};
    GetWindowRect(Child("ComboBox"), &closed);
    if (natural == 0) natural = closed.bottom - closed.top;
    EXPECT_EQ(closed.bottom - closed.top, natural) << "whatever is told, its text isn't cut off";
    POINT middle = {closed.left, (closed.top + closed.bottom) / 2};
    ScreenToClient(Handle(), &middle);
    EXPECT_NEAR(middle.y, (Box.Top + height / 2) / pixel, 1);
  }
  const HWND box = Child("ComboBox");
  SendMessageA(box, CB_SHOWDROPDOWN, TRUE, 0);
  COMBOBOXINFO parts = {};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(box, &parts);
  RECT items = {};
  GetClientRect(parts.hwndList, &items);
  EXPECT_EQ(items.bottom / SendMessageA(box, CB_GETITEMHEIGHT, 0, 0), 8);
}

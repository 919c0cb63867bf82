// What screen readers get from the windows in their own process: the objects by themselves.
#include "tests/win32/window_on_screen.h"
#include "toolkit/check_box.h"
#include "toolkit/item_list.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"
#include "win32/accessible_object.h"

namespace {

struct Release_Object {
  void operator()(IAccessible* object) const noexcept { object->Release(); }
};
using Object = win32::Owner<IAccessible*, Release_Object>;

VARIANT Numbered(LONG number) {
  VARIANT variant = {};
  variant.vt = VT_I4;
  variant.lVal = number;
  return variant;
}

constexpr LONG either = STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;

class Readers : public Window_On_Screen {
 protected:
  Readers() {
    Title.Place({150, 150, 3000, 300});
    Title.Caption = "Caf\xE9";
    Box.Place({150, 600, 3000, 300});
    Box.Caption = "&Every year";
    List.Place({150, 1050, 2000, 1800});
    Strip.Place({2500, 1050, 3000, 1800});
    Text.Place({150, 3000, 3000, 900});
    Choice.Place({3300, 3000, 2000, 315});
    for (const char* const item : {"one", "two", "three"}) List.Add_Item(item);
    for (const char* const item : {"early", "late"}) Choice.Add_Item(item);
    Show();
  }

  /// Without a service of the system's, as the windows of a program that no reader has asked.
  static bool Loaded() { return GetModuleHandleA("oleacc.dll") != nullptr; }

  Object Read(HWND window) {
    EXPECT_TRUE(Services.Start());
    return Object(static_cast<IAccessible*>(Services.Object_Of(window, OBJID_CLIENT)));
  }

  /// Shows a dialog beside the window, which becomes active by that.
  void Show_Beside(toolkit::Form& other) {
    other.Move(9000, 1500);
    other.Set_Client_Size(3000, 3000);
    other.Show();
    Wait(100);
  }

  static std::string Name(const Object& object, LONG number = 0) {
    BSTR text = nullptr;
    if (object.Get()->get_accName(Numbered(number), &text) != S_OK) return "none";
    std::string name;
    for (const wchar_t* at = text; *at != 0; ++at) name += static_cast<char>(*at);
    return name;
  }

  static LONG State(const Object& object, LONG number = 0) {
    VARIANT state = {};
    return object.Get()->get_accState(Numbered(number), &state) == S_OK ? state.lVal : -1;
  }

  static RECT Place(const Object& object, LONG number = 0) {
    long left = 0, top = 0, width = 0, height = 0;
    object.Get()->accLocation(&left, &top, &width, &height, Numbered(number));
    return {left, top, left + width, top + height};
  }

  static LONG At_Middle_Of(const Object& object, const RECT& place) {
    VARIANT hit = {};
    const HRESULT found =
        object.Get()->accHitTest((place.left + place.right) / 2, (place.top + place.bottom) / 2, &hit);
    return found == S_OK && hit.vt == VT_I4 ? hit.lVal : -1;
  }

  /// Drops the list of Choice, filled to forty items, or closes it.
  Object Dropped(bool open) {
    for (int i = Choice.ListCount(); i < 40; ++i) Choice.Add_Item(std::to_string(i + 1));
    Wait(50);
    SendMessageA(Child("ComboBox"), CB_SHOWDROPDOWN, open, 0);
    return Read(Child("ComboBox"));
  }

  toolkit::Label Title{Window, "Title"};                             // 1
  toolkit::Check_Box Box{Window, "Box"};                             // 2
  toolkit::List_Box List{Window, "List"};                            // 3
  toolkit::Tab_Strip Strip{Window, "Strip", {"Events", "Colours"}};  // 4
  toolkit::Text_Box Text{Window, "Text"};                            // 5
  toolkit::Combo_Box Choice{Window, "Choice"};                       // 6
  win32::Accessibility Services;
};

}  // namespace

TEST_F(Readers, Nothing_is_loaded_until_one_asks_for_the_window) {
  EXPECT_FALSE(Loaded());
  EXPECT_EQ(SendMessageA(Handle(), WM_GETOBJECT, 0, OBJID_WINDOW), 0) << "all else is the system's own affair";
  EXPECT_EQ(SendMessageA(Child("Button"), WM_GETOBJECT, 0, OBJID_WINDOW), 0);
  EXPECT_FALSE(Loaded());
  EXPECT_NE(SendMessageA(Handle(), WM_GETOBJECT, 0, OBJID_CLIENT), 0);
  EXPECT_TRUE(Loaded());
}

TEST_F(Readers, The_number_asked_for_may_come_with_its_sign_extended_or_not) {
  constexpr auto number = static_cast<DWORD>(OBJID_CLIENT);
  EXPECT_NE(SendMessageA(Handle(), WM_GETOBJECT, 0, static_cast<LPARAM>(number)), 0);
  EXPECT_NE(SendMessageA(Handle(), WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_CLIENT)), 0);
}

TEST_F(Readers, A_name_comes_in_the_letters_of_the_code_page) {
  const Object window = Read(Handle());
  EXPECT_EQ(Name(window, 1), "Caf\xE9");
  EXPECT_EQ(Name(window, 2), "Every year");
}

TEST_F(Readers, What_isnt_there_is_an_invalid_number) {
  const Object window = Read(Handle());
  BSTR text = nullptr;
  EXPECT_EQ(window.Get()->get_accName(Numbered(7), &text), E_INVALIDARG);
  EXPECT_EQ(window.Get()->get_accName(Numbered(-1), &text), E_INVALIDARG);
  EXPECT_EQ(window.Get()->get_accName(VARIANT{}, &text), E_INVALIDARG);
}

TEST_F(Readers, Only_a_control_of_the_systems_own_has_an_object_of_its_own) {
  const Object window = Read(Handle());
  IDispatch* child = nullptr;
  EXPECT_EQ(window.Get()->get_accChild(Numbered(1), &child), S_FALSE);
  ASSERT_EQ(window.Get()->get_accChild(Numbered(2), &child), S_OK);
  const Object box(static_cast<IAccessible*>(child));
  EXPECT_EQ(Name(box), "Every year");
  IDispatch* parent = nullptr;
  ASSERT_EQ(box.Get()->get_accParent(&parent), S_OK);
  const Object back(static_cast<IAccessible*>(parent));
  EXPECT_EQ(back.Get(), window.Get()) << "it lies in the window that gave it";
}

TEST_F(Readers, A_control_tells_its_own_window) {
  const Object box = Read(Child("Button"));
  IOleWindow* ole_window = nullptr;
  ASSERT_EQ(box.Get()->QueryInterface(__uuidof(IOleWindow), reinterpret_cast<void**>(&ole_window)), S_OK);
  HWND window = nullptr;
  EXPECT_EQ(ole_window->GetWindow(&window), S_OK);
  EXPECT_EQ(window, Child("Button"));
  ole_window->Release();
}

TEST_F(Readers, A_tick_is_read_as_it_changes) {
  const Object box = Read(Child("Button"));
  EXPECT_EQ(State(box) & STATE_SYSTEM_CHECKED, 0);
  EXPECT_EQ(box.Get()->accDoDefaultAction(Numbered(0)), S_OK);
  Wait(50);
  EXPECT_EQ(Box.Value(), 1);
  EXPECT_NE(State(box) & STATE_SYSTEM_CHECKED, 0);
}

TEST_F(Readers, The_focus_is_told_as_the_object_that_has_it) {
  const Object window = Read(Handle());
  Window.Set_Focus(Box);
  VARIANT focused = {};
  ASSERT_EQ(window.Get()->get_accFocus(&focused), S_OK);
  ASSERT_EQ(focused.vt, VT_DISPATCH);
  const Object box(static_cast<IAccessible*>(focused.pdispVal));
  EXPECT_EQ(Name(box), "Every year");
  EXPECT_NE(State(box) & STATE_SYSTEM_FOCUSED, 0);
}

TEST_F(Readers, A_lists_items_are_read_found_and_chosen) {
  const Object list = Read(Child("ListBox"));
  long count = 0;
  list.Get()->get_accChildCount(&count);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(Name(list, 2), "two");
  const RECT place = Place(list, 2);
  EXPECT_GT(place.bottom - place.top, 8);
  EXPECT_EQ(At_Middle_Of(list, place), 2);
  EXPECT_EQ(list.Get()->accSelect(SELFLAG_TAKESELECTION, Numbered(2)), S_OK);
  Wait(50);
  EXPECT_EQ(List.ListIndex(), 1);
  EXPECT_NE(State(list, 2) & STATE_SYSTEM_SELECTED, 0);
}

TEST_F(Readers, Each_flag_of_a_selection_does_its_own) {
  const Object list = Read(Child("ListBox"));
  Window.Set_Focus(Box);
  const auto select = [&](long flags, LONG number) {
    const HRESULT answer = list.Get()->accSelect(flags, Numbered(number));
    Wait(50);
    return answer;
  };
  EXPECT_EQ(select(SELFLAG_NONE, 2), S_OK);
  EXPECT_EQ(Window.Focused(), &Box);
  EXPECT_EQ(List.ListIndex(), -1);
  EXPECT_EQ(select(SELFLAG_TAKESELECTION, 2), S_OK);
  EXPECT_EQ(Window.Focused(), &Box);
  EXPECT_EQ(List.ListIndex(), 1);
  EXPECT_EQ(select(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, 3), S_OK);
  EXPECT_EQ(Window.Focused(), &List);
  EXPECT_EQ(List.ListIndex(), 2);
  Window.Set_Focus(Box);
  EXPECT_EQ(select(SELFLAG_TAKEFOCUS, 1), S_OK);
  EXPECT_EQ(Window.Focused(), &List);
  EXPECT_EQ(List.ListIndex(), 2);
  EXPECT_EQ(select(SELFLAG_ADDSELECTION, 1), E_INVALIDARG);
  EXPECT_EQ(select(SELFLAG_TAKESELECTION, 0), E_INVALIDARG) << "a list lies in no list";
}

TEST_F(Readers, What_takes_no_keys_gets_no_focus) {
  const Object window = Read(Handle());
  EXPECT_EQ(window.Get()->accSelect(SELFLAG_TAKEFOCUS, Numbered(1)), S_FALSE);
}

TEST_F(Readers, The_focus_that_a_window_gets_makes_it_active) {
  toolkit::Form other(Backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog);
  Show_Beside(other);
  ASSERT_EQ(Backend.Active_Form(), &other);
  const Object window = Read(Handle());
  EXPECT_EQ(window.Get()->accSelect(SELFLAG_TAKEFOCUS, Numbered(0)), S_OK);
  Wait(100);
  EXPECT_EQ(Backend.Active_Form(), &Window);
}

TEST_F(Readers, The_focus_that_a_control_without_a_number_gets_leaves_its_window_as_it_is) {
  const Object box = Read(Child("Button"));
  Box.Heard_With = &Title;
  toolkit::Form other(Backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog);
  Show_Beside(other);
  ASSERT_EQ(Backend.Active_Form(), &other);
  EXPECT_EQ(box.Get()->accSelect(SELFLAG_TAKEFOCUS, Numbered(0)), S_OK);
  Wait(100);
  EXPECT_EQ(Backend.Active_Form(), &other);
}

TEST_F(Readers, An_item_that_is_scrolled_out_of_its_list_is_told_as_such) {
  for (int i = 4; i <= 40; ++i) List.Add_Item(std::to_string(i));
  Wait(50);
  const Object list = Read(Child("ListBox"));
  EXPECT_EQ(State(list, 1) & either, 0);
  EXPECT_EQ(State(list, 40) & either, STATE_SYSTEM_OFFSCREEN);
  List.Select(39);
  Wait(50);
  EXPECT_EQ(State(list, 1) & either, STATE_SYSTEM_OFFSCREEN);
  EXPECT_EQ(State(list, 40) & either, 0);
  List.Visible = false;
  EXPECT_NE(State(list, 40) & STATE_SYSTEM_INVISIBLE, 0);
}

TEST_F(Readers, Tabs_are_read_found_and_turned_to) {
  const Object strip = Read(Child("SysTabControl32"));
  EXPECT_EQ(Name(strip, 2), "Colours");
  EXPECT_EQ(At_Middle_Of(strip, Place(strip, 2)), 2);
  EXPECT_EQ(strip.Get()->accDoDefaultAction(Numbered(2)), S_OK);
  Wait(50);
  EXPECT_EQ(Strip.Selected(), 2);
  VARIANT selected = {};
  ASSERT_EQ(strip.Get()->get_accSelection(&selected), S_OK);
  EXPECT_EQ(selected.lVal, 2);
}

TEST_F(Readers, The_steps_through_the_window_lead_from_the_first_to_the_last) {
  const Object window = Read(Handle());
  VARIANT to = {};
  ASSERT_EQ(window.Get()->accNavigate(NAVDIR_FIRSTCHILD, Numbered(0), &to), S_OK);
  EXPECT_EQ(to.lVal, 1);
  ASSERT_EQ(window.Get()->accNavigate(NAVDIR_NEXT, Numbered(1), &to), S_OK);
  ASSERT_EQ(to.vt, VT_DISPATCH);
  const Object box(static_cast<IAccessible*>(to.pdispVal));
  EXPECT_EQ(Name(box), "Every year");
  EXPECT_EQ(window.Get()->accNavigate(NAVDIR_PREVIOUS, Numbered(1), &to), S_FALSE);
}

TEST_F(Readers, The_steps_from_a_control_lead_to_its_neighbours_in_the_window) {
  const Object box = Read(Child("Button"));
  VARIANT to = {};
  ASSERT_EQ(box.Get()->accNavigate(NAVDIR_PREVIOUS, Numbered(0), &to), S_OK);
  EXPECT_EQ(to.vt, VT_I4) << "a label is a number of the window's";
  EXPECT_EQ(to.lVal, 1);
  ASSERT_EQ(box.Get()->accNavigate(NAVDIR_DOWN, Numbered(0), &to), S_OK);
  ASSERT_EQ(to.vt, VT_DISPATCH);
  const Object list(static_cast<IAccessible*>(to.pdispVal));
  EXPECT_EQ(Name(list, 2), "two");
  const Object window = Read(Handle());
  EXPECT_EQ(window.Get()->accNavigate(NAVDIR_NEXT, Numbered(0), &to), S_FALSE) << "a window has no neighbours";
}

TEST_F(Readers, A_drop_down_list_is_opened) {
  const HWND window = Child("ComboBox");
  const auto open = [window] { return SendMessageA(window, CB_GETDROPPEDSTATE, 0, 0) != 0; };
  const Object choice = Read(window);
  BSTR action = nullptr;
  EXPECT_EQ(choice.Get()->get_accDefaultAction(Numbered(0), &action), S_OK);
  EXPECT_EQ(choice.Get()->accDoDefaultAction(Numbered(0)), S_OK);
  Wait(50);
  EXPECT_TRUE(open());
  EXPECT_EQ(Window.Focused(), &Choice);
  SendMessageA(window, CB_SHOWDROPDOWN, FALSE, 0);
  Choice.Enabled = false;
  choice.Get()->accDoDefaultAction(Numbered(0));
  Wait(50);
  EXPECT_FALSE(open());
}

TEST_F(Readers, The_items_of_an_open_drop_down_list_stand_where_the_user_picks_them) {
  const Object choice = Dropped(true);
  EXPECT_EQ(State(choice, 2) & either, 0);
  EXPECT_EQ(State(choice, 40) & either, STATE_SYSTEM_OFFSCREEN);
  const RECT place = Place(choice, 2);
  SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
  Wait(50);
  mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
  mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
  Wait(50);
  EXPECT_EQ(Choice.Text(), "late");
}

TEST_F(Readers, An_item_above_the_part_of_an_open_list_that_is_seen_doesnt_stand_over_the_closed_box) {
  Choice.Select(1);
  const Object choice = Dropped(true);
  Choice.Select(39);
  EXPECT_EQ(State(choice, 40) & either, 0);
  EXPECT_EQ(State(choice, 1) & either, STATE_SYSTEM_OFFSCREEN);
  EXPECT_EQ(At_Middle_Of(choice, Place(choice)), 0);
}

TEST_F(Readers, The_readers_pick_closes_an_open_drop_down_list) {
  const Object choice = Dropped(true);
  EXPECT_EQ(choice.Get()->accDoDefaultAction(Numbered(2)), S_OK);
  Wait(50);
  EXPECT_EQ(Choice.Text(), "late");
  EXPECT_EQ(SendMessageA(Child("ComboBox"), CB_GETDROPPEDSTATE, 0, 0), 0);
}

TEST_F(Readers, A_drop_down_list_keeps_the_focus_to_itself) {
  Choice.Select(1);
  Window.Set_Focus(Choice);
  const Object choice = Read(Child("ComboBox"));
  VARIANT focused = {};
  ASSERT_EQ(choice.Get()->get_accFocus(&focused), S_OK);
  EXPECT_EQ(focused.lVal, 0);
  EXPECT_EQ(State(choice, 2) & STATE_SYSTEM_FOCUSED, 0);
}

TEST_F(Readers, The_items_of_a_closed_drop_down_list_are_off_the_screen_and_have_no_place) {
  Dropped(true);
  const Object choice = Dropped(false);
  EXPECT_EQ(State(choice, 1) & either, STATE_SYSTEM_OFFSCREEN);
  const RECT place = Place(choice, 1);
  EXPECT_NE(IsRectEmpty(&place), 0);
}

TEST_F(Readers, What_was_held_of_a_window_that_has_gone_answers_that_it_isnt_connected) {
  const Object window = Read(Handle());
  const Object box = Read(Child("Button"));
  Window.Unload();
  for (IAccessible* const held : {window.Get(), box.Get()}) {
    IAccessible& object = *held;
    VARIANT answer = {};
    long number = 0;
    BSTR text = nullptr;
    IDispatch* other = nullptr;
    EXPECT_EQ(object.get_accName(Numbered(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.get_accState(Numbered(0), &answer), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.get_accChildCount(&number), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.get_accChild(Numbered(1), &other), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.get_accParent(&other), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.get_accFocus(&answer), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.accHitTest(200, 200, &answer), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object.accDoDefaultAction(Numbered(0)), CO_E_OBJNOTCONNECTED);
  }
}

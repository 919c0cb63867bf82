// The windows of the desktop and of other instances, and the store beside them.
#include "memory/memory_shell.h"

#include <gtest/gtest.h>

#include "memory/memory_instances.h"
#include "memory/memory_store.h"

using memory::Memory_Instances;
using memory::Memory_Shell;
using memory::Memory_Store;
using memory::Shell_Chain;
using platform::Window_Handle;

namespace {

/// How far the desktop's windows are found, from 0 to 3.
int Length_Of_Chain(Memory_Shell& shell) {
  const Window_Handle progman = shell.Find_Top_Window("Progman", "Program Manager");
  const Window_Handle view = shell.Find_Child(progman, "SHELLDLL_DefView");
  const Window_Handle list = shell.Find_Child(view, "SysListView32");
  return (progman != 0 ? 1 : 0) + (view != 0 ? 1 : 0) + (list != 0 ? 1 : 0);
}

Window_Handle List_Of(Memory_Shell& shell) {
  return shell.Find_Child(shell.Find_Child(shell.Find_Top_Window("Progman", "Program Manager"), "SHELLDLL_DefView"),
                          "SysListView32");
}

}  // namespace

TEST(Memory_Shell_Test, The_desktop_exists_as_far_as_it_is_let) {
  Memory_Shell shell;
  EXPECT_EQ(Length_Of_Chain(shell), 0);
  shell.Set_Chain(Shell_Chain::Progman);
  EXPECT_EQ(Length_Of_Chain(shell), 1);
  shell.Set_Chain(Shell_Chain::Def_View);
  EXPECT_EQ(Length_Of_Chain(shell), 2);
  shell.Set_Chain(Shell_Chain::Icon_List);
  EXPECT_EQ(Length_Of_Chain(shell), 3);
}

TEST(Memory_Shell_Test, No_other_window_is_found) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  EXPECT_EQ(shell.Find_Top_Window("Progman", "Other"), 0U);
  EXPECT_EQ(shell.Find_Child(0, "SHELLDLL_DefView"), 0U);
  EXPECT_EQ(shell.Find_Child(List_Of(shell), "SysListView32"), 0U);
}

TEST(Memory_Shell_Test, The_list_of_icons_tells_and_takes_its_colours) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  shell.Set_Icon_Colours(123, 456);
  const Window_Handle list = List_Of(shell);
  EXPECT_EQ(shell.Send(list, 4133, 0, 1000), 123);
  EXPECT_EQ(shell.Send(list, 4131, 0, 1000), 456);
  shell.Send(list, 4134, -1, 1000);
  EXPECT_EQ(shell.Icon_Back(), -1);
  EXPECT_THROW(shell.Send(list, 4135, 0, 1000), std::logic_error);
}

TEST(Memory_Shell_Test, A_repaint_is_an_update_of_what_was_marked) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  const Window_Handle list = List_Of(shell);
  shell.Update(list, 1000);
  EXPECT_EQ(shell.Take_Repaints(), 0);
  shell.Invalidate(list);
  shell.Update(list, 1000);
  shell.Update(list, 1000);
  EXPECT_EQ(shell.Take_Repaints(), 1);
  EXPECT_EQ(shell.Take_Repaints(), 0);
}

TEST(Memory_Shell_Test, A_handle_of_a_window_that_has_gone_does_nothing) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  const Window_Handle list = List_Of(shell);
  shell.Set_Chain(Shell_Chain::None);
  EXPECT_EQ(shell.Send(list, 4133, 0, 1000), std::nullopt);
  shell.Invalidate(list);
  shell.Update(list, 1000);
  EXPECT_EQ(shell.Take_Repaints(), 0);
}

TEST(Memory_Shell_Test, Tells_how_long_answers_were_waited_for) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  const Window_Handle list = List_Of(shell);
  shell.Send(list, 4133, 0, 1000);
  EXPECT_EQ(shell.Take_Waits(), 0);
  shell.Answer_After(700);
  EXPECT_TRUE(shell.Send(list, 4133, 0, 1000));
  EXPECT_FALSE(shell.Send(list, 4133, 0, 200));
  EXPECT_EQ(shell.Take_Waits(), 900);
  shell.Hang_After(1);
  EXPECT_TRUE(shell.Send(list, 4133, 0, 1000));
  EXPECT_FALSE(shell.Send(list, 4133, 0, 1000));
  EXPECT_EQ(shell.Take_Waits(), 1700);
}

TEST(Memory_Shell_Test, Knows_what_was_moved_under_the_desktop) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  EXPECT_FALSE(shell.Part_Of_Desktop(7));
  EXPECT_EQ(shell.Set_Parent(7, shell.Find_Top_Window("Progman", "Program Manager")), platform::Adoption::Done);
  EXPECT_TRUE(shell.Part_Of_Desktop(7));
}

TEST(Memory_Shell_Test, A_desktop_that_shows_no_children_takes_none) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  shell.Refuse_Children(true);
  EXPECT_EQ(shell.Set_Parent(7, shell.Find_Top_Window("Progman", "Program Manager")), platform::Adoption::Unseen);
  EXPECT_FALSE(shell.Part_Of_Desktop(7));
  EXPECT_EQ(shell.Moves(), 1);
}

TEST(Memory_Shell_Test, The_view_may_be_in_the_second_of_two_workers) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  EXPECT_EQ(shell.Find_Next_Top_Window(0, "WorkerW"), 0U);
  shell.Set_Worker(true);
  EXPECT_EQ(Length_Of_Chain(shell), 1) << "nothing is in Progman";
  const Window_Handle first = shell.Find_Next_Top_Window(0, "WorkerW");
  const Window_Handle second = shell.Find_Next_Top_Window(first, "WorkerW");
  ASSERT_NE(second, 0U);
  EXPECT_EQ(shell.Find_Next_Top_Window(second, "WorkerW"), 0U);
  EXPECT_EQ(shell.Find_Child(first, "SHELLDLL_DefView"), 0U);
  EXPECT_NE(shell.Find_Child(second, "SHELLDLL_DefView"), 0U);
}

TEST(Memory_Shell_Test, A_restart_gives_all_windows_other_handles) {
  Memory_Shell shell;
  shell.Set_Chain(Shell_Chain::Icon_List);
  const Window_Handle progman = shell.Find_Top_Window("Progman", "Program Manager"), list = List_Of(shell);
  shell.Set_Parent(7, progman);
  EXPECT_TRUE(shell.Exists(list));
  shell.Restart();
  EXPECT_FALSE(shell.Exists(progman));
  EXPECT_FALSE(shell.Exists(list));
  EXPECT_FALSE(shell.Part_Of_Desktop(7));
  EXPECT_NE(List_Of(shell), 0U);
  EXPECT_NE(List_Of(shell), list);
}

TEST(Memory_Instances_Test, Another_instance_is_found_by_its_title_and_posted_to) {
  Memory_Instances instances;
  EXPECT_FALSE(instances.Other_Is_Running());
  EXPECT_EQ(instances.Find_Window("Meridex"), 0U);
  instances.Add("Meridex");
  EXPECT_TRUE(instances.Other_Is_Running());
  instances.Post(instances.Find_Window("Meridex"), platform::close_request);
  const auto posted = instances.Take_Posted();
  ASSERT_EQ(posted.size(), 1U);
  EXPECT_EQ(posted[0].Title, "Meridex");
  EXPECT_EQ(posted[0].Message, 16U);
  EXPECT_TRUE(instances.Take_Posted().empty());
}

TEST(Memory_Instances_Test, The_own_window_has_its_title_and_takes_a_close_request) {
  Memory_Instances instances;
  EXPECT_NE(instances.Find_Window("Meridex Loading"), 0U);
  instances.Set_Title("Meridex");
  int asked = 0;
  instances.On_Close_Request = [&] { ++asked; };
  instances.Post(instances.Find_Window("Meridex"), platform::close_request);
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(instances.Take_Posted().empty());
  instances.Enter();
  EXPECT_EQ(instances.Title(), "Meridex Loading");
}

TEST(Memory_Store_Test, Values_are_listed_by_section_and_key_in_byte_order) {
  Memory_Store store;
  store.Save("Meridex", "Settings", "Style", "1");
  store.Save("Meridex", "Settings", "Start Day", "2");
  store.Save("Meridex", "Colours", "Text", "0");
  store.Save("Other", "Settings", "Style", "9");
  std::string listed;
  for (const auto& value : store.Values("Meridex")) listed += value.Section + "/" + value.Key + "=" + value.Text + " ";
  EXPECT_EQ(listed, "Colours/Text=0 Settings/Start Day=2 Settings/Style=1 ");
}

// Which windows there are and which of them is active.
#include <gtest/gtest.h>

#include "memory/memory_platform.h"
#include "toolkit/form.h"
#include "toolkit/text_box.h"

using memory::Memory_Platform;
using toolkit::Form;

namespace {

class Memory_Windows_Test : public ::testing::Test {
 protected:
  Memory_Windows_Test() {
    for (Form* const form : {&Main, &Editor, &Tip}) {
      form->On_Activate = [this, form] { Log += "+" + form->Name + " "; };
      form->On_Deactivate = [this, form] { Log += "-" + form->Name + " "; };
    }
  }

  std::string Take_Log() { return std::exchange(Log, {}); }
  void Serve() { Platform.Time.Run_Until(Platform.Time.Elapsed()); }
  std::string Shown() {
    std::string names;
    for (const Form* const form : Platform.Windows().In_Order_Of_Showing()) names += form->Name + " ";
    return names;
  }
  std::string Front() {
    std::string names;
    for (const Form* const form : Platform.Windows().From_The_Front()) names += form->Name + " ";
    return names;
  }

  Memory_Platform Platform;
  std::string Log;
  Form Main{Platform.Backend(), "Main"}, Editor{Platform.Backend(), "Editor"}, Tip{Platform.Backend(), "Tip"};
};

}  // namespace

TEST_F(Memory_Windows_Test, Showing_activates_unless_told_otherwise) {
  Main.Show(false);
  EXPECT_EQ(Platform.Backend().Active_Form(), nullptr);
  Editor.Show();
  EXPECT_EQ(Platform.Backend().Active_Form(), &Editor);
  EXPECT_EQ(Take_Log(), "+Editor ");
  Editor.Show();
  EXPECT_EQ(Take_Log(), "");
}

TEST_F(Memory_Windows_Test, Activation_goes_from_one_window_to_the_other) {
  Main.Show();
  Editor.Show();
  EXPECT_EQ(Take_Log(), "+Main -Main +Editor ");
  Platform.Windows().Activate(&Main);
  EXPECT_EQ(Take_Log(), "-Editor +Main ");
  Platform.Windows().Activate(nullptr);
  EXPECT_EQ(Take_Log(), "-Main ");
  EXPECT_EQ(Platform.Backend().Active_Form(), nullptr);
}

TEST_F(Memory_Windows_Test, An_unload_gives_the_activation_back_when_events_are_served) {
  Main.Show();
  Editor.Show();
  Take_Log();
  Editor.Unload();
  EXPECT_EQ(Platform.Backend().Active_Form(), &Main);
  EXPECT_EQ(Take_Log(), "");
  Serve();
  EXPECT_EQ(Take_Log(), "+Main ");
}

TEST_F(Memory_Windows_Test, An_unload_behind_another_programs_window_gives_it_back_to_that) {
  Main.Show();
  Platform.Windows().Activate(nullptr);
  Editor.Show();
  Editor.Unload();
  Serve();
  EXPECT_EQ(Platform.Backend().Active_Form(), nullptr);
}

TEST_F(Memory_Windows_Test, A_hidden_window_hands_the_activation_on) {
  Main.Show();
  Editor.Show();
  Take_Log();
  Editor.Hide();
  EXPECT_EQ(Take_Log(), "-Editor +Main ");
  EXPECT_EQ(Shown(), "Main ");
}

TEST_F(Memory_Windows_Test, A_window_that_goes_while_another_is_active_changes_nothing) {
  Main.Show();
  Editor.Show();
  Take_Log();
  Main.Unload();
  Serve();
  EXPECT_EQ(Take_Log(), "");
  EXPECT_EQ(Platform.Backend().Active_Form(), &Editor);
}

TEST_F(Memory_Windows_Test, A_window_may_unload_itself_when_it_loses_the_activation) {
  Main.Show();
  Tip.On_Deactivate = [this] { Tip.Unload(); };
  Tip.Show();
  Platform.Windows().Activate(&Main);
  EXPECT_FALSE(Tip.Loaded());
  EXPECT_EQ(Platform.Backend().Active_Form(), &Main);
}

TEST_F(Memory_Windows_Test, Windows_stand_in_the_order_of_showing_whichever_lies_in_front) {
  Main.Show();
  Editor.Show();
  Platform.Windows().Activate(&Main);
  EXPECT_EQ(Shown(), "Main Editor ");
  Tip.Load();
  EXPECT_EQ(Front(), "Main Editor Tip ");
  Main.Hide();
  Main.Show();
  EXPECT_EQ(Shown(), "Editor Main ");
}

TEST_F(Memory_Windows_Test, The_newest_of_two_namesakes_is_found) {
  Form second(Platform.Backend(), "Tip");
  EXPECT_EQ(Platform.Windows().Find("Tip"), nullptr);
  Tip.Load();
  second.Load();
  EXPECT_EQ(Platform.Windows().Find("Tip"), &second);
  second.Unload();
  EXPECT_EQ(Platform.Windows().Find("Tip"), &Tip);
  EXPECT_EQ(Platform.Windows().Find(Tip.Handle()), &Tip);
}

TEST_F(Memory_Windows_Test, Nobody_is_told_when_the_program_is_taken_down) {
  Main.Show();
  {
    Form last(Platform.Backend(), "Last");
    last.Show();
    Take_Log();
    Platform.End_Program();
  }
  Serve();
  EXPECT_EQ(Take_Log(), "");
}

TEST_F(Memory_Windows_Test, A_new_program_begins_without_an_active_window) {
  Main.Show();
  Platform.Begin_Program();
  EXPECT_EQ(Platform.Backend().Active_Form(), nullptr);
}

TEST_F(Memory_Windows_Test, A_window_remembers_what_it_was_told) {
  Main.Load();
  auto& peer = dynamic_cast<memory::Memory_Peer&>(*Platform.Windows().Peer_Of(Main));
  EXPECT_FALSE(peer.Region());
  Main.Set_Region(toolkit::Region({{0, 0, 5, 5}}));
  EXPECT_EQ(peer.Region()->Rects().size(), 1U);
  toolkit::Text_Box label(Main, "Label");
  EXPECT_EQ(peer.Focused(), nullptr);
  Main.Set_Focus(label);
  EXPECT_EQ(peer.Focused(), nullptr) << "not before it is active";
  Main.Show();
  EXPECT_EQ(peer.Focused(), &label);
  const int changes = peer.Counts().Control_Changes;
  label.Text = "x";
  label.Text = "x";
  EXPECT_EQ(peer.Counts().Control_Changes, changes + 1);
  peer.Set_Minimised(true);
  EXPECT_TRUE(Main.Minimised());
}

TEST_F(Memory_Windows_Test, The_focus_for_a_control_of_another_window_is_a_fault) {
  Main.Show();
  toolkit::Text_Box box(Editor, "Text");
  EXPECT_THROW(Main.Set_Focus(box), std::logic_error);
}

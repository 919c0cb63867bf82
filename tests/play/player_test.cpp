// The player over the whole program: what it prints, refuses and can't play.
#include "player.h"

#include <gtest/gtest.h>

namespace {

/// Plays a scenario in a fresh world and gives what it prints.
std::string Play(std::string_view text) {
  std::string printed;
  play::World world([&](const std::string& line) { printed += line + "\n"; });
  play::Player(world).Play(play::Read_Scenario(text));
  return printed;
}

/// The line of the command that can't be played, 0 if all can.
int Line_Of_Error(std::string_view text) {
  try {
    Play(text);
    return 0;
  } catch (const play::Scenario_Error& error) {
    return error.Line;
  }
}

const std::string an_event_today =
    "put calendar.dat \"\\\"5/3/2004=Dentist\\\"\\r\\n\"\nsetting Settings \"Show Alerts\" 0\n";
const std::string balloons = "setting Settings Tooltips 2\n" + an_event_today + "start\n";

}  // namespace

TEST(Player_Test, An_unknown_command_or_a_wrong_number_of_words_stops_all_before_it_begins) {
  EXPECT_EQ(Line_Of_Error("start\nfly"), 2);
  EXPECT_EQ(Line_Of_Error("now 2004-03-05"), 1);
  EXPECT_EQ(Line_Of_Error("later 1 fly"), 1);
  EXPECT_EQ(Line_Of_Error("later 1"), 1);
}

TEST(Player_Test, What_makes_no_sense_stops_at_its_line) {
  for (const char* const line :
       {"now 2004-02-30 00:00:00", "locale fr-FR", "wait x", "key F13", "key Ctrl+Nothing", "choose 1 before 2",
        "press Box_Lbl(0) up", "deny HKCU 1", "reg HKXX a b", "state Nothing", "show Main_Frm.Nothing",
        "show Main_Frm.Text", "show Box_Lbl(0).Text", "answer Perhaps", "answer OK before 1", "choose x",
        "type Box_Lbl(0) x", "press Box_Lbl(0) left 5", "shell x"})
    EXPECT_EQ(Line_Of_Error("start\n" + std::string(line)), 2) << line;
}

TEST(Player_Test, Absent_windows_and_controls_are_absent) {
  EXPECT_EQ(Play("start\nshow Edit_Frm.Caption\nshow Edit_Frm.Ok_Btn.Visible\nshow Box_Lbl(99).Caption"),
            "Edit_Frm absent\nEdit_Frm.Ok_Btn absent\nBox_Lbl(99) absent\n");
  EXPECT_EQ(Play("show Main_Frm.Visible\nboxes\nwindows\nballoon\nparent\nstate View_Month"),
            "Main_Frm absent\nno balloon\nparent none\nView_Month absent\n");
}

TEST(Player_Test, What_the_user_cant_reach_is_refused) {
  EXPECT_EQ(
      Play("start\nclick Edit_Frm.Ok_Btn\nclick Box_Lbl(36)\nclose Edit_Frm\nslide Style_Sli 2\nselect Packs_Cbo x\n"
           "hold Box_Lbl(36) left 1\nmove Box_Lbl(36)\ntype Message_Txt x\nactivate Edit_Frm\nclick TabStrip1(3)"),
      "refused Edit_Frm.Ok_Btn\nrefused Box_Lbl(36)\nrefused Edit_Frm\nrefused Style_Sli\nrefused Packs_Cbo\n"
      "refused Box_Lbl(36)\nrefused Box_Lbl(36)\nrefused Message_Txt\nrefused Edit_Frm\nrefused TabStrip1(3)\n");
}

TEST(Player_Test, A_disabled_button_is_refused_and_its_window_stays_as_it_is) {
  EXPECT_EQ(Play("start\ndblclick Box_Lbl(4)\nactivate none\nclick Apply_Btn\nwindows"),
            "refused Apply_Btn\nwindow Main_Frm 12750 9625 6450 5735\nwindow Edit_Frm 7132.5 6180 4935 3000\n");
}

TEST(Player_Test, After_the_start_no_window_is_active_until_the_user_does_something) {
  const std::string main = "window Main_Frm 12750 9625 6450 5735";
  EXPECT_EQ(Play("start\nwait 1\nrelease Box_Lbl(4) left\nmove Box_Lbl(4)\nwindows"), main + "\n");
  for (const char* const act : {"activate Main_Frm", "press Day_Lbl(0) left", "click Day_Lbl(0)", "key F5"})
    EXPECT_EQ(Play("start\n" + std::string(act) + "\nwindows"), main + " active\n") << act;
}

TEST(Player_Test, The_splash_comes_without_being_active_and_goes_by_itself) {
  EXPECT_EQ(Play("shell on\nstart\nwindows\nwait 1.5\nwindows\nparent"),
            "window Splash_Frm 13170 13840 5610 1335\nwindow Main_Frm 12750 9625 6450 5735\n"
            "window Main_Frm 12750 9625 6450 5735\nparent Progman\n");
}

TEST(Player_Test, An_error_at_the_start_ends_the_program_until_the_next_start) {
  EXPECT_EQ(Play("setting Settings Style x\nstart\nkey F2\nclick Box_Lbl(0)\nwait 1\nlater 1 say x\nclock\n"
                 "setting Settings Style 1\nstart\nkey F2\nstate View_Month"),
            "ended: error 13\nended\nended\nended\nended\n2004-03-05 09:00:00\nView_Month = 2\n");
}

TEST(Player_Test, An_error_in_a_tick_ends_the_program_and_the_wait_goes_on) {
  EXPECT_EQ(Play("start\nlater 1 workarea 0 0 3000 1024\nwait 5\nclock\nwindows\nkey F1"),
            "ended: error 6\n2004-03-05 09:00:05\nended\n");
}

TEST(Player_Test, Exit_ends_the_program_without_a_word) {
  EXPECT_EQ(Play("start\nchoose 4\npress Box_Lbl(4) right\nwindows\nkey F2\nstart\nwindows"),
            "ended\nwindow Main_Frm 12750 9625 6450 5735\n");
}

TEST(Player_Test, Starting_anew_ends_the_running_program_without_a_word) {
  EXPECT_EQ(Play("start\nkey F2\nstart\nstate View_Month"), "View_Month = 3\n");
}

TEST(Player_Test, A_start_within_an_open_box_unwinds_the_program_first) {
  EXPECT_EQ(Play(an_event_today + "start\nanswer OK after 5\nlater 1 start\nkey F1\nclock\nstate View_Month\nmessages"),
            "2004-03-05 09:00:01\nView_Month = 3\n"
            "message \"Meridex\" \"Today: 05/03/2004\\r\\n\\r\\nDentist\" information OK -> OK\n");
}

TEST(Player_Test, An_error_within_an_open_box_ends_the_program_whatever_stands_outside) {
  EXPECT_EQ(Play("put calendar.dat \"\\\"5/3/2004=Dentist\\\"\\r\\n\"\nanswer OK after 5\n"
                 "setting Settings \"Auto Compact\" 1\nsetting Settings \"Timeout Value\" 600\n"
                 "setting Settings \"Timeout Format\" 1\nstart\nmessages"),
            "ended: error 6\nmessage \"Meridex\" \"Today: 05/03/2004\\r\\n\\r\\nDentist\" information OK -> OK\n");
}

TEST(Player_Test, Commands_fall_due_inside_waits_of_the_program) {
  EXPECT_EQ(Play(balloons + "later 0.1 release Box_Lbl(4) left\npress Box_Lbl(4) left\nballoon\nstate Mouse_Released"),
            "no balloon\nMouse_Released = True\n");
  EXPECT_EQ(Play(balloons + "later 0.4 release Box_Lbl(4) left\npress Box_Lbl(4) left\nstate Tip_Showing"),
            "Tip_Showing = True\n");
}

TEST(Player_Test, A_click_is_shorter_than_any_wait) {
  EXPECT_EQ(Play(balloons + "click Box_Lbl(4)\nballoon"), "no balloon\n");
}

TEST(Player_Test, A_double_click_reaches_the_editor_within_the_wait_of_its_first_press) {
  EXPECT_EQ(Play(balloons + "dblclick Box_Lbl(4)\nballoon\nshow Message_Txt.Text"),
            "no balloon\nMessage_Txt.Text = \"Dentist\"\n");
}

TEST(Player_Test, A_hold_lasts_from_the_press_to_the_release) {
  EXPECT_EQ(Play(balloons + "hold Box_Lbl(4) left 2\nclock\nstate Tip_Showing\nstate Mouse_Released"),
            "2004-03-05 09:00:02\nTip_Showing = True\nMouse_Released = True\n");
  EXPECT_EQ(Play(balloons + "hold Box_Lbl(4) left 0.2\nballoon"), "no balloon\n");
}

TEST(Player_Test, A_wait_serves_what_is_due_at_its_very_end) {
  EXPECT_EQ(Play("start\nlater 1 say now\nwait 1"), "now\n");
  EXPECT_EQ(Play("start\nlater 1.001 say now\nwait 1"), "");
}

TEST(Player_Test, A_wait_for_a_time_that_never_comes_cant_be_played) {
  EXPECT_EQ(Line_Of_Error("now 2004-03-05 23:59:59\n" + balloons + "wait 0.9\nhold Box_Lbl(4) left 1"), 7);
}

TEST(Player_Test, Keys_go_into_the_text_box_that_has_the_focus) {
  EXPECT_EQ(
      Play("setting Settings Carriage_Return 1\nstart\ndblclick Box_Lbl(4)\ntype Message_Txt ab\nkey c\nkey Enter\n"
           "key \" \"\nshow Message_Txt.Text\nshow Message_Txt.SelStart\nclick Every_Year_Chk\nkey x\n"
           "show Message_Txt.Text\nshow Every_Year_Chk.Value"),
      "Message_Txt.Text = \"abc\\r\\n \"\nMessage_Txt.SelStart = 6\nMessage_Txt.Text = \"abc\\r\\n \"\n"
      "Every_Year_Chk.Value = 1\n");
}

TEST(Player_Test, Enter_and_Escape_press_the_buttons_of_the_active_window) {
  EXPECT_EQ(Play("start\ndblclick Box_Lbl(4)\ntype Message_Txt x\nkey Escape\nls\ndblclick Box_Lbl(4)\n"
                 "type Message_Txt x\nkey Enter\nls"),
            "calendar.dat\n");
}

TEST(Player_Test, A_closed_window_gives_the_activation_back) {
  EXPECT_EQ(Play("start\ndblclick Box_Lbl(4)\nclose Edit_Frm\nwindows"),
            "window Main_Frm 12750 9625 6450 5735 active\n");
}

TEST(Player_Test, The_world_tells_what_was_put_into_it) {
  EXPECT_EQ(
      Play("put a/b.txt \"x\\r\\ny\\nz\"\nmkdir c\nls\nls a\nls none\ncat A\\B.TXT\ncat c\ncat none\nremove a\nls"),
      "a/\nc/\nb.txt\nno folder\n\"x\\r\\n\"\n\"y\\n\"\n\"z\"\nno file\nno file\nc/\n");
  EXPECT_EQ(Play("reg HKLM a b c\nreg HKLM a b\nreg HKCU a b\nsetting S \"K 1\" v\nsetting C K v\nstore"),
            "\"c\"\nabsent\nC K \"v\"\nS K 1 \"v\"\n");
}

TEST(Player_Test, A_full_file_reads_as_empty_and_its_first_write_fails) {
  EXPECT_EQ(Play("put calendar.dat \"\\\"8/3/2004=Tea\\\"\\r\\n\"\nfull calendar.dat\ncat calendar.dat\nstart\n"
                 "show Box_Caption_Lbl(7).Caption\ndblclick Box_Lbl(7)\ntype Message_Txt Milk\nclick Ok_Btn\nmessages\n"
                 "cat calendar.dat"),
            "Box_Caption_Lbl(7).Caption = \"\"\nmessage \"ERROR\" \"Error saving data file.\" critical OK -> OK\n");
}

TEST(Player_Test, The_same_scenario_always_prints_the_same) {
  const std::string scenario = balloons + "hold Box_Lbl(4) left 1\nwait 100\nboxes\nwindows\nregion Main_Frm\nballoon";
  EXPECT_EQ(Play(scenario), Play(scenario));
}

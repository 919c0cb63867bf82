#include "settings_window/events_tab.h"
#include "tests/basic/error_of.h"
#include "tests/settings_window/desk_world.h"

using platform::Box_Answer;
using Texts = std::vector<std::string>;

namespace {

class Events_Overview_Test : public Desk_World {
 protected:
  static Texts Items(const toolkit::Item_List& list) {
    Texts items;
    for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
    return items;
  }

  Texts Keys() { return Items(Overview.Dates_Lst); }
  Texts Lines() { return Items(Overview.Events_Lst); }

  /// The lines of the list in an order.
  Texts Lines_By(std::string_view order) {
    EXPECT_TRUE(Overview.Sort_Cbo.Select_Text(order));
    return Lines();
  }

  /// What the label tells after a click on a line.
  std::string Distance_Of(int line) {
    Overview.Events_Lst.Select(line);
    return Overview.Countdown_Lbl.Caption;
  }

  void Double_Click(int line, Box_Answer answer) {
    Platform.Message_Box.Prepare(answer);
    Overview.Events_Lst.Select(line);
    Overview.Events_Lst.On_Double_Click();
  }

  settings_window::Events_Tab Tab{Page, Desk, Event_File, Dates, Platform.Message_Box};
  settings_window::Events_Overview& Overview = Tab.Overview;
};

}  // namespace

TEST_F(Events_Overview_Test, Shows_the_statistics_at_first) {
  EXPECT_TRUE(Tab.Stats_Opt.Value());
  EXPECT_FALSE(Tab.Overview_Opt.Value());
  EXPECT_FALSE(Overview.Overview_Fra.Visible());
  EXPECT_TRUE(Tab.Statistics.Events_Fra.Visible());
  EXPECT_TRUE(Tab.Statistics.Yearview_Fra.Visible());
  EXPECT_EQ(Items(Overview.Sort_Cbo), (Texts{"Ascending Date", "Descending Date", "Date Added"}));
  EXPECT_EQ(Overview.Sort_Cbo.ListIndex(), -1);
  EXPECT_EQ(Overview.Countdown_Lbl.Caption(), "");
  EXPECT_FALSE(Overview.Dates_Lst.Visible());
}

TEST_F(Events_Overview_Test, The_load_of_the_window_fills_the_list_by_ascending_date) {
  Put({"14/2/2005=Outing", "5/3/2004=Dentist", "25/12/9999=Christmas"});
  Tab.Load();
  EXPECT_EQ(Overview.Sort_Cbo.Text(), "Ascending Date");
  EXPECT_EQ(Keys(), (Texts{"38051=Dentist", "38346(evr|yar)=Christmas", "38397=Outing"}));
  EXPECT_EQ(Lines(),
            (Texts{"05/03/2004  -  Dentist", "25/12/2004 (every year)  -  Christmas", "14/02/2005  -  Outing"}));
}

TEST_F(Events_Overview_Test, The_options_change_what_is_on_view_and_the_overview_loads_anew) {
  Put({"5/3/2004=Dentist"});
  Tab.Load();
  Put({"6/3/2004=Outing"});
  Tab.Overview_Opt.User_Click();
  EXPECT_TRUE(Overview.Overview_Fra.Visible());
  EXPECT_FALSE(Tab.Statistics.Events_Fra.Visible());
  EXPECT_FALSE(Tab.Statistics.Yearview_Fra.Visible());
  EXPECT_EQ(Lines(), Texts{"06/03/2004  -  Outing"});
  Put({"7/3/2004=Party"});
  Tab.Stats_Opt.User_Click();
  EXPECT_FALSE(Overview.Overview_Fra.Visible());
  EXPECT_TRUE(Tab.Statistics.Events_Fra.Visible());
  EXPECT_TRUE(Tab.Statistics.Yearview_Fra.Visible());
  EXPECT_EQ(Lines(), Texts{"06/03/2004  -  Outing"}) << "and that is all it does";
  EXPECT_EQ(Tab.Statistics.Total_All_Lbl.Caption(), "Total Events: 0");
}

TEST_F(Events_Overview_Test, The_activation_counts_and_leaves_the_list_alone) {
  Put({"5/3/2004=Dentist"});
  Tab.Load();
  Put({"6/3/2004=Outing", "7/3/2004=Party"});
  Tab.Activate();
  EXPECT_EQ(Tab.Statistics.Total_All_Lbl.Caption(), "Total Events: 2");
  EXPECT_EQ(Lines(), Texts{"05/03/2004  -  Dentist"});
}

TEST_F(Events_Overview_Test, Descending_turns_the_order_of_the_texts_too) {
  Put({"5/3/2004=Zoo", "5/3/2004=Ape", "6/3/2004=Bee", "5/3/9999=Owl"});
  EXPECT_EQ(Lines_By("Ascending Date"), (Texts{"05/03/2004 (every year)  -  Owl", "05/03/2004  -  Ape",
                                               "05/03/2004  -  Zoo", "06/03/2004  -  Bee"}));
  EXPECT_EQ(Lines_By("Descending Date"), (Texts{"06/03/2004  -  Bee", "05/03/2004  -  Zoo", "05/03/2004  -  Ape",
                                                "05/03/2004 (every year)  -  Owl"}));
}

TEST_F(Events_Overview_Test, The_order_of_adding_sorts_its_counter_as_a_text) {
  Texts lines, wanted;
  for (int i = 0; i < 21; ++i) lines.push_back("1/1/" + std::to_string(2100 - i) + "=" + std::to_string(i));
  lines[11] = "29/2/9999=11";
  Put(lines);
  const Texts shown = Lines_By("Date Added");
  for (const int i : {0, 1, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 2, 20, 3, 4, 5, 6, 7, 8, 9})
    wanted.push_back("01/01/" + std::to_string(2100 - i) + "  -  " + std::to_string(i));
  wanted[3] = "29/02/2004 (every year)  -  11";
  EXPECT_EQ(shown, wanted);
  EXPECT_EQ(Overview.Date_Added_Count, 21);
  EXPECT_EQ(Keys()[3], "11=29/02/2004(evr|yar)=11");
  EXPECT_EQ(Keys()[4], "12=01/01/2088=12");
  Lines_By("Ascending Date");
  EXPECT_EQ(Overview.Date_Added_Count, 0) << "which has no counter";
}

TEST_F(Events_Overview_Test, Dates_run_on_beyond_the_end_of_the_month) {
  Platform.Time.Set_Now({basic::Date_Serial(2005, 6, 1), 0});
  Put({"29/2/9999=Leap", "31/4/2004=Run on", "0/1/2004=Back", "1/13/2003=Thirteen"});
  EXPECT_EQ(Lines_By("Ascending Date"), (Texts{"31/12/2003  -  Back", "01/01/2004  -  Thirteen",
                                               "01/05/2004  -  Run on", "01/03/2005 (every year)  -  Leap"}));
}

TEST_F(Events_Overview_Test, A_text_is_shown_as_it_is_stored) {
  Put({"5/3/2004=Tom && Jane", "6/3/2004=1+1=2", "7/3/2004=Two\r\nlines", "8/3/2004=", "9/3/2004=(evr|yar)=x"});
  for (const char* const order : {"Ascending Date", "Date Added"})
    EXPECT_EQ(Lines_By(order), (Texts{"05/03/2004  -  Tom && Jane", "06/03/2004  -  1+1=2",
                                      "07/03/2004  -  Two\r\nlines", "08/03/2004  -  ", "09/03/2004  -  (evr|yar)=x"}));
}

TEST_F(Events_Overview_Test, Day_numbers_sort_as_texts) {
  Put({"1/1/1925=Nine thousand", "1/1/1950=Eighteen", "1/1/1880=Before day 0", "30/12/1899=Day 0", "31/12/1899=Day 1"});
  EXPECT_EQ(Lines_By("Ascending Date"),
            (Texts{"01/01/1880  -  Before day 0", "30/12/1899  -  Day 0", "31/12/1899  -  Day 1",
                   "01/01/1950  -  Eighteen", "01/01/1925  -  Nine thousand"}));
  EXPECT_EQ(Keys()[0], "-7303=Before day 0");
}

TEST_F(Events_Overview_Test, Without_a_file_the_lists_keep_what_they_hold) {
  Put({"5/3/2004=Dentist"});
  Tab.Load();
  Platform.Files.Remove(data_file);
  EXPECT_EQ(Lines_By("Descending Date"), (Texts{"05/03/2004  -  Dentist", "05/03/2004  -  Dentist"}));
  EXPECT_EQ(Keys(), Texts{"38051=Dentist"});
  EXPECT_EQ(Messages(), Texts{});
}

TEST_F(Events_Overview_Test, Keys_of_another_order_are_taken_for_those_of_the_present_one) {
  Put({"5/3/2004=Dentist"});
  Lines_By("Date Added");
  Platform.Files.Remove(data_file);
  EXPECT_EQ(Lines_By("Ascending Date"), (Texts{"05/03/2004  -  Dentist", "30/12/1899  -  05/03/2004=Dentist"}));
  Put({"5/3/2004=Dentist"});
  Lines_By("Ascending Date");
  Platform.Files.Remove(data_file);
  EXPECT_EQ(Error_Of([&] { Lines_By("Date Added"); }), 5) << "where the counter is taken off, nothing of a key is left";
}

TEST_F(Events_Overview_Test, An_empty_file_empties_the_lists_without_a_word) {
  Put({"5/3/2004=Dentist"});
  Tab.Load();
  Put({});
  EXPECT_EQ(Lines_By("Ascending Date"), Texts{});
  EXPECT_EQ(Keys(), Texts{});
  EXPECT_EQ(Messages(), Texts{});
}

TEST_F(Events_Overview_Test, A_line_that_is_no_event_ends_the_reading_with_a_message) {
  for (const char* const bad : {"no sign", "5/3=x", "a/3/2004=x", "5/3/40000=x", "1/1/99=x", "31/12/9998999=x", ""}) {
    basic::File_Channel channel(Platform.Files);
    events::Event_File file(Platform.Files, channel, Platform.Message_Box, Calendar, Stored.Desktop);
    settings_window::Events_Overview overview(Page, Desk, file, Dates, Platform.Message_Box);
    Put({"5/3/2004=Dentist", bad, "6/3/2004=Outing"});
    overview.Load();
    EXPECT_EQ(Items(overview.Events_Lst), Texts{"05/03/2004  -  Dentist"}) << bad;
    EXPECT_EQ(Messages(), Texts{loading_failed}) << bad;
    overview.Sort_Cbo.Select(0);
    EXPECT_EQ(Items(overview.Events_Lst), Texts{}) << "the file stays open, and can't be opened again";
    EXPECT_EQ(Messages(), Texts{loading_failed}) << bad;
  }
}

TEST_F(Events_Overview_Test, The_counter_of_the_order_of_adding_overflows_behind_the_last_line_that_it_can_count) {
  Put(Texts(32768, "5/3/2004=x"));
  EXPECT_EQ(Lines_By("Date Added").size(), 32767U);
  EXPECT_EQ(Messages(), Texts{loading_failed});
}

TEST_F(Events_Overview_Test, A_list_longer_than_its_positions_reach_is_an_overflow) {
  Put(Texts(32767, "5/3/2004=x"));
  EXPECT_EQ(Lines_By("Ascending Date").size(), 32767U);
  Put(Texts(32768, "5/3/2004=x"));
  EXPECT_EQ(Error_Of([&] { Lines_By("Ascending Date"); }), 6);
}

TEST_F(Events_Overview_Test, Tells_the_days_to_the_clicked_event) {
  Put({"5/3/2004=today", "2/3/2004=gone", "6/3/2004=tomorrow", "5/3/2005=next year", "1/1/9999=every year"});
  Lines_By("Ascending Date");
  EXPECT_EQ(Distance_Of(0), "-64 days");
  EXPECT_EQ(Distance_Of(1), "-3 days");
  EXPECT_EQ(Distance_Of(2), "0 days");
  EXPECT_EQ(Distance_Of(3), "1 days");
  EXPECT_EQ(Distance_Of(4), "365 days");
  Tab.Overview_Opt.User_Click();
  EXPECT_EQ(Overview.Countdown_Lbl.Caption(), "365 days") << "until the next click";
}

TEST_F(Events_Overview_Test, Anything_but_yes_leaves_the_event_alone) {
  Put({"5/3/2004=Dentist"});
  Tab.Load();
  for (const Box_Answer answer : {Box_Answer::No, Box_Answer::Cancel}) Double_Click(0, answer);
  EXPECT_EQ(Lines(), Texts{"05/03/2004  -  Dentist"});
  EXPECT_EQ(File(), "\"5/3/2004=Dentist\"\r\n");
  EXPECT_EQ(Calendar.Selected_Date, "");
  const auto shown = Platform.Message_Box.Take_Shown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].Title, "Meridex");
  EXPECT_EQ(shown[0].Text, "Do you really want to remove the event..\r\n\r\n05/03/2004  -  Dentist");
  EXPECT_EQ(shown[0].Icon, platform::Box_Icon::Question);
  EXPECT_EQ(shown[0].Buttons, platform::Box_Buttons::Yes_No_Cancel);
}

TEST_F(Events_Overview_Test, Yes_removes_the_event_from_the_file_the_list_and_the_calendar) {
  Put({"4/3/2004=Before", "5/3/2004=Dentist", "6/3/2004=Behind"});
  Desk.Refresh_Calendar();
  EXPECT_NE(Main_Frm.Box_Caption_Lbl[4].Caption(), "");
  Tab.Load();
  Double_Click(1, Box_Answer::Yes);
  EXPECT_EQ(File(), "\"4/3/2004=Before\"\r\n\"6/3/2004=Behind\"\r\n");
  EXPECT_EQ(Lines(), (Texts{"04/03/2004  -  Before", "06/03/2004  -  Behind"}));
  EXPECT_EQ(Keys().size(), 3U) << "the keys stay until the next reading";
  EXPECT_EQ(Calendar.Selected_Date, "5/3/2004");
  EXPECT_EQ(Main_Frm.Box_Caption_Lbl[4].Caption(), "");
}

TEST_F(Events_Overview_Test, An_every_year_event_is_removed_by_its_day_and_month) {
  Platform.Time.Set_Now({basic::Date_Serial(2007, 1, 1), 0});
  Put({"25/12/9999=Christmas"});
  Tab.Load();
  EXPECT_EQ(Lines(), Texts{"25/12/2007 (every year)  -  Christmas"});
  Double_Click(0, Box_Answer::Yes);
  EXPECT_EQ(File(), "");
  EXPECT_EQ(Calendar.Selected_Date, "25/12/2007");
}

TEST_F(Events_Overview_Test, Of_two_lines_of_one_day_the_first_of_the_file_goes) {
  Put({"5/3/9999=Every year", "5/3/2004=Dated"});
  Tab.Load();
  EXPECT_EQ(Lines()[1], "05/03/2004  -  Dated");
  Double_Click(1, Box_Answer::Yes);
  EXPECT_EQ(File(), "\"5/3/2004=Dated\"\r\n");
  EXPECT_EQ(Lines(), Texts{"05/03/2004 (every year)  -  Every year"}) << "the list loses the one that was clicked";
}

TEST_F(Events_Overview_Test, A_removal_that_finds_no_line_writes_what_the_editor_holds) {
  Put({"5/3/2004=Dentist"});
  Tab.Load();
  Put({"6/3/2004=Outing"});
  Editor.Window.Load();
  Editor.Message_Txt.User_Text("Tom & Jane");
  Double_Click(0, Box_Answer::Yes);
  EXPECT_EQ(File(), "\"6/3/2004=Outing\"\r\n\"5/3/2004=Tom && Jane\"\r\n");
}

TEST_F(Events_Overview_Test, In_compact_mode_the_calendar_is_left_alone) {
  Put({"5/3/2004=Dentist"});
  Desk.Refresh_Calendar();
  Tab.Load();
  Calendar.Compact_On = true;
  Main_Frm.Which_Month_Lbl.Caption = "as it stood";
  Double_Click(0, Box_Answer::Yes);
  EXPECT_EQ(File(), "");
  EXPECT_NE(Main_Frm.Box_Caption_Lbl[4].Caption(), "");
  EXPECT_EQ(Main_Frm.Which_Month_Lbl.Caption(), "as it stood");
}

TEST_F(Events_Overview_Test, A_double_click_beside_the_events_asks_nothing) {
  Tab.Load();
  Overview.Events_Lst.On_Double_Click();
  EXPECT_EQ(Messages(), Texts{});
}

TEST_F(Events_Overview_Test, A_window_that_closes_under_the_question_takes_the_removal_along) {
  Put({"5/3/2004=Dentist"});
  Tab.Load();
  Platform.Time.Schedule(Platform.Time.Elapsed() + 1, [this] { Window.Unload(); });
  Platform.Message_Box.Prepare(Box_Answer::Yes, 2);
  Overview.Events_Lst.Select(0);
  Overview.Events_Lst.On_Double_Click();
  EXPECT_EQ(File(), "\"5/3/2004=Dentist\"\r\n");
}

#include "settings_window/statistics.h"

#include "tests/basic/error_of.h"
#include "tests/settings_window/desk_world.h"

using Texts = std::vector<std::string>;

namespace {

class Statistics_Test : public Desk_World {
 protected:
  /// The four numbers: of all, of this year, before and after today.
  Texts Numbers() {
    Texts numbers;
    for (const toolkit::Label* const label :
         {&Statistics.Total_All_Lbl, &Statistics.Total_Year_Lbl, &Statistics.Before_Lbl, &Statistics.After_Lbl}) {
      const std::string& caption = label->Caption;
      numbers.push_back(caption.substr(caption.rfind(' ') + 1));
    }
    return numbers;
  }

  /// The months that aren't 0.
  Texts Months() {
    Texts months;
    for (int i = 0; i < 12; ++i)
      if (const std::string& caption = Statistics.Month_Count_Lbl[i].Caption; !caption.ends_with(" 0"))
        months.push_back(caption);
    return months;
  }

  Texts Count(const Texts& lines) {
    Put(lines);
    Statistics.Get_Stats();
    return Numbers();
  }

  settings_window::Statistics Statistics{Page, Event_File, Dates};
};

}  // namespace

TEST_F(Statistics_Test, Every_label_shows_nothing_counted_at_first) {
  EXPECT_EQ(Statistics.Total_All_Lbl.Caption(), "Total Events: 0");
  EXPECT_EQ(Statistics.Total_Year_Lbl.Caption(), "Events This Year: 0");
  EXPECT_EQ(Statistics.Before_Lbl.Caption(), "No. Before Today: 0");
  EXPECT_EQ(Statistics.After_Lbl.Caption(), "No. After Today: 0");
  Texts months;
  for (int i = 0; i < 12; ++i) months.push_back(Statistics.Month_Count_Lbl[i].Caption);
  EXPECT_EQ(months, (Texts{"Jan: 0", "Feb: 0", "Mar: 0", "Apr: 0", "May: 0", "Jun: 0", "July: 0", "Aug: 0", "Sep: 0",
                           "Oct: 0", "Nov: 0", "Dec: 0"}));
  EXPECT_EQ(Statistics.Yearview_Fra.Caption(), "Events this Year");
  EXPECT_EQ(Statistics.Events_Fra.Caption(), "");
}

TEST_F(Statistics_Test, Counts_by_year_month_and_side_of_today) {
  EXPECT_EQ(Count({"4/3/2004=a", "5/3/2004=b", "6/3/2004=c", "31/12/2004=d", "1/1/2004=e", "1/7/2005=f", "1/7/2003=g"}),
            (Texts{"7", "5", "3", "3"}));
  EXPECT_EQ(Months(), (Texts{"Jan: 1", "Mar: 3", "Dec: 1"}));
}

TEST_F(Statistics_Test, Today_is_neither_before_nor_after) {
  EXPECT_EQ(Count({"5/3/2004=today"}), (Texts{"1", "1", "0", "0"}));
  EXPECT_EQ(Months(), Texts{"Mar: 1"});
}

TEST_F(Statistics_Test, An_event_of_every_year_lies_far_ahead_and_in_no_month) {
  EXPECT_EQ(Count({"1/1/9999=New Year", "5/3/9999=today"}), (Texts{"2", "0", "0", "2"}));
  EXPECT_EQ(Months(), Texts{});
}

TEST_F(Statistics_Test, A_line_without_a_year_counts_for_its_month_alone) {
  EXPECT_EQ(Count({"5/7/yyyy=x", "6/7/yyyy=y"}), (Texts{"0", "0", "0", "0"}));
  EXPECT_EQ(Months(), Texts{"July: 2"});
  EXPECT_EQ(Messages(), Texts{});
  Count({"5/7/YYYY=x"});
  EXPECT_EQ(Messages(), Texts{loading_failed}) << "to the letter";
}

TEST_F(Statistics_Test, Each_counting_begins_anew) {
  Count({"4/3/2004=a", "6/3/2004=c", "5/7/yyyy=x"});
  EXPECT_EQ(Count({"6/3/2004=c"}), (Texts{"1", "1", "0", "1"}));
  EXPECT_EQ(Months(), Texts{"Mar: 1"});
}

TEST_F(Statistics_Test, An_empty_file_counts_nothing) {
  Count({"4/3/2004=a"});
  EXPECT_EQ(Count({}), (Texts{"0", "0", "0", "0"}));
}

TEST_F(Statistics_Test, Without_a_file_the_labels_stay) {
  Count({"4/3/2004=a"});
  Platform.Files.Remove(data_file);
  Statistics.Get_Stats();
  EXPECT_EQ(Numbers(), (Texts{"1", "1", "1", "0"}));
  EXPECT_EQ(Messages(), Texts{});
  Statistics.Write_Labels();
  EXPECT_EQ(Numbers(), (Texts{"0", "0", "0", "0"})) << "the counters don't";
}

TEST_F(Statistics_Test, A_line_that_cannot_be_counted_leaves_the_labels_as_they_were) {
  Count({"4/3/2004=a"});
  for (const char* const bad : {"29/2/9999=x", "no sign", "5/3=x", "a/3/2004=x", "5/3/x=x", "31/4/2004=x", "5/0/2004=x",
                                "40000/1/2004=x", "5/3/10000=x", "", "1/13/yyyy=x", "1/0/yyyy=x", "5/3/2004/1=x"}) {
    basic::File_Channel channel(Platform.Files);
    events::Event_File file(Platform.Files, channel, Platform.Message_Box, Calendar, Stored.Desktop);
    settings_window::Statistics statistics(Page, file, Dates);
    Put({"4/3/2004=a", bad, "4/3/2004=b"});
    statistics.Get_Stats();
    EXPECT_EQ(statistics.Total_All_Lbl.Caption(), "Total Events: 0") << bad;
    EXPECT_EQ(Messages(), Texts{loading_failed}) << bad;
    Put({"4/3/2004=a"});
    statistics.Get_Stats();
    EXPECT_EQ(statistics.Total_All_Lbl.Caption(), "Total Events: 0") << "the file stays open";
    EXPECT_EQ(Messages(), Texts{loading_failed}) << bad;
  }
}

TEST_F(Statistics_Test, A_month_above_12_that_reads_as_a_day_fails_in_the_present_year_alone) {
  EXPECT_EQ(Count({"3/13/2003=x"}), (Texts{"1", "0", "1", "0"}));
  EXPECT_EQ(Error_Of([&] { Statistics.Workout_Stats("3/13/2004=x"); }), 9);
  Statistics.Write_Labels();
  EXPECT_EQ(Numbers(), (Texts{"2", "1", "1", "1"})) << "all but its month has been counted by then";
}

TEST_F(Statistics_Test, Sides_of_today_follow_the_locale_and_months_follow_the_file) {
  Speak("en-US");
  EXPECT_EQ(Count({"3/5/2004=x"}), (Texts{"1", "1", "0", "0"})) << "5 March, which is today";
  EXPECT_EQ(Months(), Texts{"May: 1"});
  EXPECT_EQ(Count({"5/3/2004=x"}), (Texts{"1", "1", "0", "1"})) << "3 May";
  EXPECT_EQ(Months(), Texts{"Mar: 1"});
  EXPECT_EQ(Count({"25/3/2004=x"}), (Texts{"1", "1", "0", "1"})) << "a first number above 12 can't be a month";
  EXPECT_EQ(Months(), Texts{"Mar: 1"});
}

TEST_F(Statistics_Test, A_year_of_two_digits_is_read_and_is_not_the_present_one) {
  EXPECT_EQ(Count({"4/3/04=x"}), (Texts{"1", "0", "1", "0"}));
}

TEST_F(Statistics_Test, Blanks_around_the_numbers_do_not_count) {
  EXPECT_EQ(Count({" 4 / 3 / 2004 =x"}), (Texts{"1", "1", "1", "0"}));
  EXPECT_EQ(Months(), Texts{"Mar: 1"});
}

TEST_F(Statistics_Test, The_counters_are_of_16_bits) {
  EXPECT_EQ(Count(Texts(32767, "4/3/2004=x")), (Texts{"32767", "32767", "32767", "0"}));
  EXPECT_EQ(Messages(), Texts{});
  EXPECT_EQ(Count(Texts(32768, "4/3/2004=x")), (Texts{"32767", "32767", "32767", "0"}));
  EXPECT_EQ(Messages(), Texts{loading_failed});
}

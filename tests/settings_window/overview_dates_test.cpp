// The dates of the overview's list: what it writes, the click and the double-click must read back.
#include "settings_window/events_overview.h"
#include "tests/calendar/odd_locale.h"
#include "tests/settings_window/desk_world.h"

using Texts = std::vector<std::string>;

namespace {

class Overview_Dates_Test : public Desk_World {
 protected:
  static Texts Lines(const settings_window::Events_Overview& overview) {
    Texts lines;
    for (int i = 0; i < overview.Events_Lst.ListCount(); ++i) lines.push_back(overview.Events_Lst.List(i));
    return lines;
  }

  /// The lines in the order of the file and in that of the dates, where both are the same.
  Texts Lines_In(const std::string& pattern, int digits_of_year) {
    Locale.Pattern = pattern;
    Locale.Digits_Of_Year = digits_of_year;
    Overview.Sort_Cbo.Select_Text("Date Added");
    const Texts lines = Lines(Overview);
    Overview.Sort_Cbo.Select_Text("Ascending Date");
    EXPECT_EQ(Lines(Overview), lines);
    return lines;
  }

  Odd_Locale Locale;
  calendar::Dates Odd_Dates{Platform.Clock, Locale};
  settings_window::Events_Overview Overview{Page, Desk, Event_File, Odd_Dates, Platform.Message_Box};
};

}  // namespace

TEST_F(Overview_Dates_Test, Leave_out_the_blanks_of_a_short_date) {
  Put({"6/3/2004=Outing", "5/3/9999=Every year"});
  Locale.Pattern = "d/ m/ ";
  Overview.Load();
  EXPECT_EQ(Lines(Overview), (Texts{"5.3.2004 (every year)  -  Every year", "6.3.2004  -  Outing"}));
  Overview.Events_Lst.Select(1);
  EXPECT_EQ(Overview.Countdown_Lbl.Caption(), "1 days");
}

TEST_F(Overview_Dates_Test, Stand_with_the_year_first_where_they_would_be_read_as_another_day) {
  Put({"5/3/1929=Before", "5/3/1930=First", "5/3/2029=Last", "5/3/2030=Behind"});
  EXPECT_EQ(Lines_In("dd/mm/", 2),
            (Texts{"1929-03-05  -  Before", "05.03.30  -  First", "05.03.29  -  Last", "2030-03-05  -  Behind"}));
  Overview.Events_Lst.Select(3);
  EXPECT_EQ(Overview.Countdown_Lbl.Caption(), "9496 days");
}

TEST_F(Overview_Dates_Test, Stand_with_the_year_first_where_they_could_not_be_read_at_all) {
  Put({"5/3/2004=Dentist"});
  EXPECT_EQ(Lines_In("d/m/x", 4), Texts{"2004-03-05  -  Dentist"});
  Platform.Message_Box.Prepare(platform::Box_Answer::Yes);
  Overview.Events_Lst.Select(0);
  Overview.Events_Lst.On_Double_Click();
  EXPECT_EQ(Calendar.Selected_Date, "5/3/2004");
  EXPECT_EQ(File(), "");
}

TEST_F(Overview_Dates_Test, Are_read_back_in_the_locales_of_the_platform) {
  settings_window::Events_Overview overview(Page, Desk, Event_File, Dates, Platform.Message_Box);
  const auto distance_of = [&](int line) {
    overview.Events_Lst.Select(line);
    return overview.Countdown_Lbl.Caption();
  };
  Put({"6/3/2004=a", "25/4/2004=b", "4/5/1931=c", "3/2/1001=d"});
  for (const char* const locale : {"en-GB", "en-US", "de-DE"}) {
    Speak(locale);
    overview.Sort_Cbo.Select_Text("Date Added");
    ASSERT_EQ(overview.Events_Lst.ListCount(), 4);
    EXPECT_EQ(distance_of(0), "1 days") << locale;
    EXPECT_EQ(distance_of(1), "51 days") << locale;
    EXPECT_EQ(distance_of(2), "-26604 days") << locale;
    EXPECT_EQ(distance_of(3), "-366369 days") << locale;
  }
  EXPECT_EQ(Lines(overview)[0], "06.03.2004  -  a");
}

#include "memory/memory_locale.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"

using basic::Weekday;
using memory::Memory_Locale;

namespace {

constexpr basic::Serial_Day fifth_of_march_2004 = 38051;

struct Forms {
  std::string Short_Date, Long_Date;
  Weekday First = Weekday::Saturday;
  std::string Friday;
};

Forms Forms_Of(std::string_view name) {
  Memory_Locale locale;
  EXPECT_TRUE(locale.Choose(name));
  locale.Enter();
  Forms forms;
  locale.Append_Short_Date(forms.Short_Date, fifth_of_march_2004);
  locale.Append_Long_Date(forms.Long_Date, fifth_of_march_2004);
  forms.First = locale.First_Weekday();
  forms.Friday = locale.Words().Short_Weekday_Name(Weekday::Friday);
  return forms;
}

}  // namespace

TEST(Memory_Locale_Test, Speaks_British_English) {
  const Forms forms = Forms_Of("en-GB");
  EXPECT_EQ(forms.Short_Date, "05/03/2004");
  EXPECT_EQ(forms.Long_Date, "5 March 2004");
  EXPECT_EQ(forms.First, Weekday::Monday);
  EXPECT_EQ(forms.Friday, "Fri");
}

TEST(Memory_Locale_Test, Speaks_American_English) {
  const Forms forms = Forms_Of("en-US");
  EXPECT_EQ(forms.Short_Date, "3/5/2004");
  EXPECT_EQ(forms.Long_Date, "Friday, March 5, 2004");
  EXPECT_EQ(forms.First, Weekday::Sunday);
  EXPECT_EQ(forms.Friday, "Fri");
}

TEST(Memory_Locale_Test, Speaks_German) {
  const Forms forms = Forms_Of("de-DE");
  EXPECT_EQ(forms.Short_Date, "05.03.2004");
  EXPECT_EQ(forms.Long_Date, "Freitag, 5. M\xE4rz 2004");
  EXPECT_EQ(forms.First, Weekday::Monday);
  EXPECT_EQ(forms.Friday, "Fr");
}

TEST(Memory_Locale_Test, Knows_no_other_locale) {
  Memory_Locale locale;
  EXPECT_FALSE(locale.Choose("fr-FR"));
}

TEST(Memory_Locale_Test, A_program_that_runs_stays_in_its_locale) {
  Memory_Locale locale;
  locale.Choose("de-DE");
  EXPECT_EQ(locale.Words().Date_Separator, "/");
  locale.Enter();
  EXPECT_EQ(locale.Words().Date_Separator, ".");
}

TEST(Memory_Locale_Test, Writes_the_general_form_and_reads_it_back) {
  const auto check = [](std::string_view name, const char* day, const char* moment) {
    Memory_Locale locale;
    locale.Choose(name);
    locale.Enter();
    std::string text;
    locale.Append_General_Date(text, {fifth_of_march_2004, 999'999});
    EXPECT_EQ(text, day);
    EXPECT_EQ(locale.Read_Moment(text), (basic::Moment{fifth_of_march_2004, 0}));
    text.clear();
    const basic::Moment afternoon{fifth_of_march_2004, 47'109'000'000};
    locale.Append_General_Date(text, afternoon);
    EXPECT_EQ(text, moment);
    EXPECT_EQ(locale.Read_Moment(text), afternoon);
  };
  check("en-GB", "05/03/2004", "05/03/2004 13:05:09");
  check("en-US", "3/5/2004", "3/5/2004 1:05:09 PM");
  check("de-DE", "05.03.2004", "05.03.2004 13:05:09");
}

TEST(Memory_Locale_Test, Reads_its_own_month_names) {
  Memory_Locale locale;
  EXPECT_EQ(locale.Read_Moment("5 March 2004").Day, fifth_of_march_2004);
  EXPECT_EQ(Error_Of([&] { locale.Read_Moment("5 M\xE4rz 2004"); }), 13);
}

#include <gtest/gtest.h>

#include "exchange/overview_lists.h"
#include "tests/basic/error_of.h"

using exchange::Read_Dates_Entry;

namespace {

/// "DAY TEXT", with "every " in front of an event of every year.
std::string Read(std::string_view entry) {
  const exchange::Dates_Entry read = Read_Dates_Entry(entry);
  return (read.Every_Year ? "every " : "") + std::to_string(read.Day) + " " + std::string(read.Text);
}

int Error_Of_Reading(std::string_view entry) {
  return Error_Of([&] { Read_Dates_Entry(entry); });
}

}  // namespace

TEST(Dates_Entry_Test, Begins_with_a_day_number) {
  EXPECT_EQ(Read("38031=Valentine's dinner"), "38031 Valentine's dinner");
  EXPECT_EQ(Read("38346(evr|yar)=Christmas"), "every 38346 Christmas");
  EXPECT_EQ(Read("-5=a=b"), "-5 a=b");
  EXPECT_EQ(Read("0="), "0 ");
}

TEST(Dates_Entry_Test, A_counter_in_front_is_taken_for_the_day) {
  EXPECT_EQ(Read("12=05/03/2004=Tea"), "12 05/03/2004=Tea");
  EXPECT_EQ(Read("12=05/03/2004(evr|yar)=Tea"), "12 05/03/2004(evr|yar)=Tea") << "the marker isn't in the first part";
}

TEST(Dates_Entry_Test, Anything_else_is_an_error) {
  EXPECT_EQ(Error_Of_Reading("38031"), 5);
  EXPECT_EQ(Error_Of_Reading("x=y"), 13);
  EXPECT_EQ(Error_Of_Reading("=y"), 13);
  EXPECT_EQ(Error_Of_Reading("99999999999=y"), 6);
  EXPECT_EQ(Error_Of_Reading("2958466=y"), 5);
  EXPECT_EQ(Error_Of_Reading("-657435=y"), 5);
}

TEST(Dates_Entry_Test, The_last_day_has_no_next_one) {
  EXPECT_EQ(exchange::Next_Day(2958464), 2958465);
  EXPECT_EQ(Error_Of([] { (void)exchange::Next_Day(2958465); }), 5);
}

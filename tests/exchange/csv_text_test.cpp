#include "exchange/csv_text.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"

using exchange::Csv_Columns;
using exchange::Event_Text;
using exchange::Find_Columns;
using Texts = std::vector<std::string>;

namespace {

/// "COLUMN:TEXT" of each field.
Texts Fields(std::string_view record) {
  Texts fields;
  for (const exchange::Csv_Field& field : exchange::Read_Fields(record))
    fields.push_back(std::to_string(field.Column.Value()) + ":" + field.Text);
  return fields;
}

int Error_Of_Reading(const std::string& record) {
  return Error_Of([&] { (void)exchange::Read_Fields(record); });
}

/// The three columns behind those of an earlier file, "" for a line that is refused.
std::string Columns(std::string_view line, Csv_Columns columns = {7, 8, 9}) {
  if (!Find_Columns(line, columns)) return "";
  return std::to_string(columns.Subject_Col.Value()) + " " + std::to_string(columns.Start_Date_Col.Value()) + " " +
         std::to_string(columns.Description_Col.Value());
}

}  // namespace

TEST(Csv_Headings, Are_found_by_their_whole_words) {
  EXPECT_EQ(Columns("subject,start date,description"), "0 1 2");
  EXPECT_EQ(Columns("\"description\",\"x\",\"start date\",\"subject\""), "3 2 0");
  EXPECT_EQ(Columns("subject,start date,description,subject"), "3 1 2");
  EXPECT_EQ(Columns("my subject,start date,description"), "7 1 2");
  EXPECT_EQ(Columns("subject, start date, description "), "0 8 9");
  EXPECT_EQ(Columns("subjectstart datedescription"), "7 8 9");
  EXPECT_EQ(Columns("sub\"ject\",start date,description,subject"), "3 1 2") << "quotes go wherever they stand";
}

TEST(Csv_Headings, Are_all_wanted_in_small_letters) {
  for (const char* const line :
       {"", "subject,start date", "subject,description", "start date,description", "Subject,Start Date,Description"})
    EXPECT_EQ(Columns(line), "") << line;
}

TEST(Csv_Headings, Of_a_refused_line_change_nothing) {
  Csv_Columns columns{7, 8, 9};
  EXPECT_FALSE(Find_Columns("subject,start date", columns));
  EXPECT_EQ(columns.Subject_Col, 7);
}

TEST(Csv_Headings, End_at_the_last_16_bit_number) {
  Csv_Columns columns;
  const std::string wanted = "start date,description,";
  EXPECT_TRUE(Find_Columns(wanted + std::string(32764, ',') + "subject", columns));
  EXPECT_EQ(columns.Subject_Col, 32766);
  EXPECT_EQ(Error_Of([&] { Find_Columns(wanted + std::string(32765, ',') + "subject", columns); }), 6);
}

TEST(Csv_Records, Go_on_to_a_line_that_ends_in_a_quote) {
  basic::Line_Reader reader("\"a\"\r\n\"b\r\n\r\nc\"\n\"\nd\n");
  EXPECT_EQ(exchange::Next_Record(reader), "\"a\"");
  EXPECT_EQ(exchange::Next_Record(reader), "\"b  c\"");
  EXPECT_EQ(exchange::Next_Record(reader), "\"");
  EXPECT_EQ(Error_Of([&] { (void)exchange::Next_Record(reader); }), 62);
}

TEST(Csv_Fields, Are_those_in_quotes) {
  EXPECT_EQ(Fields("\"a\",\"b\",\"c\""), (Texts{"0:a", "1:b", "2:c"}));
  EXPECT_EQ(Fields("\"a\",b,\"c\""), (Texts{"0:a", "2:c"}));
  EXPECT_EQ(Fields("a,,b,\"c\""), Texts{"3:c"});
  EXPECT_EQ(Fields("\" a \""), Texts{"0: a "});
  EXPECT_EQ(Fields(" \"a\",\"b\""), Texts{"1:b"}) << "a blank before the quote makes it none";
}

TEST(Csv_Fields, Keep_their_commas_and_lose_their_quotes) {
  EXPECT_EQ(Fields("\"a,b,,c\",\"d\""), (Texts{"0:a,b,,c", "1:d"}));
  EXPECT_EQ(Fields("\"a\"\"b\"\"\",\"c\""), (Texts{"0:ab", "1:c"}));
  EXPECT_EQ(Fields("\"a\"b\",\"c\""), (Texts{"0:ab", "1:c"}));
  EXPECT_EQ(Fields("\"a|b\""), Texts{"0:a,b"});
  EXPECT_EQ(Fields("\"a,\",\"b\""), (Texts{"0:a,", "1:b"}));
}

TEST(Csv_Fields, Of_one_quote_are_closed) {
  EXPECT_EQ(Fields("\",abc\",\"d\""), (Texts{"0:", "2:d"}));
  EXPECT_EQ(Fields("\""), Texts{"0:"});
  EXPECT_EQ(Fields("\",\""), (Texts{"0:", "1:"}));
}

TEST(Csv_Fields, That_are_empty_count_as_unquoted) {
  EXPECT_EQ(Fields("\"\",\"b\""), Texts{"1:b"});
  EXPECT_EQ(Error_Of_Reading("\"a\",\"\""), 5);
  EXPECT_EQ(Error_Of_Reading("\"\""), 5);
  EXPECT_EQ(Error_Of_Reading(""), 5);
}

TEST(Csv_Fields, Need_quotes_at_the_end_of_the_record) {
  EXPECT_EQ(Error_Of_Reading("\"a\",b"), 5);
  EXPECT_EQ(Error_Of_Reading("\"a\",\"b"), 5);
  EXPECT_EQ(Error_Of_Reading("\"a,b"), 5);
  EXPECT_EQ(Error_Of_Reading("\"a\","), 5);
  EXPECT_EQ(Error_Of_Reading("\"a,b\"\""), 5);
}

TEST(Csv_Fields, May_be_as_long_as_they_like) {
  std::string long_text;
  while (long_text.size() < 1'000'000) long_text += "word, ";
  EXPECT_EQ(Fields("\"" + long_text + "\",\"b\""), (Texts{"0:" + long_text, "1:b"}));
}

TEST(Csv_Fields, End_at_the_last_16_bit_number) {
  EXPECT_EQ(Fields(std::string(32766, ',') + "\"a\""), Texts{"32766:a"});
  EXPECT_EQ(Error_Of_Reading(std::string(32767, ',') + "\"a\""), 6);
}

TEST(Csv_Event_Text, Is_subject_and_description) {
  EXPECT_EQ(Event_Text("a", "b"), "a - b");
  EXPECT_EQ(Event_Text("a", ""), "a");
  EXPECT_EQ(Event_Text("", "b"), "b");
  EXPECT_EQ(Event_Text("Meridex", "b"), "b");
  EXPECT_EQ(Event_Text("Meridex", ""), "");
  EXPECT_EQ(Event_Text("MERIDEX", "b"), "MERIDEX - b");
}

TEST(Csv_Rows, Have_six_fields_in_quotes) {
  EXPECT_EQ(exchange::Heading_Row(), R"("Subject","Start Date","Description","Start Time","End Date","End Time")");
  std::string row = "x";
  exchange::Append_Row(row, "1/2/2004", "a \"b\", c", "2/2/2004");
  EXPECT_EQ(row, R"(x"Meridex","1/2/2004","a "b", c","12:00:00 AM","2/2/2004","12:00:00 AM")");
}

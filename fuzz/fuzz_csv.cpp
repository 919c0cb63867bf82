// Any bytes as a CSV file: headings, records and fields are those that a slow reading finds, or fail as it does; and a row
// of the export with the same bytes in it comes in again as the text that a reading of it by the letter makes of it.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "basic/text.h"
#include "exchange/csv_text.h"
#include "fuzz/expect.h"
#include "tests/basic/error_of.h"
#include "tests/exchange/read_csv_slowly.h"

namespace {

void Expect_Headings(const std::string& line) {
  exchange::Csv_Columns columns{1, 2, 3};
  Slow_Columns slow{1, 2, 3};
  bool found = true;
  const int error = Error_Of([&] { found = exchange::Find_Columns(line, columns); });
  int slow_error = 0;
  const bool slow_found = Columns_By_The_Letter(line, slow, slow_error);
  Expect(error == slow_error && found == slow_found, "the headings are found or not, and fail as they must");
  if (error != 0) return;
  Expect(columns.Subject_Col == slow.Subject, "the subject's column is right");
  Expect(columns.Start_Date_Col == slow.Start_Date, "the date's column is right");
  Expect(columns.Description_Col == slow.Description, "the description's column is right");
}

void Expect_Fields(const std::string& record) {
  std::vector<Slow_Field> fields;
  const int error = Error_Of([&] {
    for (exchange::Csv_Field& field : exchange::Read_Fields(record))
      fields.push_back({field.Column.Value(), std::move(field.Text)});
  });
  int slow_error = 0;
  const auto slow = Fields_By_The_Letter(record, slow_error);
  Expect(error == slow_error, "a record fails as it must");
  if (slow) Expect(fields == *slow, "the fields are those of a slow reading");
  for (const Slow_Field& field : fields)
    Expect(field.Text.find_first_of("\"|") == std::string::npos, "a field has neither quotes nor bars");
}

/// Returns how many records there are, the one that doesn't end included.
std::size_t Expect_Records(const std::string& bytes) {
  const std::vector<std::string> lines = Lines_By_The_Letter(bytes);
  basic::Line_Reader reader(bytes);
  if (lines.empty()) {
    Expect(Error_Of([&] { reader.Next(); }) == 62, "an empty file has no first line");
    return 0;
  }
  const std::string headings = basic::Lower_Case(reader.Next());
  Expect(headings == basic::Lower_Case(lines.front()), "the first line is the first line");
  Expect_Headings(headings);
  const auto records = Records_By_The_Letter(lines);
  for (const auto& slow : records) {
    std::string record;
    const int error = Error_Of([&] { record = exchange::Next_Record(reader); });
    Expect(error == (slow ? 0 : 62), "a record ends, or the file does");
    if (!slow) break;
    Expect(record == *slow, "the record is that of a slow reading");
    Expect_Fields(record);
  }
  Expect(reader.At_End(), "all records are read");
  return records.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t longest = 8192;  // the slow reading's time grows by the square
  const std::string bytes(reinterpret_cast<const char*>(data), std::min(size, longest));
  Expect_Records(bytes);
  std::string row;
  exchange::Append_Row(row, "1/2/2004", bytes, "2/2/2004");
  Expect(row.size() == bytes.size() +
                           std::string_view(R"("Meridex","1/2/2004","","12:00:00 AM","2/2/2004","12:00:00 AM")").size(),
         "a row holds its text as it stands");
  Expect_Fields(row);
  const std::size_t records = Expect_Records(std::string(exchange::Heading_Row()) + "\r\n" + row + "\r\n");
  const bool plain = bytes.find_first_of("\"\r\n") == std::string::npos;
  Expect(!plain || records == 1, "a text of one line without quotes is a record");
  return 0;
}

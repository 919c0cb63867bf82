#include "exchange/csv_text.h"

#include <algorithm>

#include "basic/text.h"

namespace exchange {

namespace {

constexpr std::string_view subject_heading = "subject";
constexpr std::string_view start_date_heading = "start date";
constexpr std::string_view description_heading = "description";

bool Is_Closed(std::string_view field) { return field.starts_with('"') && field.ends_with('"'); }

/// Takes what stands before the next comma, and the comma, off the front of a record. Throws error 5 where no comma is left.
std::string_view Take_Piece(std::string_view& rest) {
  const auto [piece, behind] = basic::Split_At_First(rest, ',');
  rest = behind;
  return piece;
}

/// The next field that ends in quotes. An unquoted one before it is passed over, and counts as a column.
std::string Take_Quoted_Field(std::string_view& rest, basic::Int16& column) {
  std::string field(Take_Piece(rest));
  while (!Is_Closed(field)) {
    if (field.starts_with('"')) {
      field += '|';
      field += Take_Piece(rest);
    } else {
      field = Take_Piece(rest);
      column += 1;
    }
  }
  return field;
}

std::string Without_Quotes(std::string field) {
  std::erase(field, '"');
  std::replace(field.begin(), field.end(), '|', ',');
  return field;
}

}  // namespace

bool Find_Columns(std::string_view line, Csv_Columns& columns) {
  for (const std::string_view heading : {description_heading, start_date_heading, subject_heading})
    if (line.find(heading) == std::string_view::npos) return false;
  std::string headings(line);
  std::erase(headings, '"');
  headings += ',';
  std::string_view rest = headings;
  for (basic::Int16 column = 0; !rest.empty(); column += 1) {
    const std::string_view piece = Take_Piece(rest);
    if (piece == start_date_heading) columns.Start_Date_Col = column;
    if (piece == description_heading) columns.Description_Col = column;
    if (piece == subject_heading) columns.Subject_Col = column;
  }
  return true;
}

std::string Next_Record(basic::Line_Reader& reader) {
  std::string record(reader.Next());
  while (!record.ends_with('"')) {
    record += ' ';
    record += reader.Next();
  }
  return record;
}

std::vector<Csv_Field> Read_Fields(std::string_view record) {
  const std::string line = basic::Replace_All(record, "\"\"", "") + ',';
  std::vector<Csv_Field> fields;
  std::string_view rest = line;
  for (basic::Int16 column = 0; !rest.empty(); column += 1) {
    std::string text = Without_Quotes(Take_Quoted_Field(rest, column));
    fields.push_back({column, std::move(text)});
  }
  return fields;
}

std::string Event_Text(std::string_view subject, std::string_view description) {
  if (subject == own_subject) subject = {};
  std::string text(subject);
  if (!subject.empty() && !description.empty()) text += " - ";
  text += description;
  return text;
}

std::string_view Heading_Row() { return R"("Subject","Start Date","Description","Start Time","End Date","End Time")"; }

void Append_Row(std::string& to, std::string_view start, std::string_view text, std::string_view end) {
  constexpr std::string_view between = "\",\"";
  constexpr std::string_view midnight = "12:00:00 AM";
  to += '"';
  for (const std::string_view field : {own_subject, start, text, midnight, end}) to.append(field).append(between);
  to.append(midnight).append("\"");
}

}  // namespace exchange

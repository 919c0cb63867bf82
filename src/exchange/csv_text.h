// The text of a CSV file: the headings that the import looks for, the fields of a record as it takes them apart, and a
// row as the export writes it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "basic/int16.h"
#include "basic/line_reader.h"

namespace exchange {

/// Where the wanted columns of a file are. A heading that a file doesn't have leaves its column where the file before had it.
struct Csv_Columns {
  basic::Int16 Subject_Col, Start_Date_Col, Description_Col;
};

/// Finds the columns by the headings, a line in small letters. Returns false, with nothing changed, where one of the wanted
/// words occurs nowhere in it. A heading counts only if it is such a word and no more. Throws error 6 beyond 32767 columns.
bool Find_Columns(std::string_view line, Csv_Columns& columns);

/// The next lines up to one that ends in a double quote, with a blank between each two. Throws error 62 where the file ends
/// before that.
std::string Next_Record(basic::Line_Reader& reader);

/// A field that stood in double quotes.
struct Csv_Field {
  basic::Int16 Column;
  std::string Text;
};

/// The quoted fields of a record, in their order. A comma within the quotes belongs to the field, a doubled quote falls
/// away, and a "|" comes out as a comma. Throws error 5 for a field whose closing quote is missing and for a last field
/// without quotes, and error 6 beyond 32767 columns.
std::vector<Csv_Field> Read_Fields(std::string_view record);

/// The text of an event from what a record has for it; empty where that is nothing.
std::string Event_Text(std::string_view subject, std::string_view description);

/// The subject of all rows that the export writes, which an import drops again.
constexpr std::string_view own_subject = "Meridex";

/// The row of headings, and that of an event with its dates as texts.
std::string_view Heading_Row();
void Append_Row(std::string& to, std::string_view start, std::string_view text, std::string_view end);

}  // namespace exchange

// The rule of the text files' records told another way, character by character: a second opinion on the reader.
#pragma once

#include <string>
#include <vector>

inline std::vector<std::string> Read_By_The_Letter(const std::string& bytes) {
  enum { Before, In_Quotes, Behind_Quotes, Plain } place = Before;
  std::vector<std::string> records;
  std::string record;
  bool begun = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const char c = bytes[i];
    begun = true;
    if (place == In_Quotes) {
      if (c == '"') place = Behind_Quotes;
      else record += c;
      continue;
    }
    if (c == ',' || c == '\r' || c == '\n') {
      if (c == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
      records.push_back(record);
      record.clear();
      place = Before;
      begun = false;
      continue;
    }
    if (place == Behind_Quotes || (place == Before && c == ' ')) continue;
    if (place == Before && c == '"') {
      place = In_Quotes;
      continue;
    }
    place = Plain;
    record += c;
  }
  if (begun) records.push_back(record);
  return records;
}

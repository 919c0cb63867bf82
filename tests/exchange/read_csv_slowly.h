// The rules of CSV files told another way, step by step on copies of the text: a second opinion on the reader.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct Slow_Field {
  long Column = 0;
  std::string Text;

  friend bool operator==(const Slow_Field&, const Slow_Field&) = default;
};

struct Slow_Columns {
  long Subject = 0, Start_Date = 0, Description = 0;
};

/// The lines, and whether the last one has an end.
inline std::vector<std::string> Lines_By_The_Letter(const std::string& bytes) {
  std::vector<std::string> lines;
  std::string line;
  bool begun = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    begun = bytes[i] != '\r' && bytes[i] != '\n';
    if (begun) {
      line += bytes[i];
      continue;
    }
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
    lines.push_back(line);
    line.clear();
  }
  if (begun) lines.push_back(line);
  return lines;
}

/// The records behind the first line; nothing in place of one that doesn't end.
inline std::vector<std::optional<std::string>> Records_By_The_Letter(const std::vector<std::string>& lines) {
  std::vector<std::optional<std::string>> records;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    std::string record = lines[i];
    while (record.empty() || record.back() != '"') {
      if (++i == lines.size()) {
        records.emplace_back();
        return records;
      }
      record = record + " " + lines[i];
    }
    records.emplace_back(record);
  }
  return records;
}

inline std::string Without_Pairs(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"' && i + 1 < text.size() && text[i + 1] == '"') ++i;
    else result += text[i];
  }
  return result;
}

inline std::string Cleaned(const std::string& field) {
  std::string result;
  for (const char c : field)
    if (c != '"') result += c == '|' ? ',' : c;
  return result;
}

/// The fields, nothing for a record that fails. `error`: 5, or 6 for a column beyond 16 bits.
inline std::optional<std::vector<Slow_Field>> Fields_By_The_Letter(const std::string& record, int& error) {
  const std::string line = Without_Pairs(record) + ",";
  std::vector<Slow_Field> fields;
  long column = 0;
  std::size_t start = 0, comma = line.find(',');
  const auto next_comma = [&] {
    start = comma + 1;
    comma = line.find(',', start);
  };
  const auto fail = [&](int number) {
    error = number;
    return std::nullopt;
  };
  while (comma != std::string::npos) {
    std::string field = line.substr(start, comma - start);
    while (field.empty() || field.front() != '"' || field.back() != '"') {
      const bool quoted = !field.empty() && field.front() == '"';
      next_comma();
      if (comma == std::string::npos) return fail(5);
      field = (quoted ? field + "|" : "") + line.substr(start, comma - start);
      if (!quoted && ++column > 32767) return fail(6);
    }
    fields.push_back({column, Cleaned(field)});
    next_comma();
    if (++column > 32767) return fail(6);
  }
  return fields;
}

/// Returns whether the headings are there. `error`: 6 for a column beyond 16 bits.
inline bool Columns_By_The_Letter(const std::string& headings, Slow_Columns& columns, int& error) {
  for (const char* const word : {"subject", "start date", "description"})
    if (headings.find(word) == std::string::npos) return false;
  std::string piece;
  long column = 0;
  for (const char c : headings + ",") {
    if (c == '"') continue;
    if (c != ',') {
      piece += c;
      continue;
    }
    if (piece == "subject") columns.Subject = column;
    if (piece == "start date") columns.Start_Date = column;
    if (piece == "description") columns.Description = column;
    piece.clear();
    if (++column > 32767) {
      error = 6;
      return true;
    }
  }
  return true;
}

#include "scenario.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace play {

namespace {

constexpr std::string_view blanks = " \t";

struct Word {
  std::string text;
  bool quoted = false;
};

/// Cuts one line into words.
class Line_Reader {
 public:
  explicit Line_Reader(std::string_view line) : rest_(line) {}

  std::optional<Word> Next() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size()));
    if (rest_.empty()) return std::nullopt;
    return rest_.front() == '"' ? Quoted_Word() : Bare_Word();
  }

 private:
  Word Bare_Word() {
    const std::string_view word = rest_.substr(0, rest_.find_first_of(blanks));
    if (word.find('"') != std::string_view::npos) throw Cannot_Play("a quote within a word: " + std::string(word));
    rest_.remove_prefix(word.size());
    return {std::string(word), false};
  }

  Word Quoted_Word() {
    Word word{{}, true};
    Take();
    for (char c = Take(); c != '"'; c = Take()) word.text += c == '\\' ? Escaped() : c;
    if (!rest_.empty() && blanks.find(rest_.front()) == std::string_view::npos)
      throw Cannot_Play("no blank behind a closing quote");
    return word;
  }

  char Take() {
    if (rest_.empty()) throw Cannot_Play("no closing quote");
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  char Escaped() {
    switch (const char c = Take(); c) {
      case 'n': return '\n';
      case 'r': return '\r';
      case 't': return '\t';
      case '\\':
      case '"': return c;
      case 'x': {
        const int high = Hex_Digit();
        return static_cast<char>(high * 16 + Hex_Digit());
      }
      default: throw Cannot_Play(std::string("no such escape: \\") + c);
    }
  }

  int Hex_Digit() {
    const char c = Take();
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    throw Cannot_Play("\\x without two hexadecimal digits");
  }

  std::string_view rest_;
};

/// Cuts the whole text into lines and these into commands.
class Scenario_Reader {
 public:
  explicit Scenario_Reader(std::string_view text) : rest_(text) {}

  std::vector<Command> Read() {
    std::vector<Command> commands;
    while (const auto line = Next_Line()) {
      const std::size_t start = line->find_first_not_of(blanks);
      if (start == std::string_view::npos || (*line)[start] == '#') continue;
      const int number = number_;
      try {
        commands.push_back(Read_Command(*line, number));
      } catch (const Cannot_Play& why) {
        throw Scenario_Error(number, why.what());
      }
    }
    return commands;
  }

 private:
  std::optional<std::string_view> Next_Line() {
    if (rest_.empty()) return std::nullopt;
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    ++number_;
    return line;
  }

  Command Read_Command(std::string_view line, int number) {
    Line_Reader reader(line);
    Command command{reader.Next()->text, {}, number};
    bool last_quoted = false;
    while (auto word = reader.Next()) {
      last_quoted = word->quoted;
      command.Words.push_back(std::move(word->text));
    }
    const bool puts = command.Name == "put" && command.Words.size() == 2;
    if (puts && !last_quoted && command.Words.back().starts_with("<<"))
      command.Words.back() = Read_Here(command.Words.back().substr(2));
    return command;
  }

  std::string Read_Here(const std::string& end) {
    std::string text;
    while (const auto line = Next_Line()) {
      if (*line == end) return text;
      text.append(*line).append("\r\n");
    }
    throw Cannot_Play("no line " + end + " behind <<" + end);
  }

  std::string_view rest_;
  int number_ = 0;
};

}  // namespace

std::vector<Command> Read_Scenario(std::string_view text) { return Scenario_Reader(text).Read(); }

}  // namespace play

// meridex-play FILE...: plays scenarios, each in a world of its own, and prints what a user would see. Ends with 0 when all
// are played, with 2 at one that can't be.
#include <cstdio>
#include <exception>
#include <optional>
#include <string>

#include "player.h"

namespace {

std::optional<std::string> Read(std::FILE* file) {
  std::string text;
  char buffer[65536];
  for (std::size_t got = 0; (got = std::fread(buffer, 1, sizeof buffer, file)) > 0;) text.append(buffer, got);
  return std::ferror(file) != 0 ? std::nullopt : std::optional(text);
}

std::optional<std::string> Read_File(const std::string& name) {
  if (name == "-") return Read(stdin);
  std::FILE* const file = std::fopen(name.c_str(), "rb");
  if (file == nullptr) return std::nullopt;
  auto text = Read(file);
  std::fclose(file);
  return text;
}

void Print(const std::string& line) {
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fputc('\n', stdout);
}

/// Returns whether it could be played.
bool Play(const std::string& name) {
  const auto text = Read_File(name);
  if (!text) {
    std::fprintf(stderr, "%s:0: can't be read\n", name.c_str());
    return false;
  }
  try {
    play::World world(Print);
    play::Player(world).Play(play::Read_Scenario(*text));
    return true;
  } catch (const play::Scenario_Error& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "%s:%d: %s\n", name.c_str(), error.Line, error.what());
    return false;
  }
}

}  // namespace

int main(int count, char** words) {
  if (count < 2) {
    std::fputs("usage: meridex-play FILE...\n", stderr);
    return 2;
  }
  try {
    for (int i = 1; i < count; ++i)
      if (!Play(words[i])) return 2;
    return 0;
  } catch (const std::exception& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "meridex-play: %s\n", error.what());
    return 3;
  }
}

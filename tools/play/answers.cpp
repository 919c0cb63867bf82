// What boxes, menus and dialogs to come will be answered.
#include <array>
#include <utility>

#include "commands.h"
#include "text_form.h"

namespace play {

namespace {

platform::Box_Answer Answer_Of(const std::string& word) {
  using platform::Box_Answer;
  constexpr std::array<std::pair<std::string_view, Box_Answer>, 4> names{
      {{"OK", Box_Answer::OK}, {"Yes", Box_Answer::Yes}, {"No", Box_Answer::No}, {"Cancel", Box_Answer::Cancel}}};
  for (const auto& [name, answer] : names)
    if (word == name) return answer;
  throw Cannot_Play("no such answer: " + word);
}

void Play_Answer(World& world, const Words& words) {
  const platform::Box_Answer answer = Answer_Of(words[0]);
  if (words.size() > 1 && (words.size() != 3 || words[1] != "after"))
    throw Cannot_Play("answer wants BUTTON [after S]");
  world.Platform.Message_Box.Prepare(answer, words.size() == 3 ? To_Micros(words[2]) : 0);
}

void Play_Choose(World& world, const Words& words) {
  if (words.size() > 1 && (words.size() != 3 || words[1] != "after")) throw Cannot_Play("choose wants N [after S]");
  world.Platform.Menu.Prepare(To_Whole(words[0]), words.size() == 3 ? To_Micros(words[2]) : 0);
}

void Play_Pick(World& world, const Words& words) {
  if (words.size() > 1 && (words.size() != 3 || words[1] != "after")) throw Cannot_Play("pick wants PATH [after S]");
  std::optional<std::string> path;
  if (words[0] != "cancel") path = memory::Memory_Files::Full_Path(words[0]);
  world.Platform.File_Dialog.Prepare(path, words.size() == 3 ? To_Micros(words[2]) : 0);
}

}  // namespace

std::span<const Entry> Answer_Commands() {
  static constexpr std::array<Entry, 3> entries{
      {{"answer", 1, 3, Play_Answer}, {"choose", 1, 3, Play_Choose}, {"pick", 1, 3, Play_Pick}}};
  return entries;
}

}  // namespace play

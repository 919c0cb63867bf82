#include "exchange/transfer.h"

#include <algorithm>

#include "basic/text.h"

namespace exchange {

namespace {

using platform::Box_Answer;
using platform::Box_Buttons;
using platform::Box_Icon;

constexpr std::size_t extension_length = 4;

}  // namespace

Transfer::Transfer(toolkit::Form& window, dialogs::OpenSaveDialog& dialog, platform::Files& files,
                   basic::File_Channel& channel, platform::Message_Box& message_box)
    : Window(window), Dialog1(dialog), Files(files), Channel(channel), message_box_(message_box) {}

void Transfer::Prepare_Dialog(const File_Kind& kind) {
  Dialog1.FileName.clear();
  Dialog1.DialogTitle = kind.Title;
  Dialog1.Filter = kind.Filter;
}

bool Transfer::Choose_Output(const File_Kind& kind) {
  while (Window.Loaded()) {
    Prepare_Dialog(kind);
    Dialog1.ShowSave();
    if (Dialog1.FileName.empty() || !Window.Loaded()) return false;
    if (Check_Extension(kind.Extension)) Dialog1.FileName += kind.Extension;
    if (!Files.File_Exists(Dialog1.FileName)) return true;
    if (Ask("Overwrite existing file?", Box_Icon::Question, Box_Buttons::Yes_No) == Box_Answer::Yes)
      return Window.Loaded();
  }
  return false;
}

bool Transfer::Choose_Input(const File_Kind& kind, const std::string& own_file) {
  while (Window.Loaded()) {
    Prepare_Dialog(kind);
    Dialog1.ShowOpen();
    if (Dialog1.FileName.empty() || !Window.Loaded()) return false;
    if (!Files.File_Exists(Dialog1.FileName)) Warn("File doesn't exist!");
    else if (Files.Same_Path(Dialog1.FileName, own_file)) Warn("You can't import the data file your currently using!");
    else return true;
  }
  return false;
}

bool Transfer::Check_Extension(std::string_view extension) const {
  const std::string& name = Dialog1.FileName;
  return !basic::Same_Letters(std::string_view(name).substr(name.size() - std::min(name.size(), extension_length)),
                              extension);
}

void Transfer::Copy(const std::string& from, const std::string& to) {
  if (Channel.Holds(from) || Channel.Holds(to)) throw basic::Run_Error(basic::Error_Number::Permission_Denied);
  Files.Copy(from, to);
}

void Transfer::Tell(const std::string& text) { Ask(text, Box_Icon::Information, Box_Buttons::OK); }

void Transfer::Warn(const std::string& text) { Ask(text, Box_Icon::Exclamation, Box_Buttons::OK); }

Box_Answer Transfer::Ask(const std::string& text, Box_Icon icon, Box_Buttons buttons) {
  return message_box_.Show("Meridex", text, icon, buttons);
}

Written_At_Last::~Written_At_Last() {
  try {
    channel_.Write_Out();
  } catch (const basic::Run_Error&) {
    // The disk is full: what found no room is lost.
  }
}

}  // namespace exchange

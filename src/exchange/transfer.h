// What all imports and exports share: the dialog that asks for the file, the boxes, the copying, and the one file number.
#pragma once

#include <string>
#include <string_view>

#include "basic/file_channel.h"
#include "dialogs/open_save_dialog.h"
#include "platform/files.h"
#include "platform/message_box.h"

namespace exchange {

/// A kind of file as its dialogs ask for it. The extension is in small letters, with its point.
struct File_Kind {
  const char* Title = "";
  const char* Filter = "";
  const char* Extension = "";
};

class Transfer {
 public:
  Transfer(toolkit::Form& window, dialogs::OpenSaveDialog& dialog, platform::Files& files, basic::File_Channel& channel,
           platform::Message_Box& message_box);

  toolkit::Form& Window;
  dialogs::OpenSaveDialog& Dialog1;
  platform::Files& Files;
  basic::File_Channel& Channel;

  /// Ask for the file until the user has named one that will do, which is Dialog1's FileName then. Return false where the
  /// user has cancelled, or the window has gone meanwhile.
  bool Choose_Output(const File_Kind& kind);
  /// `own_file`: the path of a file that is refused.
  bool Choose_Input(const File_Kind& kind, const std::string& own_file = {});

  /// Whether FileName lacks the extension.
  [[nodiscard]] bool Check_Extension(std::string_view extension) const;

  /// As platform::Files::Copy, or Copy_Over for a file that is saved beside. The file that the file number is taken by
  /// can't be copied, nor copied over: error 70.
  void Copy(const std::string& from, const std::string& to, basic::Saving how = basic::Saving::In_Place);

  void Tell(const std::string& text);
  /// The text, and below it the full name of the file.
  void Tell_With_File(const std::string& text) { Tell(text + "\r\n\r\n" + Dialog1.FileName); }
  void Warn(const std::string& text);
  platform::Box_Answer Ask(const std::string& text, platform::Box_Icon icon, platform::Box_Buttons buttons);

 private:
  void Prepare_Dialog(const File_Kind& kind);

  platform::Message_Box& message_box_;
};

/// Writes at its end what a failure has left unwritten: the rows of an export that came before it stay on the disk. The file
/// isn't closed.
class Written_At_Last {
 public:
  explicit Written_At_Last(basic::File_Channel& channel) : channel_(channel) {}
  Written_At_Last(const Written_At_Last&) = delete;
  Written_At_Last& operator=(const Written_At_Last&) = delete;
  ~Written_At_Last();

 private:
  basic::File_Channel& channel_;
};

/// Shows the hourglass for as long as it lives.
class Busy {
 public:
  explicit Busy(toolkit::Backend& backend) : backend_(backend) { backend_.Show_Busy(true); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { backend_.Show_Busy(false); }

 private:
  toolkit::Backend& backend_;
};

}  // namespace exchange

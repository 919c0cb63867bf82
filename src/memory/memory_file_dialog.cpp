#include "memory/memory_file_dialog.h"

#include <algorithm>

namespace memory {

namespace {

/// The texts of a filter with "|" between them, as the program was given them.
std::string As_Given(std::string filter) {
  while (!filter.empty() && filter.back() == '\0') filter.pop_back();
  std::replace(filter.begin(), filter.end(), '\0', '|');
  return filter;
}

/// Puts a text into a buffer as far as there is room for it and a NUL.
void Fill(std::string& buffer, std::string_view text) {
  if (buffer.empty()) return;
  const std::size_t length = std::min(text.size(), buffer.size() - 1);
  std::copy_n(text.begin(), length, buffer.begin());
  buffer[length] = '\0';
}

}  // namespace

bool Memory_File_Dialog::Show(platform::File_Dialog_Record& record, bool to_save) {
  Prepared taken{};
  if (!prepared_.empty()) {
    taken = std::move(prepared_.front());
    prepared_.pop_front();
  }
  shown_.push_back({to_save, record.Title, As_Given(record.Filter), taken.path});
  {
    const toolkit::Input::Modal modal(input_);
    if (taken.micros > 0) loop_.Serve(taken.micros);
  }
  loop_.Dispatch([this] { input_.Catch_Up(); });
  // A path that has no room in its buffer is a failure of the dialog.
  if (!taken.path || taken.path->size() >= record.File.size()) return false;
  Fill(record.File, *taken.path);
  Fill(record.File_Title, std::string_view(*taken.path).substr(taken.path->rfind('\\') + 1));
  return true;
}

}  // namespace memory

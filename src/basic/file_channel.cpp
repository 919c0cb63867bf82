#include "basic/file_channel.h"

namespace basic {

namespace {

constexpr std::size_t flush_size = 65536;

/// The end of the last whole record in the first `size` bytes: records end in a quote and CR LF, and hold no quote.
std::size_t End_Of_Last_Record(std::string_view records, std::size_t size) {
  const std::size_t end = records.substr(0, size).rfind("\"\r\n");
  return end == std::string_view::npos ? 0 : end + 3;
}

}  // namespace

std::string_view File_Channel::Open_For_Reading(const std::string& path) {
  if (taken_) throw Run_Error(Error_Number::File_Already_Open);
  disk_.Read_Whole(path, buffer_);
  taken_ = true;
  return buffer_;
}

void File_Channel::Open_For_Writing(const std::string& path) {
  if (taken_) throw Run_Error(Error_Number::File_Already_Open);
  output_ = disk_.Create(path);
  taken_ = true;
  buffer_.clear();
  written_ = 0;
}

void File_Channel::Write_Record(std::string_view line) {
  buffer_ += '"';
  buffer_ += line;
  buffer_ += "\"\r\n";
  if (buffer_.size() >= flush_size) Flush();
}

void File_Channel::Close() {
  if (output_ != nullptr) Flush();
  output_.reset();
  taken_ = false;
}

void File_Channel::Flush() {
  const std::size_t room = output_->Write(buffer_);
  if (room < buffer_.size()) {
    output_->Cut(written_ + End_Of_Last_Record(buffer_, room));
    throw Run_Error(Error_Number::Disk_Full);
  }
  written_ += room;
  buffer_.clear();
}

}  // namespace basic

#include "basic/file_channel.h"

#include <algorithm>
#include <iterator>

namespace basic {

namespace {

constexpr std::size_t flush_size = 65536;

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
  record_ends_.clear();
  written_ = 0;
}

void File_Channel::Write_Record(std::string_view line) {
  buffer_ += '"';
  buffer_ += line;
  buffer_ += "\"\r\n";
  record_ends_.push_back(buffer_.size());
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
    const auto end = std::upper_bound(record_ends_.begin(), record_ends_.end(), room);
    output_->Cut(written_ + (end == record_ends_.begin() ? 0 : *std::prev(end)));
    throw Run_Error(Error_Number::Disk_Full);
  }
  written_ += room;
  buffer_.clear();
  record_ends_.clear();
}

}  // namespace basic

#include "basic/file_channel.h"

#include <algorithm>
#include <iterator>

#include "basic/text.h"

namespace basic {

namespace {

constexpr std::size_t flush_size = 65536;

}  // namespace

std::string_view File_Channel::Open_For_Reading(const std::string& path) {
  if (taken_) throw Run_Error(Error_Number::File_Already_Open);
  disk_.Read_Whole(path, buffer_);
  Take(path);
  return buffer_;
}

void File_Channel::Open_For_Writing(const std::string& path, Saving how) {
  if (taken_) throw Run_Error(Error_Number::File_Already_Open);
  output_ = how == Saving::Beside ? disk_.Create_Beside(path) : disk_.Create(path);
  Take(path);
  buffer_.clear();
  record_ends_.clear();
  written_ = 0;
}

void File_Channel::Take(const std::string& path) {
  taken_ = true;
  path_ = path;
}

void File_Channel::Write_Record(std::string_view line) {
  buffer_ += '"';
  buffer_ += line;
  buffer_ += "\"\r\n";
  End_Record();
}

void File_Channel::Write_Records(std::string_view records, std::span<const std::size_t> lengths) {
  Flush();
  const std::size_t room = output_->Write(records);
  if (room < records.size()) {
    std::size_t whole = 0;
    for (const std::size_t length : lengths) {
      if (whole + length > room) break;
      whole += length;
    }
    output_->Cut(written_ + whole);
    throw Run_Error(Error_Number::Disk_Full);
  }
  written_ += room;
}

void File_Channel::Write_Line(std::string_view line) {
  buffer_ += line;
  buffer_ += "\r\n";
  End_Record();
}

void File_Channel::End_Record() {
  record_ends_.push_back(buffer_.size());
  if (buffer_.size() >= flush_size) Flush();
}

void File_Channel::Write_Out() {
  if (output_ != nullptr) Flush();
}

void File_Channel::Go_Back_To(std::size_t size) {
  Write_Out();
  output_->Cut(size);
  written_ = size;
}

void File_Channel::Close() {
  Write_Out();
  if (output_ != nullptr) output_->Finish();
  output_.reset();
  taken_ = false;
}

void File_Channel::Give_Up() noexcept {
  try {
    Write_Out();
  } catch (const Run_Error&) {
    // The file ends behind what found room.
  }
  output_.reset();
  taken_ = false;
}

bool File_Channel::Holds(std::string_view path) const { return taken_ && Same_Letters(path_, path); }

void File_Channel::Flush() {
  if (buffer_.empty()) return;
  const std::size_t room = output_->Write(buffer_);
  if (room < buffer_.size()) {
    const auto end = std::upper_bound(record_ends_.begin(), record_ends_.end(), room);
    output_->Cut(written_ + (end == record_ends_.begin() ? 0 : *std::prev(end)));
    // What found no room is lost: a later attempt must not put it behind a gap.
    buffer_.clear();
    record_ends_.clear();
    throw Run_Error(Error_Number::Disk_Full);
  }
  written_ += room;
  buffer_.clear();
  record_ends_.clear();
}

}  // namespace basic

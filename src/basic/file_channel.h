// The one file number through which the calendar reads and writes all its text files.
//
// A procedure opens it, works and closes it. A procedure that fails after a successful open leaves the number taken:
// from then on every open fails until the program is started again, so that a program in an unknown state can't harm
// the files.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "basic/run_error.h"

namespace basic {

/// A file that is open for writing. The destructor closes it.
class Output_File {
 public:
  Output_File() = default;
  Output_File(const Output_File&) = delete;
  Output_File& operator=(const Output_File&) = delete;
  virtual ~Output_File() = default;

  /// Appends the bytes. Returns how many were written: fewer than given if the disk is full.
  virtual std::size_t Write(std::string_view bytes) = 0;

  /// Cuts the file to its first `size` bytes; a failure is silent.
  virtual void Cut(std::size_t size) = 0;

  /// Called once, when all is written. A file that is to take another's place takes it now. Throws error 53, 61, 70,
  /// 75 or 76; the other one stays as it was then, or the new one is kept for the next start.
  virtual void Finish() {}
};

/// How a file is written. Beside: as a new file, which takes the old one's place when the writing has come to its end.
/// At any moment before that, whatever happens, the old one is there whole.
enum class Saving { In_Place, Beside };

/// What the channel needs from the disk.
class Disk {
 public:
  virtual ~Disk() = default;

  /// Replaces the contents of the buffer with the whole file. Throws error 53, 70, 75 or 76.
  virtual void Read_Whole(const std::string& path, std::string& buffer) = 0;

  /// Opens the file for writing: empties it, or creates it. Throws error 70, 75 or 76.
  virtual std::unique_ptr<Output_File> Create(const std::string& path) = 0;

  /// Opens a new file for writing, which takes the path's place when it is finished; one that isn't finished leaves
  /// nothing of itself. Throws what Create would.
  virtual std::unique_ptr<Output_File> Create_Beside(const std::string& path) = 0;
};

class File_Channel {
 public:
  explicit File_Channel(Disk& disk) : disk_(disk) {}

  /// Reads the whole file and takes the number. The bytes are valid until the next open. Throws error 55 if the number
  /// is taken, and what the disk throws; a failed open doesn't take the number.
  std::string_view Open_For_Reading(const std::string& path);

  /// Empties or creates the file and takes the number. Throws the same errors.
  void Open_For_Writing(const std::string& path, Saving how = Saving::In_Place);

  /// Appends a record: the line in double quotes, then CR LF. Throws error 61 if the disk is full; a file that is
  /// written in its place then ends after the last record that fitted. The error may come only with a later record or
  /// from Close, since records are gathered.
  void Write_Record(std::string_view line);

  /// Writes records that stand ready one behind the other, with quotes and line ends, at once. Throws error 61 as above, but
  /// never later.
  void Write_Records(std::string_view records, std::span<const std::size_t> lengths);

  /// Adds a line as it stands, and CR LF. Throws as above.
  void Write_Line(std::string_view line);

  /// Writes what is still to be written; the file stays open. Throws error 61.
  void Write_Out();

  /// Cuts the file that is being written to its first `size` bytes; what comes next follows on them. Throws error 61 where
  /// something was still to be written.
  void Go_Back_To(std::size_t size);

  /// Writes the records that still wait, finishes the file and frees the number. Throws error 61 if the disk is full,
  /// and as Finish does; the number then stays taken.
  void Close();

  /// Frees the number whatever has failed before; does nothing while it is free. A file that was being written beside
  /// another one is given up.
  void Give_Up() noexcept;

  /// Whether the number is taken by the file of that path.
  [[nodiscard]] bool Holds(std::string_view path) const;

 private:
  void Take(const std::string& path);
  void End_Record();
  void Flush();

  Disk& disk_;
  bool taken_ = false;
  std::string path_;
  std::string buffer_;                    // the file being read, or the records that wait to be written
  std::vector<std::size_t> record_ends_;  // where each of the waiting records ends in the buffer
  std::unique_ptr<Output_File> output_;
  std::size_t written_ = 0;  // bytes written to the file so far
};

}  // namespace basic

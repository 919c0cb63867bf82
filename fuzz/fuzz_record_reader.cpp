// Any bytes as a text file: every record lies inside them, behind the one before, and is what reading character by
// character finds. What can be written is written and read again, and a disk that fills up on the way keeps whole records.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "basic/file_channel.h"
#include "basic/record_reader.h"
#include "fuzz/expect.h"
#include "tests/basic/error_of.h"
#include "tests/basic/fake_disk.h"
#include "tests/basic/read_by_the_letter.h"

namespace {

using Records = std::vector<std::string>;

const std::string path = "calendar.dat";

Records Read(std::string_view bytes) {
  Records records;
  basic::Record_Reader reader(bytes);
  const char* passed = bytes.data();
  const char* const end = bytes.data() + bytes.size();
  for (std::string_view record; reader.Next(record);) {
    Expect(record.data() >= passed && record.data() + record.size() <= end, "a record lies inside what is left");
    passed = record.data() + record.size();
    records.emplace_back(record);
    Expect(records.size() <= bytes.size(), "each record takes at least one byte");
  }
  return records;
}

bool Can_Be_Written(const std::string& record) { return record.find('"') == std::string::npos; }

std::string As_Written(const std::string& record) { return '"' + record + "\"\r\n"; }

int Write(basic::File_Channel& channel, const Records& records) {
  return Error_Of([&] {
    channel.Open_For_Writing(path);
    for (const std::string& record : records) channel.Write_Record(record);
    channel.Close();
  });
}

void Write_And_Read_Again(const Records& records) {
  Fake_Disk disk;
  basic::File_Channel channel(disk);
  Expect(Write(channel, records) == 0, "the records find room");
  Expect(Read(channel.Open_For_Reading(path)) == records, "the records read back as they were written");
}

void Write_On_A_Full_Disk(const Records& records, std::size_t room) {
  Fake_Disk disk;
  disk.Room = room;
  basic::File_Channel channel(disk);
  Expect(Write(channel, records) == 61, "the disk is full");
  Expect(Error_Of([&] { channel.Open_For_Reading(path); }) == 55, "the file number stays taken");
  std::string kept;
  for (const std::string& record : records) {
    if (kept.size() + record.size() + 4 > room) break;
    kept += As_Written(record);
  }
  Expect(disk.Contents[path] == kept, "the file holds the whole records that found room");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  Records records = Read(bytes);
  Expect(records == Read_By_The_Letter(bytes), "the records are those that reading by the letter finds");
  std::erase_if(records, [](const std::string& record) { return !Can_Be_Written(record); });
  Write_And_Read_Again(records);
  std::size_t whole = 0;
  for (const std::string& record : records) whole += As_Written(record).size();
  // Some place of the file, another one for each content.
  if (whole > 0) Write_On_A_Full_Disk(records, std::hash<std::string>()(bytes) % whole);
  return 0;
}

// A disk in memory that can be filled and whose files can be blocked.
#pragma once

#include <algorithm>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "basic/file_channel.h"

class Fake_Disk : public basic::Disk {
 public:
  std::map<std::string, std::string> Contents;
  std::set<std::string> Blocked;
  std::size_t Room = std::numeric_limits<std::size_t>::max();  ///< bytes that can still be written
  int Open_For_Writing = 0;                                    ///< files that are open at this moment
  int Reads = 0, Writes = 0;

  void Read_Whole(const std::string& path, std::string& buffer) override {
    ++Reads;
    Refuse_If_Blocked(path);
    const auto found = Contents.find(path);
    if (found == Contents.end()) throw basic::Run_Error(basic::Error_Number::File_Not_Found);
    buffer.assign(found->second);
  }

  std::unique_ptr<basic::Output_File> Create(const std::string& path) override {
    Refuse_If_Blocked(path);
    Contents[path].clear();
    return std::make_unique<File>(*this, Contents[path]);
  }

 private:
  class File : public basic::Output_File {
   public:
    File(Fake_Disk& disk, std::string& content) : disk_(disk), content_(content) { ++disk_.Open_For_Writing; }
    ~File() override { --disk_.Open_For_Writing; }

    std::size_t Write(std::string_view bytes) override {
      ++disk_.Writes;
      const std::size_t taken = std::min(bytes.size(), disk_.Room);
      content_ += bytes.substr(0, taken);
      disk_.Room -= taken;
      return taken;
    }

    void Cut(std::size_t size) override { content_.resize(std::min(size, content_.size())); }

   private:
    Fake_Disk& disk_;
    std::string& content_;
  };

  void Refuse_If_Blocked(const std::string& path) const {
    if (Blocked.contains(path)) throw basic::Run_Error(basic::Error_Number::Permission_Denied);
  }
};

// A disk in memory that can be filled, whose files can be blocked, and which the power can be taken from.
#pragma once

#include <algorithm>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "basic/file_channel.h"

class Fake_Disk : public basic::Disk {
 public:
  std::map<std::string, std::string> Contents;
  std::set<std::string> Blocked;
  std::set<std::string> Read_Only;
  std::set<std::string> Held;  ///< may be read and written, but not replaced, renamed or deleted
  std::size_t Room = std::numeric_limits<std::size_t>::max() / 2;  ///< bytes that can still be written
  int Open_For_Writing = 0;                                        ///< files that are open at this moment
  int Reads = 0, Writes = 0;
  /// How a file takes another's place: the other one's name goes in the same step, in a step before it, or not at all.
  enum class Replacing { By_One_Step, By_Two_Steps, Never } Replaces = Replacing::By_One_Step;
  std::optional<basic::Error_Number> Move_Failure;  ///< why no file takes another's place

  bool Cut_Makes_Room = false;  ///< else others take at once what a file gives up
  std::string Not_Flushed;      ///< the file that can't be brought to the disk

  /// Written, but not on the disk yet: a power cut leaves as many bytes of it, and all of them 0.
  std::set<std::string> Unflushed;

  /// After so many steps that change the disk the power goes: nothing changes any more, only the step in which it goes
  /// comes halfway if it is a write.
  int Steps_To_Power_Cut = std::numeric_limits<int>::max();

  void Read_Whole(const std::string& path, std::string& buffer) override {
    ++Reads;
    Refuse_If_Blocked(path);
    const auto found = Contents.find(path);
    if (found == Contents.end()) throw basic::Run_Error(basic::Error_Number::File_Not_Found);
    buffer.assign(found->second);
  }

  std::unique_ptr<basic::Output_File> Create(const std::string& path) override {
    Refuse_If_Blocked(path);
    Refuse_If_Read_Only(path);
    if (Step()) Empty(path, 0);
    return std::make_unique<File>(*this, path);
  }

  std::unique_ptr<basic::Output_File> Create_Beside(const std::string& path) override {
    Created_Beside.push_back(path);
    return std::make_unique<File>(*this, path);
  }
  std::vector<std::string> Created_Beside;  ///< paths; what is written goes to the file itself
  std::vector<std::string> Finished;

  void Check_Writing(const std::string& path) const {
    Refuse_If_Blocked(path);
    Refuse_If_Read_Only(path);
  }

  void Bring_To_Disk(const std::string& path) {
    Refuse_If_Blocked(path);
    if (path == Not_Flushed) throw basic::Run_Error(basic::Error_Number::Path_File_Access);
    if (Step()) Unflushed.erase(path);
  }

  void Cut_Power() {
    for (const std::string& path : Unflushed) Contents[path].assign(Contents[path].size(), '\0');
    Unflushed.clear();
  }

  bool Move_Over(const std::string& from, const std::string& to) {
    Refuse_If_Blocked(from);
    Refuse_If_Held(from);
    Refuse_If_Held(to);
    if (Move_Failure) throw basic::Run_Error(*Move_Failure);
    if (Replaces == Replacing::Never) return false;
    if (Replaces == Replacing::By_Two_Steps && Contents.contains(to) && Step()) Contents.erase(to);
    Put_In_Place(from, to);
    return true;
  }

  void Rename(const std::string& from, const std::string& to) {
    Refuse_If_Blocked(from);
    Refuse_If_Held(from);
    if (Contents.contains(to) && Steps_To_Power_Cut > 0) throw basic::Run_Error(basic::Error_Number::Path_File_Access);
    Put_In_Place(from, to);
  }

  void Delete(const std::string& path) {
    Refuse_If_Read_Only(path);
    Refuse_If_Held(path);
    if (!Step()) return;
    Room += Contents[path].size();
    Contents.erase(path);
    Unflushed.erase(path);
  }

 private:
  class File : public basic::Output_File {
   public:
    File(Fake_Disk& disk, std::string path) : disk_(disk), path_(std::move(path)) { ++disk_.Open_For_Writing; }
    ~File() override { --disk_.Open_For_Writing; }

    std::size_t Write(std::string_view bytes) override {
      ++disk_.Writes;
      if (disk_.Steps_To_Power_Cut >= 0) disk_.Unflushed.insert(path_);
      const std::size_t taken = std::min(bytes.size(), disk_.Room);
      if (disk_.Steps_To_Power_Cut == 0) Content() += bytes.substr(0, taken / 2);
      if (disk_.Step()) Content() += bytes.substr(0, taken);
      disk_.Room -= taken;
      return taken;
    }

    void Cut(std::size_t size) override {
      if (disk_.Step()) disk_.Empty(path_, size);
    }

    void Finish() override { disk_.Finished.push_back(path_); }

   private:
    std::string& Content() { return disk_.Contents[path_]; }

    Fake_Disk& disk_;
    const std::string path_;
  };

  /// Returns true while there is power.
  bool Step() { return Steps_To_Power_Cut-- > 0; }

  /// What is cut off makes room.
  void Empty(const std::string& path, std::size_t from) {
    std::string& content = Contents[path];
    if (content.size() <= from) return;
    if (Cut_Makes_Room) Room += content.size() - from;
    content.resize(from);
  }

  void Put_In_Place(const std::string& from, const std::string& to) {
    if (!Step()) return;
    Contents[to] = Contents.at(from);
    Contents.erase(from);
    if (Read_Only.erase(from) != 0) Read_Only.insert(to);
    Unflushed.erase(to);
    if (Unflushed.erase(from) != 0) Unflushed.insert(to);
  }

  void Refuse_If_Blocked(const std::string& path) const {
    if (Blocked.contains(path)) throw basic::Run_Error(basic::Error_Number::Permission_Denied);
  }

  void Refuse_If_Held(const std::string& path) const {
    if (Held.contains(path)) throw basic::Run_Error(basic::Error_Number::Permission_Denied);
  }

  void Refuse_If_Read_Only(const std::string& path) const {
    if (Read_Only.contains(path)) throw basic::Run_Error(basic::Error_Number::Path_File_Access);
  }
};

// Saving with the user's consent to today's desktops: whatever happens, the old file or the new one is there whole.
#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/events/event_file_world.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char* backup = "D:\\backup";

class Safe_Saving_World : public Event_File_World {
 public:
  Safe_Saving_World() {
    Desktop.Load();
    Editor.Text = "Tea";
    Put(Old_Lines());
  }

  /// More than the channel gathers before it writes, so that a save is several writes.
  static Lines Old_Lines() {
    Lines lines;
    for (int year = 2001; year <= 2100; ++year)
      lines.push_back("9/3/" + std::to_string(year) + "=" + std::string(2000, 'x'));
    return lines;
  }

  static std::string Old_Content() {
    std::string content;
    for (const std::string& line : Old_Lines()) content += Record(line);
    return content;
  }
  static std::string New_Content() { return Old_Content() + Record("8/3/2004=Tea"); }

  void Save() { Change("8/3/2004", "Tea"); }

  std::map<std::string, std::string>& All_Files() { return Files.Disk.Contents; }

  /// The power is back and the program starts anew: all that is on the disk then.
  std::map<std::string, std::string> After_The_Next_Start() {
    Files.Disk.Steps_To_Power_Cut = std::numeric_limits<int>::max();
    Files.Disk.Cut_Power();
    Event_File_World later;
    later.Desktop.Load();
    later.Files.Disk.Contents = All_Files();
    later.Files.Disk.Read_Only = Files.Disk.Read_Only;
    later.Files.Disk.Held = Files.Disk.Held;
    later.Files.Disk.Replaces = Files.Disk.Replaces;
    later.File.Recover();
    return later.Files.Disk.Contents;
  }
};

class Safe_Saving : public ::testing::Test, public Safe_Saving_World {};

using Replacing = Fake_Disk::Replacing;
constexpr Replacing all_ways[] = {Replacing::By_One_Step, Replacing::By_Two_Steps, Replacing::Never};

/// Cuts the power at each of so many steps of the work, and behind it. Gives how many cuts left the old file.
template <class Work>
int Cut_At_Every_Step(const Work& work, const std::string& old_content, const std::string& new_content,
                      Replacing replaces, bool held) {
  int old_ones = 0;
  for (int steps = 0;; ++steps) {
    Safe_Saving_World world;
    world.Files.Disk.Replaces = replaces;
    if (held) world.Files.Disk.Held.insert(Event_File_World::path);
    world.Files.Disk.Steps_To_Power_Cut = steps;
    const int failure = Error_Of([&] { work(world); });
    const bool whole_work = world.Files.Disk.Steps_To_Power_Cut >= 0;
    EXPECT_TRUE(failure == 0 || !whole_work) << failure;
    world.All_Files().erase(backup);
    const auto files = world.After_The_Next_Start();
    EXPECT_EQ(files.size(), 1U) << "nothing but the file itself is left, step " << steps;
    const auto found = files.find(Event_File_World::path);
    if (found == files.end()) {
      ADD_FAILURE() << "no file, step " << steps;
      return old_ones;
    }
    const bool is_new = found->second == new_content;
    EXPECT_TRUE(is_new || found->second == old_content) << found->second.size() << " bytes, step " << steps;
    EXPECT_TRUE(is_new || !whole_work);
    if (whole_work) return old_ones;
    old_ones += is_new ? 0 : 1;
  }
}

/// The same on file systems of each kind, and while another program keeps the old file from being deleted.
template <class Work>
void Cut_At_Every_Step(const Work& work, const std::string& old_content, const std::string& new_content,
                       int steps_before_the_place) {
  for (const Replacing replaces : all_ways) {
    for (const bool held : {false, true}) {
      EXPECT_GE(Cut_At_Every_Step(work, old_content, new_content, replaces, held), steps_before_the_place);
    }
  }
}

/// The same of a work that puts a backup into the file's place.
template <class Work>
void Cut_With_Backup(const Work& work) {
  const auto with_backup = [&work](Safe_Saving_World& world) {
    world.Files.Disk.Contents[backup] = Safe_Saving_World::Record("new");
    work(world);
  };
  Cut_At_Every_Step(with_backup, Safe_Saving_World::Old_Content(), Safe_Saving_World::Record("new"), 2);
}

}  // namespace

TEST_F(Safe_Saving, The_new_file_is_in_the_old_ones_place_and_nothing_beside_it) {
  Save();
  EXPECT_EQ(Content(), New_Content());
  EXPECT_EQ(All_Files().size(), 1U);
  EXPECT_FALSE(Is_Taken());
  EXPECT_EQ(Messages(), Lines{});
}

TEST_F(Safe_Saving, The_first_event_of_all_makes_the_file) {
  All_Files().clear();
  Save();
  EXPECT_EQ(Content(), Record("8/3/2004=Tea"));
  EXPECT_EQ(All_Files().size(), 1U);
}

TEST_F(Safe_Saving, The_old_file_is_there_whole_until_the_new_one_is_complete) {
  Channel.Open_For_Writing(path, File.Saving());
  Channel.Write_Record("8/3/2004=Tea");
  Channel.Write_Out();
  EXPECT_EQ(Content(), Old_Content());
  Channel.Close();
  EXPECT_EQ(Content(), Record("8/3/2004=Tea"));
}

TEST_F(Safe_Saving, A_power_cut_at_any_step_leaves_the_old_or_the_new_file) {
  const int creating_writing_flushing_renaming = 7;
  Cut_At_Every_Step([](Safe_Saving_World& world) { world.Save(); }, Old_Content(), New_Content(),
                    creating_writing_flushing_renaming);
}

TEST_F(Safe_Saving, A_power_cut_at_any_step_of_a_copy_leaves_the_old_or_the_new_file) {
  Cut_With_Backup([](Safe_Saving_World& world) { world.Files.Copy_Over(backup, path); });
}

TEST_F(Safe_Saving, A_power_cut_at_any_step_of_taking_back_a_backup_leaves_the_old_or_the_new_file) {
  Cut_With_Backup([](Safe_Saving_World& world) { world.Files.Replace(backup, path); });
}

TEST_F(Safe_Saving, A_power_cut_at_any_step_of_a_copy_of_a_read_only_file_leaves_nothing_beside_the_file) {
  Cut_With_Backup([](Safe_Saving_World& world) {
    world.Files.Disk.Read_Only.insert(backup);
    world.Files.Copy_Over(backup, path);
  });
}

TEST_F(Safe_Saving, A_new_file_takes_the_place_at_the_start_if_all_of_it_was_on_the_disk) {
  const std::string whole = std::string(path) + ".~whole", beside = std::string(path) + ".~new";
  All_Files() = {{path, "half"}, {whole, "9/3/2004=Choir"}};
  EXPECT_EQ(After_The_Next_Start(), (std::map<std::string, std::string>{{path, "9/3/2004=Choir"}}));
  All_Files() = {{beside, Record("9/3/2004=Choir")}};
  EXPECT_TRUE(After_The_Next_Start().empty());
}

TEST_F(Safe_Saving, A_new_file_that_took_the_place_at_the_start_can_be_written) {
  All_Files() = {{std::string(path) + ".~whole", Record("9/3/2004=Choir")}};
  File.Recover();
  Save();
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(Content(), Record("9/3/2004=Choir") + Record("8/3/2004=Tea"));
}

TEST_F(Safe_Saving, What_a_power_cut_has_left_read_only_is_written_over) {
  for (const char* const left : {".~new", ".~bak"}) {
    All_Files()[std::string(path) + left] = "left";
    Files.Disk.Read_Only.insert(std::string(path) + left);
  }
  Files.Disk.Replaces = Fake_Disk::Replacing::Never;
  Save();
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(Content(), New_Content());
  EXPECT_EQ(All_Files().size(), 1U);
}

TEST_F(Safe_Saving, A_copy_is_put_over_what_a_power_cut_has_left_read_only) {
  All_Files()[backup] = "new";
  All_Files()[std::string(path) + ".~new"] = "left";
  Files.Disk.Read_Only.insert(std::string(path) + ".~new");
  Files.Copy_Over(backup, path);
  EXPECT_EQ(Content(), "new");
}

TEST_F(Safe_Saving, A_file_that_cannot_get_its_name_back_at_the_start_is_not_lost_to_a_save) {
  for (const char* const left : {".~bak", ".~whole"}) {
    Safe_Saving_World world;
    const std::string other = std::string(path) + left;
    world.All_Files() = {{other, Old_Content()}};
    world.Files.Disk.Blocked.insert(other);
    world.File.Recover();
    world.Save();
    EXPECT_EQ(world.Messages(), Lines{saving_failed});
    EXPECT_FALSE(world.Is_There());
    world.Files.Disk.Blocked.clear();
    world.Save();
    EXPECT_EQ(world.Messages(), Lines{saving_failed}) << "what was to be written had nothing of the old file";
    world.Save();
    EXPECT_EQ(world.Messages(), Lines{});
    EXPECT_EQ(world.Content(), New_Content());
    EXPECT_EQ(world.All_Files().size(), 1U);
  }
}

TEST_F(Safe_Saving, A_power_cut_at_any_step_of_an_import_leaves_the_old_file_or_that_of_the_whole_import) {
  const auto import = [](Safe_Saving_World& world) {
    world.Channel.Open_For_Writing(path, world.File.Saving());
    world.Channel.Write_Record("first");
    world.Channel.Write_Out();
    for (const char* const line : {"second", "third", "last"}) {
      world.Channel.Go_Back_To(Record("first").size());
      world.Channel.Write_Record(line);
      world.Channel.Write_Out();
    }
    world.Channel.Close();
  };
  Cut_At_Every_Step(import, Old_Content(), Record("first") + Record("last"), 10);
}

TEST_F(Safe_Saving, A_disk_that_is_full_at_any_byte_leaves_the_old_file_and_no_other) {
  const std::size_t size = New_Content().size();
  for (std::size_t room = 0; room < size; room += room < 100 || room + 100 > size ? 1 : 997) {
    Safe_Saving_World world;
    world.Files.Disk.Room = room;
    world.Save();
    EXPECT_EQ(world.Messages(), Lines{saving_failed});
    EXPECT_EQ(world.Content(), Old_Content()) << room;
    EXPECT_EQ(world.All_Files().size(), 1U) << room;
    EXPECT_EQ(world.Files.Disk.Open_For_Writing, 0);
  }
}

TEST_F(Safe_Saving, A_full_disk_takes_the_file_number_as_ever) {
  Files.Disk.Room = 10;
  Save();
  EXPECT_TRUE(Is_Taken());
  Channel.Give_Up();
  EXPECT_FALSE(Is_Taken());
  EXPECT_EQ(Content(), Old_Content());
}

TEST_F(Safe_Saving, A_file_that_may_not_be_written_fails_before_anything_is_done) {
  Files.Disk.Blocked.insert(path);
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Writing(path, File.Saving()); }), 70);
  EXPECT_EQ(All_Files().size(), 1U);
  Files.Disk.Blocked.clear();
  EXPECT_FALSE(Is_Taken());
}

TEST_F(Safe_Saving, A_file_that_may_be_written_but_not_replaced_is_written_in_its_place) {
  for (const Replacing replaces : all_ways) {
    Safe_Saving_World world;
    world.Files.Disk.Replaces = replaces;
    world.Files.Disk.Held.insert(path);
    world.Save();
    EXPECT_EQ(world.Messages(), Lines{});
    EXPECT_EQ(world.Content(), New_Content());
    EXPECT_EQ(world.All_Files().size(), 1U);
    world.All_Files()[backup] = "new";
    world.Files.Copy_Over(backup, path);
    EXPECT_EQ(world.Content(), "new");
    world.All_Files()[backup] = "newer";
    world.Files.Replace(backup, path);
    EXPECT_EQ(world.Content(), "newer");
    EXPECT_EQ(world.All_Files().size(), 1U);
  }
}

TEST_F(Safe_Saving, A_new_file_that_is_held_leaves_the_old_one_as_it_is) {
  for (const Replacing replaces : all_ways) {
    for (const bool there : {true, false}) {
      Safe_Saving_World world;
      if (!there) world.All_Files().clear();
      world.All_Files()[backup] = "new";
      world.Files.Disk.Replaces = replaces;
      world.Files.Disk.Held.insert(std::string(path) + ".~whole");
      EXPECT_EQ(Error_Of([&] { world.Files.Copy_Over(backup, path); }), 70);
      EXPECT_EQ(world.Is_There(), there);
      if (there) {
        EXPECT_EQ(world.Content(), Old_Content());
      }
    }
  }
}

TEST_F(Safe_Saving, A_backup_does_not_take_the_place_of_a_file_that_has_only_another_name) {
  const std::string old = std::string(path) + ".~bak";
  All_Files() = {{old, Old_Content()}, {backup, "older"}};
  Files.Disk.Blocked.insert(old);
  EXPECT_EQ(Error_Of([&] { Files.Replace(backup, path); }), 75);
  EXPECT_EQ(All_Files()[old], Old_Content());
  EXPECT_EQ(All_Files()[backup], "older");
}

TEST_F(Safe_Saving, A_file_that_cannot_be_replaced_keeps_its_events_on_a_disk_that_is_full) {
  Files.Disk.Held.insert(path);
  Files.Disk.Cut_Makes_Room = true;
  for (std::size_t short_by = New_Content().size() - Old_Content().size(); short_by > 0; --short_by) {
    Files.Disk.Room = New_Content().size() * 2 - Old_Content().size() - short_by;
    Save();
    EXPECT_EQ(Messages(), Lines{saving_failed});
    EXPECT_EQ(Content(), Old_Content());
    EXPECT_EQ(All_Files().size(), 1U);
    Channel.Give_Up();
  }
  Files.Disk.Room = New_Content().size() * 2 - Old_Content().size();
  Save();
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(Content(), New_Content());
}

TEST_F(Safe_Saving, A_new_file_stays_for_the_next_start_where_neither_it_nor_the_old_one_finds_room) {
  Files.Disk.Held.insert(path);
  Files.Disk.Room = New_Content().size();
  Save();
  EXPECT_EQ(Messages(), Lines{saving_failed});
  EXPECT_TRUE(All_Files().contains(std::string(path) + ".~whole"));
  Files.Disk.Held.clear();
  EXPECT_EQ(After_The_Next_Start(), (std::map<std::string, std::string>{{path, New_Content()}}));
}

TEST_F(Safe_Saving, What_is_not_brought_to_the_disk_in_its_place_stays_beside_it_for_the_next_start) {
  Files.Disk.Held.insert(path);
  Files.Disk.Not_Flushed = path;
  Save();
  EXPECT_EQ(Messages(), Lines{saving_failed});
  EXPECT_EQ(After_The_Next_Start(), (std::map<std::string, std::string>{{path, New_Content()}}));
}

TEST_F(Safe_Saving, What_was_not_read_is_not_written_over) {
  Event_File_World without;
  without.Put({"9/3/2004=Choir"});
  without.Editor.Text = "Tea";
  for (Event_File_World* const world : {static_cast<Event_File_World*>(this), &without}) {
    world->Calendar.Selected_Date = "8/3/2004";
    world->Files.Disk.Blocked.insert(path);
    world->File.Load_File();
    world->Files.Disk.Blocked.clear();
    world->File.Check_For_Pre("Tea", world->Editor);
  }
  EXPECT_EQ(Messages(), (Lines{loading_failed, saving_failed}));
  EXPECT_EQ(Content(), Old_Content());
  EXPECT_EQ(without.Messages(), Lines{loading_failed}) << "as ever";
  EXPECT_EQ(without.Content(), Record("8/3/2004=Tea"));
  Save();
  EXPECT_EQ(Content(), New_Content());
}

TEST_F(Safe_Saving, A_file_that_a_reading_did_not_find_is_not_written_over) {
  All_Files().clear();
  Calendar.Selected_Date = "8/3/2004";
  File.Load_File();
  Put({"9/3/2004=Choir"});
  File.Check_For_Pre("Tea", Editor);
  EXPECT_EQ(Messages(), Lines{saving_failed});
  EXPECT_EQ(Content(), Record("9/3/2004=Choir"));
}

TEST_F(Safe_Saving, Without_the_consent_too_nothing_is_saved_until_the_events_have_their_name_again) {
  for (const char* const left : {".~bak", ".~whole"}) {
    Event_File_World world;
    const std::string other = std::string(path) + left;
    world.Files.Disk.Contents = {{other, Record("9/3/2004=Choir")}};
    world.Files.Disk.Blocked.insert(other);
    world.File.Recover();
    world.Editor.Text = "Tea";
    world.Change("8/3/2004", "Tea");
    EXPECT_EQ(world.Messages(), Lines{saving_failed});
    EXPECT_EQ(world.Files.Disk.Contents, (std::map<std::string, std::string>{{other, Record("9/3/2004=Choir")}}));
    world.Files.Disk.Blocked.clear();
    world.Change("8/3/2004", "Tea");
    EXPECT_EQ(world.Messages(), Lines{saving_failed}) << "what was read had nothing of it";
    world.Change("8/3/2004", "Tea");
    EXPECT_EQ(world.Messages(), Lines{});
    EXPECT_EQ(world.Content(), Record("9/3/2004=Choir") + Record("8/3/2004=Tea"));
  }
}

TEST_F(Safe_Saving, A_new_file_that_can_neither_take_the_place_nor_be_written_there_is_taken_away) {
  Channel.Open_For_Writing(path, File.Saving());
  Channel.Write_Record("8/3/2004=Tea");
  Files.Disk.Held.insert(path);
  Files.Disk.Blocked.insert(path);
  EXPECT_EQ(Error_Of([&] { Channel.Close(); }), 70);
  Files.Disk.Blocked.clear();
  EXPECT_EQ(Content(), Old_Content());
  EXPECT_EQ(All_Files().size(), 1U);
  EXPECT_TRUE(Is_Taken());
}

TEST_F(Safe_Saving, What_fails_to_take_the_place_for_another_reason_leaves_the_old_file_and_no_other) {
  All_Files()[backup] = "new";
  for (const basic::Error_Number failure : {basic::Error_Number::Disk_Full, basic::Error_Number::Path_File_Access}) {
    Files.Disk.Move_Failure = failure;
    EXPECT_EQ(Error_Of([&] { Files.Copy_Over(backup, path); }), static_cast<int>(failure));
    EXPECT_EQ(Error_Of([&] { Files.Replace(backup, path); }), static_cast<int>(failure));
    EXPECT_EQ(Content(), Old_Content());
    EXPECT_EQ(All_Files()[backup], "new");
    EXPECT_EQ(All_Files().size(), 2U);
  }
}

TEST_F(Safe_Saving, What_is_given_up_leaves_the_old_file_and_no_other) {
  Channel.Open_For_Writing(path, File.Saving());
  Channel.Write_Record("8/3/2004=Tea");
  Channel.Write_Out();
  Channel.Give_Up();
  EXPECT_EQ(Content(), Old_Content());
  EXPECT_EQ(All_Files().size(), 1U);
}

TEST_F(Safe_Saving, Without_the_consent_the_file_is_written_in_its_place_and_nothing_is_taken_away) {
  Event_File_World world;
  world.Put({"9/3/2004=Tea"});
  world.Files.Disk.Contents[std::string(path) + ".~bak"] = "older";
  world.File.Recover();
  EXPECT_EQ(world.Files.Disk.Contents.size(), 2U);
  EXPECT_EQ(world.File.Saving(), basic::Saving::In_Place);
  world.Editor.Text = "Cake";
  world.Files.Disk.Room = 5;
  world.Change("8/3/2004", "Cake");
  EXPECT_EQ(world.Content(), "");
}

TEST_F(Safe_Saving, Events_that_a_power_cut_has_left_under_another_name_are_there_when_the_consent_is_withdrawn) {
  for (const char* const left : {".~bak", ".~whole"}) {
    Event_File_World world;
    world.Files.Disk.Contents[std::string(path) + left] = Record("9/3/2004=Choir");
    world.File.Recover();
    world.Editor.Text = "Tea";
    world.Change("8/3/2004", "Tea");
    EXPECT_EQ(world.Content(), Record("9/3/2004=Choir") + Record("8/3/2004=Tea"));
  }
}

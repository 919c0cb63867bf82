// A save or an import that a power cut ends: after the next start the old file or the new one is there whole.
#include "tests/events/safe_saving_world.h"

namespace {

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

TEST_F(Safe_Saving, A_backup_does_not_take_the_place_of_a_file_that_has_only_another_name) {
  const std::string old = std::string(path) + ".~bak";
  All_Files() = {{old, Old_Content()}, {backup, "older"}};
  Files.Disk.Blocked.insert(old);
  EXPECT_EQ(Error_Of([&] { Files.Replace(backup, path); }), 75);
  EXPECT_EQ(All_Files()[old], Old_Content());
  EXPECT_EQ(All_Files()[backup], "older");
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

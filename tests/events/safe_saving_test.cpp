// Saving with the user's consent to today's desktops on a disk that is full, or whose files others hold: no event is lost.
#include "tests/events/safe_saving_world.h"

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

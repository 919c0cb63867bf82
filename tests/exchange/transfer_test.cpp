// What the imports and exports share: the loops around the dialogs, the extension, and the files that can't be copied.
#include "exchange/transfer.h"

#include <gtest/gtest.h>

#include "memory/memory_platform.h"
#include "tests/basic/error_of.h"

using exchange::File_Kind;
using platform::Box_Answer;

namespace {

class Transfer_Test : public ::testing::Test {
 protected:
  Transfer_Test() { Window.Load(); }

  static std::string Path(const std::string& name) { return memory::Memory_Files::Full_Path(name); }
  /// The window goes half a second from now.
  void Unload_Soon() {
    Platform.Time.Schedule(Platform.Time.Elapsed() + 500, [&] { Window.Unload(); });
  }
  void Pick(const std::string& name) { Platform.File_Dialog.Prepare(Path(name)); }

  std::string Messages() {
    std::string texts;
    for (const auto& shown : Platform.Message_Box.Take_Shown()) texts += shown.Text + "|";
    return texts;
  }

  memory::Memory_Platform Platform;
  toolkit::Form Window{Platform.Backend(), "Settings_Frm"};
  dialogs::OpenSaveDialog Dialog1{Window, "Dialog1", Platform.File_Dialog};
  basic::File_Channel Channel{Platform.Files};
  exchange::Transfer Transfer{Window, Dialog1, Platform.Files, Channel, Platform.Message_Box};
};

constexpr File_Kind text_file = {"Title", "Text (*.txt)|*.txt", ".txt"};

}  // namespace

TEST_F(Transfer_Test, Only_the_last_four_characters_are_the_extension) {
  const auto lacks = [&](const std::string& name) {
    Dialog1.FileName = name;
    return Transfer.Check_Extension(".csv");
  };
  EXPECT_FALSE(lacks("a.csv"));
  EXPECT_FALSE(lacks("a.CsV"));
  EXPECT_FALSE(lacks(".csv"));
  EXPECT_TRUE(lacks("a.csv.txt"));
  EXPECT_TRUE(lacks("acsv"));
  EXPECT_TRUE(lacks("csv"));
  EXPECT_TRUE(lacks(""));
}

TEST_F(Transfer_Test, The_dialog_is_told_everything_each_time) {
  Dialog1.FileName = "before";
  EXPECT_FALSE(Transfer.Choose_Output(text_file));
  EXPECT_EQ(Dialog1.FileName, "");
  EXPECT_EQ(Dialog1.DialogTitle, "Title");
  EXPECT_EQ(Dialog1.Filter, "Text (*.txt)|*.txt");
  Dialog1.FileName = "before";
  EXPECT_FALSE(Transfer.Choose_Input(text_file));
  EXPECT_EQ(Dialog1.FileName, "");
}

TEST_F(Transfer_Test, An_output_is_asked_for_until_it_may_be_written) {
  Platform.Files.Put(Path("there.txt"), "x");
  Pick("there");
  Pick("there.TXT");
  Platform.Message_Box.Prepare(Box_Answer::No);
  Platform.Message_Box.Prepare(Box_Answer::Yes);
  EXPECT_TRUE(Transfer.Choose_Output(text_file));
  EXPECT_EQ(Dialog1.FileName, Path("there.TXT"));
  EXPECT_EQ(Platform.File_Dialog.Take_Shown().size(), 2U);
}

TEST_F(Transfer_Test, An_input_is_asked_for_until_it_is_there_and_another_one) {
  Platform.Files.Put(Path("own.dat"), "x");
  Platform.Files.Put(Path("there.dat"), "x");
  for (const char* const name : {"nowhere", "own.dat", "OWN.dat", "there.dat"}) Pick(name);
  EXPECT_TRUE(Transfer.Choose_Input(text_file, Path("Own.Dat")));
  EXPECT_EQ(Dialog1.FileName, Path("there.dat"));
  EXPECT_EQ(Messages(),
            "File doesn't exist!|You can't import the data file your currently using!|"
            "You can't import the data file your currently using!|");
  Pick("own.dat");
  EXPECT_TRUE(Transfer.Choose_Input(text_file)) << "another import doesn't mind";
}

TEST_F(Transfer_Test, A_window_that_goes_meanwhile_ends_the_asking) {
  Platform.Files.Put(Path("there.txt"), "x");
  Platform.File_Dialog.Prepare(Path("new.txt"), 1000);
  Unload_Soon();
  EXPECT_FALSE(Transfer.Choose_Output(text_file));
  for (const Box_Answer answer : {Box_Answer::Yes, Box_Answer::No}) {
    Window.Load();
    Pick("there.txt");
    Platform.Message_Box.Prepare(answer, 1000);
    Unload_Soon();
    EXPECT_FALSE(Transfer.Choose_Output(text_file));
  }
  for (const char* const refused : {"nowhere.txt", "own.txt"}) {
    Window.Load();
    Platform.Files.Put(Path("own.txt"), "x");
    Pick(refused);
    Platform.Message_Box.Prepare(Box_Answer::OK, 1000);
    Unload_Soon();
    EXPECT_FALSE(Transfer.Choose_Input(text_file, Path("own.txt")));
  }
  EXPECT_EQ(Platform.File_Dialog.Take_Shown().size(), 5U) << "none came again";
}

TEST_F(Transfer_Test, A_file_that_has_the_file_number_is_not_copied) {
  Platform.Files.Put(Path("a"), "x");
  Platform.Files.Put(Path("b"), "y");
  Channel.Open_For_Reading(Path("a"));
  EXPECT_EQ(Error_Of([&] { Transfer.Copy(Path("A"), Path("c")); }), 70);
  EXPECT_EQ(Error_Of([&] { Transfer.Copy(Path("b"), Path("A")); }), 70);
  EXPECT_EQ(Error_Of([&] { Transfer.Copy(Path("b"), Path("c")); }), 0);
  EXPECT_EQ(Platform.Files.Bytes(Path("c")), "y");
}

TEST_F(Transfer_Test, What_a_failure_leaves_unwritten_is_written_at_last) {
  {
    Channel.Open_For_Writing(Path("a"));
    const exchange::Written_At_Last rows(Channel);
    Channel.Write_Line("one");
  }
  EXPECT_EQ(Platform.Files.Bytes(Path("a")), "one\r\n");
  EXPECT_TRUE(Channel.Holds(Path("a")));
  Channel.Give_Up();
  Platform.Files.Fill_Up(Path("b"));
  Channel.Open_For_Writing(Path("b"));
  const exchange::Written_At_Last rows(Channel);
  Channel.Write_Line("one");
}

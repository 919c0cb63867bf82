// The dialog control: what goes to the system's dialogs and what comes back, and the keeping of its properties.
#include <map>

#include "tests/dialogs/dialog_world.h"

using dialogs::OpenSaveDialog;
using dialogs::Property_Value;

namespace {

using Open_Save_Dialog_Test = Dialog_World;

/// Notes the order of names, and keeps what differs from the default.
class Noting_Bag : public dialogs::Property_Bag {
 public:
  std::string Names;
  std::map<std::string, Property_Value> Kept;

  Property_Value Read(const std::string& name, const Property_Value& default_value) override {
    Names += name + ' ';
    return Kept.contains(name) ? Kept.at(name) : default_value;
  }
  void Write(const std::string& name, const Property_Value& value, const Property_Value& default_value) override {
    Names += name + ' ';
    if (value != default_value) Kept[name] = value;
  }
};

constexpr const char* all_names =
    "DialogTitle CancelError Filter InitDir FilterIndex DefaultExt FileName FileTitle MaxFileSize Flags ";

}  // namespace

TEST_F(Open_Save_Dialog_Test, Has_its_defaults) {
  EXPECT_EQ(Dialog1.DialogTitle, "");
  EXPECT_FALSE(Dialog1.CancelError);
  EXPECT_EQ(Dialog1.Filter, "");
  EXPECT_EQ(Dialog1.InitDir, "");
  EXPECT_EQ(Dialog1.FilterIndex, 0);
  EXPECT_EQ(Dialog1.DefaultExt, "");
  EXPECT_EQ(Dialog1.FileName, "");
  EXPECT_EQ(Dialog1.FileTitle, "");
  EXPECT_EQ(Dialog1.MaxFileSize, 260);
  EXPECT_EQ(Dialog1.Flags, 0);
}

TEST_F(Open_Save_Dialog_Test, Gives_the_dialog_all_that_it_was_told) {
  Dialog1.DialogTitle = "Title";
  Dialog1.InitDir = "C:\\Folder";
  Dialog1.Filter = "Text (*.txt)|*.txt|All|*.*";
  Dialog1.FilterIndex = 2;
  Dialog1.Flags = 4;
  Dialog1.FileName = "before";
  Dialog1.DefaultExt = "txt";
  Dialog1.ShowOpen();
  EXPECT_EQ(System.Shown, "open ");
  EXPECT_EQ(System.Given.Owner, Dialog1.Handle());
  EXPECT_NE(System.Given.Owner, Window.Handle());
  EXPECT_NE(System.Given.Owner, 0U);
  EXPECT_EQ(System.Given.Title, "Title");
  EXPECT_EQ(System.Given.Initial_Folder, "C:\\Folder");
  EXPECT_EQ(System.Given.Filter, With_Nuls("Text (*.txt)^*.txt^All^*.*^^"));
  EXPECT_EQ(System.Given.Filter_Index, 2U);
  EXPECT_EQ(System.Given.Flags, 4U);
  EXPECT_EQ(System.Given.File, std::string(260, '\0')) << "no initial name";
  EXPECT_EQ(System.Given.File_Title, std::string(260, '\0'));
  Dialog1.ShowSave();
  EXPECT_EQ(System.Shown, "open save ");
}

TEST_F(Open_Save_Dialog_Test, A_filter_without_a_number_uses_the_first_type) {
  Dialog1.ShowOpen();
  EXPECT_EQ(Dialog1.FilterIndex, 0) << "without a filter there is no type";
  EXPECT_EQ(System.Given.Filter, "");
  Dialog1.Filter = "no pattern";
  Dialog1.ShowOpen();
  EXPECT_EQ(Dialog1.FilterIndex, 1);
  EXPECT_EQ(System.Given.Filter_Index, 1U);
  EXPECT_EQ(System.Given.Filter, With_Nuls("no pattern^^"));
}

TEST_F(Open_Save_Dialog_Test, A_number_without_a_filter_goes_as_it_is) {
  Dialog1.FilterIndex = 3;
  Dialog1.ShowSave();
  EXPECT_EQ(System.Given.Filter, "");
  EXPECT_EQ(System.Given.Filter_Index, 3U);
  EXPECT_EQ(Dialog1.FilterIndex, 3);
  Dialog1.Filter = "a|b";
  Dialog1.FilterIndex = -2;
  Dialog1.ShowSave();
  EXPECT_EQ(System.Given.Filter_Index, static_cast<std::uint32_t>(-2)) << "nothing is checked";
  EXPECT_EQ(Dialog1.FilterIndex, -2);
}

TEST_F(Open_Save_Dialog_Test, Takes_over_what_was_chosen) {
  Choose("C:\\Folder\\a.txt", "a.txt");
  const auto choose = System.Answer;
  System.Answer = [&](platform::File_Dialog_Record& record) {
    choose(record);
    record.Filter_Index = 3;
    record.Flags = 0x80000001;
  };
  Dialog1.ShowSave();
  EXPECT_EQ(Dialog1.FileName, "C:\\Folder\\a.txt");
  EXPECT_EQ(Dialog1.FileTitle, "a.txt");
  EXPECT_EQ(Dialog1.FilterIndex, 3);
  EXPECT_EQ(Dialog1.Flags, static_cast<std::int32_t>(0x80000001));
}

TEST_F(Open_Save_Dialog_Test, A_cancelled_dialog_changes_nothing) {
  System.Answer = [](platform::File_Dialog_Record& record) {
    record.File.replace(0, 3, "new");
    record.Flags = 1;
    record.Filter_Index = 9;
  };
  Dialog1.FileName = "name";
  Dialog1.FileTitle = "title";
  Dialog1.ShowOpen();
  Dialog1.ShowSave();
  EXPECT_EQ(Dialog1.FileName, "name");
  EXPECT_EQ(Dialog1.FileTitle, "title");
  EXPECT_EQ(Dialog1.Flags, 0);
  EXPECT_EQ(Dialog1.FilterIndex, 0);
}

TEST_F(Open_Save_Dialog_Test, A_cancelled_dialog_is_an_error_if_that_is_wanted) {
  Dialog1.CancelError = true;
  EXPECT_EQ(Error_Of([&] { Dialog1.ShowOpen(); }), 32755);
  try {
    Dialog1.ShowSave();
    FAIL();
  } catch (const dialogs::Cancel_Error& error) {
    EXPECT_STREQ(error.what(), "Cancel was selected.");
    EXPECT_STREQ(error.Help_File, "cmdlg98.chm");
    EXPECT_EQ(error.Help_Context, 32755);
  }
  Choose("C:\\a", "a");
  EXPECT_EQ(Error_Of([&] { Dialog1.ShowOpen(); }), 0);
}

TEST_F(Open_Save_Dialog_Test, Several_files_have_more_room_and_come_back_whole) {
  Dialog1.Flags = 512;
  Dialog1.MaxFileSize = 5;
  Dialog1.FileTitle = "before";
  const std::string several = With_Nuls("C:\\Folder^a^b");
  Choose(several, "a");
  Dialog1.ShowOpen();
  EXPECT_EQ(System.Given.File.size(), 8192U);
  EXPECT_EQ(System.Given.File_Title.size(), 8192U);
  EXPECT_EQ(Dialog1.FileName, several + std::string(8192 - several.size(), '\0'));
  EXPECT_EQ(Dialog1.FileTitle, "before");
  Dialog1.ShowSave();
  EXPECT_EQ(System.Given.File.size(), 260U) << "saving is of one file";
  EXPECT_EQ(System.Given.File_Title.size(), 5U);
  EXPECT_EQ(Dialog1.FileName, "C:\\Folder");
  EXPECT_EQ(Dialog1.FileTitle, "a");
}

TEST_F(Open_Save_Dialog_Test, The_flags_that_come_back_tell_of_several_files) {
  Dialog1.Flags = 512;
  Choose("C:\\a", "a");
  const auto choose = System.Answer;
  System.Answer = [&](platform::File_Dialog_Record& record) {
    choose(record);
    record.Flags = 0;
  };
  Dialog1.ShowOpen();
  EXPECT_EQ(Dialog1.FileName, "C:\\a");
  EXPECT_EQ(Dialog1.FileTitle, "a");
}

TEST_F(Open_Save_Dialog_Test, A_dialog_that_sets_the_flag_of_several_files_gives_its_whole_buffer) {
  Choose("C:\\a", "a");
  const auto choose = System.Answer;
  System.Answer = [&](platform::File_Dialog_Record& record) {
    choose(record);
    record.Flags |= 512;
  };
  Dialog1.FileTitle = "before";
  Dialog1.ShowOpen();
  EXPECT_EQ(System.Given.File.size(), 260U) << "there was no such flag before";
  EXPECT_EQ(Dialog1.FileName, "C:\\a" + std::string(256, '\0'));
  EXPECT_EQ(Dialog1.FileTitle, "before");
  EXPECT_EQ(Dialog1.Flags, 512);
  Dialog1.Flags = 0;
  Dialog1.ShowSave();
  EXPECT_EQ(Dialog1.FileName, "C:\\a") << "saving is of one file";
  EXPECT_EQ(Dialog1.FileTitle, "a");
  EXPECT_EQ(Dialog1.Flags, 512);
}

TEST_F(Open_Save_Dialog_Test, The_title_has_the_room_that_it_is_given) {
  Dialog1.MaxFileSize = 0;
  System.Chosen = true;
  System.Answer = [](platform::File_Dialog_Record& record) { record.File.replace(0, 1, "a"); };
  Dialog1.FileTitle = "before";
  Dialog1.ShowOpen();
  EXPECT_EQ(System.Given.File_Title, "");
  EXPECT_EQ(Dialog1.FileTitle, "");
  Dialog1.MaxFileSize = -1;
  Dialog1.Filter = "a|b";
  EXPECT_EQ(Error_Of([&] { Dialog1.ShowOpen(); }), 5);
  EXPECT_EQ(Dialog1.FilterIndex, 0) << "the number of the type is set once the record is filled";
}

TEST_F(Open_Save_Dialog_Test, A_result_without_its_end_is_an_error) {
  System.Chosen = true;
  System.Answer = [](platform::File_Dialog_Record& record) { record.File.assign(260, 'x'); };
  EXPECT_EQ(Error_Of([&] { Dialog1.ShowSave(); }), 5);
  System.Answer = [](platform::File_Dialog_Record& record) { record.Filter_Index = 40000; };
  EXPECT_EQ(Error_Of([&] { Dialog1.ShowSave(); }), 6);
}

TEST_F(Open_Save_Dialog_Test, Its_window_goes_with_the_one_that_it_lies_in) {
  EXPECT_NE(Dialog1.Handle(), 0U);
  Window.Unload();
  EXPECT_EQ(Dialog1.Handle(), 0U);
}

TEST_F(Open_Save_Dialog_Test, Its_size_stays) {
  EXPECT_FALSE(Dialog1.Visible());
  Dialog1.Width = 1000;
  EXPECT_EQ(Dialog1.Width, 390);
  Dialog1.Height = 0;
  EXPECT_EQ(Dialog1.Height, 390);
  Dialog1.Place({15, 30, 5, 6});
  EXPECT_EQ(Dialog1.In_Twips(), (toolkit::Bounds{15, 30, 390, 390}));
}

TEST_F(Open_Save_Dialog_Test, Its_properties_are_kept_in_their_order) {
  Noting_Bag bag;
  Dialog1.Write_Properties(bag);
  EXPECT_EQ(bag.Names, all_names);
  EXPECT_TRUE(bag.Kept.empty()) << "all are as they are at first";
  Dialog1.DialogTitle = "a";
  Dialog1.CancelError = true;
  Dialog1.Filter = "b|c";
  Dialog1.InitDir = "d";
  Dialog1.FilterIndex = 2;
  Dialog1.DefaultExt = "e";
  Dialog1.FileName = "f";
  Dialog1.FileTitle = "g";
  Dialog1.MaxFileSize = 3;
  Dialog1.Flags = 4;
  Dialog1.Write_Properties(bag);
  EXPECT_EQ(bag.Kept.size(), 10U);
  OpenSaveDialog other(Window, "Dialog2", System);
  bag.Names.clear();
  other.Read_Properties(bag);
  EXPECT_EQ(bag.Names, all_names);
  Noting_Bag again;
  other.Write_Properties(again);
  EXPECT_EQ(again.Kept, bag.Kept);
}

TEST_F(Open_Save_Dialog_Test, What_is_not_kept_has_its_default) {
  Dialog1.DialogTitle = "a";
  Dialog1.MaxFileSize = 3;
  Dialog1.Flags = 4;
  Noting_Bag bag;
  Dialog1.Read_Properties(bag);
  Noting_Bag written;
  Dialog1.Write_Properties(written);
  EXPECT_TRUE(written.Kept.empty());
  Dialog1.Filter = "x";
  Dialog1.Initialise();
  Dialog1.Write_Properties(written);
  EXPECT_TRUE(written.Kept.empty());
}

TEST_F(Open_Save_Dialog_Test, A_kept_value_of_another_type_is_an_error) {
  Noting_Bag bag;
  bag.Kept["Flags"] = std::string("x");
  EXPECT_EQ(Error_Of([&] { Dialog1.Read_Properties(bag); }), 13);
}

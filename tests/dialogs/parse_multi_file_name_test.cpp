// A choice of several files, taken apart; and the small helpers on texts with NULs.
#include <limits>

#include "tests/dialogs/dialog_world.h"

using Texts = std::vector<std::string>;

namespace {

class Parse_Multi_File_Name_Test : public Dialog_World {
 protected:
  void Parse(const std::string& file_name) {
    Dialog1.FileName = With_Nuls(file_name);
    Dialog1.ParseMultiFileName(Dir, Files, Count);
  }

  int Error_Of_Parsing(const std::string& file_name) {
    return Error_Of([&] { Parse(file_name); });
  }

  std::string Dir;
  Texts Files;
  std::int32_t Count = 0;
};

}  // namespace

TEST_F(Parse_Multi_File_Name_Test, The_folder_comes_first_and_then_the_names) {
  Parse("C:\\Folder^a.txt^b.txt^^^^");
  EXPECT_EQ(Dir, "C:\\Folder");
  EXPECT_EQ(Files, (Texts{"a.txt", "b.txt"}));
  EXPECT_EQ(Count, 2);
  EXPECT_EQ(Dialog1.FileName, "C:\\Folder");
}

TEST_F(Parse_Multi_File_Name_Test, Of_one_name_alone_there_is_no_folder) {
  Parse("C:\\Folder\\a.txt^^^");
  EXPECT_EQ(Dir, "");
  EXPECT_EQ(Files, Texts{"C:\\Folder\\a.txt"});
  EXPECT_EQ(Count, 1);
  EXPECT_EQ(Dialog1.FileName, "C:\\Folder\\a.txt");
}

TEST_F(Parse_Multi_File_Name_Test, Names_are_put_behind_those_that_there_are) {
  Dir = "D:\\Before";
  Files = {"x"};
  Count = 1;
  Parse("C:\\Folder^a^b^^");
  EXPECT_EQ(Dir, "D:\\Before");
  EXPECT_EQ(Files, (Texts{"x", "C:\\Folder", "a", "b"}));
  EXPECT_EQ(Count, 4);
  Files.clear();
  Count = 2;
  Parse("c^^");
  EXPECT_EQ(Files, (Texts{"", "", "c"})) << "the places before the number stay empty";
}

TEST_F(Parse_Multi_File_Name_Test, What_stands_behind_two_nuls_does_not_count) {
  Parse("C:\\Folder^a^^b^c^^");
  EXPECT_EQ(Files, Texts{"a"});
  Parse("^^a");
  EXPECT_EQ(Files, (Texts{"a", ""}));
  EXPECT_EQ(Dialog1.FileName, "");
}

TEST_F(Parse_Multi_File_Name_Test, A_full_path_is_taken_apart_at_its_last_backslash) {
  Dir = "before";
  Files = {"x", "y"};
  Count = 7;
  Parse("C:\\Folder\\a.txt");
  EXPECT_EQ(Dir, "C:\\Folder");
  EXPECT_EQ(Files, Texts{"a.txt"});
  EXPECT_EQ(Count, 1);
  EXPECT_EQ(Dialog1.FileName, "C:\\Folder\\a.txt");
}

TEST_F(Parse_Multi_File_Name_Test, A_backslash_in_front_is_no_folder) {
  Dir = "before";
  Parse("\\a.txt");
  EXPECT_EQ(Dir, "");
  EXPECT_EQ(Files, Texts{"\\a.txt"});
  EXPECT_EQ(Dialog1.FileName, "\\a.txt");
}

TEST_F(Parse_Multi_File_Name_Test, A_bare_name_needs_its_nul) {
  EXPECT_EQ(Error_Of_Parsing("a.txt"), 5);
  EXPECT_EQ(Dir, "");
  EXPECT_EQ(Files, Texts{"a.txt"}) << "what comes before the failure is done";
  EXPECT_EQ(Count, 1);
  Parse("a.txt^");
  EXPECT_EQ(Files, Texts{With_Nuls("a.txt^")});
  EXPECT_EQ(Dialog1.FileName, "a.txt");
  Parse("");
  EXPECT_EQ(Files, Texts{""});
}

TEST_F(Parse_Multi_File_Name_Test, A_number_out_of_bounds_is_an_error) {
  Count = -1;
  EXPECT_EQ(Error_Of_Parsing("a^^"), 9);
  Count = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(Error_Of_Parsing("a^^"), 6);
}

TEST(Trim_Null, Gives_what_stands_before_the_first_nul) {
  EXPECT_EQ(dialogs::TrimNull(""), "");
  EXPECT_EQ(dialogs::TrimNull(With_Nuls("abc^def^")), "abc");
  EXPECT_EQ(dialogs::TrimNull(With_Nuls("^")), "");
  EXPECT_EQ(Error_Of([] { (void)dialogs::TrimNull("abc"); }), 5);
}

TEST(Translate_Filter, Puts_nuls_between_and_two_behind) {
  EXPECT_EQ(dialogs::TranslateFilter("Text File (*.txt)|*.txt"), With_Nuls("Text File (*.txt)^*.txt^^"));
  EXPECT_EQ(dialogs::TranslateFilter("a|b|c|d"), With_Nuls("a^b^c^d^^"));
  EXPECT_EQ(dialogs::TranslateFilter("a"), With_Nuls("a^^"));
  EXPECT_EQ(dialogs::TranslateFilter("||"), With_Nuls("^^^^"));
}

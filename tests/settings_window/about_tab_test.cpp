#include "settings_window/about_tab.h"

#include <gtest/gtest.h>

#include "memory/memory_platform.h"
#include "settings_window/homepage.h"

namespace {

class Noting_Shell : public platform::Shell_Open {
 public:
  std::vector<std::string> Opened;
  void Open(const std::string& address, const std::string& directory) override {
    Opened.push_back(address + " in " + directory);
  }
};

class About_Tab_Test : public ::testing::Test {
 protected:
  memory::Memory_Platform Platform;
  Noting_Shell Shell;
  toolkit::Form Window{Platform.Backend(), "Settings_Frm"};
  toolkit::Frame Page{Window, "Settings_Fra", 7};
  settings_window::About_Tab About{Page, Shell, Platform.Files};
};

}  // namespace

TEST_F(About_Tab_Test, All_its_labels_are_lines_of_bold_Arial) {
  for (const toolkit::Label* const label : {&About.Label9, &About.Label10, &About.Label1, &About.Label5, &About.Label7,
                                            &About.Label8, &About.Link_Lbl, &About.Label11, &About.Label12}) {
    EXPECT_EQ(label->FontName(), "Arial") << label->Name;
    EXPECT_TRUE(label->FontBold()) << label->Name;
    const double size = label == &About.Label9 ? 20.25 : label == &About.Label10 ? 9.75 : 11.25;
    EXPECT_EQ(label->FontSize(), size) << label->Name;
    EXPECT_EQ(label->FontItalic(), label == &About.Label9) << label->Name;
    EXPECT_EQ(label->FontUnderline(), label == &About.Label9 || label == &About.Link_Lbl) << label->Name;
    EXPECT_FALSE(label->Word_Wrap()) << label->Name;
  }
}

TEST_F(About_Tab_Test, Shows_the_programs_icon) {
  EXPECT_EQ(About.Image1.Picture(), platform::Stock_Picture::Program_Icon);
}

TEST_F(About_Tab_Test, The_link_looks_like_one) {
  EXPECT_EQ(About.Link_Lbl.MousePointer(), toolkit::Pointer::Hand);
  EXPECT_EQ(About.Link_Lbl.ForeColor(), toolkit::Rgb(0, 0, 255));
}

TEST_F(About_Tab_Test, The_link_opens_the_homepage_from_the_drives_root) {
  About.Link_Lbl.User_Click();
  const std::string target =
      settings_window::Homepage_Target(settings_window::homepage, Platform.Files.Program_Folder());
  EXPECT_EQ(Shell.Opened, std::vector<std::string>{target + " in C:\\"});
}

TEST(Homepage_Test, A_file_is_looked_for_in_the_program_folder) {
  EXPECT_EQ(settings_window::Homepage_Target(R"(guide\guide.html)", R"(D:\Cal)"), R"(D:\Cal\guide\guide.html)");
}

TEST(Homepage_Test, An_address_stays_as_it_is) {
  EXPECT_EQ(settings_window::Homepage_Target("http://localhost/meridex", R"(D:\Cal)"), "http://localhost/meridex");
}

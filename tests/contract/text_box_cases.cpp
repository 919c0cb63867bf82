// What the event editor relies on of a text box: that texts of any length pass both ways byte for byte.
#include "tests/contract/service_world.h"
#include "toolkit/text_box.h"

namespace {

/// A text of that many bytes in lines of which no two are equal.
std::string Long_Text(std::size_t size) {
  std::string text;
  for (int line = 0; text.size() < size; ++line) text += "Line " + std::to_string(line) + " of M\xE4rz\r\n";
  text.resize(size, '.');
  if (text.back() == '\r') text.back() = '.';
  return text;
}

class Text_Box_Cases : public Service_Cases {
 protected:
  Text_Box_Cases() {
    Dialog.Move(1500, 1500);
    Dialog.Set_Client_Size(4500, 2700);
    Box.Place({150, 150, 3000, 1500});
    Box.On_Change = [this] { ++Changes; };
    World->Run([this] { Dialog.Show(); });
    User.Wait(100);
  }

  /// The program sets the text and puts the caret behind it.
  void Set(const std::string& text) {
    World->Run([&] {
      Box.Text = text;
      Box.SelStart = static_cast<int>(text.size());
    });
    Changes = 0;
  }

  // Strings of this length aren't printed where they differ.
  static void Expect_Equal(const std::string& text, const std::string& expected) {
    EXPECT_EQ(text.size(), expected.size());
    EXPECT_TRUE(text == expected);
  }

  ::User& User = World->The_User();
  toolkit::Form Dialog{World->Backend(), "Edit_Frm", toolkit::Form_Border::Fixed_Dialog};
  toolkit::Text_Box Box{Dialog, "Box"};
  int Changes = 0;
};

class Text_Box_Lengths : public Text_Box_Cases, public ::testing::WithParamInterface<std::size_t> {};

}  // namespace

TEST_P(Text_Box_Lengths, A_text_that_the_program_set_comes_back_whole_with_what_the_user_types) {
  const std::string text = Long_Text(GetParam());
  Set(text);
  Expect_Equal(Box.Text, text);
  User.Type('a');
  EXPECT_EQ(Changes, 1);
  Expect_Equal(Box.Text, text + 'a');
}

TEST_P(Text_Box_Lengths, A_pasted_text_comes_whole) {
  const std::string text = Long_Text(GetParam());
  Set("before ");
  User.Paste(Box, text);
  EXPECT_GE(Changes, 1);
  Expect_Equal(Box.Text, "before " + text);
  User.Type('a');
  Expect_Equal(Box.Text, "before " + text + 'a');
}

INSTANTIATE_TEST_SUITE_P(Below_And_Over_The_Limits_Of_16_Bits, Text_Box_Lengths,
                         ::testing::Values(100, 32766, 32767, 32768, 40000, 65534, 65535, 65536, 70000));

TEST_F(Text_Box_Cases, Texts_pasted_one_behind_the_other_go_over_every_limit) {
  const std::string text = Long_Text(30000);
  Set("");
  std::string expected;
  for (int i = 0; i < 3; ++i) {
    User.Paste(Box, text);
    expected += text;
    Expect_Equal(Box.Text, expected);
  }
}

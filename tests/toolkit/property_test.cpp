#include "toolkit/property.h"

#include <gtest/gtest.h>

#include <vector>

#include "toolkit/colour.h"
#include "toolkit/geometry.h"

using toolkit::Aspect;
using toolkit::Property;

namespace {

class Listener : public toolkit::Property_Owner {
 public:
  void Changed(Aspect aspect) override { Heard.push_back(aspect); }

  std::vector<Aspect> Heard;
  Property<std::string> Caption{*this, Aspect::Caption, "first"};
  Property<int> Value{*this, Aspect::Value};
  Property<bool> Visible{*this, Aspect::Visible, true};
};

}  // namespace

TEST(Property, Starts_with_its_value_and_tells_nobody) {
  const Listener owner;
  EXPECT_EQ(owner.Caption(), "first");
  EXPECT_EQ(owner.Value(), 0);
  EXPECT_TRUE(owner.Visible());
  EXPECT_TRUE(owner.Heard.empty());
}

TEST(Property, Tells_once_of_each_change) {
  Listener owner;
  owner.Caption = "second";
  owner.Value = 1;
  owner.Visible = false;
  owner.Value = 2;
  EXPECT_EQ(owner.Heard, (std::vector{Aspect::Caption, Aspect::Value, Aspect::Visible, Aspect::Value}));
  EXPECT_EQ(owner.Caption(), "second");
  EXPECT_EQ(owner.Value(), 2);
  EXPECT_FALSE(owner.Visible());
}

TEST(Property, Tells_nobody_when_it_is_set_to_what_it_is) {
  Listener owner;
  owner.Caption = "first";
  owner.Caption = std::string("first");
  owner.Value = 0;
  owner.Visible = true;
  EXPECT_TRUE(owner.Heard.empty());
}

TEST(Property, Has_its_new_value_when_its_owner_hears_of_it) {
  class Reader : public toolkit::Property_Owner {
   public:
    void Changed(Aspect /*aspect*/) override { Seen = Value; }
    Property<int> Value{*this, Aspect::Value};
    int Seen = -1;
  } owner;
  owner.Value = 7;
  EXPECT_EQ(owner.Seen, 7);
}

TEST(Property, Keeps_what_the_user_gave_it_without_telling) {
  Listener owner;
  owner.Caption.Keep("typed");
  EXPECT_EQ(owner.Caption(), "typed");
  EXPECT_TRUE(owner.Heard.empty());
  owner.Caption = "typed";
  EXPECT_TRUE(owner.Heard.empty()) << "the program sets what the user has typed already";
}

TEST(Round_To_Even, Rounds_to_the_nearest_and_halves_to_the_even_one) {
  using toolkit::Round_To_Even;
  EXPECT_EQ(Round_To_Even(0.5), 0);
  EXPECT_EQ(Round_To_Even(1.5), 2);
  EXPECT_EQ(Round_To_Even(2.5), 2);
  EXPECT_EQ(Round_To_Even(-0.5), 0);
  EXPECT_EQ(Round_To_Even(-1.5), -2);
  EXPECT_EQ(Round_To_Even(-2.5), -2);
  EXPECT_EQ(Round_To_Even(2.4999), 2);
  EXPECT_EQ(Round_To_Even(2.5001), 3);
  EXPECT_EQ(Round_To_Even(-7), -7);
}

TEST(Colour, Names_a_system_colour_by_the_low_byte_of_a_negative_number) {
  EXPECT_TRUE(toolkit::Is_System_Colour(-2147483630));
  EXPECT_EQ(toolkit::System_Colour_Number(-2147483630), 18);
  EXPECT_EQ(toolkit::System_Colour(18), -2147483630);
  EXPECT_EQ(toolkit::System_Colour(3), -2147483645);
  EXPECT_FALSE(toolkit::Is_System_Colour(0));
  EXPECT_FALSE(toolkit::Is_System_Colour(toolkit::white));
}

TEST(Colour, Has_red_in_the_low_byte_and_blue_in_the_third) {
  EXPECT_EQ(toolkit::Rgb(192, 192, 255), 16761024);
  EXPECT_EQ(toolkit::Rgb(31, 8, 128), 8390687);
  EXPECT_EQ(toolkit::Rgb(255, 255, 255), toolkit::white);
}

TEST(Bounds, Contain_their_left_and_top_edge_and_not_the_others) {
  const toolkit::Bounds box{10, 20, 30, 40};
  EXPECT_TRUE(box.Contains(10, 20));
  EXPECT_TRUE(box.Contains(39.9, 59.9));
  EXPECT_FALSE(box.Contains(9.9, 20));
  EXPECT_FALSE(box.Contains(10, 19.9));
  EXPECT_FALSE(box.Contains(40, 20));
  EXPECT_FALSE(box.Contains(10, 60));
  EXPECT_FALSE((toolkit::Bounds{10, 20, 0, 0}).Contains(10, 20)) << "an empty one contains nothing";
}

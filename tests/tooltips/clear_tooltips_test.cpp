#include "tooltips/clear_tooltips.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

TEST(Clear_Tooltips, Empties_the_tips_of_all_boxes_and_captions_and_nothing_else) {
  Fake_Backend backend;
  presentation::Arrangement made(backend);
  for (int i = 0; i < presentation::box_count; ++i) {
    made.Box_Lbl[i].ToolTipText = "box";
    made.Box_Caption_Lbl[i].ToolTipText = "caption";
    made.Box_Caption_Lbl[i].Caption = "text";
  }
  made.Which_Month_Lbl.ToolTipText = "title";
  tooltips::Clear_Tooltips(made);
  for (int i = 0; i < presentation::box_count; ++i) {
    EXPECT_EQ(made.Box_Lbl[i].ToolTipText(), "") << i;
    EXPECT_EQ(made.Box_Caption_Lbl[i].ToolTipText(), "") << i;
    EXPECT_EQ(made.Box_Caption_Lbl[i].Caption(), "text") << i;
  }
  EXPECT_EQ(made.Which_Month_Lbl.ToolTipText(), "title");
}

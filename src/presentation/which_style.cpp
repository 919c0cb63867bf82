#include "presentation/which_style.h"

#include <optional>

#include "presentation/box_style.h"

namespace presentation {

namespace {

using toolkit::Alignment;
using toolkit::Label;

/// How a style lays out the captions, in twips.
struct Caption_Layout {
  double width, height;
  double from_left, from_top;  // from the box's corner
  Alignment alignment;
};

/// All in twips.
struct Style_Layout {
  double box_width, box_height;
  double gap;  // between rows and between columns
  Alignment box_alignment;
  std::optional<Caption_Layout> caption;  // none: the captions are parked out of sight, and keep their size
};

constexpr double parked = 9999;  // beyond the window's edge
constexpr int last_column = days_of_week - 1;
constexpr int fifth_row = 4 * days_of_week;  // the first box of the row
constexpr int sixth_row = 5 * days_of_week;

constexpr double gap_after_title = 100;
constexpr double right_margin = 135;
constexpr double bottom_margin = 50;

const Style_Layout layouts[] = {
    {1275, 320, 100, Alignment::Left, Caption_Layout{870, 220, 360, 55, Alignment::Left}},
    {825, 915, 75, Alignment::Left, Caption_Layout{735, 600, 45, 270, Alignment::Centre}},
    {375, 285, 75, Alignment::Centre, std::nullopt},
};

/// The first row keeps its top and the first column its left. Every other box goes below the first box of the row
/// above, and to the right of the first row's box in the column before.
void Place_Box(Main_Frm& main_frm, int i, const Style_Layout& layout) {
  Label& box = main_frm.Box_Lbl[i];
  box.Height = layout.box_height;
  box.Width = layout.box_width;
  if (i >= days_of_week) {
    const Label& above = main_frm.Box_Lbl[(i / days_of_week - 1) * days_of_week];
    box.Top = above.Top + above.Height + layout.gap;
  }
  if (i % days_of_week != 0) {
    const Label& beside = main_frm.Box_Lbl[i % days_of_week - 1];
    box.Left = beside.Left + beside.Width + layout.gap;
  }
  box.Alignment = layout.box_alignment;
  box.FontUnderline = false;
}

void Place_Caption(Label& caption, const Label& box, const std::optional<Caption_Layout>& layout) {
  if (!layout) {
    caption.Top = parked;
    caption.Left = parked;
    return;
  }
  caption.Height = layout->height;
  caption.Width = layout->width;
  caption.Top = box.Top + layout->from_top;
  caption.Left = box.Left + layout->from_left;
  caption.Alignment = layout->alignment;
}

void Place_Header_Row(Main_Frm& main_frm) {
  for (int i = 0; i < days_of_week; ++i) {
    main_frm.Day_Lbl[i].Left = main_frm.Box_Lbl[i].Left;
    main_frm.Day_Lbl[i].Width = main_frm.Box_Lbl[0].Width;
  }
  const Label& last_day = main_frm.Day_Lbl[last_column];
  Label& next = main_frm.Next_Month_Lbl;
  next.Left = last_day.Left + last_day.Width - next.Width;
  main_frm.Which_Month_Lbl.Width = next.Left - main_frm.Which_Month_Lbl.Left - gap_after_title;
}

void Size_Window(Main_Frm& main_frm) {
  const Label& last_box_across = main_frm.Box_Lbl[last_column];
  main_frm.Window.Width = last_box_across.Left + last_box_across.Width + right_margin;
  const Label& last_row = main_frm.Box_Lbl[main_frm.Box_Lbl[sixth_row].Visible ? box_count - 1 : fifth_row];
  main_frm.Window.Height = last_row.Top + last_row.Height + bottom_margin;
}

}  // namespace

void Which_Style(Main_Frm& main_frm, basic::Int16 style) {
  main_frm.Window.Scale = toolkit::Scale_Unit::Twips;
  if (style >= thin_box && style <= small_box) {
    const Style_Layout& layout = layouts[style.Value()];
    for (int i = 0; i < box_count; ++i) {
      Place_Box(main_frm, i, layout);
      Place_Caption(main_frm.Box_Caption_Lbl[i], main_frm.Box_Lbl[i], layout.caption);
    }
  }
  Place_Header_Row(main_frm);
  Size_Window(main_frm);
}

}  // namespace presentation

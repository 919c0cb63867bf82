#include "settings_window/tooltips_tab.h"

#include "settings_window/box_example.h"

namespace settings_window {

namespace {

constexpr const char* example = "This is an example.";
constexpr float hold_seconds = 0.3F;
constexpr int balloon_tips = 2;

struct Explanation {
  const char* Trigger;
  const char* Tip;
  const char* Notes;
};

constexpr std::array<Explanation, 3> explanations{
    {{"", "", "Neither of the two Tooltip styles will be used."},
     {"Hover Over...", example,
      "The standard Tooltips appear when you hover your mouse over it for a short length of time. The problem with the "
      "standard Tooltips is that they are only one line high. This means if the event is too long then it might get "
      "cut "
      "off."},
     {"Hold Left Mouse Button", "",
      "These balloon Tooltips don't pop up when you hover over them like the standard tooltips do. For these to appear "
      "you have to hold down the left mouse button for about half a second over the box."}}};

/// What stands there before any option is clicked: "may" where the explanation has "might", deliberately.
constexpr const char* notes_at_first =
    "The standard Tooltips appear when you hover your mouse over it for a short length of time. The problem with the "
    "standard Tooltips is that they are only one line high. This means if the event is too long then it may get cut "
    "off.";

/// Counts one more for as long as it lives.
class One_More {
 public:
  explicit One_More(int& count) : count_(count) { ++count_; }
  One_More(const One_More&) = delete;
  One_More& operator=(const One_More&) = delete;
  ~One_More() { --count_; }

 private:
  int& count_;
};

}  // namespace

Tooltips_Tab::Tooltips_Tab(toolkit::Frame& page, calendar::Dates& dates, tooltips::Balloons& balloons,
                           platform::Waits& waits, state::Calendar_State& calendar)
    : Frame1(page, "Frame1"), Tips_Opt(Frame1, "Tips_Opt", static_cast<int>(explanations.size())),
      Preview_Fra(page, "Preview_Fra"), TipsTrigger_Lbl(Preview_Fra, "TipsTrigger_Lbl"),
      TipBoxExample_Lbl(Preview_Fra, "TipBoxExample_Lbl"), TipExample_Lbl(Preview_Fra, "TipExample_Lbl"),
      Frame14(page, "Frame14"), TipsNotes_Lbl(Frame14, "TipsNotes_Lbl"), window_(page.Window), dates_(dates),
      balloons_(balloons), waits_(waits), calendar_(calendar) {
  Place_Controls();
  Tips_Opt[1].Value = true;
  Explain(1);
  TipsNotes_Lbl.Caption = notes_at_first;
  Tie_Events();
}

void Tooltips_Tab::Place_Controls() {
  Frame1.Place({0, 0, 2985, 1950});
  Frame1.Caption = "Options";
  Tips_Opt[0].Place({315, 450, 2040, 240});
  Tips_Opt[0].Caption = "Don't use Tooltips";
  Tips_Opt[1].Place({315, 945, 2400, 240});
  Tips_Opt[1].Caption = "Use 'Standard' Tooltips";
  Tips_Opt[2].Place({315, 1440, 2400, 240});
  Tips_Opt[2].Caption = "Use 'Balloon' Tooltips";
  Preview_Fra.Place({3105, 0, 1995, 1950});
  Preview_Fra.Caption = "Preview";
  TipsTrigger_Lbl.Place({90, 405, 1815, 240});
  TipsTrigger_Lbl.Alignment = toolkit::Alignment::Centre;
  TipBoxExample_Lbl.Place({540, 810, 825, 915});
  TipBoxExample_Lbl.Caption = " 1";
  Look_Like_A_Day_Box(TipBoxExample_Lbl);
  TipBoxExample_Lbl.ForeColor = toolkit::black;  // on white in every scheme of colours
  TipExample_Lbl.Place({585, 1080, 735, 600});
  TipExample_Lbl.Caption = example;
  TipExample_Lbl.Alignment = toolkit::Alignment::Centre;
  TipExample_Lbl.Transparent = true;
  TipExample_Lbl.ForeColor = toolkit::black;
  Frame14.Place({0, 1980, 5100, 1860});
  Frame14.Caption = "Notes";
  TipsNotes_Lbl.Place({225, 405, 4695, 1230});
}

void Tooltips_Tab::Tie_Events() {
  for (int i = 0; i < Tips_Opt.Count(); ++i) Tips_Opt[i].On_Click = [this, i] { Explain(i); };
  for (toolkit::Label* const label : {&TipBoxExample_Lbl, &TipExample_Lbl}) {
    label->On_Mouse_Down = [this](const toolkit::Mouse_Event& event) { Press(event); };
    label->On_Mouse_Up = [this](const toolkit::Mouse_Event&) { calendar_.Mouse_Released = true; };
  }
}

void Tooltips_Tab::Explain(int index) {
  const Explanation& texts = explanations.at(static_cast<std::size_t>(index));
  TipsTrigger_Lbl.Caption = texts.Trigger;
  TipBoxExample_Lbl.ToolTipText = texts.Tip;
  TipExample_Lbl.ToolTipText = texts.Tip;
  TipsNotes_Lbl.Caption = texts.Notes;
}

void Tooltips_Tab::Show_Choice(basic::Int16 index) const {
  if (index >= 0 && index < Tips_Opt.Count()) Tips_Opt[index].Value = true;
}

basic::Int16 Tooltips_Tab::Choice() const {
  basic::Int16 index = 0;
  while (!Tips_Opt[index].Value) index += 1;
  return index;
}

void Tooltips_Tab::Press(const toolkit::Mouse_Event& event) {
  if (!Tips_Opt[balloon_tips].Value || event.Button != toolkit::Mouse_Button::Left) return;
  const One_More press(presses_);
  calendar_.Mouse_Released = false;
  waits_.TimeOut(hold_seconds);
  if (!calendar_.Mouse_Released && window_.Loaded()) Example_Tooltip();
}

void Tooltips_Tab::Example_Tooltip() {
  const toolkit::Bounds& frame = Preview_Fra.In_Twips();
  const toolkit::Bounds& box_text = TipExample_Lbl.In_Twips();
  std::string title;
  dates_.Append_Short_Date(title, dates_.Present_Day());
  balloons_.Show_Balloon(
      title, example, toolkit::Round_To_Even(315 + frame.Left + box_text.Left + box_text.Width + window_.Left),
      toolkit::Round_To_Even(1050 + frame.Top + box_text.Top + box_text.Height + window_.Top), Preview_Fra.Window);
}

}  // namespace settings_window

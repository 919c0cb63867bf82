#include "random_actions.h"

#include <utility>

#include "nasty.h"
#include "nasty_files.h"
#include "text_form.h"

namespace monkey {

namespace {

constexpr int seconds_of_a_day = 86400;
constexpr const char* shells[] = {"on", "off", "workerw", "progman", "defview"};
constexpr const char* buttons[] = {"left", "left", "left", "right", "middle"};

std::string Number(int number) { return std::to_string(number); }

std::string Indexed(const std::string& name, int index) { return name + "(" + Number(index) + ")"; }

/// Tenths of a second as seconds with one digit behind the point.
std::string Tenths(int tenths) { return Number(tenths / 10) + "." + Number(tenths % 10); }

}  // namespace

std::string Random_Actions::First() {
  return Make_Pack("Default", "0-4-0") + "put calendar.dat " + play::Quoted(Good_File(random_)) + "\nstart\n";
}

std::string Random_Actions::Next(const Situation& situation) {
  if (!situation.running || (situation.trouble && random_.Once_In(10))) return Restart(situation.failed);
  // A held press in the last moments of a day is waited for until the next one; better not begin it. The settings window
  // has one such place too.
  const bool may_hold = situation.second_of_the_day < seconds_of_a_day - 60;
  const bool may_press = !situation.balloons || may_hold;
  if (windows_.Any_Window() && random_.Once_In(2)) return may_hold ? windows_.Next() : Wait();
  if (situation.balloons && may_press && random_.Once_In(4)) return windows_.Hold_An_Event();
  const int kind = random_.Below(1000);
  if (kind < 620) return Of_The_User(may_press);
  if (kind < 680) return Wait();
  if (kind < 720) return Prepared_Answer();
  if (kind < 760) return "later " + Tenths(random_.Below(20) + 1) + " " + (random_.Once_In(2) ? Key() : Control());
  if (kind < 820) return windows_.Open_Settings();
  if (kind < 860) return Clock();
  if (kind < 900) return Disk();
  if (kind < 915) return Screen();
  if (kind < 930) return Desktop();
  return Restart(false);
}

std::string Random_Actions::Of_The_User(bool press) {
  const int kind = random_.Below(100);
  if (press && kind < 45) return Mouse();
  if (press && kind < 60) return Menu();
  if (kind < 75) return Key();
  if (kind < 90) return Type();
  return Window();
}

std::string Random_Actions::Label() {
  switch (random_.Below(10)) {
    case 0: return "Prev_Month_Lbl";
    case 1: return "Next_Month_Lbl";
    case 2: return "Which_Month_Lbl";
    case 3: return Indexed("Day_Lbl", random_.Below(7));
    case 4:
    case 5: return Indexed("Box_Caption_Lbl", random_.Below(37));
    default: return Indexed("Box_Lbl", random_.Below(37));
  }
}

/// A click on something that isn't the calendar's own window.
std::string Random_Actions::Control() {
  static constexpr const char* names[] = {"Ok_Btn",      "Ok_Btn",  "Apply_Btn", "Cancel_Btn",    "Every_Year_Chk",
                                          "Message_Txt", "lblText", "lblTitle",  "imgDisplayIcon"};
  return std::string("click ") + random_.One_Of(names);
}

std::string Random_Actions::Mouse() {
  const std::string place = " " + Number(random_.Below(600) - 150) + " " + Number(random_.Below(600) - 150);
  const std::string button = std::string(" ") + random_.One_Of(buttons);
  switch (random_.Below(10)) {
    case 0: return "press " + Label() + button + place;
    case 1: return "release " + Label() + button + place;
    case 2: return "hold " + Label() + button + " " + Tenths(random_.Below(8));
    case 3: return "move " + Label() + (random_.Once_In(2) ? button : "") + place;
    case 4: return "move Which_Month_Lbl left" + place;
    case 5:
    case 6: return "click " + Label();
    case 7: return Control();
    default: return "dblclick " + Label();
  }
}

std::string Random_Actions::Key() {
  static constexpr const char* names[] = {"F1", "F2", "F2",  "F3",    "F4",     "F4", "F5", "F6", "F8",
                                          "F9", "F9", "F12", "Enter", "Escape", "x",  "&",  "'",  "5"};
  return std::string("key ") + random_.One_Of(names);
}

std::string Random_Actions::Type() {
  std::string typing = "type Message_Txt " + play::Quoted(Typed_Text(random_));
  switch (random_.Below(4)) {
    case 0: return typing;
    case 1: return typing + "\n" + Control();
    case 2: return "activate Main_Frm\n" + typing;
    default: return "key &";
  }
}

std::string Random_Actions::Menu() {
  switch (random_.Below(6)) {
    case 0: return "choose " + Number(random_.Below(13)) + "\npress Next_Month_Lbl right";
    case 1: return "choose " + Number(random_.Once_In(4) ? 999 : random_.Below(6)) + "\npress Which_Month_Lbl right";
    case 2: return "choose 1\npress " + Indexed("Day_Lbl", random_.Below(7)) + " right";
    case 3: return "choose 2\npress " + Indexed("Box_Lbl", random_.Below(37)) + " right";
    case 4: return "choose 1\npress " + Indexed("Box_Caption_Lbl", random_.Below(37)) + " right";
    default:
      return "choose " + Number(random_.Once_In(10) ? 4 : 3) + "\npress " + Indexed("Box_Lbl", random_.Below(37)) +
             " right";
  }
}

std::string Random_Actions::Window() {
  static constexpr const char* lines[] = {"activate Main_Frm", "activate Main_Frm", "activate none",
                                          "activate Edit_Frm", "close Edit_Frm",    "close frmBalloon"};
  return random_.Once_In(40) ? "close Main_Frm" : random_.One_Of(lines);
}

std::string Random_Actions::Wait() {
  if (random_.Once_In(80)) return "wait " + Number(random_.Below(600));
  return "wait " + Tenths(random_.Below(random_.Once_In(10) ? 500 : 20));
}

std::string Random_Actions::Clock() {
  static constexpr const char* moments[] = {"2004-03-05 09:00:00", "2004-02-29 12:00:00", "2004-03-31 23:59:58",
                                            "2004-12-31 23:59:57", "2005-02-28 23:59:59", "9998-12-31 23:59:55",
                                            "1999-12-31 23:59:59", "2004-08-01 00:00:00", "2003-06-15 18:30:00",
                                            "2004-05-31 08:00:00"};
  if (random_.Once_In(2)) return std::string("now ") + random_.One_Of(moments);
  const int day = random_.Below(28) + 1;
  return "now 2004-0" + Number(random_.Below(9) + 1) + (day < 10 ? "-0" : "-") + Number(day) + " 1" +
         Number(random_.Below(10)) + ":00:00";
}

std::string Random_Actions::Disk() {
  switch (random_.Below(26)) {
    case 9: return "put calendar.dat " + play::Quoted(Good_File(random_)) + "\nreadonly calendar.dat";
    case 5:
    case 6:
    case 7:
    case 8: return Change_Packs(random_);
    case 0: return "remove calendar.dat";
    case 1: return "block calendar.dat";
    case 2: return "full calendar.dat";
    case 3: return "put calendar.dat " + play::Quoted(Bad_File(random_));
    case 4: return "put calendar.dat " + play::Quoted(Good_File(random_));
    default: return "put calendar.dat " + play::Quoted(Good_File(random_)) + "\nactivate Main_Frm\nkey F5";
  }
}

std::string Random_Actions::Screen() {
  static constexpr const char* screens[] = {"1280 1024", "1280 1024", "640 480", "1024 768", "2184 1200", "800 1280"};
  if (random_.Once_In(60)) return "workarea 0 0 1280 2185";
  if (large_ && random_.Once_In(2))
    return "workarea " + Number(random_.Below(2500)) + " " + Number(random_.Below(2500)) + " " +
           Number(random_.Below(4000)) + " " + Number(random_.Below(3000));
  if (random_.Once_In(5)) return std::string("screen ") + random_.One_Of(screens);
  return "workarea " + Number(random_.Below(100)) + " " + Number(random_.Below(100)) + " " +
         Number(random_.Below(1200)) + " " + Number(random_.Below(1000));
}

/// The shell ends, comes and comes again, and shows its icons in other colours.
std::string Random_Actions::Desktop() {
  if (random_.Once_In(3)) return "icons " + Number(random_.Below(16777216)) + " " + Number(random_.Below(16777216));
  return std::string("shell ") + random_.One_Of(shells);
}

/// Places beyond 16 bits, in twips, belong to those who have consented to them.
std::string Random_Actions::Consent() {
  const bool modern = random_.Once_In(4);
  std::string lines = std::string("setting Desktop Modern ") + (modern ? "1" : "0") + "\n";
  const bool was_large = std::exchange(large_, modern && random_.Once_In(2));
  if (large_) return lines + "screen 3840 2160\nworkarea 0 0 3840 2120\n";
  if (was_large) lines += "screen 1280 1024\nworkarea 0 0 1280 1024\n";
  return lines;
}

std::string Random_Actions::Prepared_Answer() {
  static constexpr const char* answers[] = {"OK", "Yes", "No", "Cancel"};
  if (random_.Once_In(20)) return "pick " + std::string(random_.Once_In(2) ? "cancel" : "io/a.csv") + " after 1";
  const std::string answer = std::string("answer ") + random_.One_Of(answers);
  return random_.Once_In(3) ? answer + " after " + Tenths(random_.Below(40)) : answer;
}

std::string Random_Actions::Restart(bool healed) {
  static constexpr const char* locales[] = {"en-GB", "en-US", "de-DE"};
  static constexpr const char* modes[] = {"0", "2", "10", "stretched"};
  std::string lines;
  if (healed) lines += Healed_Settings() + "workarea 0 0 1280 1024\n" + Make_Pack("Default", "0-4-0");
  for (int count = random_.Below(5); count > 0; --count) lines += Stored_Setting(random_);
  if (random_.Once_In(4)) lines += "setting Settings Tooltips 2\n";
  if (random_.Once_In(5)) lines += std::string("locale ") + random_.One_Of(locales) + "\n";
  if (random_.Once_In(5)) lines += std::string("shell ") + random_.One_Of(shells) + "\n";
  if (random_.Once_In(20))
    lines += std::string(R"(reg HKCU "Control Panel\\Desktop" WallpaperStyle )") + random_.One_Of(modes) + "\n";
  if (random_.Once_In(20)) lines += random_.Once_In(2) ? "deny HKCU on\n" : "deny HKCU off\n";
  if (random_.Once_In(20)) lines += "instance Meridex\n";
  if (random_.Once_In(20)) lines += "window Meridex\n";
  if (random_.Once_In(20)) lines += "charwidth " + Number(60 + random_.Below(90)) + "\n";
  if (random_.Once_In(5)) lines += Change_Packs(random_);
  if (random_.Once_In(2)) lines += "workarea 0 0 1280 1024\n";
  lines += Consent();
  if (random_.Once_In(2)) lines += "put calendar.dat " + play::Quoted(Good_File(random_)) + "\n";
  return lines + "start";
}

}  // namespace monkey

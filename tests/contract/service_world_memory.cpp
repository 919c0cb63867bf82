// The in-memory services for the cases.
#include <map>

#include "basic/text.h"
#include "memory/memory_platform.h"
#include "tests/contract/service_world.h"

namespace {

using platform::Box_Answer;
using toolkit::Control;
using toolkit::Form;
using toolkit::Mouse_Button;

constexpr std::int64_t micros_of_a_millisecond = 1000;
constexpr std::int64_t while_open = 500;  // milliseconds

class Memory_User : public User {
 public:
  explicit Memory_User(memory::Memory_Platform& platform) : platform_(platform) {}

  void Press(Form& window, Control* control, Mouse_Button button) override {
    held_ = button;
    Run([&] { platform_.User.Press(window, control, Middle_Of(window, control, button)); });
  }
  void Move(Form& window, Control* control) override {
    Run([&] { platform_.User.Move(window, control, Middle_Of(window, control, held_)); });
  }
  void Release(Form& window, Control* control, Mouse_Button button) override {
    held_ = Mouse_Button::None;
    Run([&] { platform_.User.Release(window, control, Middle_Of(window, control, button)); });
  }
  void Press_Key(Pressed_Key key) override {
    static const std::map<Pressed_Key, memory::Typed_Key> keys = {
        {Pressed_Key::Tab, {{toolkit::key_tab}, ""}},       {Pressed_Key::Enter, {{toolkit::key_enter}, "\r\n"}},
        {Pressed_Key::Escape, {{toolkit::key_escape}, ""}}, {Pressed_Key::Space, {{toolkit::key_space}, " "}},
        {Pressed_Key::F9, {{toolkit::key_f9}, ""}},         {Pressed_Key::Alt_O, {{'O', false, false, true}, "o"}},
        {Pressed_Key::Up, {{toolkit::key_up}, ""}},         {Pressed_Key::Down, {{toolkit::key_down}, ""}},
        {Pressed_Key::Left, {{toolkit::key_left}, ""}},     {Pressed_Key::Right, {{toolkit::key_right}, ""}},
        {Pressed_Key::Home, {{toolkit::key_home}, ""}},     {Pressed_Key::Page_Down, {{toolkit::key_page_down}, ""}},
        {Pressed_Key::End, {{toolkit::key_end}, ""}}};
    Key(keys.at(key));
  }
  void Type(char letter) override { Key({{basic::Upper_Case({&letter, 1}).front()}, {&letter, 1}}); }

  void Paste(toolkit::Text_Box& box, const std::string& text) override {
    Run([&] { box.User_Character(text); });
  }

  void Click_Item(toolkit::List_Box& list, int item) override { Click_Part(list, item); }
  void Click_Tab(toolkit::Tab_Strip& strip, int tab) override { Click_Part(strip, tab); }
  void Choose_Item(toolkit::Combo_Box& box, int item) override {
    Run([&] { platform_.User.Choose(box, box.List(item)); });
  }
  void Drag_Thumb(toolkit::Slider& slider, int to) override {
    Run([&] { platform_.User.Slide(slider, to); });
  }
  std::vector<std::string> Shown_Items(toolkit::Item_List& list) override {
    std::vector<std::string> items;
    for (int i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
    return items;
  }

  void Answer(Box_Answer answer, std::function<void()> meanwhile) override {
    platform_.Message_Box.Prepare(answer, while_open * micros_of_a_millisecond);
    Later(std::move(meanwhile));
  }
  void Choose(int place, int number, std::function<void()> meanwhile) override {
    platform_.Menu.Prepare(place == 0 ? 0 : number, while_open * micros_of_a_millisecond);
    Later(std::move(meanwhile));
  }
  void Wait(std::int64_t milliseconds) override {
    Run([&] { platform_.Time.Run_Until(platform_.Time.Elapsed() + milliseconds * micros_of_a_millisecond); });
  }
  void Run(const std::function<void()>& work) { platform_.Loop.Dispatch(work); }

 private:
  void Click_Part(Control& control, int part) {
    Click(control.Window, &control);
    Run([&] { memory::Memory_User::Pick(control, part); });
  }
  static toolkit::Mouse_Event Middle_Of(const Form& window, const Control* control, Mouse_Button button) {
    if (control == nullptr) return {button, window.Width - 1, window.Height - 1};
    return {button, control->In_Twips().Width / 2, control->In_Twips().Height / 2};
  }
  void Key(const memory::Typed_Key& key) {
    Form* const active = platform_.Windows().Active();
    if (active != nullptr) Run([&] { platform_.User.Press_Key(*active, key); });
  }
  void Later(std::function<void()> meanwhile) {
    platform_.Time.Schedule(platform_.Time.Elapsed() + (while_open - 100) * micros_of_a_millisecond,
                            std::move(meanwhile));
  }

  memory::Memory_Platform& platform_;
  Mouse_Button held_ = Mouse_Button::None;
};

class Memory_World : public Service_World {
 public:
  Memory_World() { platform_.Time.Set_Now({38051, 0}); }
  User& The_User() override { return user_; }
  void Run(const std::function<void()>& work) override { user_.Run(work); }
  platform::System& System() override { return system_; }
  toolkit::Backend& Backend() override { return platform_.Backend(); }
  void Begin_Shell(int back, int text) override {
    platform_.Shell.Set_Chain(memory::Shell_Chain::Icon_List);
    platform_.Shell.Set_Icon_Colours(back, text);
  }
  void Hang_Shell() override { platform_.Shell.Hang(true); }
  void End_Shell() override { platform_.Shell.Set_Chain(memory::Shell_Chain::None); }
  void Make_Folder(const std::string& name) override {
    platform_.Files.Make_Folder(memory::Memory_Files::Full_Path(name));
  }
  void Set_Read_Only(const std::string& name, bool on) override {
    platform_.Files.Set_Read_Only(memory::Memory_Files::Full_Path(name), on);
  }
  void Hide(const std::string& name) override { platform_.Files.Hide(memory::Memory_Files::Full_Path(name)); }

 private:
  memory::Memory_Platform platform_;
  platform::System system_ = platform_.System();
  Memory_User user_{platform_};
};

}  // namespace

std::unique_ptr<Service_World> Make_Service_World() { return std::make_unique<Memory_World>(); }

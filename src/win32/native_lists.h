// The system's list boxes and drop-down lists.
#pragma once

#include "toolkit/item_list.h"
#include "win32/native_control.h"

namespace win32 {

/// It takes its items when it is on view, all at once: a hidden list costs nothing, however often it is filled.
class Native_Item_List : public Native_Control {
 public:
  void Settle() override;

 protected:
  /// The messages of one kind of list.
  struct Messages {
    UINT Clear, Make_Room, Add, Select, Selected;
  };

  Native_Item_List(HWND parent, toolkit::Item_List& list, Window_Context& context, const Messages& messages)
      : Native_Control(parent, list, context), list_(list), messages_(messages) {}

  void Show(toolkit::Aspect aspect) override;

  /// The font or the items are new.
  virtual void Show_Widest(int pixels) = 0;

  /// The item that is selected in the system's list, -1 for none.
  [[nodiscard]] int Selected() const { return static_cast<int>(Send(messages_.Selected)); }
  void Show_Selection();

  [[nodiscard]] toolkit::Item_List& List() const { return list_; }

 private:
  void Fill();
  [[nodiscard]] int Widest() const;

  toolkit::Item_List& list_;
  const Messages messages_;
  bool stale_ = true;  // the items shown aren't the list's
};

class Native_List_Box final : public Native_Item_List {
 public:
  Native_List_Box(HWND parent, toolkit::List_Box& list, Window_Context& context);

  void Command(WORD code) override;
  [[nodiscard]] RECT Part_Place(int part) const override;

 private:
  void Show_Widest(int pixels) override;
};

class Native_Combo_Box final : public Native_Item_List {
 public:
  Native_Combo_Box(HWND parent, toolkit::Combo_Box& box, Window_Context& context);

  void Command(WORD code) override;

  /// While the list is dropped.
  [[nodiscard]] bool Keeps_Keys() const override;

  /// The list, while it is dropped.
  [[nodiscard]] HWND Parts_Window() const override;
  [[nodiscard]] RECT Part_Place(int part) const override;

 private:
  void Show_Widest(int pixels) override;
  [[nodiscard]] RECT Wanted_Place() const override;
};

}  // namespace win32

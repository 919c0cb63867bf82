#include "win32/win32_popup_menu.h"

#include <cstddef>
#include <utility>

namespace win32 {

namespace {

void Insert(HMENU menu, UINT position, const platform::Menu_Item& item) {
  MENUITEMINFOA record = {};
  // Older systems know the record only up to the length of its text: 44 bytes in a 32-bit program.
  record.cbSize = sizeof(void*) == 4 ? 44 : sizeof record;
  record.fMask = MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_TYPE;
  record.fType = MFT_STRING;
  record.fState = item.Grey ? MF_GRAYED : MFS_ENABLED;
  record.wID = static_cast<UINT>(item.Number);
  record.dwTypeData = const_cast<char*>(item.Text.c_str());  // it is only read
  record.cch = static_cast<UINT>(item.Text.size());
  InsertMenuItemA(menu, position, TRUE, &record);
}

}  // namespace

int Win32_Popup_Menu::Track(platform::Window_Handle owner, const std::vector<platform::Menu_Item>& items) {
  context_.Guard.Throw_If_Ending();
  context_.Windows.Settle();
  std::vector<Bitmap_Owner> pictures;  // they outlive the menu
  const Menu_Owner menu(CreatePopupMenu());
  UINT position = 0;
  for (const platform::Menu_Item& item : items) {
    Insert(menu.Get(), position++, item);
    Bitmap_Owner picture = context_.Pictures.Menu_Bitmap(item.Picture);
    if (!picture) continue;
    SetMenuItemBitmaps(menu.Get(), static_cast<UINT>(item.Number), MF_BYCOMMAND, picture.Get(), picture.Get());
    pictures.push_back(std::move(picture));
  }
  // The release of the button that opened the menu belongs to the menu.
  input_.Take_Mouse();
  POINT at = {};
  GetCursorPos(&at);
  constexpr UINT flags = TPM_RETURNCMD | TPM_NONOTIFY | TPM_CENTERALIGN | TPM_RIGHTBUTTON;
  const int chosen = TrackPopupMenu(menu.Get(), flags, at.x, at.y, 0, To_Window(owner), nullptr);
  context_.Guard.Throw_If_Ending();
  input_.Catch_Up();
  return chosen;
}

}  // namespace win32

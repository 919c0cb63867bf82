// The system's open and save dialogs: the record that they are given, and what a real one gives back.
#include <cstring>
#include <functional>
#include <optional>

#include "dialogs/open_save_dialog.h"
#include "tests/win32/detour.h"
#include "tests/win32/window_on_screen.h"
// Behind the system's own header.
#include <commdlg.h>
#include <dlgs.h>

namespace {

std::optional<OPENFILENAMEA> given;
std::function<BOOL(OPENFILENAMEA&)> answer;

BOOL WINAPI Note(OPENFILENAMEA* record) {
  given = *record;
  return answer ? answer(*record) : FALSE;
}

/// The bytes of a list of texts with the NUL behind its end.
std::string List_Of_Texts(const char* texts) {
  const char* end = texts;
  while (*end != '\0') end += std::strlen(end) + 1;
  return {texts, end + 1};
}

class File_Dialog_On_Screen : public Window_On_Screen {
 protected:
  File_Dialog_On_Screen() {
    given.reset();
    answer = nullptr;
    Show();
    Dialog1.DialogTitle = "Title";
    Dialog1.Filter = "Text (*.txt)|*.txt|All|*.*";
  }

  dialogs::OpenSaveDialog Dialog1{Window, "Dialog1", Platform.System().File_Dialog};
};

class Record_Of_A_File_Dialog : public File_Dialog_On_Screen {
 protected:
  Detour open_{"comdlg32.dll", "GetOpenFileNameA", reinterpret_cast<const void*>(&Note)};
  Detour save_{"comdlg32.dll", "GetSaveFileNameA", reinterpret_cast<const void*>(&Note)};
};

}  // namespace

TEST_F(Record_Of_A_File_Dialog, Has_the_first_versions_size_and_all_its_members) {
  Dialog1.InitDir = "C:\\Folder";
  Dialog1.FilterIndex = 2;
  Dialog1.Flags = static_cast<std::int32_t>(0x80000006);
  Dialog1.FileName = "before";
  Dialog1.DefaultExt = "txt";
  Dialog1.MaxFileSize = 40;
  answer = [](const OPENFILENAMEA& record) {
    EXPECT_EQ(std::string(record.lpstrFile, record.nMaxFile), std::string(260, '\0'));
    EXPECT_EQ(std::string(record.lpstrFileTitle, record.nMaxFileTitle), std::string(40, '\0'));
    EXPECT_EQ(List_Of_Texts(record.lpstrFilter), std::string("Text (*.txt)\0*.txt\0All\0*.*\0", 27) + '\0');
    EXPECT_STREQ(record.lpstrInitialDir, "C:\\Folder");
    EXPECT_STREQ(record.lpstrTitle, "Title");
    return FALSE;
  };
  for (const auto show : {&dialogs::OpenSaveDialog::ShowOpen, &dialogs::OpenSaveDialog::ShowSave}) {
    given.reset();
    (Dialog1.*show)();
    ASSERT_TRUE(given);
    EXPECT_EQ(given->lStructSize, sizeof(void*) == 4 ? 76U : 136U);
    EXPECT_EQ(given->hwndOwner, win32::To_Window(Dialog1.Handle()));
    EXPECT_EQ(given->hInstance, GetModuleHandleA(nullptr));
    EXPECT_EQ(given->nFilterIndex, 2U);
    EXPECT_EQ(given->Flags, 0x80000006U);
    EXPECT_EQ(given->nMaxFile, 260U);
    EXPECT_EQ(given->nMaxFileTitle, 40U);
    EXPECT_EQ(given->lpstrCustomFilter, nullptr);
    EXPECT_EQ(given->nMaxCustFilter, 0U);
    EXPECT_EQ(given->nFileOffset, 0);
    EXPECT_EQ(given->nFileExtension, 0);
    EXPECT_EQ(given->lpstrDefExt, nullptr);
    EXPECT_EQ(given->lCustData, 0);
    EXPECT_EQ(given->lpfnHook, nullptr);
    EXPECT_EQ(given->lpTemplateName, nullptr);
  }
}

TEST_F(Record_Of_A_File_Dialog, Has_an_empty_filter_and_more_room_for_several_files) {
  Dialog1.Filter = "";
  Dialog1.Flags = 512;
  answer = [](const OPENFILENAMEA& record) {
    EXPECT_STREQ(record.lpstrFilter, "");
    return FALSE;
  };
  Dialog1.ShowOpen();
  ASSERT_TRUE(given);
  EXPECT_EQ(given->nFilterIndex, 0U);
  EXPECT_EQ(given->nMaxFile, 8192U);
  EXPECT_EQ(given->nMaxFileTitle, 8192U);
  Dialog1.MaxFileSize = 0;
  Dialog1.ShowSave();
  EXPECT_EQ(given->nMaxFile, 260U);
  EXPECT_EQ(given->nMaxFileTitle, 0U);
}

TEST_F(Record_Of_A_File_Dialog, Brings_back_the_flags_and_the_number_of_the_type) {
  answer = [](OPENFILENAMEA& record) {
    std::strcpy(record.lpstrFile, "C:\\a.txt");
    std::strcpy(record.lpstrFileTitle, "a.txt");
    record.Flags = 513;
    record.nFilterIndex = 2;
    return TRUE;
  };
  Dialog1.ShowSave();
  EXPECT_EQ(Dialog1.FileName, "C:\\a.txt");
  EXPECT_EQ(Dialog1.FileTitle, "a.txt");
  EXPECT_EQ(Dialog1.Flags, 513);
  EXPECT_EQ(Dialog1.FilterIndex, 2);
  answer = [](OPENFILENAMEA& record) {
    record.Flags = 1;
    record.nFilterIndex = 1;
    return FALSE;
  };
  Dialog1.ShowSave();
  EXPECT_EQ(Dialog1.Flags, 513) << "cancelled";
  EXPECT_EQ(Dialog1.FilterIndex, 2);
}

TEST_F(File_Dialog_On_Screen, Its_owner_is_a_window_of_its_own_that_is_never_seen) {
  const HWND owner = win32::To_Window(Dialog1.Handle());
  EXPECT_EQ(GetParent(owner), Handle());
  EXPECT_FALSE(IsWindowVisible(owner));
  RECT size;
  GetWindowRect(owner, &size);
  EXPECT_EQ(size.right - size.left, 390 / 15);
  EXPECT_EQ(size.bottom - size.top, 390 / 15);
}

namespace {

/// Names a file in the dialog that the program is waiting in, as soon as it is on the screen, and agrees.
void CALLBACK Name_A_File(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND dialog = FindWindowA("#32770", "Title");
  if (dialog == nullptr || IsWindowVisible(dialog) == 0) return;
  KillTimer(nullptr, timer);
  SetDlgItemTextA(dialog, edt1, "C:\\named.txt");
  if (GetDlgItem(dialog, edt1) == nullptr) SetDlgItemTextA(dialog, cmb13, "C:\\named.txt");
  PostMessageA(dialog, WM_COMMAND, IDOK, 0);
}

constexpr UINT a_moment = 50;  // milliseconds

}  // namespace

TEST_F(File_Dialog_On_Screen, A_real_dialog_without_room_for_the_title_gives_none) {
  Dialog1.MaxFileSize = 0;
  Dialog1.FileTitle = "before";
  SetTimer(nullptr, 0, a_moment, Name_A_File);
  Dialog1.ShowSave();
  EXPECT_EQ(Dialog1.FileName, "C:\\named.txt");
  EXPECT_EQ(Dialog1.FileTitle, "");
  EXPECT_EQ(Dialog1.FilterIndex, 1);
  Dialog1.MaxFileSize = 260;
  SetTimer(nullptr, 0, a_moment, Name_A_File);
  Dialog1.ShowSave();
  EXPECT_EQ(Dialog1.FileTitle, "named.txt");
  EXPECT_EQ(GetActiveWindow(), Handle()) << "the window is active again";
}

TEST_F(File_Dialog_On_Screen, A_real_dialog_for_several_files_gives_its_whole_buffer) {
  constexpr std::int32_t explorer_style = OFN_EXPLORER | OFN_ALLOWMULTISELECT;
  for (const std::int32_t flags : {std::int32_t{OFN_ALLOWMULTISELECT}, explorer_style}) {
    Dialog1.Flags = flags;
    Dialog1.FileTitle = "before";
    SetTimer(nullptr, 0, a_moment, Name_A_File);
    Dialog1.ShowOpen();
    EXPECT_EQ(Dialog1.FileName.size(), 8192U);
    EXPECT_STREQ(Dialog1.FileName.c_str(), "C:\\named.txt");
    EXPECT_EQ(Dialog1.FileTitle, "before");
    EXPECT_NE(Dialog1.Flags & OFN_ALLOWMULTISELECT, 0);
  }
}

// How many GDI objects the calendar holds before and after a thousand month changes: bench_gdi_count.exe X Y
// X and Y are the middle of its arrow, in pixels of its window. Prints the two numbers.
// The same before and after two hundred openings of the settings window, with all handles of the process:
// bench_gdi_count.exe settings
// A month change a second: bench_gdi_count.exe soak SECONDS X Y. Prints seconds, GDI objects and handles twenty times on the way.
#include <windows.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr int warm_up = 50;
constexpr int changes = 1000;

/// An entry of the table of handles that a process shares with the system. A free one points to the next free one.
struct Table_Entry {
  std::uint64_t Object;
  std::uint64_t Owner_And_Type;
  std::uint64_t User_Pointer;
};
constexpr std::size_t table_size = 0x4000;

template <class T>
bool Read(HANDLE process, const void* at, T* to, std::size_t count = 1) {
  SIZE_T got = 0;
  return ReadProcessMemory(process, at, to, count * sizeof(T), &got) != 0 && got == count * sizeof(T);
}

/// The used entries of the table. Wine's GetGuiResources always answers 0, but its table is the real one.
int Entries_In_Use(HANDLE process) {
  using Query = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
  Query query = nullptr;
  const FARPROC found = GetProcAddress(GetModuleHandleA("ntdll"), "NtQueryInformationProcess");
  std::memcpy(&query, &found, sizeof query);
  PROCESS_BASIC_INFORMATION about{};
  if (query == nullptr || query(process, ProcessBasicInformation, &about, sizeof about, nullptr) != 0) return -1;
  constexpr std::size_t pointer_to_table = 0xF8;  // in the process's block, 64 bits
  const char* table = nullptr;
  if (!Read(process, reinterpret_cast<const char*>(about.PebBaseAddress) + pointer_to_table, &table)) return -1;
  std::vector<Table_Entry> entries(table_size);
  if (!Read(process, table, entries.data(), entries.size())) return -1;
  const auto begin = reinterpret_cast<std::uintptr_t>(table);
  const auto end = begin + table_size * sizeof(Table_Entry);
  return static_cast<int>(std::ranges::count_if(entries, [=](const Table_Entry& entry) {
    return entry.Object != 0 && (entry.Object < begin || entry.Object >= end);
  }));
}

int Count_Objects(HANDLE process) {
  const DWORD count = GetGuiResources(process, GR_GDIOBJECTS);
  return count != 0 ? static_cast<int>(count) : Entries_In_Use(process);
}

/// Whether the count sees a new object at all.
bool Count_Is_Sound() {
  DeleteObject(CreateSolidBrush(0));  // the table is there from the first object on
  const int before = Count_Objects(GetCurrentProcess());
  const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  const int with_it = Count_Objects(GetCurrentProcess());
  DeleteObject(brush);
  return before > 0 && with_it == before + 1 && Count_Objects(GetCurrentProcess()) == before;
}

BOOL CALLBACK Take_Calendar(HWND window, LPARAM result) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  if (!IsWindowVisible(window) || std::strcmp(name, "Meridex_Form") != 0) return TRUE;
  *reinterpret_cast<HWND*>(result) = window;
  return FALSE;
}

/// Each change is painted before the next: the window paints when no message waits.
void Change_Months(HWND window, LPARAM arrow, int count) {
  for (int i = 0; i < count; ++i) {
    SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, arrow);
    SendMessageA(window, WM_LBUTTONUP, 0, arrow);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW);
  }
  Sleep(1000);
}

constexpr int openings = 200;

HWND Settings_Window() { return FindWindowA("Meridex_Form", "Meridex Settings"); }

/// Waits at most ten seconds until the window is there, or gone.
bool Wait_For_Settings(bool there) {
  for (int i = 0; i < 2000; ++i) {
    const HWND window = Settings_Window();
    if ((window != nullptr && IsWindowVisible(window) != 0) == there) return true;
    Sleep(5);
  }
  return false;
}

/// Opens the window by its key, lets it paint, and closes it by its close box, so many times.
bool Open_Settings(HWND calendar, int times) {
  for (int i = 0; i < times; ++i) {
    PostMessageA(calendar, WM_KEYDOWN, VK_F8, 0);
    PostMessageA(calendar, WM_KEYUP, VK_F8, 0);
    if (!Wait_For_Settings(true)) return false;
    const HWND window = Settings_Window();
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    PostMessageA(window, WM_CLOSE, 0, 0);
    if (!Wait_For_Settings(false)) return false;
  }
  Sleep(1000);
  return true;
}

int Count_Openings(HWND calendar, HANDLE process) {
  constexpr int first_openings = 20;
  DWORD handles_before = 0, handles_after = 0;
  if (!Open_Settings(calendar, first_openings)) return 1;
  const int before = Count_Objects(process);
  GetProcessHandleCount(process, &handles_before);
  if (!Open_Settings(calendar, openings)) return 1;
  GetProcessHandleCount(process, &handles_after);
  std::printf("before %d\nafter %d\nhandles_before %lu\nhandles_after %lu\n", before, Count_Objects(process),
              handles_before, handles_after);
  return 0;
}

int Soak(HWND calendar, HANDLE process, int seconds, LPARAM arrow) {
  constexpr int reports = 20;
  const DWORD start = GetTickCount();
  for (int second = 1; second <= seconds; ++second) {
    if (SendMessageA(calendar, WM_LBUTTONDOWN, MK_LBUTTON, arrow) != 0 || IsWindow(calendar) == 0) return 1;
    SendMessageA(calendar, WM_LBUTTONUP, 0, arrow);
    RedrawWindow(calendar, nullptr, nullptr, RDW_UPDATENOW);
    const DWORD next = start + static_cast<DWORD>(second) * 1000;
    const DWORD now = GetTickCount();
    if (now < next) Sleep(next - now);
    if (second * reports / seconds == (second - 1) * reports / seconds) continue;
    DWORD handles = 0;
    GetProcessHandleCount(process, &handles);
    std::printf("%d %d %lu\n", second, Count_Objects(process), handles);
    std::fflush(stdout);
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const bool of_settings = count == 2 && std::strcmp(arguments[1], "settings") == 0;
  const bool of_soak = count == 5 && std::strcmp(arguments[1], "soak") == 0;
  if (count != 3 && !of_settings && !of_soak) return 2;
  if (!Count_Is_Sound()) {
    std::puts("GDI objects can't be counted here");
    return 1;
  }
  HWND window = nullptr;
  EnumWindows(Take_Calendar, reinterpret_cast<LPARAM>(&window));
  DWORD id = 0;
  if (window == nullptr || GetWindowThreadProcessId(window, &id) == 0) {
    std::puts("no calendar");
    return 1;
  }
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
  if (of_settings) return Count_Openings(window, process);
  const LPARAM arrow = MAKELPARAM(std::atoi(arguments[count - 2]), std::atoi(arguments[count - 1]));
  if (of_soak) return Soak(window, process, std::atoi(arguments[2]), arrow);
  Change_Months(window, arrow, warm_up);
  const int before = Count_Objects(process);
  Change_Months(window, arrow, changes);
  std::printf("before %d\nafter %d\n", before, Count_Objects(process));
  CloseHandle(process);
  return 0;
}

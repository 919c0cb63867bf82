// Works the calendar and counts what its process holds afterwards, as lines of a name and a number:
//   bench_object_count.exe months COUNT MILLISECONDS X Y   clicks at X Y of its window, where an arrow is, one each so often
//   bench_object_count.exe settings COUNT                  opens and closes the settings window
// Ends with 1 if the calendar doesn't answer, or where a new object isn't seen by the count.
#include <windows.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace {

constexpr UINT patience = 10000;  // milliseconds

template <class Function>
Function Find_In_Ntdll(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleA("ntdll"), name);
  if (found == nullptr) throw std::runtime_error("a function of the system isn't there");
  Function function = nullptr;
  std::memcpy(&function, &found, sizeof function);
  return function;
}

/// An entry of the table of GDI objects that a process shares with the system. A free one points to the next free one.
struct Table_Entry {
  std::uint64_t Object;
  std::uint64_t Owner_And_Type;
  std::uint64_t User_Pointer;
};
constexpr std::size_t table_size = 0x4000;

template <class T>
void Read(HANDLE process, const void* at, T* to, std::size_t count = 1) {
  SIZE_T got = 0;
  if (ReadProcessMemory(process, at, to, count * sizeof(T), &got) == 0 || got != count * sizeof(T))
    throw std::runtime_error("the table of GDI objects can't be read");
}

/// The used entries of the table. Wine's GetGuiResources always answers 0, but its table is the real one.
int Entries_In_Use(HANDLE process) {
  const auto query = Find_In_Ntdll<LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*)>("NtQueryInformationProcess");
  PROCESS_BASIC_INFORMATION about{};
  if (query(process, ProcessBasicInformation, &about, sizeof about, nullptr) != 0)
    throw std::runtime_error("the process tells nothing of itself");
  constexpr std::size_t pointer_to_table = 0xF8;  // in the process's block, 64 bits
  const char* table = nullptr;
  Read(process, reinterpret_cast<const char*>(about.PebBaseAddress) + pointer_to_table, &table);
  std::vector<Table_Entry> entries(table_size);
  Read(process, table, entries.data(), entries.size());
  const auto begin = reinterpret_cast<std::uintptr_t>(table);
  const auto end = begin + table_size * sizeof(Table_Entry);
  return static_cast<int>(std::ranges::count_if(entries, [=](const Table_Entry& entry) {
    return entry.Object != 0 && (entry.Object < begin || entry.Object >= end);
  }));
}

int Gdi_Objects(HANDLE process) {
  const DWORD count = GetGuiResources(process, GR_GDIOBJECTS);
  return count != 0 ? static_cast<int>(count) : Entries_In_Use(process);
}

/// An entry of the system's list of handles.
struct Handle_Entry {
  ULONG Process;
  BYTE Type;
  BYTE Flags;
  USHORT Value;
  void* Object;
  ULONG Access;
};

/// Those of the process in the system's list. Wine's GetProcessHandleCount always gives 0, and its list of processes the
/// room for handles.
int Handles(HANDLE process) {
  const auto query = Find_In_Ntdll<LONG(WINAPI*)(int, void*, ULONG, ULONG*)>("NtQuerySystemInformation");
  constexpr int handle_information = 16;
  constexpr LONG too_short = static_cast<LONG>(0xC0000004);
  std::vector<Handle_Entry> list(0x1000);  // their number stands in front of them
  const auto ask = [&] {
    return query(handle_information, list.data(), static_cast<ULONG>(list.size() * sizeof list[0]), nullptr);
  };
  LONG status = ask();
  for (; status == too_short; status = ask()) list.resize(2 * list.size());
  if (status != 0) throw std::runtime_error("the system doesn't list the handles");
  const auto* const bytes = reinterpret_cast<const char*>(list.data());
  const auto* const first = reinterpret_cast<const Handle_Entry*>(bytes + sizeof(void*));
  const std::size_t count = *reinterpret_cast<const ULONG*>(bytes);
  return static_cast<int>(std::count_if(
      first, first + count, [id = GetProcessId(process)](const Handle_Entry& entry) { return entry.Process == id; }));
}

struct Window_Search {
  DWORD Process;
  int Found = 0;
};

BOOL CALLBACK Count_Window(HWND window, LPARAM search) {
  auto& wanted = *reinterpret_cast<Window_Search*>(search);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == wanted.Process) ++wanted.Found;
  return TRUE;
}

BOOL CALLBACK Count_With_Children(HWND window, LPARAM search) {
  EnumChildWindows(window, Count_Window, search);
  return Count_Window(window, search);
}

int Windows(HANDLE process) {
  Window_Search search{GetProcessId(process)};
  EnumWindows(Count_With_Children, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

void Expect(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

/// A new object of each kind is seen, and gone when it is gone. A handle can be put into another process, so that count is
/// tried where it is needed.
void Expect_Sound_Counts(HANDLE process) {
  const HANDLE self = GetCurrentProcess();
  DeleteObject(CreateSolidBrush(0));  // the table is there from the first object on
  const int objects = Gdi_Objects(self);
  const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  const int with_brush = Gdi_Objects(self);
  DeleteObject(brush);
  Expect(with_brush == objects + 1 && Gdi_Objects(self) == objects, "GDI objects can't be counted here");

  const int windows = Windows(self);
  const HWND window = CreateWindowA("Static", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  const int with_window = Windows(self);
  DestroyWindow(window);
  Expect(with_window > windows && Windows(self) < with_window, "windows can't be counted here");

  const int handles = Handles(process);
  HANDLE there = nullptr;
  DuplicateHandle(self, self, process, &there, SYNCHRONIZE, FALSE, 0);
  const int with_handle = Handles(process);
  HANDLE back = nullptr;
  DuplicateHandle(process, there, self, &back, SYNCHRONIZE, FALSE, DUPLICATE_CLOSE_SOURCE);
  CloseHandle(back);
  Expect(with_handle == handles + 1 && Handles(process) == handles, "handles can't be counted here");
}

BOOL CALLBACK Take_Calendar(HWND window, LPARAM result) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  if (!IsWindowVisible(window) || std::strcmp(name, "Meridex_Form") != 0) return TRUE;
  *reinterpret_cast<HWND*>(result) = window;
  return FALSE;
}

void Send(HWND window, UINT message, WPARAM first, LPARAM second) {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutA(window, message, first, second, SMTO_NORMAL, patience, &result) == 0)
    throw std::runtime_error("the calendar doesn't answer");
}

/// Each change is painted before the next: the window paints when no message waits.
void Change_Months(HWND window, int count, DWORD every, LPARAM arrow) {
  const DWORD start = GetTickCount();
  for (int i = 1; i <= count; ++i) {
    Send(window, WM_LBUTTONDOWN, MK_LBUTTON, arrow);
    Send(window, WM_LBUTTONUP, 0, arrow);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW);
    const DWORD passed = GetTickCount() - start, next = static_cast<DWORD>(i) * every;
    if (passed < next) Sleep(next - passed);
  }
}

HWND Settings_Window() { return FindWindowA("Meridex_Form", "Meridex Settings"); }

void Wait_For_Settings(bool there) {
  const DWORD start = GetTickCount();
  for (;; Sleep(5)) {
    const HWND window = Settings_Window();
    if ((window != nullptr && IsWindowVisible(window) != 0) == there) return;
    if (GetTickCount() - start > patience) throw std::runtime_error("the settings window doesn't come and go");
  }
}

/// Opens the window by its key, lets it paint, and closes it by its close box, so many times.
void Open_Settings(HWND calendar, int times) {
  for (int i = 0; i < times; ++i) {
    PostMessageA(calendar, WM_KEYDOWN, VK_F8, 0);
    PostMessageA(calendar, WM_KEYUP, VK_F8, 0);
    Wait_For_Settings(true);
    const HWND window = Settings_Window();
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    PostMessageA(window, WM_CLOSE, 0, 0);
    Wait_For_Settings(false);
  }
}

int Run(int count, char** arguments) {
  const bool months = count == 6 && std::strcmp(arguments[1], "months") == 0;
  if (!months && (count != 3 || std::strcmp(arguments[1], "settings") != 0)) return 2;
  HWND window = nullptr;
  EnumWindows(Take_Calendar, reinterpret_cast<LPARAM>(&window));
  DWORD id = 0;
  Expect(window != nullptr && GetWindowThreadProcessId(window, &id) != 0, "no calendar");
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ | PROCESS_DUP_HANDLE, FALSE, id);
  Expect(process != nullptr, "the calendar's process can't be looked into");
  Expect_Sound_Counts(process);
  const auto number = [&](int argument) { return std::atoi(arguments[argument]); };
  if (months) Change_Months(window, number(2), static_cast<DWORD>(number(3)), MAKELPARAM(number(4), number(5)));
  else Open_Settings(window, number(2));
  Sleep(1000);  // the calendar comes to rest
  const int objects = Gdi_Objects(process), windows = Windows(process), handles = Handles(process);
  Expect(objects > 0 && windows > 0 && handles > 0, "nothing was counted");
  std::printf("objects %d\nwindows %d\nhandles %d\n", objects, windows, handles);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return Run(count, arguments);
  } catch (const std::exception& error) {
    std::puts(error.what());
    return 1;
  }
}

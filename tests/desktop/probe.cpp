// A look at the windows of a prefix from inside: what screenshots can't tell, such as the text of a message box.
//
//   desktop_probe              one JSON object a line for each top window, with its child windows
//   desktop_probe post WINDOW MESSAGE WPARAM LPARAM
//   desktop_probe show TITLE   a window of that title, of a program that isn't the calendar; until it is closed or ended
//   desktop_probe copy FILE    the file's bytes become the text of the clipboard
//   desktop_probe modules PROGRAM   the paths of the libraries that the running programs of that name have loaded, a
// line each   desktop_probe watch        the visible windows' places as often as they change, one JSON object a line,
// with the time in                              milliseconds; until it is ended
//
// Texts are the bytes of the code page, each above 0x7E as \u00XX.
#include <windows.h>

#include <tlhelp32.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

void Print_Text(const char* text) {
  std::putchar('"');
  for (; *text != '\0'; ++text) {
    const auto byte = static_cast<unsigned char>(*text);
    if (byte < 0x20 || byte > 0x7E || byte == '"' || byte == '\\') std::printf("\\u%04x", unsigned{byte});
    else std::putchar(byte);
  }
  std::putchar('"');
}

// Everything of a window but its children.
void Print_Window(HWND window) {
  char name[256] = "";
  char text[65536] = "";
  DWORD process = 0;
  RECT place{};
  DWORD_PTR length = 0;
  GetClassNameA(window, name, sizeof name);
  SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 2000, &length);
  GetWindowThreadProcessId(window, &process);
  GetWindowRect(window, &place);
  const auto number = [](HWND of) { return static_cast<long long>(reinterpret_cast<LONG_PTR>(of)); };
  std::printf("\"handle\":%lld,\"owner\":%lld,\"process\":%lu,\"id\":%d,", number(window),
              number(GetWindow(window, GW_OWNER)), process, static_cast<int>(GetDlgCtrlID(window)));
  std::printf("\"rect\":[%ld,%ld,%ld,%ld],", place.left, place.top, place.right, place.bottom);
  std::printf("\"visible\":%s,\"enabled\":%s,", IsWindowVisible(window) ? "true" : "false",
              IsWindowEnabled(window) ? "true" : "false");
  std::printf("\"style\":%lld,\"ex_style\":%lld,", static_cast<long long>(GetWindowLongPtrA(window, GWL_STYLE)),
              static_cast<long long>(GetWindowLongPtrA(window, GWL_EXSTYLE)));
  std::printf("\"active\":%s,\"class\":", GetForegroundWindow() == window ? "true" : "false");
  Print_Text(name);
  std::printf(",\"text\":");
  Print_Text(text);
}

BOOL CALLBACK Print_Child(HWND window, LPARAM first) {
  auto* const is_first = reinterpret_cast<bool*>(first);
  std::printf(*is_first ? "{" : ",{");
  *is_first = false;
  Print_Window(window);
  std::printf("}");
  return TRUE;
}

BOOL CALLBACK Print_Top_Window(HWND window, LPARAM) {
  bool first = true;
  std::printf("{");
  Print_Window(window);
  std::printf(",\"children\":[");
  EnumChildWindows(window, Print_Child, reinterpret_cast<LPARAM>(&first));
  std::printf("]}\n");
  return TRUE;
}

int Copy(const char* path) {
  const HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  const DWORD size = GetFileSize(file, nullptr);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size + 1);
  DWORD read = 0;
  const BOOL whole = ReadFile(file, GlobalLock(memory), size, &read, nullptr);
  GlobalUnlock(memory);
  CloseHandle(file);
  if (whole == 0 || OpenClipboard(nullptr) == 0) return 1;
  const bool done = EmptyClipboard() != 0 && SetClipboardData(CF_TEXT, memory) != nullptr;
  CloseClipboard();
  return done ? 0 : 1;
}

BOOL CALLBACK Note_Place(HWND window, LPARAM list) {
  RECT place{};
  if (IsWindowVisible(window) == 0 || GetWindowRect(window, &place) == 0) return TRUE;
  auto& text = *reinterpret_cast<std::string*>(list);
  char rect[80];
  std::snprintf(rect, sizeof rect, "%s[%ld,%ld,%ld,%ld]", text.size() > 1 ? "," : "", place.left, place.top,
                place.right, place.bottom);
  text += rect;
  return TRUE;
}

BOOL CALLBACK Note_Places(HWND window, LPARAM list) {
  Note_Place(window, list);
  EnumChildWindows(window, Note_Place, list);
  return TRUE;
}

int Watch() {
  for (std::string before;; Sleep(5)) {
    std::string now = "[";
    EnumWindows(Note_Places, reinterpret_cast<LPARAM>(&now));
    now += "]";
    if (now == before) continue;
    std::printf("{\"at\":%lu,\"places\":%s}\n", GetTickCount(), now.c_str());
    std::fflush(stdout);
    before = now;
  }
}

void Print_Modules(DWORD process) {
  const HANDLE modules = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process);
  MODULEENTRY32 module{};
  module.dwSize = sizeof module;
  for (BOOL any = Module32First(modules, &module); any != 0; any = Module32Next(modules, &module))
    std::printf("%s\n", module.szExePath);
  CloseHandle(modules);
}

int Modules(const char* program) {
  const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 process{};
  process.dwSize = sizeof process;
  for (BOOL any = Process32First(processes, &process); any != 0; any = Process32Next(processes, &process))
    if (lstrcmpiA(process.szExeFile, program) == 0) Print_Modules(process.th32ProcessID);
  CloseHandle(processes);
  return 0;
}

LRESULT CALLBACK Plain_Window(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcA(window, message, w, l);
}

int Show(const char* title) {
  WNDCLASSA description{};
  description.lpfnWndProc = Plain_Window;
  description.lpszClassName = "Probe_Window";
  RegisterClassA(&description);
  const HWND window = CreateWindowExA(0, "Probe_Window", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 200, 100,
                                      nullptr, nullptr, nullptr, nullptr);
  MSG message;
  while (window != nullptr && GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 3 && std::strcmp(arguments[1], "copy") == 0) return Copy(arguments[2]);
  if (count == 3 && std::strcmp(arguments[1], "modules") == 0) return Modules(arguments[2]);
  if (count == 3 && std::strcmp(arguments[1], "show") == 0) return Show(arguments[2]);
  if (count == 2 && std::strcmp(arguments[1], "watch") == 0) return Watch();
  if (count == 6 && std::strcmp(arguments[1], "post") == 0) {
    const auto window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(std::atoll(arguments[2])));
    return PostMessageA(window, static_cast<UINT>(std::atoi(arguments[3])),
                        static_cast<WPARAM>(std::atoll(arguments[4])), static_cast<LPARAM>(std::atoll(arguments[5])))
               ? 0
               : 1;
  }
  EnumWindows(Print_Top_Window, 0);
  return 0;
}

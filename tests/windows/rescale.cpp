// Does what the system does when a monitor gets another scale, since those of Wine never do:
// rescale TITLE DPI lets the program with this window find DPI dots per inch at every monitor, and
// tells it so, with the place and size that the system proposes.

#include <windows.h>

#include <array>
#include <iostream>
#include <string>

int wmain(int argc, wchar_t** argv) {
  if (argc != 3) return 2;
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE);
  const HWND window = FindWindowW(nullptr, argv[1]);
  const auto dpi = static_cast<WORD>(std::stoul(argv[2]));
  if (GetAwarenessFromDpiAwarenessContext(GetWindowDpiAwarenessContext(window)) !=
      DPI_AWARENESS_PER_MONITOR_AWARE) {
    std::cout << "The system would scale this window by itself." << std::endl;
    return 1;
  }
  DWORD id = 0;
  GetWindowThreadProcessId(window, &id);
  const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);

  // The system's libraries are at the same place in every process.
  const HMODULE library = LoadLibraryW(L"shcore.dll");
  const auto asked = reinterpret_cast<void*>(GetProcAddress(library, "GetDpiForMonitor"));
  const std::array<BYTE, 14> answer{
      0xB8, LOBYTE(dpi), HIBYTE(dpi), 0, 0,  // mov eax, dpi
      0x41, 0x89,        0x00,               // mov [r8], eax
      0x41, 0x89,        0x01,               // mov [r9], eax
      0x31, 0xC0,                            // xor eax, eax
      0xC3,                                  // ret
  };
  if (!WriteProcessMemory(process, asked, answer.data(), answer.size(), nullptr)) return 1;
  SendMessageW(HWND_BROADCAST, WM_DISPLAYCHANGE, 32,
               MAKELPARAM(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)));

  RECT place;
  GetWindowRect(window, &place);
  place.right = place.left + MulDiv(place.right - place.left, dpi, USER_DEFAULT_SCREEN_DPI);
  place.bottom = place.top + MulDiv(place.bottom - place.top, dpi, USER_DEFAULT_SCREEN_DPI);
  void* const proposal = VirtualAllocEx(process, nullptr, sizeof place, MEM_COMMIT, PAGE_READWRITE);
  if (!WriteProcessMemory(process, proposal, &place, sizeof place, nullptr)) return 1;
  SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(proposal));
  return 0;
}

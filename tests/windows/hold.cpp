// Another program that has a file open: hold FILE opens it for reading, lets others do no more than
// that, says so, and keeps it open until its input ends.

#include <windows.h>

#include <iostream>

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) return 2;
  const HANDLE file = CreateFileW(argv[1], GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  std::cout << "held" << std::endl;
  std::cin.get();
  CloseHandle(file);
  return 0;
}

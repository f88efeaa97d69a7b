// What there is to choose from: writes every entry of the drop-down lists in the system's own
// windows and dialogs, a line for each, in UTF-8.

#include <windows.h>

#include <iostream>
#include <string>
#include <string_view>

namespace {

std::string Utf8(const std::wstring& text) {
  std::string bytes(3 * text.size(), '\0');  // at the most
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

BOOL CALLBACK WriteEntries(HWND control, LPARAM) {
  wchar_t kind[100];
  GetClassNameW(control, kind, 100);
  if (std::wstring_view(kind) != L"ComboBox") return TRUE;
  const auto count = static_cast<int>(SendMessageW(control, CB_GETCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    const auto entry = static_cast<WPARAM>(i);
    const LRESULT length = SendMessageW(control, CB_GETLBTEXTLEN, entry, 0);
    if (length < 0) continue;
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(control, CB_GETLBTEXT, entry, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    std::cout << Utf8(text) << '\n';
  }
  return TRUE;
}

}  // namespace

int main() {
  HWND window = nullptr;
  while ((window = FindWindowExW(nullptr, window, nullptr, nullptr)) != nullptr) {
    EnumChildWindows(window, WriteEntries, 0);
  }
  return 0;
}

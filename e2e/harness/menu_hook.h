// What the harness and its hook DLL share to read a menu inside orvane.exe.
#pragma once

#include <windows.h>

#include <cstddef>

namespace orvane::e2e {

inline constexpr wchar_t kReadMenuMessage[] = L"Orvane.Test.ReadMenu";
inline constexpr wchar_t kMenuDumpName[] = L"Local\\Orvane.Test.MenuDump";
inline constexpr wchar_t kMenuDoneName[] = L"Local\\Orvane.Test.MenuDone";
inline constexpr std::size_t kMenuDumpChars = 1 << 16;

}  // namespace orvane::e2e

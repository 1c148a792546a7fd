// Which skin bitmap the program uses.
#pragma once

#include <string>

namespace orvane {

class Files;

inline constexpr wchar_t kDefaultSkinName[] = L"\\Skin_Alba.bmp";

// A file name the skin chooser lists: "Skin_" at its start and ".bmp" at its end, in any case.
bool IsSkinFileName(const std::wstring &name);

// A skin path is usable when it names an existing file ending in ".bmp" (any case).
bool IsUsableSkin(Files &files, const std::wstring &path);

// The skin to use at start-up: the chosen one when usable, otherwise the
// default skin in the program folder.
std::wstring StartupSkin(Files &files, const std::wstring &skinFile, const std::wstring &programFolder);

// A file of the skin folder: one backslash between the two, whether the folder ends with one or not.
std::wstring SkinPathInFolder(const std::wstring &folder, const std::wstring &fileName);

} // namespace orvane

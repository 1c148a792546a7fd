#include "skin_file.h"

#include <cwctype>

#include "system.h"

namespace orvane {

bool IsUsableSkin(System& sys, const std::wstring& path) {
    if (path.size() < 4 || !sys.fileExists(path)) return false;
    std::wstring extension = path.substr(path.size() - 4);
    for (wchar_t& c : extension) c = static_cast<wchar_t>(std::towlower(c));
    return extension == L".bmp";
}

std::wstring StartupSkin(System& sys, const std::wstring& skinFile, const std::wstring& programFolder) {
    return IsUsableSkin(sys, skinFile) ? skinFile : programFolder + kDefaultSkinName;
}

std::wstring SkinPathInFolder(const std::wstring& folder, const std::wstring& fileName) {
    return folder + (folder.ends_with(L'\\') ? L"" : L"\\") + fileName;
}

}  // namespace orvane

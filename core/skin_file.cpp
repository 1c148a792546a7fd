#include "skin_file.h"

#include <algorithm>
#include <cwctype>
#include <string_view>

#include "files.h"

namespace orvane {

namespace {

bool SameLetters(std::wstring_view text, std::wstring_view lowerCase) {
    return text.size() == lowerCase.size() &&
           std::equal(text.begin(), text.end(), lowerCase.begin(), [](wchar_t a, wchar_t b) {
               return static_cast<wchar_t>(std::towlower(a)) == b;
           });
}

bool EndsWithBmp(std::wstring_view path) {
    return path.size() >= 4 && SameLetters(path.substr(path.size() - 4), L".bmp");
}

} // namespace

bool IsSkinFileName(const std::wstring &name) {
    return name.size() >= 9 && SameLetters(std::wstring_view(name).substr(0, 5), L"skin_") && EndsWithBmp(name);
}

bool IsUsableSkin(Files &files, const std::wstring &path) {
    return EndsWithBmp(path) && files.fileExists(path);
}

std::wstring StartupSkin(Files &files, const std::wstring &skinFile, const std::wstring &programFolder) {
    return IsUsableSkin(files, skinFile) ? skinFile : programFolder + kDefaultSkinName;
}

std::wstring SkinPathInFolder(const std::wstring &folder, const std::wstring &fileName) {
    return folder + (folder.ends_with(L'\\') ? L"" : L"\\") + fileName;
}

} // namespace orvane

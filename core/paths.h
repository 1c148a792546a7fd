// Turns the suite's stored paths (C:\Drive_G\TellmarkSet\<Folder>\<Name>.exe and
// the documents named in the settings) into the paths that exist on this machine.
// The suite may sit on a real drive G:, in a "Drive_G" folder on any drive, in
// C:\TellmarkSet, or beside this program.
#pragma once

#include <string>

namespace orvane {

class App;
class Files;

// The drive letter that stands as a folder: "Drive_" plus the letter.
inline constexpr wchar_t kDriveFolderPrefix[] = L"Drive_";
inline constexpr wchar_t kSuiteFallbackFolder[] = L"C:\\TellmarkSet";

// The one-character string of a character code ("C" for 67).
std::wstring Letter(int code);

// "X:\Drive_G\rest" for the path "G:\rest".
std::wstring AsDriveFolderPath(wchar_t drive, const std::wstring &path);

std::wstring ResolveDocumentPath(Files &files, const std::wstring &path);
std::wstring TryDriveLetters(Files &files, const std::wstring &rest);
std::wstring RelocateDrivePath(Files &files, const std::wstring &path);
std::wstring &ResolveSuitePath(App &app, std::wstring &path);
std::wstring &SwapProgramFilesFolder(std::wstring &path);

} // namespace orvane

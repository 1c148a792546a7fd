#include "paths.h"

#include "app.h"
#include "conversions.h"
#include "helpers.h"

namespace orvane {

std::wstring Letter(int code) {
    return std::wstring(1, static_cast<wchar_t>(code));
}

std::wstring AsDriveFolderPath(wchar_t drive, const std::wstring &path) {
    return std::wstring(1, drive) + L":\\" + kDriveFolderPrefix + LeftOf(path, 1) + MidFrom(path, 3);
}

std::wstring ResolveDocumentPath(Files &files, const std::wstring &path) {
    if (TrimBlanks(path).empty())
        return {};
    if (files.fileExists(path))
        return path;
    const std::wstring candidate = Contains(path, kDriveFolderPrefix)
                                       ? MidFrom(path, 10).substr(0, 1) + L":" + MidFrom(path, 11)
                                       : TryDriveLetters(files, L":\\Drive_" + LeftOf(path, 1) + MidFrom(path, 3));
    return files.fileExists(candidate) ? candidate : path;
}

std::wstring TryDriveLetters(Files &files, const std::wstring &rest) {
    std::wstring candidate;
    for (int code = 'C'; code <= 'Z'; ++code) {
        candidate = Letter(code) + rest;
        if (files.fileExists(candidate))
            break;
    }
    return candidate;
}

std::wstring RelocateDrivePath(Files &files, const std::wstring &path) {
    if (path.empty() || files.fileExists(path))
        return path;
    if (!Contains(path, L":\\Drive_"))
        return AsDriveFolderPath(L'C', path);
    // Back from a "Drive_" folder to the real drive. Other drives' "Drive_"
    // folders are searched by the callers, so the result is this path either way.
    return MidFrom(path, 10).substr(0, 1) + L":" + MidFrom(path, 11);
}

std::wstring &ResolveSuitePath(App &app, std::wstring &path) {
    if (!path.empty() && !app.files.fileExists(path)) {
        const std::wstring besideProgram = app.ProgramFolder + BackslashFileName(path);
        if (app.files.fileExists(besideProgram))
            return path = besideProgram;
    }
    path = RelocateDrivePath(app.files, path);
    if (!path.empty() && !app.files.fileExists(path)) {
        const std::wstring inSuiteFolder = kSuiteFallbackFolder + BackslashFileName(path);
        if (app.files.fileExists(inSuiteFolder))
            path = inSuiteFolder;
    }
    if (!path.empty() && !app.files.fileExists(path))
        path = app.ProgramFolder + BackslashFileName(path);
    return path;
}

std::wstring &SwapProgramFilesFolder(std::wstring &path) {
    static const std::wstring native = L"C:\\Program Files\\";
    static const std::wstring x86 = L"C:\\Program Files (x86)\\";
    if (Contains(path, native))
        path = x86 + MidFrom(path, native.size() + 1);
    else if (Contains(path, x86))
        path = native + MidFrom(path, x86.size() + 1);
    return path;
}

} // namespace orvane

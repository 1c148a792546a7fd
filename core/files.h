// Files and folders, and the current folder.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "user_locale.h"

namespace orvane {

struct FileFacts {
    std::uint64_t size = 0;
    DateTime lastChange;
};

// Error numbers as the old runtime reported them for file operations.
// Zero means success.
using FileError = int;

class Files {
public:
    virtual ~Files() = default;

    // fileExists finds files only; pathExists files and folders.
    virtual bool fileExists(const std::wstring &path) = 0;
    virtual bool pathExists(const std::wstring &path) = 0;
    // The content up to maxBytes, or nothing when the file cannot be opened for reading.
    virtual std::optional<std::string> readFile(const std::wstring &path, std::size_t maxBytes) = 0;
    // Creates the file anew (or truncates it) and writes the bytes.
    virtual FileError writeFile(const std::wstring &path, const std::string &bytes) = 0;
    virtual bool deleteFile(const std::wstring &path) = 0;
    virtual std::wstring currentFolder() = 0;
    // The current drive and folder; false, with nothing changed, when it cannot be.
    virtual bool setCurrentFolder(const std::wstring &folder) = 0;
    // Size and time of last change of an existing file.
    virtual std::optional<FileFacts> fileFacts(const std::wstring &path) = 0;
    // The system's words for the last failed operation; empty when there is none.
    virtual std::wstring lastErrorDescription() = 0;
    // The files in a folder and all its subfolders, as full paths; a very large tree is cut short.
    virtual std::vector<std::wstring> filesBelow(const std::wstring &folder) = 0;
};

} // namespace orvane

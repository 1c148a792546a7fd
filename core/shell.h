// Starting programs and what the machine says about itself: the shell, its
// special folders, the registry and the system's version.
#pragma once

#include <optional>
#include <string>

#include "window_ref.h"

namespace orvane {

struct ShellExecuteRequest {
    WindowRef owner = 0;
    std::wstring verb;
    std::wstring file;
    std::wstring parameters;
    std::wstring directory;
    int showCode = 1;
};

struct OsVersion {
    int major = 0;
    int minor = 0;
};

enum class RegistryRoot {
    ClassesRoot,
    CurrentUser,
    LocalMachine,
    Users
};

class Shell {
public:
    virtual ~Shell() = default;

    // startCommandLine returns the new task's identifier, or nothing when the start failed.
    virtual bool shellExecute(const ShellExecuteRequest &request) = 0;
    virtual std::optional<long long> startCommandLine(const std::wstring &commandLine, int showCode) = 0;
    // The shell's verb on a file or folder, with the platform's result code
    // (above 32 means success).
    virtual long long shellVerb(WindowRef owner, const std::wstring &verb, const std::wstring &file,
                                const std::wstring &directory, int showCode) = 0;

    virtual std::optional<std::wstring> registryString(RegistryRoot root, const std::wstring &subKey,
                                                       const std::wstring &valueName) = 0;
    // The path of a shell special folder by its number (5 = the user's documents),
    // as the platform wrote it into its buffer.
    virtual std::wstring specialFolder(int csidl) = 0;
    virtual OsVersion osVersion() = 0;
};

} // namespace orvane

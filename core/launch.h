// The five ways the program starts other programs. Every start is
// asynchronous and shows the program's window normally (show code 1).
#pragma once

#include <string>

#include "shell.h"

namespace orvane {

class App;

inline constexpr int kShowNormal = 1;

// The shell's execute request with the verb "Open" (or "runas"), the file's
// own folder as working folder. True when the shell accepted the request.
bool ExecuteProcess(Shell &shell, const std::wstring &file, WindowRef owner, int style, const std::wstring &parameters,
                    bool elevate);

// Starts a suite tool, with a document when one is given. Finds the tool on
// this machine, brings a running copy forward instead of starting another,
// and makes a bare document name a path in the current folder.
void LaunchSuiteProgram(App &app, std::wstring &program, std::wstring &document);

// Starts the browser of the setting CustomBrowser with a web address or document.
void LoadCustomBrowser(App &app, const std::wstring &target);

// Starts a program with one argument, quoted when it holds a blank.
void LaunchWithArgument(App &app, const std::wstring &program, const std::wstring &argument);

// Opens Windows Explorer on the current folder.
void ExploreFolder(App &app, WindowRef owner);

// The command line of a program and one argument: the program alone for an
// empty argument, otherwise a blank and the argument, quoted when it holds a blank.
std::wstring CommandWithArgument(const std::wstring &program, const std::wstring &argument);

} // namespace orvane

// Prints the system version as the program sees it: "major.minor|name".
// The Wine tests run it under different pretended Windows versions.
#include <cstdio>

#include "app.h"
#include "helpers.h"
#include "win32_system.h"

int main() {
    orvane::ui::Win32System system;
    orvane::App app(system);
    orvane::DetectOsVersion(app);
    std::printf("%d.%d|%ls\n", app.OsVersionCode, app.OsMinorVersion, app.OsVersionName.c_str());
    return 0;
}

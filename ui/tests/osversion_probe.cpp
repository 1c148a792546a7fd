// Exits with the system version as the program sees it, major * 100 + minor.
// The Wine tests run it under different pretended Windows versions.
#include "win32_system.h"

int main() {
    const orvane::OsVersion version = orvane::ui::Win32System().osVersion();
    return version.major * 100 + version.minor;
}

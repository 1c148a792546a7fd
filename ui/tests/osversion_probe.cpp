// Exits with the system version as the program sees it, major * 100 + minor.
// The Wine tests run it under different pretended Windows versions.
#include "app.h"
#include "helpers.h"
#include "win32_system.h"

int main() {
    orvane::ui::Win32System system;
    orvane::App app(system);
    orvane::DetectOsVersion(app);
    return app.OsVersionCode * 100 + app.OsMinorVersion;
}

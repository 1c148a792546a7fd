// Writes the system version as the program sees it, "major.minor|name", to
// its own path plus ".txt". The Wine tests run it under different pretended
// Windows versions.
#include <cstdio>

#include "app.h"
#include "helpers.h"
#include "win32_system.h"

int main() {
    orvane::ui::Win32System system;
    orvane::App app(system);
    orvane::DetectOsVersion(app);
    wchar_t path[MAX_PATH + 4] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    FILE* out = _wfopen((std::wstring(path) + L".txt").c_str(), L"wb");
    if (!out) return 1;
    std::fprintf(out, "%d.%d|%ls", app.OsVersionCode, app.OsMinorVersion, app.OsVersionName.c_str());
    return std::fclose(out);
}

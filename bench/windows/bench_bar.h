// The bar itself, opened in this process in a program folder whose settings
// show it as most users see it (icon strip and all).
#pragma once

#include <string>

#include "app.h"
#include "bench_support.h"
#include "main_window.h"
#include "skin.h"
#include "win32_system.h"
#include "win_support.h"

struct BenchBar {
    explicit BenchBar(const std::wstring &folder) {
        orvane::testsupport::WriteBytes(folder + L"\\Orvane.ini", orvane::bench::StripSettings());
        app.ProgramFolder = folder;
        opened = bar.open();
    }
    orvane::ui::Win32System system;
    orvane::App app{system};
    orvane::ui::Skin skin;
    orvane::ui::MainWindow bar{app, skin};
    bool opened = false;
};

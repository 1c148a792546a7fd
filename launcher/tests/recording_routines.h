// The main window's routines as the commands call them, recorded by name.
#pragma once

#include <string>
#include <vector>

#include "commands.h"

namespace orvane::testing {

class RecordingRoutines : public MainWindowRoutines {
public:
    std::wstring typed, prompt;
    std::vector<std::wstring> calls;
    std::wstring inputBox(const std::wstring& p, const std::wstring& preset) override {
        calls.push_back(L"input " + preset);
        prompt = p;
        return typed;
    }
    void showAbout() override { calls.push_back(L"about"); }
    void showProgramLocations() override { calls.push_back(L"locations"); }
    void showYourProgram() override { calls.push_back(L"your program"); }
    void toggleDesktop() override { calls.push_back(L"desktop"); }
    void exitProgram() override { calls.push_back(L"exit"); }
    void useScreenWidth() override { calls.push_back(L"width"); }
    void changeIconSize(int step) override { calls.push_back(L"size " + std::to_wstring(step)); }
    void toggleIconStrip() override { calls.push_back(L"icons"); }
    void toggleTopBottom() override { calls.push_back(L"top/bottom"); }
    void chooseSkin() override { calls.push_back(L"skin"); }
    void chooseMenuFont() override { calls.push_back(L"font"); }
    void showCustomPrograms() override { calls.push_back(L"custom programs"); }
    void showWebList() override { calls.push_back(L"web list"); }
    void showWallpaper() override { calls.push_back(L"wallpaper"); }
};

}  // namespace orvane::testing

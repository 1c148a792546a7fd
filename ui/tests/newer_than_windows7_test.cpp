// A program that imports a function Windows 7 lacks.
#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    return GetSystemMetricsForDpi(SM_CXVSCROLL, 96);
}

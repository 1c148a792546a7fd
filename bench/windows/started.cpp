// The program both launchers start in the launch benchmark: it tells the
// benchmark it runs, through a named event, and ends.
#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    if (HANDLE started = OpenEventW(EVENT_MODIFY_STATE, FALSE, L"Local\\Orvane.Bench.Started")) {
        SetEvent(started);
        CloseHandle(started);
    }
    return 0;
}

#include "clock.h"

namespace orvane {

namespace {

std::wstring TwoDigits(int number) {
    return {static_cast<wchar_t>(L'0' + number / 10 % 10), static_cast<wchar_t>(L'0' + number % 10)};
}

} // namespace

std::wstring ClockTimeText(int hour, int minute) {
    return TwoDigits(hour) + L":" + TwoDigits(minute);
}

std::wstring ClockSecondsText(int second) {
    return L"[ " + TwoDigits(second) + L" ]";
}

} // namespace orvane

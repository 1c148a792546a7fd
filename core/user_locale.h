// The clock and the user's locale: dates, times, numbers and the files' 8-bit text.
#pragma once

#include <string>

namespace orvane {

// A moment in local time.
struct DateTime {
    int year = 0, month = 0, day = 0, dayOfWeek = 0; // dayOfWeek: 0 is Sunday
    int hour = 0, minute = 0, second = 0;
};

class Locale {
public:
    virtual ~Locale() = default;

    // 8-bit text of the files, in the system's ANSI code page.
    virtual std::wstring fromAnsi(const std::string &bytes) = 0;
    virtual std::string toAnsi(const std::wstring &text) = 0;

    // A picture is the platform's ("dddd, MMM d yyyy", "HH:mm:ss"); an empty one is
    // the locale's own short date or long time.
    virtual DateTime now() = 0;
    virtual std::wstring dateText(const DateTime &moment, const std::wstring &picture) = 0;
    virtual std::wstring timeText(const DateTime &moment, const std::wstring &picture) = 0;
    virtual std::wstring thousandsSeparator() = 0;
};

} // namespace orvane

// The clock window's texts: the date picture and the labels of one tick.
#pragma once

#include <string>

namespace orvane {

// Label1's "dddd, d mmmm yyyy" as the system's date formatter (GetDateFormatW)
// spells it: full weekday, day without leading zero, full month, four-digit year.
inline constexpr wchar_t kClockDatePicture[] = L"dddd, d MMMM yyyy";

// Label2: "hh:mm", for example "09:05".
std::wstring ClockTimeText(int hour, int minute);
// Label3: "[ ss ]", for example "[ 03 ]".
std::wstring ClockSecondsText(int second);

} // namespace orvane

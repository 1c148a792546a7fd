// Reading and writing the settings file, next to the least work any reader or
// writer of the same bytes must do: widening them and splitting them into
// lines, or joining the lines and narrowing them back. The ratio is the cost
// of the values themselves: the line table, number parsing and formatting.
// The Windows-1252 codec of the fake system stands in for the system's own.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <string>
#include <vector>

#include "fake_system.h"
#include "settings.h"
#include "table_row.h"

namespace {

using Clock = std::chrono::steady_clock;
using orvane::testing::DecodeWindows1252;
using orvane::testing::EncodeWindows1252;

constexpr int kRounds = 7;
constexpr int kOperations = 20000;

// A settings file as a user's machine holds it: a placed bar, Office paths,
// browsers, one accented file name.
const char *const kLines[] = {
    "1440",
    "2880",
    "C:\\Users\\Anna\\Documents\\Orvane\\Deadlines.txt",
    "https://mail.example.org/owa/",
    "C:\\Users\\Anna\\Documents\\Orvane\\Adressen.txt",
    "Tahoma",
    "9",
    "0",
    "0",
    "9600",
    "1200",
    "12632256",
    "32",
    "C:\\Program Files\\Microsoft Office\\root\\Office16\\MSACCESS.EXE",
    "C:\\Program Files\\Microsoft Office\\root\\Office16\\MSPUB.EXE",
    "C:\\Program Files\\Microsoft Office\\root\\Office16\\EXCEL.EXE",
    "C:\\Program Files\\Microsoft Office\\root\\Office16\\POWERPNT.EXE",
    "C:\\Program Files\\Microsoft Office\\root\\Office16\\WINWORD.EXE",
    "C:\\Program Files\\Orvane\\Skins\\Herbst.skn",
    "C:\\Program Files\\Orvane\\Skins\\",
    "C:\\Program Files\\Mozilla Firefox\\firefox.exe",
    "2000",
    "3000",
    "6000",
    "8000",
    "3",
    "5",
    "C:\\Users\\Anna\\Documents\\Orvane\\Eigene Liste.txt",
    "C:\\Program Files\\Notepad++\\notepad++.exe",
    "C:\\Users\\Anna\\Pictures\\Gr\xFCne Wiese.bmp",
    "1",
    "geheim",
    "C:\\Users\\Anna\\Documents\\Orvane\\Webseiten.txt",
    "C:\\Program Files\\Google\\Chrome\\Application\\chrome.exe",
    "C:\\Program Files (x86)\\Microsoft\\Edge\\Application\\msedge.exe",
    "C:\\Program Files\\Mozilla Firefox\\firefox.exe",
    "2",
    "1",
    "19200",
};
static_assert(std::size(kLines) == orvane::kSettingsLineCount);

// Keeps the optimiser from dropping work whose result is otherwise unused.
template <typename T> void Keep(const T &value) {
    asm volatile("" : : "r"(&value) : "memory");
}

std::vector<std::wstring> WidenAndSplit(const std::string &bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    for (const unsigned char c : bytes)
        text += static_cast<wchar_t>(c);
    std::vector<std::wstring> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(L"\r\n", at), text.size());
        lines.emplace_back(text, at, end - at);
        at = end + 2;
    }
    return lines;
}

std::string JoinAndNarrow(const std::vector<std::wstring> &lines) {
    std::wstring text;
    for (const auto &line : lines) {
        text += line;
        text += L"\r\n";
    }
    return std::string(text.begin(), text.end());
}

template <typename Operation> double NanosecondsPerOperation(Operation operation) {
    const auto start = Clock::now();
    for (int i = 0; i < kOperations; ++i)
        operation();
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / kOperations;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main() {
    std::string bytes;
    for (const char *line : kLines)
        bytes += std::string(line) + "\r\n";

    orvane::Settings parsed;
    orvane::ApplySettingsLines(parsed, DecodeWindows1252(bytes));
    const std::vector<std::wstring> lines = WidenAndSplit(bytes);
    // Both sides must do the whole job, or the figures compare nothing.
    if (EncodeWindows1252(orvane::FormatSettings(parsed)) != bytes || JoinAndNarrow(lines) != bytes) {
        std::printf("error: the settings file does not come back unchanged\n");
        return 1;
    }

    const auto read = [&] {
        orvane::Settings settings;
        orvane::ApplySettingsLines(settings, DecodeWindows1252(bytes));
        Keep(settings);
    };
    const auto readBaseline = [&] {
        Keep(WidenAndSplit(bytes));
    };
    const auto write = [&] {
        Keep(EncodeWindows1252(orvane::FormatSettings(parsed)));
    };
    const auto writeBaseline = [&] {
        Keep(JoinAndNarrow(lines));
    };

    // Rounds alternate the two sides so that drift in the machine hits both.
    std::vector<double> times[4];
    for (int round = 0; round < kRounds; ++round) {
        times[0].push_back(NanosecondsPerOperation(read));
        times[1].push_back(NanosecondsPerOperation(readBaseline));
        times[2].push_back(NanosecondsPerOperation(write));
        times[3].push_back(NanosecondsPerOperation(writeBaseline));
    }
    double median[4];
    for (int i = 0; i < 4; ++i)
        median[i] = Median(times[i]);

    std::printf("settings file: %zu lines, %zu bytes; medians of %d rounds of %d operations\n", std::size(kLines),
                bytes.size(), kRounds, kOperations);
    std::printf("read  (decode + ApplySettingsLines): %8.0f ns/op; baseline (widen + split lines): %8.0f ns/op; "
                "ratio %.2f\n",
                median[0], median[1], median[0] / median[1]);
    std::printf("write (FormatSettings + encode):     %8.0f ns/op; baseline (join lines + narrow): %8.0f ns/op; "
                "ratio %.2f\n",
                median[2], median[3], median[2] / median[3]);
    orvane::bench::TableRow("reading the settings file, against splitting its lines (native)", median[0] / median[1]);
    orvane::bench::TableRow("writing the settings file, against joining its lines (native)", median[2] / median[3]);
    return 0;
}

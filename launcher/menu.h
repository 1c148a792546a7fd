// The main window's menu bar as data: every item in the order it is added,
// each with its parent, key, caption, icon key and shortcut. The bar is built
// once from these rows, and so are its keyboard shortcuts.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

// Modifier bits of a shortcut.
inline constexpr std::uint16_t kShift = 1;
inline constexpr std::uint16_t kCtrl = 2;
inline constexpr std::uint16_t kAlt = 4;

struct Shortcut {
    std::uint16_t modifiers = 0;
    std::uint16_t key = 0; // a virtual-key code: 65 to 90 for A to Z, 112 to 123 for F1 to F12; 0 for none
};

// Writing shortcuts in menu tables: Ctrl(Key('S')), Shift(F(5)), Plain(kInsert).
namespace keys {
constexpr std::uint16_t Key(char letter) {
    return static_cast<std::uint16_t>(letter);
}
constexpr std::uint16_t F(int number) {
    return static_cast<std::uint16_t>(111 + number);
}
inline constexpr std::uint16_t kInsert = 0x2D, kDelete = 0x2E;

inline constexpr Shortcut None{};
constexpr Shortcut Plain(std::uint16_t key) {
    return {0, key};
}
constexpr Shortcut Shift(std::uint16_t key) {
    return {kShift, key};
}
constexpr Shortcut Ctrl(std::uint16_t key) {
    return {kCtrl, key};
}
constexpr Shortcut Alt(std::uint16_t key) {
    return {kAlt, key};
}
constexpr Shortcut CtrlShift(std::uint16_t key) {
    return {kCtrl | kShift, key};
}
constexpr Shortcut CtrlAlt(std::uint16_t key) {
    return {kCtrl | kAlt, key};
}
} // namespace keys

struct MenuRow {
    std::wstring_view parentKey; // empty for an item of the bar itself
    std::wstring_view key;       // empty for a separator
    std::wstring_view caption;   // "&" before the access letter; empty for a separator
    std::wstring_view iconKey;   // "k1" to "k73"; empty for none
    Shortcut shortcut;

    bool isSeparator() const {
        return key.empty() && caption.empty();
    }
};

std::span<const MenuRow> MainMenuRows();

// Whether a row of the bar itself opens a menu (rather than acting as a command).
bool HasItems(std::span<const MenuRow> rows, std::wstring_view key);

// The access letter of a caption: the character after its "&" ("&&" is a
// plain "&"); 0 when it has none.
wchar_t AccessLetter(std::wstring_view caption);

// The caption as plain words: "&Work&desk" reads "Workdesk", "A && B" reads "A & B".
std::wstring WithoutAccessMarks(std::wstring_view caption);

// The command of the first row with this caption, from a table of commands
// that runs parallel to the rows; null when no row has it.
template <typename Command>
const Command *CommandOfCaption(std::span<const MenuRow> rows, std::span<const Command> commands,
                                std::wstring_view caption) {
    for (std::size_t i = 0; i < rows.size() && i < commands.size(); ++i)
        if (rows[i].caption == caption)
            return &commands[i];
    return nullptr;
}

// The shortcut as Windows menus write it: "Ctrl+Shift+M", "Alt+F10", "F4"; empty for none.
std::wstring ShortcutText(Shortcut shortcut);

} // namespace orvane

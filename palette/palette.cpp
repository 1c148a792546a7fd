#include "palette.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app.h"
#include "conversions.h"
#include "helpers.h"
#include "program_list.h"
#include "web_list.h"

namespace orvane {

namespace {

constexpr int kUserPrograms = 0x02;   // the user's Start menu programs
constexpr int kCommonPrograms = 0x17; // all users' Start menu programs
constexpr std::size_t kMostRuns = 50;
constexpr std::size_t kRecentShown = 10; // listed first while nothing is typed

// A blank name cannot be found by typing: such a target is left out.
void Add(std::vector<Target> &targets, Target target) {
    target.name = TrimBlanks(target.name);
    if (target.name.empty())
        return;
    target.folded = FoldCase(target.name);
    targets.push_back(std::move(target));
}

void AddCommands(std::vector<Target> &targets, const TargetSources &sources) {
    for (const MenuRow &row : sources.menu) {
        const DispatchRow *command = FindDispatchRow(row.caption);
        if (row.isSeparator() || !command || HasItems(sources.menu, row.key))
            continue;
        Add(targets, {.name = WithoutAccessMarks(row.caption),
                      .shortcut = ShortcutText(row.shortcut),
                      .iconKey = row.iconKey,
                      .command = command});
    }
    const std::size_t menuCommands = targets.size();
    for (const StripIcon &icon : sources.strip) {
        const auto same = [&](const Target &target) {
            return target.command->command == icon.row.command && target.command->tool == icon.row.tool;
        };
        if (std::any_of(targets.begin(), targets.begin() + static_cast<std::ptrdiff_t>(menuCommands), same))
            continue;
        Add(targets, {.name = WithoutAccessMarks(icon.row.caption),
                      .iconKey = icon.iconKey,
                      .command = &icon.row,
                      .stripOnly = true});
    }
}

void AddWebList(std::vector<Target> &targets, const WebListContent &content) {
    for (std::size_t row = 0; row < content.rows.size(); ++row) {
        const WebRow &each = content.rows[row];
        if (each.isSeparator() || each.name == kDeletionMark)
            continue;
        const bool unnamed = TrimBlanks(each.name).empty();
        Add(targets, {.kind = TargetKind::Website, .name = unnamed ? each.address : each.name, .index = row});
    }
    for (std::size_t group = 0; group < content.groups.size(); ++group) {
        const std::wstring &text = content.groups[group];
        if (TrimBlanks(text) == kDeletionMark || text.starts_with(kSeparatorMarker))
            continue;
        Add(targets, {.kind = TargetKind::WebGroup, .name = text, .index = group});
    }
}

// The file name without its folder and its extension.
std::wstring ShortcutName(const std::wstring &path) {
    const std::size_t slash = path.find_last_of(L"\\/");
    std::wstring name = path.substr(slash == std::wstring::npos ? 0 : slash + 1);
    return name.substr(0, name.rfind(L'.'));
}

bool IsStartable(const std::wstring &path) {
    const std::wstring folded = FoldCase(path);
    return folded.ends_with(L".lnk") || folded.ends_with(L".url") || folded.ends_with(L".exe");
}

// Whether a character belongs to a word: anything but ASCII and Latin-1
// punctuation and blanks, and the general punctuation block.
bool IsWordCharacter(wchar_t c) {
    if (c < 0x80)
        return (c >= L'0' && c <= L'9') || (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
    if (c < 0x100)
        return c >= 0xC0 && c != 0xD7 && c != 0xF7;
    return c < 0x2000 || c > 0x206F;
}

bool IsSubsequence(std::wstring_view letters, std::wstring_view text) {
    std::size_t found = 0;
    for (std::size_t at = 0; at < text.size() && found < letters.size(); ++at)
        found += text[at] == letters[found];
    return found == letters.size();
}

// How a folded name matches the folded typed text, best first.
enum Match : std::uint8_t {
    kStart,
    kWordStart,
    kInside,
    kInOrder,
    kMatchCount,
    kNoMatch = kMatchCount,
    kRecent, // matched, and placed with the recently run ones
};

Match MatchOf(std::wstring_view name, std::wstring_view text) {
    std::size_t at = name.find(text.front());
    if (at == std::wstring_view::npos)
        return kNoMatch;
    const std::size_t first = at;
    bool inside = false;
    for (; at != std::wstring_view::npos && at + text.size() <= name.size(); at = name.find(text.front(), at + 1)) {
        if (name.compare(at, text.size(), text) != 0)
            continue;
        if (at == 0)
            return kStart;
        if (!IsWordCharacter(name[at - 1]))
            return kWordStart;
        inside = true;
    }
    if (inside)
        return kInside;
    return IsSubsequence(text.substr(1), name.substr(first + 1)) ? kInOrder : kNoMatch;
}

struct RecentMatch {
    std::size_t recency, index;
    Match match;
};

// The last ten run first, most recent first, then all the others in their order.
std::vector<std::size_t> RecentThenRest(std::span<const Target> targets, const RunHistory &history) {
    std::vector<RecentMatch> recent;
    for (std::size_t i = 0; i < targets.size(); ++i)
        if (const std::size_t recency = history.recency(targets[i]))
            recent.push_back({recency, i, kStart});
    const std::size_t shown = std::min(recent.size(), kRecentShown);
    std::partial_sort(recent.begin(), recent.begin() + static_cast<std::ptrdiff_t>(shown), recent.end(),
                      [](const RecentMatch &a, const RecentMatch &b) {
                          return a.recency > b.recency;
                      });
    std::vector<bool> listed(targets.size());
    std::vector<std::size_t> order;
    order.reserve(targets.size());
    for (std::size_t i = 0; i < shown; ++i) {
        order.push_back(recent[i].index);
        listed[recent[i].index] = true;
    }
    for (std::size_t i = 0; i < targets.size(); ++i)
        if (!listed[i])
            order.push_back(i);
    return order;
}

std::size_t Signature(TargetKind kind, std::wstring_view name) {
    const std::size_t ends = name.empty() ? 0 : static_cast<std::size_t>(name.front()) * 7 + name.back();
    return (static_cast<std::size_t>(kind) * 31 + name.size() * 131 + ends) % 256;
}

} // namespace

std::vector<Target> BuildTargets(const TargetSources &sources) {
    std::vector<Target> targets;
    AddCommands(targets, sources);
    if (sources.customPrograms) {
        const CustomProgramTable &table = *sources.customPrograms;
        for (std::size_t entry = 0; entry < kCustomEntries; ++entry)
            if (!table.isEmpty(entry))
                Add(targets, {.kind = TargetKind::CustomProgram,
                              .name = table.DisplayNames[entry],
                              .path = table.ProgramPaths[entry],
                              .index = entry});
    }
    if (sources.webList)
        AddWebList(targets, *sources.webList);
    for (const std::wstring &path : sources.shortcuts)
        Add(targets, {.kind = TargetKind::Shortcut, .name = ShortcutName(path), .path = path});
    return targets;
}

std::vector<std::wstring> StartMenuFolders(Shell &shell) {
    std::vector<std::wstring> folders;
    const std::wstring user = CutAtNul(shell.specialFolder(kUserPrograms));
    const std::wstring common = CutAtNul(shell.specialFolder(kCommonPrograms));
    if (!user.empty())
        folders.push_back(user);
    if (!common.empty() && FoldCase(common) != FoldCase(user))
        folders.push_back(common);
    return folders;
}

std::vector<std::wstring> StartMenuShortcuts(Files &files, std::span<const std::wstring> folders) {
    std::vector<std::wstring> shortcuts;
    for (const std::wstring &folder : folders) {
        std::vector<std::pair<std::wstring, std::wstring>> found; // folded and as given
        for (std::wstring &path : files.filesBelow(folder))
            if (IsStartable(path))
                found.emplace_back(FoldCase(path), std::move(path));
        std::ranges::sort(found);
        for (auto &[folded, path] : found)
            shortcuts.push_back(std::move(path));
    }
    return shortcuts;
}

CustomProgramTable QuietCustomList(App &app) {
    const WholeFile file = ReadWholeFile(app.files, app.settings.CustomListFile);
    return file.bytes ? ParseCustomList(app.files, app.locale, *file.bytes) : CustomProgramTable{};
}

WebListContent QuietWebList(App &app) {
    const WholeFile file = ReadWholeFile(app.files, app.settings.WebListFile);
    return file.bytes ? ParseWebList(app.locale.fromAnsi(*file.bytes)) : WebListContent{};
}

wchar_t FoldCase(wchar_t c) {
    const auto up = [c](int by) {
        return static_cast<wchar_t>(c + by);
    };
    if (c < 0x80)
        return c >= L'A' && c <= L'Z' ? up(0x20) : c;
    if (c < 0x100)
        return c >= 0xC0 && c <= 0xDE && c != 0xD7 ? up(0x20) : c;
    if (c < 0x180) {
        // Latin Extended-A: capital and small side by side, the capital even
        // in the first and third runs and odd in the second and fourth.
        const bool even = c % 2 == 0;
        if (c == 0x130)
            return L'i';
        if (c == 0x178)
            return 0xFF;
        const bool capital = (c < 0x138 && even) || (c >= 0x139 && c <= 0x148 && !even) ||
                             (c >= 0x14A && c <= 0x177 && even) || (c >= 0x179 && c <= 0x17E && !even);
        return capital ? up(1) : c;
    }
    if (c >= 0x391 && c <= 0x3A9 && c != 0x3A2)
        return up(0x20);
    if (c >= 0x400 && c <= 0x40F)
        return up(0x50);
    if (c >= 0x410 && c <= 0x42F)
        return up(0x20);
    return c;
}

std::wstring FoldCase(std::wstring_view text) {
    std::wstring folded(text);
    for (wchar_t &c : folded)
        c = FoldCase(c);
    return folded;
}

bool RunHistory::Run::of(const Target &target) const {
    return kind == target.kind && name == target.name && path == target.path && command == target.command;
}

void RunHistory::ran(const Target &target) {
    std::erase_if(runs_, [&](const Run &each) {
        return each.of(target);
    });
    runs_.push_back({target.kind, target.name, target.path, target.command});
    if (runs_.size() > kMostRuns)
        runs_.erase(runs_.begin());
    heard_.reset();
    for (const Run &each : runs_)
        heard_.set(Signature(each.kind, each.name));
}

std::size_t RunHistory::recency(const Target &target) const {
    if (!heard_.test(Signature(target.kind, target.name)))
        return 0;
    for (std::size_t i = runs_.size(); i > 0; --i)
        if (runs_[i - 1].of(target))
            return i;
    return 0;
}

// One pass sorts each target into its match, or with the few run lately;
// those alone are sorted, and a second pass places the rest by counting.
std::vector<std::size_t> RankTargets(std::span<const Target> targets, std::wstring_view typed,
                                     const RunHistory &history) {
    if (typed.empty())
        return RecentThenRest(targets, history);
    const std::wstring text = FoldCase(typed);
    std::vector<Match> matches(targets.size(), kNoMatch);
    std::vector<RecentMatch> recent;
    std::array<std::size_t, kMatchCount> counts{};
    for (std::size_t i = 0; i < targets.size(); ++i) {
        const Match match = MatchOf(targets[i].folded, text);
        if (match == kNoMatch)
            continue;
        const std::size_t recency = history.recency(targets[i]);
        if (recency != 0)
            recent.push_back({recency, i, match});
        matches[i] = recency != 0 ? kRecent : match;
        ++counts[match];
    }
    std::ranges::sort(recent, [](const RecentMatch &a, const RecentMatch &b) {
        return a.match != b.match ? a.match < b.match : a.recency > b.recency;
    });
    std::array<std::size_t, kMatchCount> next{}; // where the next target of each match goes
    std::size_t total = 0;
    for (std::size_t match = 0; match < kMatchCount; ++match) {
        next[match] = total;
        total += counts[match];
    }
    std::vector<std::size_t> order(total);
    for (const RecentMatch &each : recent)
        order[next[each.match]++] = each.index;
    for (std::size_t i = 0; i < targets.size(); ++i)
        if (matches[i] < kMatchCount)
            order[next[matches[i]]++] = i;
    return order;
}

void OpenWebTarget(App &app, const WebListContent &content, const Target &target) {
    WebList list(app);
    list.content = content;
    const int index = static_cast<int>(target.index);
    if (target.kind == TargetKind::WebGroup) {
        list.groupShown = true;
        list.currentGroup = index;
    } else {
        list.current = index;
        list.singleRow = true;
    }
    list.openWebsites();
}

} // namespace orvane

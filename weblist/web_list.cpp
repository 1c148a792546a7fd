#include "web_list.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app.h"
#include "conversions.h"
#include "helpers.h"
#include "launch.h"
#include "reports.h"

namespace orvane {

namespace {

using namespace keys;
using C = WebListCommand;

constexpr wchar_t kFile[] = L"keyFile", kEdit[] = L"keyEdit", kGroup[] = L"keyGroup";
constexpr wchar_t kListFilter[] = L"List files (*.lst)|*.lst|All files (*.*)|*.*";

// "&Edit item" shares its key with "&Load checked items": the caption decides.
constexpr auto kMenu = std::to_array<MenuRow>({
    {L"", kFile, L"&File", L"", None},
    {kFile, L"keyLS", L"&Load checked items", L"k61", Plain(F(12))},
    {kFile, L"keyOL", L"&Open list", L"k26", Ctrl(Key('O'))},
    {kFile, L"keySL", L"Sa&ve list", L"k62", Ctrl(Key('S'))},
    {kFile, L"keyIO", L"&Info about list", L"k63", Ctrl(Key('I'))},
    {kFile, L"", L"", L"", None},
    {kFile, L"keyEX", L"E&xit", L"k6", Ctrl(Key('Q'))},
    {L"", kEdit, L"&Edit", L"", None},
    {kEdit, L"keyLS", L"&Edit item", L"k56", Ctrl(Key('E'))},
    {kEdit, L"", L"", L"", None},
    {kEdit, L"keyAI", L"&Add item", L"k68", Plain(F(5))},
    {kEdit, L"keyDU", L"Du&plicate", L"k64", Ctrl(kInsert)},
    {kEdit, L"keyDE", L"De&lete", L"k65", Shift(kDelete)},
    {kEdit, L"keyIS", L"&Insert separator", L"k66", Shift(F(5))},
    {kEdit, L"keyMU", L"Move item &up", L"k32", Ctrl(Key('U'))},
    {kEdit, L"keyMD", L"Move item &down", L"k33", Ctrl(Key('D'))},
    {L"", kGroup, L"&Group", L"", None},
    {kGroup, L"keyAD", L"&Add to group", L"k69", Plain(F(8))},
    {kGroup, L"keyOG", L"&Open group window", L"k26", Plain(F(9))},
});
constexpr auto kCommands = std::to_array<C>({
    C::None,     C::LoadChecked, C::OpenList,   C::SaveList,        C::Info,
    C::None,     C::Exit,        C::None,       C::EditItem,        C::None,
    C::AddItem,  C::Duplicate,   C::Delete,     C::InsertSeparator, C::MoveUp,
    C::MoveDown, C::None,        C::AddToGroup, C::OpenGroupWindow,
});
static_assert(kMenu.size() == kCommands.size());

MessageAnswer Ask(Prompts &prompts, const std::wstring &text, MessageButtons buttons) {
    return prompts.showMessage(text, kProgramTitle, MessageIcon::Question, buttons);
}

void Say(Prompts &prompts, const std::wstring &text, MessageIcon icon) {
    prompts.showMessage(text, kProgramTitle, icon, MessageButtons::Ok);
}

} // namespace

std::span<const MenuRow> WebListMenuRows() {
    return kMenu;
}

const WebListCommand *FindWebListCommand(std::wstring_view caption) {
    return CommandOfCaption<C>(kMenu, kCommands, caption);
}

std::wstring WebList::caption() const {
    return L"Website list :  " + app_.settings.WebListFile + L"  ( " + std::to_wstring(rows.size()) + L" entries )";
}

bool WebList::load() {
    return read(app_.settings.WebListFile);
}

bool WebList::read(const std::wstring &path) {
    const WholeFile file = ReadWholeFile(app_.files, path);
    // Refused before anything changes: the window keeps the list it had, and its name.
    if (file.tooLarge) {
        ReportFileTooLarge(app_.prompts, path, file.tooLarge);
        return false;
    }
    app_.settings.WebListFile = path;
    groups.clear();
    rows.clear();
    current = currentGroup = -1;
    selectedGroups.clear();
    if (!file.bytes) {
        Say(app_.prompts, L"Can't open file: " + path, MessageIcon::None);
        return false;
    }
    content = ParseWebList(app_.locale.fromAnsi(*file.bytes));
    if (!rows.empty())
        makeCurrent(0);
    return true;
}

bool WebList::save() {
    if (rows.empty())
        return false;
    // The old writer counted rows in 16 bits and broke off half-way; refuse before anything is touched.
    const auto text = FormatWebList(content);
    if (!text) {
        Say(app_.prompts,
            L"This list has " + std::to_wstring(rows.size()) + L" entries, more than the " +
                std::to_wstring(kMostSavedRows) + L" a web list file can hold. Nothing was saved.",
            MessageIcon::Exclamation);
        return false;
    }
    const auto chosen = app_.prompts.chooseFile(
        {.title = L"Save web list to disk", .filter = kListFilter, .save = true, .defaultExtension = L"lst"});
    if (!chosen || chosen->empty()) {
        app_.prompts.beep();
        Say(app_.prompts, L"Data grid contains no entries !", MessageIcon::Exclamation);
        return false;
    }
    std::wstring &path = app_.settings.WebListFile;
    path = *chosen;
    DeleteFileIfPresent(app_.files, path);
    if (app_.files.writeFile(path, app_.locale.toAnsi(*text)) != 0) {
        ReportFileError(app_, path);
        return false;
    }
    changed = false;
    return true;
}

bool WebList::openList() {
    const FolderKeeper keeper(app_.files);
    const auto chosen = app_.prompts.chooseFile({.title = L"Load list of websites", .filter = kListFilter});
    if (!chosen || chosen->empty())
        return false;
    return read(*chosen);
}

bool WebList::confirmClose() {
    while (changed) {
        const MessageAnswer answer =
            Ask(app_.prompts, L"Save list before exiting this level ? ", MessageButtons::YesNoCancel);
        if (answer == MessageAnswer::Cancel)
            return false;
        if (answer != MessageAnswer::Yes)
            break;
        save();
    }
    return true;
}

FileInformation WebList::information() {
    const std::wstring &path = app_.settings.WebListFile;
    FileInformation info = InformationOf(app_, path);
    info.fileName = BackslashFileName(path).substr(1) + L"    ( " + std::to_wstring(rows.size()) + L" items )";
    info.folder = app_.files.currentFolder();
    return info;
}

std::optional<std::wstring> WebList::chooseBrowser() {
    const FolderKeeper keeper(app_.files);
    const auto chosen = app_.prompts.chooseFile(
        {.title = L"Specify custom browser", .filter = L"Programs (*.exe)|*.exe|All files (*.*)|*.*"});
    if (!chosen || chosen->empty())
        return std::nullopt;
    return chosen;
}

bool WebList::refuseInGroupPanel() {
    if (groupShown)
        Say(app_.prompts, L"Add items to group list by selecting them from the main list", MessageIcon::Information);
    return groupShown;
}

void WebList::append(std::wstring name, std::wstring address) {
    rows.push_back({L"K_" + std::to_wstring(rows.size() + 1), std::move(name), std::move(address)});
}

void WebList::makeCurrent(int row) {
    for (WebRow &each : rows)
        each.selected = false;
    rows[static_cast<std::size_t>(row)].selected = true;
    current = row;
}

// Names and addresses move down below the current row; check marks, keys and
// selections stay with their places.
bool WebList::addItem() {
    if (refuseInGroupPanel())
        return false;
    const std::size_t at = std::min(static_cast<std::size_t>(current + 1), rows.size());
    append(L"", L"");
    for (std::size_t j = rows.size() - 1; j > at; --j) {
        rows[j].name = rows[j - 1].name;
        rows[j].address = rows[j - 1].address;
    }
    rows[at].name.clear();
    rows[at].address.clear();
    makeCurrent(static_cast<int>(at));
    changed = true;
    return true;
}

// The copy goes to the end of the list.
bool WebList::duplicate() {
    if (refuseInGroupPanel())
        return false;
    const bool any = current >= 0;
    append(any ? rows[static_cast<std::size_t>(current)].name : L"",
           any ? rows[static_cast<std::size_t>(current)].address : L"");
    makeCurrent(static_cast<int>(rows.size()) - 1);
    changed = true;
    return true;
}

bool WebList::insertSeparator() {
    if (refuseInGroupPanel())
        return false;
    append(std::wstring(kSeparatorMarker), L"");
    makeCurrent(static_cast<int>(rows.size()) - 1);
    changed = true;
    return true;
}

bool WebList::deleteSelected() {
    std::size_t count = selectedGroups.size();
    if (!groupShown) {
        count = 0;
        for (const WebRow &row : rows)
            count += row.selected;
    }
    if (count == 0) {
        Say(app_.prompts, L"No items selected!", MessageIcon::Exclamation);
        return false;
    }
    if (Ask(app_.prompts, L"Delete " + std::to_wstring(count) + L" items from list ? ",
            MessageButtons::YesNoDefaultNo) != MessageAnswer::Yes)
        return false;
    if (groupShown) {
        for (std::size_t entry : selectedGroups)
            if (entry < groups.size())
                groups[entry] = kDeletionMark;
    } else {
        for (WebRow &row : rows)
            if (row.selected)
                row.name = row.address = kDeletionMark;
    }
    changed = true;
    return true;
}

bool WebList::move(int step) {
    int &at = groupShown ? currentGroup : current;
    const int size = static_cast<int>(groupShown ? groups.size() : rows.size());
    if (at < 0 || at >= size || at + step < 0 || at + step >= size)
        return false;
    const auto from = static_cast<std::size_t>(at), to = static_cast<std::size_t>(at + step);
    if (groupShown) {
        std::swap(groups[from], groups[to]);
        currentGroup = at + step;
    } else {
        std::swap(rows[from].name, rows[to].name);
        std::swap(rows[from].address, rows[to].address);
        makeCurrent(at + step);
    }
    changed = true;
    return true;
}

bool WebList::addToGroup() {
    std::wstring entry;
    int count = 0;
    for (const WebRow &row : rows)
        if (row.checked && !row.isSeparator()) {
            entry += row.address + L" ";
            ++count;
        }
    if (count < 2) {
        Say(app_.prompts, L"You must select at least two items for a group list entry!", MessageIcon::Exclamation);
        return false;
    }
    changed = true;
    groups.push_back(entry);
    groupShown = true;
    return true;
}

bool WebList::emptyGroups() {
    if (Ask(app_.prompts, L"Empty list now?", MessageButtons::YesNo) != MessageAnswer::Yes)
        return false;
    groups.clear();
    selectedGroups.clear();
    currentGroup = -1;
    return true;
}

void WebList::toggleCheck(int row) {
    if (row >= 0 && row < static_cast<int>(rows.size()))
        rows[static_cast<std::size_t>(row)].checked ^= true;
}

std::optional<WebEdit> WebList::startEdit() {
    if (groupShown) {
        if (currentGroup < 0 || currentGroup >= static_cast<int>(groups.size()))
            return std::nullopt;
        editing_ = Editing::Group;
        editIndex_ = currentGroup;
        return WebEdit{L" Edit group of websites ", L"", groups[static_cast<std::size_t>(currentGroup)], true};
    }
    if (current < 0 || current >= static_cast<int>(rows.size()))
        return std::nullopt;
    const WebRow &row = rows[static_cast<std::size_t>(current)];
    if (row.name == kSeparatorMarker)
        return std::nullopt;
    editing_ = Editing::Row;
    editIndex_ = current;
    return WebEdit{L" Text for name && website ", row.name, row.address, false};
}

bool WebList::enter(const std::wstring &name, const std::wstring &site) {
    if (name.empty() || site.empty()) {
        Say(app_.prompts, name.empty() ? L"Name field is empty!" : L"URL field is empty!", MessageIcon::Exclamation);
        return false;
    }
    accept(name, site);
    return true;
}

void WebList::accept(const std::wstring &name, const std::wstring &site) {
    const auto at = static_cast<std::size_t>(editIndex_);
    if (editing_ == Editing::Group && at < groups.size())
        groups[at] = site;
    if (editing_ == Editing::Row && at < rows.size()) {
        rows[at].name = name;
        rows[at].address = site;
    }
    if (editing_ != Editing::None)
        changed = true;
    editing_ = Editing::None;
}

void WebList::openWebsites() {
    std::wstring addresses;
    int count = 0;
    if (groupShown) {
        if (currentGroup >= 0 && currentGroup < static_cast<int>(groups.size()) &&
            !groups[static_cast<std::size_t>(currentGroup)].starts_with(kSeparatorMarker))
            addresses = groups[static_cast<std::size_t>(currentGroup)];
    } else {
        for (const WebRow &row : rows)
            if (row.checked && !row.isSeparator()) {
                addresses += row.address + L" ";
                ++count;
            }
        // A double click opens its own row, though the question counts the checked ones.
        if (current >= 0 && current < static_cast<int>(rows.size()) &&
            !rows[static_cast<std::size_t>(current)].isSeparator() && (count == 0 || singleRow))
            addresses = rows[static_cast<std::size_t>(current)].address;
    }
    const bool go = count < 4 || Ask(app_.prompts, L"Load " + std::to_wstring(count) + L" selected websites from list?",
                                     MessageButtons::YesNo) == MessageAnswer::Yes;
    singleRow = false;
    if (!go || addresses.empty())
        return;
    const Settings &s = app_.settings;
    const std::wstring *browsers[] = {&s.WebBrowser1, &s.WebBrowser2, &s.WebBrowser3};
    if (s.WebBrowserChoice < 1 || s.WebBrowserChoice > 3)
        return;
    // The path stays unquoted and every address goes in the one command line.
    app_.shell.startCommandLine(*browsers[s.WebBrowserChoice - 1] + L" " + addresses, kShowNormal);
}

} // namespace orvane

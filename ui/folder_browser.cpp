// The shell's folder dialog. The chosen folder is read from its item's own
// path, so special folders give their path on disk.
#include <shldisp.h>

#include "dialogs.h"
#include "handles.h"

namespace orvane::ui {

constexpr long kFileSystemFoldersOnly = 1;

std::optional<std::wstring> BrowseForFolder(HWND owner, const std::wstring &title, const std::wstring &start) {
    const auto shell = CreateShellObject<IShellDispatch>(IID_IShellDispatch);
    if (!shell)
        return std::nullopt;
    const UniqueBstr caption(AllocateBstr(title.c_str())), root(AllocateBstr(start.c_str()));
    VARIANT rootFolder{};
    rootFolder.vt = VT_BSTR;
    rootFolder.bstrVal = root.get();
    Folder *chosen = nullptr;
    if (FAILED(
            shell->BrowseForFolder(HandleToLong(owner), caption.get(), kFileSystemFoldersOnly, rootFolder, &chosen)) ||
        !chosen)
        return std::nullopt;
    const ComPointer<Folder> folder(chosen);
    Folder2 *withSelf = nullptr;
    if (FAILED(folder->QueryInterface(IID_Folder2, reinterpret_cast<void **>(&withSelf))))
        return std::nullopt;
    const ComPointer<Folder2> folder2(withSelf);
    FolderItem *self = nullptr;
    if (FAILED(folder2->get_Self(&self)) || !self)
        return std::nullopt;
    const ComPointer<FolderItem> item(self);
    BSTR path = nullptr;
    if (FAILED(item->get_Path(&path)))
        return std::nullopt;
    const UniqueBstr owned(path);
    return std::wstring(path ? path : L"");
}

} // namespace orvane::ui

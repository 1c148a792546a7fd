// Owners for the system's handles: each closes its handle exactly once.
#pragma once

#include <windows.h>
#include <commctrl.h>
#include <shldisp.h>
#include <shlobj.h>

#include <memory>
#include <utility>

#include "window_ref.h"

namespace orvane::ui {

template <typename Traits> class Unique {
public:
    using Type = typename Traits::Type;

    Unique() = default;
    explicit Unique(Type value) : value_(value) {
    }
    Unique(const Unique &) = delete;
    Unique &operator=(const Unique &) = delete;
    Unique(Unique &&other) noexcept : value_(other.release()) {
    }
    Unique &operator=(Unique &&other) noexcept {
        reset(other.release());
        return *this;
    }
    ~Unique() {
        reset();
    }

    Type get() const {
        return value_;
    }
    explicit operator bool() const {
        return value_ != Traits::invalid();
    }
    Type release() {
        return std::exchange(value_, Traits::invalid());
    }
    void reset(Type value = Traits::invalid()) {
        if (value_ != Traits::invalid())
            Traits::close(value_);
        value_ = value;
    }

private:
    Type value_ = Traits::invalid();
};

template <typename T, auto Close> struct NullTraits {
    using Type = T;
    static Type invalid() {
        return nullptr;
    }
    static void close(Type value) {
        Close(value);
    }
};

struct FileTraits {
    using Type = HANDLE;
    static Type invalid() {
        return INVALID_HANDLE_VALUE;
    }
    static void close(Type value) {
        CloseHandle(value);
    }
};

struct FindTraits {
    using Type = HANDLE;
    static Type invalid() {
        return INVALID_HANDLE_VALUE;
    }
    static void close(Type value) {
        FindClose(value);
    }
};

using UniqueFile = Unique<FileTraits>;
using UniqueFind = Unique<FindTraits>;
using UniqueHandle = Unique<NullTraits<HANDLE, CloseHandle>>;
using UniqueModule = Unique<NullTraits<HMODULE, FreeLibrary>>;
using UniqueKey = Unique<NullTraits<HKEY, RegCloseKey>>;
using UniqueWindow = Unique<NullTraits<HWND, DestroyWindow>>;
using UniqueBrush = Unique<NullTraits<HBRUSH, DeleteObject>>;
using UniqueFont = Unique<NullTraits<HFONT, DeleteObject>>;
using UniqueBitmap = Unique<NullTraits<HBITMAP, DeleteObject>>;
using UniqueIcon = Unique<NullTraits<HICON, DestroyIcon>>;
using UniqueDC = Unique<NullTraits<HDC, DeleteDC>>;
using UniqueMenu = Unique<NullTraits<HMENU, DestroyMenu>>;
using UniqueAccelerators = Unique<NullTraits<HACCEL, DestroyAcceleratorTable>>;
using UniqueHook = Unique<NullTraits<HHOOK, UnhookWindowsHookEx>>;
using UniqueView = Unique<NullTraits<void *, UnmapViewOfFile>>;
using UniqueItemList = Unique<NullTraits<PIDLIST_ABSOLUTE, ILFree>>;
using UniqueImageList = Unique<NullTraits<HIMAGELIST, ImageList_Destroy>>;

// A hot key the window holds under this identifier: the window is kept, so the key is given up once.
template <int Id> struct HotKeyTraits {
    using Type = HWND;
    static Type invalid() {
        return nullptr;
    }
    static void close(Type window) {
        UnregisterHotKey(window, Id);
    }
};
template <int Id> using UniqueHotKey = Unique<HotKeyTraits<Id>>;

// COM and its automation strings, bound at first use: importing ole32 and
// oleaut32 costs every start for the few commands that need them.
template <typename Function> Function BoundAtFirstUse(const wchar_t *library, const char *name) {
    return reinterpret_cast<Function>(reinterpret_cast<void *>(GetProcAddress(LoadLibraryW(library), name)));
}
inline BSTR AllocateBstr(const wchar_t *text) {
    static const auto allocate = BoundAtFirstUse<BSTR(WINAPI *)(const OLECHAR *)>(L"oleaut32.dll", "SysAllocString");
    return allocate ? allocate(text) : nullptr;
}
inline void FreeBstr(BSTR text) {
    static const auto free = BoundAtFirstUse<void(WINAPI *)(BSTR)>(L"oleaut32.dll", "SysFreeString");
    if (free)
        free(text);
}
using UniqueBstr = Unique<NullTraits<BSTR, FreeBstr>>;

// A COM interface, released once.
struct ComRelease {
    void operator()(IUnknown *object) const {
        object->Release();
    }
};
template <typename Interface> using ComPointer = std::unique_ptr<Interface, ComRelease>;

// The thread's COM apartment, entered on first use and left at exit, so a
// start that never needs COM does not pay for it.
inline void EnterComApartment() {
    struct Apartment {
        HRESULT entered = E_FAIL;
        Apartment() {
            if (const auto enter = BoundAtFirstUse<HRESULT(WINAPI *)(void *, DWORD)>(L"ole32.dll", "CoInitializeEx"))
                entered = enter(nullptr, COINIT_APARTMENTTHREADED);
        }
        ~Apartment() {
            const auto leave = BoundAtFirstUse<void(WINAPI *)()>(L"ole32.dll", "CoUninitialize");
            if (SUCCEEDED(entered) && leave)
                leave();
        }
    };
    static const Apartment apartment;
}

// A new object of the shell's automation (Shell.Application), in the COM apartment.
template <typename Interface> ComPointer<Interface> CreateShellObject(REFIID interfaceId) {
    EnterComApartment();
    static const auto create = BoundAtFirstUse<HRESULT(WINAPI *)(REFCLSID, IUnknown *, DWORD, REFIID, void **)>(
        L"ole32.dll", "CoCreateInstance");
    void *created = nullptr;
    if (!create ||
        FAILED(create(CLSID_Shell, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, interfaceId, &created)))
        return nullptr;
    return ComPointer<Interface>(static_cast<Interface *>(created));
}

// The logic's plain window numbers and the system's window handles.
inline HWND ToHwnd(WindowRef ref) {
    return reinterpret_cast<HWND>(ref);
}
inline WindowRef ToRef(HWND window) {
    return reinterpret_cast<WindowRef>(window);
}

} // namespace orvane::ui

// Owners for the system's handles: each closes its handle exactly once.
#pragma once

#include <windows.h>
#include <shlobj.h>

#include <memory>
#include <utility>

#include "system.h"

namespace orvane::ui {

template <typename Traits>
class Unique {
public:
    using Type = typename Traits::Type;

    Unique() = default;
    explicit Unique(Type value) : value_(value) {}
    Unique(const Unique&) = delete;
    Unique& operator=(const Unique&) = delete;
    Unique(Unique&& other) noexcept : value_(other.release()) {}
    Unique& operator=(Unique&& other) noexcept {
        reset(other.release());
        return *this;
    }
    ~Unique() { reset(); }

    Type get() const { return value_; }
    explicit operator bool() const { return value_ != Traits::invalid(); }
    Type release() { return std::exchange(value_, Traits::invalid()); }
    void reset(Type value = Traits::invalid()) {
        if (value_ != Traits::invalid()) Traits::close(value_);
        value_ = value;
    }

private:
    Type value_ = Traits::invalid();
};

template <typename T, auto Close>
struct NullTraits {
    using Type = T;
    static Type invalid() { return nullptr; }
    static void close(Type value) { Close(value); }
};

struct FileTraits {
    using Type = HANDLE;
    static Type invalid() { return INVALID_HANDLE_VALUE; }
    static void close(Type value) { CloseHandle(value); }
};

struct FindTraits {
    using Type = HANDLE;
    static Type invalid() { return INVALID_HANDLE_VALUE; }
    static void close(Type value) { FindClose(value); }
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
using UniqueMenu = Unique<NullTraits<HMENU, DestroyMenu>>;
using UniqueAccelerators = Unique<NullTraits<HACCEL, DestroyAcceleratorTable>>;
using UniqueItemList = Unique<NullTraits<PIDLIST_ABSOLUTE, CoTaskMemFree>>;

// The automation strings of oleaut32, bound at first use: importing it costs
// every start for the one dialog that needs it.
inline FARPROC OleAutomation(const char* function) {
    static const UniqueModule library(LoadLibraryW(L"oleaut32.dll"));
    return GetProcAddress(library.get(), function);
}
inline BSTR AllocateBstr(const wchar_t* text) {
    static const auto allocate = reinterpret_cast<BSTR(WINAPI*)(const OLECHAR*)>(
        reinterpret_cast<void*>(OleAutomation("SysAllocString")));
    return allocate ? allocate(text) : nullptr;
}
inline void FreeBstr(BSTR text) {
    static const auto free = reinterpret_cast<void(WINAPI*)(BSTR)>(reinterpret_cast<void*>(OleAutomation("SysFreeString")));
    if (free) free(text);
}
using UniqueBstr = Unique<NullTraits<BSTR, FreeBstr>>;

// A COM interface, released once.
struct ComRelease {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ComRelease>;

// The thread's COM apartment, entered on first use and left at exit, so a
// start that never needs COM does not pay for it.
inline void EnterComApartment() {
    struct Apartment {
        HRESULT entered = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        ~Apartment() {
            if (SUCCEEDED(entered)) CoUninitialize();
        }
    };
    static const Apartment apartment;
}

// The logic's plain window numbers and the system's window handles.
inline HWND ToHwnd(WindowRef ref) { return reinterpret_cast<HWND>(ref); }
inline WindowRef ToRef(HWND window) { return reinterpret_cast<WindowRef>(window); }

}  // namespace orvane::ui

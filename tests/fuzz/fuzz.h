// Shared by the fuzz targets: input bytes become text the way a file's do, and
// a broken property stops the run so libFuzzer keeps the input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "fake_system.h"

namespace orvane::fuzz {

inline std::string Bytes(const std::uint8_t *data, std::size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}

// Files are 8-bit text in the ANSI code page; the fake converts as Windows-1252 does.
inline std::wstring AnsiText(const std::uint8_t *data, std::size_t size) {
    return testing::DecodeWindows1252(Bytes(data, size));
}

} // namespace orvane::fuzz

#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: property broken: %s\n", __FILE__, __LINE__, #condition);                      \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

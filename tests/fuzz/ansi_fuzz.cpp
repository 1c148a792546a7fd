// The ANSI code page conversion files go through: every byte reads as one
// character and writes back as itself; a character read from the 16-bit input
// pairs writes as one byte and reads back as itself, or as "?" when the code
// page has no place for it.
#include "fuzz.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = fuzz::Bytes(data, size);
    const std::wstring read = testing::DecodeWindows1252(bytes);
    FUZZ_CHECK(read.size() == bytes.size() && testing::EncodeWindows1252(read) == bytes);

    std::wstring wide;
    for (std::size_t at = 0; at + 1 < size; at += 2) wide += static_cast<wchar_t>(data[at] | data[at + 1] << 8);
    const std::string written = testing::EncodeWindows1252(wide);
    const std::wstring back = testing::DecodeWindows1252(written);
    FUZZ_CHECK(written.size() == wide.size() && back.size() == wide.size());
    for (std::size_t at = 0; at < wide.size(); ++at) FUZZ_CHECK(back[at] == wide[at] || written[at] == '?');
    return 0;
}

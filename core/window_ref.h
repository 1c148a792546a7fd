// A window handle as a plain number, so the logic never sees <windows.h>.
#pragma once

#include <cstdint>

namespace orvane {

using WindowRef = std::uintptr_t;

} // namespace orvane

// Tables looked up by an enumeration keep their rows in its order.
#pragma once

#include <array>
#include <cstddef>

namespace orvane {

// True when row i of the table carries the enumerator numbered i.
template <typename Row, std::size_t N, typename Enum>
constexpr bool InEnumOrder(const std::array<Row, N> &table, Enum Row::*field) {
    for (std::size_t i = 0; i < N; ++i)
        if (static_cast<std::size_t>(table[i].*field) != i)
            return false;
    return true;
}

} // namespace orvane

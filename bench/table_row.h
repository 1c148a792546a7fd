// One row of the table bench/run prints at its end, in the README's form:
// "| what | measured | goal | verdict |". A goal of 0 means "print it".
#pragma once

#include <cstdio>

namespace orvane::bench {

enum class Goal {
    AtMost,
    Below
};

inline void TableRow(const char *what, double measured, double goal = 0, Goal kind = Goal::AtMost) {
    if (goal <= 0) {
        std::printf("| %s | %.2f | print it | |\n", what, measured);
        return;
    }
    const bool met = kind == Goal::AtMost ? measured <= goal : measured < goal;
    std::printf("| %s | %.2f | %s %.6g | %s |\n", what, measured, kind == Goal::AtMost ? "<=" : "<", goal,
                met ? "met" : "NOT met");
}

} // namespace orvane::bench

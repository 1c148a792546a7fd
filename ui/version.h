// The program's version, kept here alone: the version resource (the exe's
// properties and the About box), the manifest and the release's file names
// all take it from these three numbers.
#pragma once

#define ORVANE_VERSION_MAJOR 1
#define ORVANE_VERSION_MINOR 0
#define ORVANE_VERSION_PATCH 0

#define ORVANE_TEXT_OF_(number) #number
#define ORVANE_TEXT_OF(number) ORVANE_TEXT_OF_(number)
#define ORVANE_VERSION_TEXT                                                                                            \
    ORVANE_TEXT_OF(ORVANE_VERSION_MAJOR)                                                                               \
    "." ORVANE_TEXT_OF(ORVANE_VERSION_MINOR) "." ORVANE_TEXT_OF(ORVANE_VERSION_PATCH)

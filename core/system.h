// The logic's only door to the outside world, one interface per concern. The
// Win32 build implements them all with the real system; the unit tests with a
// recording fake. A routine takes only the ones it uses.
#pragma once

#include "desktop.h"
#include "files.h"
#include "user_locale.h"
#include "prompts.h"
#include "shell.h"

namespace orvane {

class System : public Files, public Shell, public Desktop, public Prompts, public Locale {};

} // namespace orvane

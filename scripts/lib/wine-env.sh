# The environment every Wine call of the project shares: one prefix in the
# build folder, no Mono or Gecko, no debug chatter.
: "${ORVANE_ROOT:=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)}"
export WINEPREFIX="${ORVANE_WINEPREFIX:-$ORVANE_ROOT/build/wineprefix}"
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
export WINEARCH=win64

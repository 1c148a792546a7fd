# Shared set-up for scripts/run and scripts/test: install what is missing from
# Debian's packages, keep one Wine prefix in the build folder, build.
set -euo pipefail
ORVANE_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
export ORVANE_ROOT

say() { printf '== %s\n' "$*"; }

# Installs the Debian packages that are not installed yet; nothing when all are.
ensure_packages() {
  local missing=()
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local sudo=()
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  say "installing ${missing[*]}"
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >/dev/null
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" >/dev/null
}

NATIVE_PACKAGES=(cmake ninja-build g++ libgtest-dev clang-format)
# The sanitizers and libFuzzer come with clang's runtime package.
SANITIZE_PACKAGES=(cmake ninja-build clang libclang-rt-14-dev libgtest-dev)
# The menu icons are built from the Tango theme with python3 and rsvg-convert.
WINDOWS_PACKAGES=(cmake ninja-build g++-mingw-w64-x86-64-posix googletest wine wine64 fonts-wine xvfb xauth
  python3 librsvg2-bin tango-icon-theme unzip)
# The 32-bit orvane.exe: built and inspected, never run.
X86_PACKAGES=(cmake ninja-build g++-mingw-w64-i686-posix googletest python3 librsvg2-bin tango-icon-theme)

# Configures and builds a preset: all its targets, or the ones named after it.
build_preset() {
  local preset=$1
  shift
  say "building ($preset${*:+: $*})"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" ${*:+--target "$@"}
}

# Runs every fuzz target of the sanitize build for $1 seconds each, from its
# seeds and the demo's files, in a scratch corpus under build/ that grows from
# run to run. A crash fails the run; its input is kept in build/fuzz-artifacts/.
fuzz_all() {
  local seconds=$1 failed=() target corpus log
  local build="$ORVANE_ROOT/build" fuzz="$ORVANE_ROOT/tests/fuzz"
  mkdir -p "$build/fuzz-artifacts" "$build/fuzz-logs"
  for target in settings custom_list web_list numbers picture; do
    corpus="$build/fuzz-corpus/$target"
    mkdir -p "$corpus"
    case $target in
      settings) cp "$ORVANE_ROOT/demo/Orvane.ini" "$corpus/" ;;
      custom_list) cp "$ORVANE_ROOT/demo/Programs.lst" "$corpus/" ;;
      web_list) cp "$ORVANE_ROOT/demo/Websites.lst" "$corpus/" ;;
    esac
    log="$build/fuzz-logs/$target.log"
    if "$build/sanitize/tests/fuzz/${target}_fuzz" -max_total_time="$seconds" -timeout=10 \
        -artifact_prefix="$build/fuzz-artifacts/$target-" "$corpus" "$fuzz/seeds/$target" >"$log" 2>&1; then
      printf '%-12s %s\n' "$target" "$(grep -o 'Done [0-9]* runs in [0-9]* second(s)' "$log")"
    else
      failed+=("$target")
      printf '%-12s FAILED (log: %s)\n' "$target" "$log"
      grep -E 'ERROR|property broken|runtime error|Test unit written' "$log" | head -5
    fi
  done
  [ ${#failed[@]} -eq 0 ] || { say "fuzzing found faults in: ${failed[*]}"; return 1; }
}

source "$ORVANE_ROOT/scripts/lib/wine-env.sh"

# The prefix is made once; windows close at once without a window manager
# when Wine manages its own windows (Managed=N).
ensure_wine_prefix() {
  if [ ! -f "$WINEPREFIX/system.reg" ]; then
    say "making the Wine prefix (once)"
    mkdir -p "$WINEPREFIX"
    wineboot -i >/dev/null 2>&1
    wineserver -w
  fi
  # Checked every time: once seen missing after a first start, and without it
  # every window close stalls about two seconds.
  if ! grep -q '^"Managed"="N"' "$WINEPREFIX/user.reg"; then
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
    wineserver -w
  fi
  # Wine's own fonts (Tahoma, Marlett, MS Shell Dlg): without them dialogs are
  # laid out in a stand-in font and caption buttons draw as letters.
  local fonts="$WINEPREFIX/drive_c/windows/Fonts"
  [ -f "$fonts/marlett.ttf" ] || cp /usr/share/wine/fonts/*.ttf "$fonts/"
  # The shell finds a program's own icon through the ".exe" class, which a new
  # prefix lacks: without it every program shows the generic icon.
  if ! grep -q '^\[Software\\\\Classes\\\\.exe\]' "$WINEPREFIX/system.reg"; then
    wine reg add 'HKCR\.exe' /ve /d exefile /f >/dev/null 2>&1
    wineserver -w
  fi
}

# Runs a command with a private X server, and a Wine server started for it
# and stopped after it, so no Wine process outlives the display it used.
with_display() {
  xvfb-run -a -s "-screen 0 1280x800x24" bash -c '
    wineserver -k >/dev/null 2>&1 || true
    wineserver -p >/dev/null 2>&1
    "$@"; status=$?
    wineserver -k >/dev/null 2>&1 || true
    exit $status' with_display "$@"
}

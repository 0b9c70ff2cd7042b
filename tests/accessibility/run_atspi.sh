#!/usr/bin/env bash
# tests/accessibility/run_atspi.sh TALU PATCH
#
# Starts TALU on PATCH on a private X display and a private D-Bus session with
# Qt's AT-SPI bridge forced on, then runs atspi_panels.py against it the way a
# screen reader would see the window. Exit code: that of atspi_panels.py
# (0 pass, 1 fail, 77 skip when the accessibility stack is missing here).
#
# It starts an X server and TALU: run it inside the project's network namespace,
#   scripts/netns tests/accessibility/run_atspi.sh build/debug-asan/src/app/talu examples/demo.tpatch
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# Debian's python3-gi lives with Debian's interpreter, not with a pyenv or venv one.
python=${PYTHON:-/usr/bin/python3}

if [ $# -ne 2 ]; then
    echo "usage: $0 TALU PATCH" >&2
    exit 2
fi

if [ -z "${TALU_ATSPI_TMP:-}" ]; then
    # Outer pass. Everything the test needs, or there is nothing to test against.
    for tool in Xvfb dbus-run-session dbus-send "$python"; do
        if ! command -v "$tool" >/dev/null; then
            echo "SKIP: $tool not found" >&2
            exit 77
        fi
    done
    if ! "$python" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null; then
        echo "SKIP: python3-gi with gir1.2-atspi-2.0 is not installed" >&2
        exit 77
    fi

    # Home, settings and runtime folders go to a throw-away place before the
    # session bus starts, so that the accessibility bus it launches and TALU's
    # settings never touch the user's own, and parallel runs never meet.
    tmp=$(mktemp -d)
    trap 'rm -rf "$tmp"' EXIT
    export TALU_ATSPI_TMP=$tmp HOME=$tmp
    export XDG_CONFIG_HOME=$tmp/config XDG_CACHE_HOME=$tmp/cache XDG_DATA_HOME=$tmp/data XDG_RUNTIME_DIR=$tmp/run
    mkdir -p "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME" "$XDG_DATA_HOME"
    mkdir -m 700 "$XDG_RUNTIME_DIR"

    # Second pass inside a private session bus. The bus daemons' chatter goes
    # to a log; our own stdout and stderr are handed through on fds 5 and 6.
    status=0
    dbus-run-session -- "$0" "$@" 5>&1 6>&2 >"$tmp/dbus.log" 2>&1 || status=$?
    exit "$status"
fi

# Inner pass, inside the session bus.
exec 1>&5 2>&6 5>&- 6>&-
tmp=$TALU_ATSPI_TMP
talu=$(realpath "$1")
patch=$(realpath "$2")
xvfb_pid=
talu_pid=
cleanup() {
    if [ -n "$talu_pid" ]; then kill "$talu_pid" 2>/dev/null || true; wait "$talu_pid" 2>/dev/null || true; fi
    if [ -n "$xvfb_pid" ]; then kill "$xvfb_pid" 2>/dev/null || true; wait "$xvfb_pid" 2>/dev/null || true; fi
}
trap cleanup EXIT

# Qt only connects when the accessibility bus is already registered; it never
# starts it. Ask for its address, which starts it through D-Bus activation.
if ! dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >/dev/null; then
    echo "SKIP: no accessibility bus (at-spi2-core)" >&2
    exit 77
fi

# Xvfb picks a free display itself and writes its number to the fd we give it.
Xvfb -displayfd 4 -nolisten tcp -screen 0 1600x1000x24 4>"$tmp/display" >"$tmp/xvfb.log" 2>&1 &
xvfb_pid=$!
for _ in $(seq 50); do
    [ -s "$tmp/display" ] && break
    sleep 0.1
done
if [ ! -s "$tmp/display" ]; then
    echo "FAIL: Xvfb did not start" >&2
    cat "$tmp/xvfb.log" >&2
    exit 1
fi
export DISPLAY=:$(head -n1 "$tmp/display")

export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
# The X and D-Bus client libraries are not ours: no leak report at the kill,
# and no strict string checks (libxcb's strndup trips them in a sanitizer build).
export ASAN_OPTIONS=detect_leaks=0
"$talu" "$patch" >"$tmp/talu.log" 2>&1 &
talu_pid=$!

# Wait for the window on the accessibility bus (a sanitizer build takes a few
# seconds to start), then check it.
status=0
"$python" "$here/atspi_panels.py" --pid "$talu_pid" --wait-only --timeout 20 || status=$?
if [ "$status" -eq 1 ]; then
    echo "--- D-Bus log ---" >&2
    tail -n 20 "$tmp/dbus.log" >&2
elif [ "$status" -eq 0 ]; then
    "$python" "$here/atspi_panels.py" --pid "$talu_pid" || status=$?
fi

if ! kill -0 "$talu_pid" 2>/dev/null; then
    echo "FAIL: TALU exited during the test" >&2
    status=1
fi
if [ "$status" -ne 0 ] && [ -s "$tmp/talu.log" ]; then
    echo "--- TALU output ---" >&2
    tail -n 40 "$tmp/talu.log" >&2
fi
exit "$status"

#!/usr/bin/env bash
# Starts the editor, or says in one line why it cannot.
program=$1
shift
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    echo "brevik: no display found (DISPLAY is not set); start it from a desktop session or under Xvfb." >&2
    exit 1
fi
exec "$program" "$@"

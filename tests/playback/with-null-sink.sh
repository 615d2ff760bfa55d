#!/usr/bin/env bash
# Runs a command beside a PulseAudio server of its own whose one sink plays
# to nowhere, so that a test has a real sound device and a real clock.
set -euo pipefail
home=$(mktemp -d)
trap 'kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; rm -rf "$home"' EXIT
HOME=$home XDG_RUNTIME_DIR=$home pulseaudio -n --daemonize=no --exit-idle-time=-1 \
    --use-pid-file=no --disable-shm=yes \
    --load="module-null-sink sink_name=nowhere" \
    --load="module-native-protocol-unix socket=$home/native auth-anonymous=1" \
    >"$home/server.log" 2>&1 &
server=$!
export PULSE_SERVER=unix:$home/native KESTROVE_SOUND_SERVER=1
for _ in $(seq 50); do
    pactl info >/dev/null 2>&1 && break
    sleep 0.1
done
pactl info >/dev/null 2>&1 || { echo "the sound server did not start:"; cat "$home/server.log"; exit 1; }
"$@"

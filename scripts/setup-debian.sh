#!/usr/bin/env bash
# Installs what building, running and testing Kestrove needs on Debian 12.
# Installs nothing when everything is already there.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-multimedia-dev libgl-dev
    qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
    ffmpeg libavformat-dev libavcodec-dev libavutil-dev libswscale-dev
    libswresample-dev libavfilter-dev
    libdvdread-dev dvdauthor libass-dev
    xvfb xauth
    dbus pulseaudio pulseaudio-utils
    python3 python3-gi gir1.2-gstreamer-1.0 mediainfo
    gstreamer1.0-plugins-base gstreamer1.0-plugins-base-apps gstreamer1.0-plugins-good
    gstreamer1.0-plugins-bad gstreamer1.0-plugins-ugly gstreamer1.0-libav
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
run_as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}
export DEBIAN_FRONTEND=noninteractive
run_as_root apt-get update -q
run_as_root apt-get install -y -q --no-install-recommends "${missing[@]}"

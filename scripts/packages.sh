# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
# Sourced by ./run and ./test: what each of them needs, and a way to have it.
# shellcheck shell=sh

build_packages="g++ cmake ninja-build pkg-config qt6-base-dev qt6-multimedia-dev qt6-svg-dev
    qt6-wayland libwayland-dev libsqlite3-dev libxcb1-dev libxcb-keysyms1-dev libxcb-xkb-dev
    libxkbcommon-dev libxkbcommon-x11-dev libheif-dev libsndfile1-dev libplist-dev libdeflate-dev
    liblcms2-dev libgs-common libsecret-1-dev wl-clipboard qt6-image-formats-plugins
    qt6-translations-l10n qt6-l10n-tools qt6-tools-dev"
desktop_packages="xvfb openbox trayer dbus-daemon xclip xauth xdotool python3 python3-xlib fonts-dejavu-core"
test_packages="mold libgtest-dev libgmock-dev libxcb-xtest0-dev python3-dbus python3-gi chromium
    poppler-utils x11-xkb-utils sway swaybg grim xdg-desktop-portal x11-xserver-utils pulseaudio
    pulseaudio-utils clang-format-14 git openssl locales etcd-server desktop-file-utils appstream
    at-spi2-core python3-pyatspi libglib2.0-bin gnome-keyring"

say() { printf '%s\n' "$*"; }

fail() {
    say "$*" >&2
    exit 1
}

# quietly LOG COMMAND…: the command's output goes to LOG, and is shown only if it fails.
quietly() {
    log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 || {
        tail -n 60 "$log" >&2
        fail "failed: $*"
    }
}

is_debian() {
    command -v apt-get >/dev/null && [ -r /etc/os-release ] &&
        (. /etc/os-release && case " $ID ${ID_LIKE:-} " in *" debian "*) true ;; *) false ;; esac)
}

missing_packages() {
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q ' installed$' ||
            printf '%s ' "$package"
    done
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "root or sudo is needed to install packages: $*"
    fi
}

# install_packages NAME…: installs those that are missing, without questions. Elsewhere than on
# Debian and its kin it says what is needed, and leaves it to the build to find it.
install_packages() {
    if ! is_debian; then
        say "This is not a Debian system. These packages, by Debian's names, must be there:"
        say "$*" | tr -s ' \n' ' ' | fold -s -w 76
        say ""
        return
    fi
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return
    say "Installing: $missing"
    quietly build/log/apt-update.txt as_root apt-get -q update
    # shellcheck disable=SC2086
    quietly build/log/apt-install.txt as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y --no-install-recommends install $missing
}

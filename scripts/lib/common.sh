# shellcheck shell=bash
# Shared by the scripts; sourced with $root set to the source folder.

say() {
    printf '%s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Prints the comment at the head of the script, without the hashes.
show_help() {
    sed -n '2,/^[^#]/{/^#/!q; s/^# \{0,1\}//p}' "$0"
}

# Runs a command and keeps its output for the case that it fails.
quietly() {
    local log
    log=$(mktemp)
    if "$@" >"$log" 2>&1; then
        rm -f "$log"
        return 0
    fi
    cat "$log" >&2
    rm -f "$log"
    return 1
}

# The Wine loader of an architecture (win64 unless given, or win32); the wrapper named wine complains
# where 32-bit Wine is missing, and takes it where it is not.
find_wine() {
    local candidate candidates=(wine64 /usr/lib/wine/wine64 wine)
    [ "${1:-win64}" = win64 ] || candidates=(/usr/lib/wine/wine wine)
    for candidate in "${candidates[@]}"; do
        if command -v "$candidate" >/dev/null 2>&1; then
            command -v "$candidate"
            return 0
        fi
    done
    return 1
}

# What every program under Wine gets: English messages and code page 1252 whatever the user's
# language is, UTF-8 file names, no chatter, none of the helpers that only cost time, and personal
# folders that are not the user's. The prefix is a 64-bit one unless win32 is given.
export_wine_environment() {
    export WINEPREFIX=$1
    export HOME=$1/home
    export WINEARCH=${2:-win64}
    export WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES='winemenubuilder.exe=d;mscoree=d;mshtml=d;winhlp32.exe=n'
    export LC_ALL=C.UTF-8
    unset DISPLAY WAYLAND_DISPLAY
    mkdir -p "$HOME"
}

# Runs a command with the rights to change the system.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1 && sudo -n true 2>/dev/null; then
        sudo -n "$@"
    elif command -v sudo >/dev/null 2>&1 && [ -t 0 ]; then
        sudo "$@"
    else
        return 1
    fi
}

# Prints those of the packages that are not installed.
list_missing() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            printf '%s ' "$package"
    done
}

# Installs those of the Debian packages that are missing; says nothing when all are there.
install_packages() {
    command -v dpkg-query >/dev/null 2>&1 ||
        fail "this is no Debian system; install by hand what these Debian packages hold:" "$@"
    local missing
    missing=$(list_missing "$@")
    [ -n "$missing" ] || return 0
    as_root true || fail "no right to install packages; as root, run: apt-get install $missing"
    say "Installing $missing"
    export DEBIAN_FRONTEND=noninteractive
    # The lists of a fresh machine are empty or old; with current ones the update is not needed.
    # $missing is a list of words.
    # shellcheck disable=SC2086
    quietly as_root apt-get -o DPkg::Lock::Timeout=120 install -qq -y --no-install-recommends $missing 2>/dev/null ||
        { quietly as_root apt-get -o DPkg::Lock::Timeout=120 update -qq &&
            quietly as_root apt-get -o DPkg::Lock::Timeout=120 install -qq -y --no-install-recommends $missing; } ||
        fail "the packages could not be fetched; with a network connection, as root, run:" \
            "apt-get install $missing"
}

# Installing Debian packages and configuring a preset, for ./start, ./check and ./package and others, which set `here` and read this file.

# What the product is built with and from.
build_packages=(cmake ninja-build g++ pkgconf libsqlite3-dev libsqlitecpp-dev libexpat1-dev libicu-dev
    libtomlplusplus-dev libcli11-dev nlohmann-json3-dev libgsf-1-dev libgmime-3.0-dev
    libarchive-dev libical-dev libsystemd-dev libxcb1-dev libxcb-screensaver0-dev libxcb-sync-dev libwayland-dev qt6-base-dev)

# What the tests and lints need besides.
check_packages=(git python3 clang-format clang-tidy libgtest-dev libgmock-dev g++-mingw-w64-x86-64-posix wine wine64 nsis
    dbus python3-dbusmock libemail-outlook-message-perl libemail-address-perl python3-olefile python3-icalendar
    strace xvfb openbox xterm xdotool fonts-dejavu-core appstream desktop-file-utils fish mandoc tidy zsh)

# What the setup program for Windows is built with.
setup_packages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix nsis)

# What ./check --browser needs besides.
browser_packages=(chromium)

# What ./check --desktop needs besides.
real_desktop_packages=(xvfb openbox xdotool x11-utils xterm at-spi2-core python3-pyatspi weston qt6-wayland dbus python3-dbus
    python3-gi)

# What ./check --desktops needs besides.
desktop_packages=(sway foot fonts-dejavu-core wtype weston kwin-wayland gnome-shell dbus python3-dbusmock)

# What ./check --fuzz needs besides.
fuzz_packages=(clang libclang-rt-dev)

# What ./check --bench needs besides: a peer to compare with, callgrind, and what runs the add-in for Windows.
bench_packages=(python3 timewarrior valgrind xvfb openbox xterm g++-mingw-w64-x86-64-posix wine wine64)

# What ./package needs besides.
package_packages=(appstream build-essential debhelper desktop-file-utils dpkg-dev fakeroot fish git librsvg2-bin lintian mandoc
    python3 systemd tidy zsh)

# install_missing PACKAGE...: installs those of the packages that are missing; asks dpkg once and nothing else when
# none is.
install_missing() {
    local package state missing=() sudo=()
    local -A installed=()
    if ! command -v dpkg-query apt-get >/dev/null; then
        echo "This isn't a Debian system, so the packages must be there already: $*" >&2
        return
    fi
    while read -r state package; do
        [ "$state" = ii ] && installed[$package]=1
    done < <(dpkg-query --show --showformat='${db:Status-Abbrev} ${Package}\n' "$@" 2>/dev/null)
    for package; do
        [ -n "${installed[$package]:-}" ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and there is no sudo; as root: apt-get install ${missing[*]}" >&2
            return 1
        fi
        sudo=(sudo)
    fi
    echo "Installing ${missing[*]}" >&2
    local apt=("${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --quiet --yes -o DPkg::Lock::Timeout=300)
    # An index that can't be had may be one that nobody needs here.
    "${apt[@]}" update </dev/null >&2 ||
        echo "The lists of packages couldn't all be brought up to date; trying with those that are there" >&2
    "${apt[@]}" install --no-install-recommends "${missing[@]}" </dev/null >&2
}

# configure PRESET: makes the build folder of a preset, unless it is there; ninja itself sees to later changes.
configure() {
    local folder="$here/build/$1" fresh=()
    # A build folder that moved with its checkout can't be used any more.
    if [ -e "$folder/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$here" "$folder/CMakeCache.txt"
    then
        fresh=(--fresh)
    elif [ -e "$folder/build.ninja" ]; then
        return 0
    fi
    (cd "$here" && cmake --preset "$1" "${fresh[@]}" </dev/null >"$folder.log" 2>&1) || {
        cat "$folder.log" >&2
        return 1
    }
}

# shellcheck shell=bash
# Debian packages that the scripts need; to be sourced by bash.
# The lists are used there.
# shellcheck disable=SC2034

BuildPackages=(g++ cmake ninja-build qt6-base-dev libcli11-dev)
# Half-width katakana need a Japanese font.
FontPackages=(fonts-ipafont-gothic fonts-dejavu-core)
VirtualDisplayPackages=(xvfb xdotool imagemagick)
TestPackages=(libgtest-dev qt6-base-private-dev openbox x11-utils at-spi2-core
    dbus-daemon libglib2.0-bin python3-pyatspi bubblewrap)
CheckPackages=(clang-format clang-tidy shellcheck)
FuzzPackages=(clang libclang-rt-dev cmake ninja-build)
PortablePackages=(g++ clang-16 libc++-16-dev libc++abi-16-dev g++-mingw-w64-x86-64-posix googletest wine
    wine64 cmake ninja-build)
IconPackages=(librsvg2-bin)
PackagingPackages=(dpkg-dev file desktop-file-utils appstream mandoc lintian hicolor-icon-theme)
CleanRootPackages=(mmdebstrap uidmap openbox x11-utils)

# Asks for the password only where somebody can type it.
may_use_sudo() {
    command -v sudo >/dev/null || return 1
    if [ -t 0 ]; then sudo -v; else sudo -n true 2>/dev/null; fi
}

# Installs what is missing of the packages named. Without the right to do so it prints the command
# that would and ends the script. Without apt it does nothing.
need_packages() {
    local missing=() package
    command -v apt-get >/dev/null || return 0
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! may_use_sudo; then
            echo "Packages are missing. Install them with this command, then start again:" >&2
            echo "  su -c 'apt-get update && apt-get install -y ${missing[*]}'" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# Configures and builds a preset, or only the target named after it. CMakeOptions may hold further
# options for the configuration.
CMakeOptions=(-DCMAKE_COMPILE_WARNING_AS_ERROR=OFF)
build_preset() {
    mkdir -p build
    if cmake --preset "$1" "${CMakeOptions[@]}" >build/configure.log; then
        cmake --build --preset "$1" ${2:+--target "$2"} && return
    else
        cat build/configure.log
    fi
    if ! command -v apt-get >/dev/null; then
        echo "The build failed. This is what it needs:" >&2
        sed -n '/^## Requirements/,/^## /{/^## /!p}' README.md >&2
    fi
    exit 1
}

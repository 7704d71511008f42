# Which Debian packages a machine needs, and how they get there. Sourced by run, test and .ci/run.
# "a|b" means: the first of these that the system offers. Nothing is asked of the network when all are installed.

packages_run="g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools libqt6svg6-dev|qt6-svg-dev
    libqscintilla2-qt6-dev qt6-webengine-dev libgl-dev|libgl1-mesa-dev qt6-qpa-plugins qt6-wayland
    libfontconfig-dev|libfontconfig1-dev fonts-dejavu-core fonts-liberation
    libhunspell-dev hunspell-en-us libcurl4-openssl-dev libchm-dev fp-utils-3.2.2|fp-utils"
packages_headless="xvfb openbox xdotool imagemagick x11-utils"
packages_test="x11-xkb-utils libgtest-dev libgmock-dev libbenchmark-dev at-spi2-core dbus python3 python3-pyatspi gir1.2-atspi-2.0
    libsm6 libice6 dillo python3-pyftpdlib python3-openssl vsftpd poppler-utils"
# Real pages for the test that opens, saves and reopens them.
packages_pages="zsh-doc libxml2-doc"
# What packs the program and looks at the result.
packages_package="dpkg-dev fakeroot file desktop-file-utils appstream lintian man-db mmdebstrap"
packages_ci="clang clang-format libclang-rt-14-dev|libclang-rt-19-dev|libclang-rt-18-dev"

installed() {
    dpkg-query -W -f '${Status}\n' "$1" 2>/dev/null | grep -q '^install ok installed$'
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Prints the packages of the given lists that are missing, one of each alternative.
missing_packages() {
    local entry name found
    for entry in $*; do
        found=
        for name in ${entry//|/ }; do
            installed "$name" && found=yes
        done
        [ -n "$found" ] || echo "$entry"
    done
}

# Installs what is missing of the given lists. Fails with the list of what could not be had.
install_packages() {
    local missing entry name chosen=()
    missing=$(missing_packages "$*")
    [ -n "$missing" ] || return 0
    if ! command -v apt-get >/dev/null; then
        echo "These packages are missing, and there is no apt-get to install them:" $missing >&2
        return 1
    fi
    echo "Installing what is missing:" $missing
    as_root apt-get -o DPkg::Lock::Timeout=300 update -q || return 1
    for entry in $missing; do
        for name in ${entry//|/ }; do
            if apt-cache show "$name" >/dev/null 2>&1; then
                chosen+=("$name")
                break
            fi
        done
    done
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -o DPkg::Lock::Timeout=300 -y -q --no-install-recommends "${chosen[@]}" || return 1
    missing=$(missing_packages "$*")
    if [ -n "$missing" ]; then
        echo "These packages could not be had:" $missing >&2
        return 1
    fi
}

# Installs with apt what the scripts need and the machine lacks. Sourced after common.sh.

packages_build=(
    ca-certificates ccache cmake g++ git mold ninja-build
    libarchive-dev libcsv-dev libcurl4-openssl-dev libgl-dev libhunspell-dev libical-dev libmd4c-dev libsimdjson-dev libssl-dev zlib1g-dev
    qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-svg-dev
    qml6-module-qt-labs-qmlmodels qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
    qml6-module-qtquick-shapes qml6-module-qtquick-templates qml6-module-qtquick-window
    fonts-crosextra-caladea fonts-inter fonts-jetbrains-mono fonts-noto-color-emoji fonts-quicksand fonts-vollkorn
)
packages_picture=(imagemagick xauth xvfb)
packages_test=(
    appstream at-spi2-core clang-format-19 dbus-daemon desktop-file-utils nodejs openssl poppler-utils python3
    qml6-module-qttest qt6-wayland sqlite3 unzip weston xvfb
)
packages_bench=(rapidjson-dev)
packages_ci=(clang-tidy-19)
packages_fuzz=(clang-19 libclang-rt-19-dev)

# Not installed by any script, and not needed to build: what the relax screen plays videos with at run time, each
# brought in when the first video is opened. Without them the stage says which one is missing, and their tests skip.
#     qml6-module-qtmultimedia gstreamer1.0-plugins-good gstreamer1.0-libav    video files
#     qml6-module-qtwebengine                                                 pages of the web

# install_packages SET...: makes sure of the packages of these sets; without network when they are there.
install_packages() {
    local wanted=() missing=() set
    for set in "$@"; do
        local -n packages="packages_$set"
        wanted+=("${packages[@]}")
    done
    # The icons come from npm. A machine may have it from elsewhere than Debian.
    command -v npm >/dev/null || wanted+=(npm)

    if ! command -v apt-get >/dev/null; then
        say "This system has no apt, so nothing is installed. Needed are the counterparts of: ${wanted[*]}"
        return
    fi
    local package installed
    installed=" $(dpkg-query -W -f='${db:Status-Status}:${Package} ' "${wanted[@]}" 2>/dev/null || true)"
    for package in "${wanted[@]}"; do
        [[ $installed == *" installed:$package "* ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    local root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "Some packages are missing and there is no sudo to install them." \
            "as root, run: apt-get install --no-install-recommends ${missing[*]}"
        root=(sudo)
    fi
    local apt=("${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Acquire::Retries=3 -o Dpkg::Use-Pty=0)
    step "Refreshing the list of Debian packages" \
        "check the network and the entries in /etc/apt/sources.list, then start again" \
        "${apt[@]}" update
    step "Installing ${#missing[@]} missing Debian packages: ${missing[*]}" \
        "read the message above; a half-installed package is mended by: ${root[*]:+sudo }apt-get --fix-broken install" \
        "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null
}

#!/usr/bin/env bash
# Installs the Debian 12 packages that building, testing and running need. Does nothing when all are there.
#   tools/setup.sh         these
#   tools/setup.sh lint    and those that tools/lint.sh needs
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config git python3
    # The window, its pictures, and Qt's own words in Chinese.
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-serialport-dev libqt6svg6 qt6-wayland qt6-translations-l10n
    # Picture files; the extra package reads WMF.
    libjpeg62-turbo-dev libmagick++-6.q16-dev libmagickcore-6.q16-6-extra
    # Faces with Chinese and Korean characters.
    fonts-wqy-zenhei fonts-noto-cjk
    # The face of the date in printed pictures. Tests print on a print service that they start themselves, and read
    # printed files with poppler.
    fonts-wine cups-daemon poppler-utils
    libgtest-dev libbenchmark-dev
)
if [[ ${1-} == lint ]]; then
    packages+=(clang-format clang-tidy)
fi

if ! command -v dpkg-query >/dev/null; then
    echo "setup: this is not a Debian system. Install the counterparts of: ${packages[*]}" >&2
    exit 1
fi

installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for package in "${packages[@]}"; do
    grep -qx "installed $package" <<<"$installed" || missing+=("$package")
done
if [[ ${#missing[@]} -eq 0 ]]; then
    exit 0
fi

as_root=()
if [[ $EUID -ne 0 ]]; then
    if ! command -v sudo >/dev/null; then
        echo "setup: these packages are missing: ${missing[*]}" >&2
        echo "setup: run this as root, or install sudo for your account." >&2
        exit 1
    fi
    as_root=(sudo)
fi

apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o DPkg::Lock::Timeout=300 "$@"
}

echo "setup: installing ${missing[*]}"
# The package lists may be absent or may name versions that the mirror has since replaced.
if ! apt_get install --download-only --no-install-recommends "${missing[@]}" >/dev/null 2>&1; then
    apt_get update
fi
apt_get install --no-install-recommends "${missing[@]}" </dev/null >/dev/null

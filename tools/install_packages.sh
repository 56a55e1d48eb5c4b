#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs the Debian packages that are named and missing. Usage: install_packages.sh build|run|test
# build: what a build needs; run: what a start without a display needs besides; test: what the tests need besides.
set -eu

packages="g++ cmake ninja-build ccache pkg-config libgl1-mesa-dev libvulkan-dev
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-declarative-dev qt6-webengine-dev libqt6svg6
    qt6-translations-l10n fonts-liberation libcurl4-openssl-dev"
case "${1:-build}" in
run) packages="$packages xvfb xauth imagemagick" ;;
test) packages="$packages clang-format xvfb xauth curl openssl python3-pyftpdlib vsftpd poppler-utils" ;;
esac

missing=""
for package in $packages; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

echo "Installing:$missing"
as_root=""
[ "$(id -u)" -eq 0 ] || as_root="sudo"
export DEBIAN_FRONTEND=noninteractive
$as_root apt-get update -q
# shellcheck disable=SC2086
$as_root apt-get install -y -q --no-install-recommends $missing

#!/usr/bin/env bash
# Tessaron's one set-up script: installs what is missing, builds, then
#   ./setup.sh run    starts the application
#   ./setup.sh test   runs every test (model tests again under ASan + UBSan)
set -euo pipefail
cd "$(dirname "$0")"

packages=(cmake ninja-build g++ ccache python3 qt6-base-dev libgl-dev qt6-svg-dev libgtest-dev
          libgmock-dev libbenchmark-dev fonts-dejavu-core fonts-dejavu-extra fonts-nanum
          xvfb xauth desktop-file-utils appstream clang libclang-rt-dev strace)

install_missing() {
  local missing=()
  for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' ||
      missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -eq 0 ] || sudo=sudo
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends \
    "${missing[@]}"
}

build() {  # build DIR [cmake options...]
  local dir=$1
  shift
  cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
  cmake --build "$dir"
}

case "${1:-}" in
  run)
    install_missing
    build build
    if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
      echo "No display: starting Tessaron under Xvfb."
      exec xvfb-run -a build/bin/tessaron
    fi
    exec build/bin/tessaron
    ;;
  test)
    install_missing
    build build-asan -DTESSARON_SANITIZE=ON -DTESSARON_GUI=OFF -DTESSARON_BENCH=OFF \
      -DCMAKE_BUILD_TYPE=Debug
    (cd build-asan && ctest --output-on-failure -j2)
    build build
    cd build && ctest --output-on-failure -j2
    ;;
  *)
    echo "usage: $0 run|test" >&2
    exit 2
    ;;
esac

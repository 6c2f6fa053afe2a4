#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: configures the preset where needed and builds the targets, all of them by default.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
fi
# Ninja configures anew by itself when a CMakeLists.txt changes, but knows nothing of the presets.
if [[ ! -f build/$preset/build.ninja || CMakePresets.json -nt build/$preset/build.ninja ]]; then
    cmake --preset "$preset"
fi
cmake --build --preset "$preset" ${1:+--target "$@"}

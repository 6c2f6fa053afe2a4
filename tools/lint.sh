#!/usr/bin/env bash
# Holds the sources to .clang-format and .clang-tidy. Needs a build of the release preset (./run or ./test).
#   tools/lint.sh            all of src/, tests/ and bench/
#   tools/lint.sh FILE...    these files
set -euo pipefail
cd "$(dirname "$0")/.."

for tool in clang-format run-clang-tidy; do
    if ! command -v "$tool" >/dev/null; then
        echo "lint: $tool is missing: apt-get install clang-format clang-tidy" >&2
        exit 1
    fi
done
if [[ ! -f build/release/compile_commands.json ]]; then
    echo "lint: build/release is missing: run ./test first" >&2
    exit 1
fi

if [[ $# -gt 0 ]]; then
    files=("$@")
else
    mapfile -t files < <(git ls-files 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'bench/*.h' 'bench/*.cpp')
fi
status=0
clang-format --dry-run -Werror "${files[@]}" || status=1

units=()
for file in "${files[@]}"; do
    [[ $file == *.cpp ]] && units+=("/${file#"$PWD"/}\$")
done
if [[ ${#units[@]} -gt 0 ]]; then
    run-clang-tidy -quiet -j "$(nproc)" -p build/release "${units[@]}" || status=1
fi
exit "$status"

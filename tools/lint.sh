#!/usr/bin/env bash
# Holds the sources to .clang-format and .clang-tidy. Installs the two where they are missing; needs no build.
#   tools/lint.sh                        all of src/, tests/ and bench/
#   tools/lint.sh FILE...                these files
#   tools/lint.sh --changed [MINUTES]    what differs from the main branch and then of the rest as much as the minutes
#                                        allow, the rest from another place on at each commit
# On the main branch itself --changed looks at its last 20 commits; in a clone that is not so deep, all is the rest.
# The form of all files is looked at each time: that takes seconds.
set -euo pipefail
cd "$(dirname "$0")/.."

readonly kBranch=origin/main
readonly kLandingCommits=20
readonly kSources=('src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'bench/*.h' 'bench/*.cpp')

# The commit that the checkout is compared with; nothing if it is not there.
landing_base() {
    local base
    base=$(git merge-base HEAD "$kBranch" 2>/dev/null) || base=
    if [[ -z $base || $base == "$(git rev-parse HEAD)" ]]; then
        base=$(git rev-parse --verify --quiet "HEAD~$kLandingCommits") || base=
    fi
    echo "$base"
}

# The files to compile for the files in the arguments: a header is looked at with the file of its name, or else with
# one that includes it.
units_of() {
    local file
    for file in "$@"; do
        if [[ $file == *.h ]]; then
            if [[ -f ${file%.h}.cpp ]]; then
                file=${file%.h}.cpp
            else
                file=$(git grep -lE "#include \"(.*/)?${file##*/}\"" -- '*.cpp' | head -n 1) || file=
            fi
        fi
        if [[ -n $file ]]; then echo "$file"; fi
    done | sort -u
}

# Looks at the units that come in, one a line, and stops beginning others at the second of the argument.
check_units() {
    # shellcheck disable=SC2016 # the inner shell expands it
    xargs -r -d '\n' -P "$(nproc)" -n 1 bash -c '
        if (($(date +%s) >= $0)); then echo "$1" >>build/lint/left; exit 0; fi
        clang-tidy -quiet -p build/lint "$1" 2>/dev/null || { echo "lint: $1 does not pass"; exit 1; }' "$1"
}
readonly kNoEnd=99999999999

tools/setup.sh lint
# A folder of its own: with another compiler's precompiled headers in its commands clang-tidy reads nothing.
cmake --preset release -B build/lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
: >build/lint/left
mapfile -t all < <(git ls-files "${kSources[@]}")
status=0

if [[ ${1-} != --changed ]]; then
    files=("${@:-${all[@]}}")
    clang-format --dry-run -Werror "${files[@]}" || status=1
    units_of "${files[@]}" | check_units "$kNoEnd" || status=1
    exit "$status"
fi

end=$(($(date +%s) + ${2:-0} * 60))
clang-format --dry-run -Werror "${all[@]}" || status=1
changed=()
base=$(landing_base)
if [[ -n $base ]]; then
    mapfile -t changed < <(git diff --name-only --diff-filter=d "$base" -- "${kSources[@]}")
fi
units_of "${changed[@]}" >build/lint/changed
check_units "$end" <build/lint/changed || status=1

mapfile -t rest < <(printf '%s\n' "${all[@]}" | grep '\.cpp$' | grep -vxFf build/lint/changed)
first=$((0x$(git rev-parse --short=7 HEAD) % (${#rest[@]} + 1)))
printf '%s\n' "${rest[@]:first}" "${rest[@]:0:first}" | grep . | check_units "$end" || status=1
echo "lint: $(wc -l <build/lint/changed) units that changed, ${#rest[@]} others; no time for $(wc -l <build/lint/left)"
exit "$status"

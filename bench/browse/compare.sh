#!/bin/bash
# Makes the thumbnails of the benchmark's 1,000 photographs with Debian's vipsthumbnail (package libvips-tools)
# and with the file list, both on one core, and prints the ratio of their rates by processor time; above 1 the
# list is faster.
#   bench/browse/compare.sh BUILD/bin/bench_browse
set -e
bench=$1
export FOTARIUM_BENCH_DIR="${FOTARIUM_BENCH_DIR:-/tmp}" VIPS_CONCURRENCY=1 TIMEFORMAT="%R %U %S"
taskset -c 0 "$bench" --benchmark_filter=NamesOfPhotographs >/dev/null 2>&1 # makes the folder, warms the cache
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# Seconds by the clock, and of the processor.
list() {
  taskset -c 0 "$bench" --benchmark_filter=Thumbnails --benchmark_format=csv 2>/dev/null |
    awk -F, '/^"Thumbnails/ { print $3 / 1000, $4 / 1000 }'
}
vips() {
  { time taskset -c 0 vipsthumbnail -s 110x110 -o "$out/%s.jpg" "$FOTARIUM_BENCH_DIR"/fotarium-large/*.jpg; } 2>&1 |
    awk '{ print $1, $2 + $3 }'
}

for run in 1 2 3; do
  echo "$(list) $(vips)" | awk '{ printf "list %.1f s (processor %.1f s), vipsthumbnail %.1f s (%.1f s), ratio %.2f\n",
    $1, $2, $3, $4, $4 / $2 }'
done

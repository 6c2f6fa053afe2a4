#!/usr/bin/env python3
"""Runs the benchmark of the effects and prints its table, in plain passes (x = 255 - x in place, same run).

effect_table.py BENCH_EFFECTS [FILTER]   BENCH_EFFECTS is the program, FILTER a regular expression over its rows.

A time above what the row may take has a ! behind it; the exit status is then 1.
"""

import json
import subprocess
import sys


def measure(program, names):
    command = [program, "--benchmark_format=json", f"--benchmark_filter={names}"]
    report = json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)
    return [row for row in report["benchmarks"] if "at_most" in row]


def main():
    if len(sys.argv) not in (2, 3):
        print(__doc__.strip(), file=sys.stderr)
        return 2
    table = {}
    for row in measure(sys.argv[1], sys.argv[2] if len(sys.argv) == 3 else "."):
        form, name = row["name"].split("/")[:2]
        table.setdefault(name, {})[form] = (row["passes"], row["at_most"])
    print("| effect | wide | at most | plain | at most |\n|---|---|---|---|---|")
    slow = False
    for name, forms in table.items():
        cells = []
        for form in ("Wide", "Plain"):
            passes, at_most = forms.get(form, (0, 0))
            slow = slow or passes > at_most
            cells += [f"{passes:.1f}{'!' if passes > at_most else ''}", f"{at_most:g}"]
        print(f"| {name} | " + " | ".join(cells) + " |")
    return 1 if slow else 0


if __name__ == "__main__":
    sys.exit(main())

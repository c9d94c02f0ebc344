#!/usr/bin/env python3
"""Writes the mixed expression file for the command-line throughput figure:
arithmetic, brackets, powers, functions, comparisons, assignments and uses of
variables, about 23 characters each, one per line. Deterministic."""
import random
import sys


def number(r):
    return str(r.choice([r.randint(10, 9999), round(r.uniform(1, 10000), 3)]))


def expression(r, i):
    v = "abcdfghk"[i % 8]  # not "e", which is a constant
    forms = [
        lambda: f"{v}={number(r)}*({number(r)}+{number(r)})",
        lambda: f"({number(r)}+{number(r)})/{number(r)}-{v}",
        lambda: f"{number(r)}^2+{number(r)}^0.5-{number(r)}",
        lambda: f"sqrt({number(r)})+sin({number(r)})*{v}",
        lambda: f"{v}>{number(r)} and {number(r)}<=100",
        lambda: f"{v}={v}+{number(r)} mod {r.randint(2, 9)}",
        lambda: f"max({number(r)},{v},{number(r)})+{v}",
        lambda: f"{number(r)}*pi/{number(r)}+e-{v}",
        lambda: f"round({number(r)}/{number(r)},3)",
        lambda: f"{v}={number(r)}%+{number(r)}-{v}*2",
    ]
    return r.choice(forms)()


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 10000
    r = random.Random(1228)
    lines = [expression(r, i) for i in range(count)]
    sys.stdout.write("\n".join(lines) + "\n")
    mean = sum(len(line) for line in lines) / len(lines)
    print(f"{count} expressions, {mean:.1f} characters on average", file=sys.stderr)


if __name__ == "__main__":
    main()

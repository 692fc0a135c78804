# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What was measured, as one table that a person can read."""
import statistics

NAME_WIDTH = 46


def percentile(values, share):
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, int(share * len(ordered)))]


class Report:
    def __init__(self):
        self.lines = []
        self.verdicts = []

    def section(self, title, note="", columns=("median", "min", "p95")):
        self.lines.append("")
        self.lines.append(f"{title:<{NAME_WIDTH}}" + "".join(f"{name:>12}" for name in columns))
        for line in filter(None, note.split("\n")):
            self.lines.append(f"  ({line})")

    def times(self, name, milliseconds):
        """One row; returns the median, in milliseconds."""
        median = statistics.median(milliseconds)
        self.row(name, *(f"{value:.2f} ms" for value in
                         (median, min(milliseconds), percentile(milliseconds, 0.95))))
        return median

    def row(self, name, *cells):
        self.lines.append(f"  {name:<{NAME_WIDTH - 2}}" + "".join(f"{cell:>12}" for cell in cells))

    def goal(self, what, ratio, limit):
        """`ratio` may be at most `limit`."""
        met = ratio <= limit
        self.verdicts.append(met)
        self.lines.append(f"    {what}: {ratio:.2f}x, goal at most {limit:g}x: "
                          f"{'met' if met else 'NOT MET'}")

    def count_goal(self, what, count, limit):
        met = count <= limit
        self.verdicts.append(met)
        self.lines.append(f"    {what}: {count:g}, goal at most {limit:g}: "
                          f"{'met' if met else 'NOT MET'}")

    def line(self, text):
        self.lines.append(f"  {text}")

    def print(self):
        print("\n".join(self.lines))
        print(f"\n{sum(self.verdicts)} of {len(self.verdicts)} goals met")

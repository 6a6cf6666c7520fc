#!/usr/bin/python3
"""Turns the JSON of runs of keli_bench into docs/benchmarks.md and docs/benchmarks.svg.

The document holds ratios, which carry over to other machines better than times do; only the cost
of a call is given in nanoseconds. A run with failed rows is refused.
"""

import argparse
import dataclasses
import html
import json
import pathlib
import statistics
import sys

CHART_SIZE = "640x480"

# What the chart shows, in this order; functions that the run lacks are left out.
CHARTED = [
    "keliCopy_8u_C1R", "keliCopy_8u_C3MR", "keliCopy_8u_C3C1R", "keliCopy_8u_C3AC4R",
    "keliCopy_8u_C3P3R", "keliCopy_16s_C4P4R", "keliSet_8u_C3R", "keliSet_8u_C3MR",
    "keliSwapChannels_8u_C3R", "keliSwapChannels_16u_C3R",
    "keliAdd_8u_C1RSfs:0", "keliAdd_8u_C1RSfs:3", "keliSub_16s_C1RSfs:6", "keliMul_8u_C1RSfs:8",
    "keliMulC_8u_C3RSfs:3", "keliMulScale_8u_C1R", "keliMul_32fc_C1R", "keliDiv_8u_C1RSfs:0",
    "keliDiv_32f_C1R", "keliAnd_8u_C1R", "keliRShiftC_16s_C1R", "keliAbs_16s_C1R",
    "keliSqr_8u_C1RSfs:0", "keliSqrt_8u_C1RSfs:0", "keliSqrt_32f_C1R", "keliLn_32f_C1R",
    "keliExp_32f_C1R",
    "keliThreshold_8u_C1R:less", "keliThreshold_LTValGTVal_16s_C1R", "keliCompare_8u_C1R:less",
    "keliSum_8u_C1R", "keliMean_8u_C3R", "keliMinMax_8u_C1R", "keliMaxIndx_16s_C1R",
    "keliCountInRange_8u_C1R", "keliNorm_L2_32f_C1R", "keliNormDiff_L1_16s_C1R",
    "keliNormRel_L2_8u_C1R",
    "keliConvert_8u16s_C1R", "keliConvert_32f8u_C1R", "keliScale_16u8u_C1R",
    "keliCopyReplicateBorder_8u_C3R", "keliMirror_8u_C3R:vertical", "keliMirror_8u_C1R:both",
    "keliRemap_8u_C1R:linear:photograph", "keliRemap_8u_C1R:cubic:photograph", "keliFilterBox_8u_C1R:5x5",
    "keliFilterBox_32f_C1R:5x5", "keliFilterMax_8u_C1R:3x3", "keliFilterMax_8u_C1R:31x31",
    "keliRGBToYCbCr_8u_C3R", "keliRGBToHSV_8u_C3R", "keliRGBToHLS_32f_C3R", "keliRGBToLUV_8u_C3R",
    "keliRGBToXYZ_8u_C3R", "keliRGBToGray_8u_C3C1R", "keliReduceBits_8u_C1R:bayer",
    "keliReduceBits_8u_C1R:floydSteinberg",
]

HEAD = """\
# Benchmarks

- Processor: {processor}
- Compiler: {compiler}
- Threads: {threads}
- Compared with: {libraries}
- {runs}, with {rounds} rounds for each row.

**limit** is the fraction of the limit's speed that a function reaches. The limit is the fastest way
found, in the same run and on the same images, of moving as many bytes: for functions with a source,
of copying the larger of source and destination (memcpy at once and in pieces of 4 KiB, loops of
32-byte loads and stores, one or four in a round, plain and streaming); for functions of two images,
of reading both and writing their bits joined with such loops; for functions that rewrite a part of
an image without a source, of rewriting it in place with those loops; for fills, of writing the
destination (memset, loops of stores); for functions that only read, of reading the sources (sums of
loads of 8, 32 and 64 bytes); for masks smaller than their sources, of reading these and writing the
mask. A fraction can exceed 1: the loops are not the best possible code, and a function may touch
fewer bytes than its images hold.

**peer** is the time of the best of the other libraries' equivalents divided by the function's time:
above 1 the function is faster. Before it is timed, every peer's result is compared with the
function's. "alpha set" and "alpha copied" mark peers that also write the fourth sample, which the
function leaves alone. A peer of a reduction answers numbers, which are compared; peers of norms take
all channels as one. OpenCV's remap rounds coordinates to 1/32 of a pixel; its result may differ by what
a smooth image changes in that distance. FFTW's plans are made by measurement before they are timed.
What follows a function's name is its scale factor, its relation, the size of its mask, its axis, its
interpolation (and "random" for a map that is not a rotation), its rounding towards zero, the bit of
its first pixel, the noise and method of its dither, or the number of a histogram's levels and what
its image holds where that is not noise.

In every row all contestants take turns over many rounds, each measured over at least 20
microseconds, and the best time of each counts. Images come from the library's allocators; masks
select about half of the pixels, in blobs.

To run: `./dev bench [filter]`, where the filter is a regular expression over names such as
`data/keliCopy_8u_C1R/640x480`; or, after a build, the program `keli_bench`, which also takes
`--quick`, `--padded` (640x480 with rows apart) and `--threads=N` (for the functions and the peers;
the limits stay those of one thread). With `--benchmark_out=run.json --benchmark_out_format=json` it
writes what `bench/report.py run.json` makes this page of.
"""


class BadRun(Exception):
    """The JSON is not of a complete, successful run."""


@dataclasses.dataclass
class Row:
    family: str
    function: str
    size: str
    limit: float
    ns: float
    peer: float | None
    peer_name: str


def read_row(entry):
    family, function, size = entry["name"].split("/")[:3]
    if entry.get("error_occurred"):
        raise BadRun(f"{function} at {size} failed: {entry.get('error_message', '')}")
    label = dict(part.split(": ", 1) for part in entry["label"].split("; "))
    return Row(family, function, size, entry["limit"], entry["ns"], entry.get("peer"),
               label.get("peer", ""))


def joined(runs):
    """One run of all: a family's rows are those of the last run that measured it."""
    context, benchmarks = {}, []
    for run in runs:
        context |= run["context"]
        families = {entry["name"].split("/")[0] for entry in run["benchmarks"]}
        benchmarks = [entry for entry in benchmarks
                      if entry["name"].split("/")[0] not in families] + run["benchmarks"]
    context["runs"] = ("All figures are from one run" if len(runs) == 1 else
                       "All figures of a family are from one run")
    return {"context": context, "benchmarks": benchmarks}


def read_rows(run):
    rows = [read_row(entry) for entry in run["benchmarks"]]
    if not rows:
        raise BadRun("no rows")
    places = set()
    for row in rows:
        if (row.function, row.size) in places:
            raise BadRun(f"{row.function} at {row.size} stands twice")
        places.add((row.function, row.size))
    return rows


def head(context):
    libraries = [f"{key.removeprefix('library ')} {value}" for key, value in context.items()
                 if key.startswith("library ")]
    return HEAD.format(libraries=", ".join(libraries) or "no other library", **context)


def size_order(size):
    region, _, padding = size.partition("+")
    width, height = region.split("x")
    return int(width) * int(height), int(padding or 0)


def summary(rows, size):
    at_size = [row for row in rows if row.size == size]
    text = f"{size}: median limit {statistics.median(row.limit for row in at_size):.2f}"
    peers = [row.peer for row in at_size if row.peer is not None]
    if peers:
        faster = sum(peer > 1 for peer in peers)
        text += (f", median peer {statistics.median(peers):.2f}, "
                 f"faster than the best peer in {faster} of {len(peers)} rows")
    return f"- {text}"


def cells(row):
    if row is None:
        return ["", ""]
    peer = "" if row.peer is None else f"{row.peer:.2f} {row.peer_name}"
    return [f"{row.limit:.2f}", peer]


def table_line(fields):
    return "| " + " | ".join(fields) + " |"


def family_table(rows):
    sizes = sorted({row.size for row in rows}, key=size_order)
    by_place = {(row.function, row.size): row for row in rows}
    lines = [summary(rows, size) for size in sizes] + [""]
    titles = [f"{size} {what}" for size in sizes for what in ("limit", "peer")]
    lines.append(table_line(["function"] + titles))
    lines.append(table_line(["---"] + ["---:", "---"] * len(sizes)))
    for function in dict.fromkeys(row.function for row in rows):
        fields = [field for size in sizes for field in cells(by_place.get((function, size)))]
        lines.append(table_line([f"`{function}`"] + fields))
    return lines


def overhead_table(rows):
    lines = [table_line(["function", "size", "ns"]), table_line(["---", "---", "---:"])]
    lines += [table_line([f"`{row.function}`", row.size, f"{row.ns:.0f}"]) for row in rows]
    return lines


def document(run):
    context = run["context"]
    rows = read_rows(run)
    parts = [head(context), f"![Fractions of the limit at {CHART_SIZE}](benchmarks.svg)", ""]
    for family in dict.fromkeys(row.family for row in rows):
        parts += ["## " + context[f"family {family}"], ""]
        table = overhead_table if family == "overhead" else family_table
        parts += table([row for row in rows if row.family == family]) + [""]
    return "\n".join(parts)


def chart_rows(rows):
    by_name = {row.function: row for row in rows if row.size == CHART_SIZE}
    chosen = [by_name[name] for name in CHARTED if name in by_name]
    return chosen or list(by_name.values())[:len(CHARTED)]


def text(x, y, content, anchor="start", size=12, colour="#222"):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" font-size="{size}" '
            f'fill="{colour}" paint-order="stroke" stroke="#ffffff" stroke-width="3">'
            f"{html.escape(content)}</text>")


def bar(x, y, width, height, colour):
    return (f'<rect x="{x:.1f}" y="{y:.1f}" width="{width:.1f}" height="{height}" '
            f'fill="{colour}"/>')


def axis(left, top, bottom, scale, most):
    parts = []
    steps = 4 if most <= 2.5 else 1
    for i in range(int(most * steps) + 1):
        x = left + scale * i / steps
        full = i == steps
        parts.append(f'<line x1="{x:.1f}" y1="{top}" x2="{x:.1f}" y2="{bottom}" '
                     f'stroke="{"#444" if full else "#ddd"}" stroke-width="{2 if full else 1}"/>')
        parts.append(text(x, top - 6, "limit" if full else f"{i / steps:g}", "middle"))
    return parts


OURS, THEIRS = "#1f6fb4", "#d9a441"


def chart(run):
    rows = chart_rows(read_rows(run))
    pitch, left, right, top, plot = 34, 215, 250, 74, 480
    bottom = top + pitch * len(rows)
    theirs = [row.limit / row.peer if row.peer else 0 for row in rows]
    most = max([1.1] + [row.limit for row in rows] + theirs)
    scale = plot / most
    width, height = left + plot + right, bottom + 16
    title = (f"Fraction of the memory limit reached at {CHART_SIZE}, "
             f"threads: {run['context']['threads']}")
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
             f'viewBox="0 0 {width} {height}" font-family="sans-serif">',
             bar(0, 0, width, height, "#ffffff"),
             text(16, 24, title, size=16),
             bar(left, 36, 12, 12, OURS), text(left + 18, 46, "keli"),
             bar(left + 70, 36, 12, 12, THEIRS), text(left + 88, 46, "best peer")]
    parts += axis(left, top, bottom, scale, most)
    for i, (row, their) in enumerate(zip(rows, theirs)):
        y = top + pitch * i + 5
        parts.append(text(left - 8, y + 16, row.function, "end"))
        parts.append(bar(left, y, scale * row.limit, 12, OURS))
        parts.append(text(left + scale * row.limit + 4, y + 10, f"{row.limit:.2f}", size=10))
        if row.peer:
            parts.append(bar(left, y + 12, scale * their, 12, THEIRS))
            parts.append(text(left + scale * their + 4, y + 22,
                              f"{their:.2f} {row.peer_name}", size=10, colour="#666"))
    return "\n".join(parts + ["</svg>", ""])


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("runs", type=pathlib.Path, nargs="+",
                        help="JSON that keli_bench wrote; later runs replace families of earlier ones")
    parser.add_argument("--docs", type=pathlib.Path,
                        default=pathlib.Path(__file__).resolve().parent.parent / "docs")
    options = parser.parse_args(arguments)
    run = joined([json.loads(path.read_text()) for path in options.runs])
    try:
        page, picture = document(run), chart(run)
    except BadRun as fault:
        print(f"report.py: {fault}", file=sys.stderr)
        return 1
    (options.docs / "benchmarks.md").write_text(page)
    (options.docs / "benchmarks.svg").write_text(picture)
    return 0


if __name__ == "__main__":
    sys.exit(main())

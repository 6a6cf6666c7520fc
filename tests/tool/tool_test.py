#!/usr/bin/env python3
"""The command-line tool: results read back from its PNG files, and bad input of every kind.

Usage: tool_test.py KELI
"""

import os
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

KELI = ""
CHANNELS = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}  # by PNG colour type


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(
        ">I", zlib.crc32(kind + data))


def png(rows, color, depth=8, extra=b"", width=0, height=0):
    """A PNG file from rows of sample lists (bytes for a depth below 8); extra holds chunks that
    stand before the data, width and height may lie."""
    width = width or len(rows[0]) * 8 // min(depth, 8) // CHANNELS[color]
    form = "H" if depth == 16 else "B"
    data = b"".join(b"\0" + struct.pack(f">{len(r)}{form}", *r) for r in rows)
    header = struct.pack(">IIBBBBB", width, height or len(rows), depth, color, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + extra
            + chunk(b"IDAT", zlib.compress(data)) + chunk(b"IEND", b""))


def unfilter(kind, line, above, n):
    for i in range(len(line)):
        a, b = (line[i - n] if i >= n else 0), above[i]
        c = above[i - n] if i >= n else 0
        p = a + b - c
        nearest = min((a, b, c), key=lambda v: abs(p - v))
        line[i] = (line[i] + (0, a, b, (a + b) // 2, nearest)[kind]) & 255
    return line


def read(path):
    """(channels, rows of samples) of an 8-bit file."""
    data, pos, idat = Path(path).read_bytes(), 8, b""
    while pos < len(data):
        size, kind = struct.unpack(">I4s", data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + size]
        if kind == b"IHDR":
            width, height, depth, color = struct.unpack(">IIBB", body[:10])
        idat += body if kind == b"IDAT" else b""
        pos += size + 12
    assert depth == 8
    n, raw, rows = CHANNELS[color], zlib.decompress(idat), []
    above = [0] * (width * n)
    for y in range(height):
        line = raw[y * (width * n + 1):(y + 1) * (width * n + 1)]
        above = unfilter(line[0], list(line[1:]), above, n)
        rows.append(above)
    return n, rows


RGB = [[10, 20, 30, 40, 50, 60, 255, 0, 0], [0, 255, 0, 0, 0, 255, 7, 7, 7]]
GRAY_OF_RGB = [[18, 48, 76], [150, 29, 7]]
GRAY = [[1, 2, 3], [4, 5, 6]]
RGBA = [[1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12], [13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24]]
OPAQUE = [[10, 20, 30, 255, 40, 50, 60, 255, 255, 0, 0, 255],
          [0, 255, 0, 255, 0, 0, 255, 255, 7, 7, 7, 255]]
# name: file
FILES = {
    "rgb.png": png(RGB, 2),
    "gray.png": png(GRAY, 0),
    "rgba.png": png(RGBA, 6),
    "mask.png": png([[0, 127, 128], [255, 1, 200]], 0),
    "deep.png": png([[257 * v for v in row] for row in GRAY], 0, 16),
    "graya.png": png([[9, 100, 8, 200]], 4),
    "palette.png": png([[0b01100000]], 3, 1, chunk(b"PLTE", bytes([1, 2, 3, 200, 100, 50]))),
    "small.png": png([[1]], 0),
    "gamma.png": png(GRAY, 0, 8, chunk(b"gAMA", struct.pack(">I", 100000))),
    "truncated.png": png(RGB, 2)[:-30],
    "header.png": png(RGB, 2)[:40],
    "bomb.png": png([[0]], 0, width=900000, height=900000),
    "short.png": png([[0]], 0, height=3),
    "text.png": b"not an image",
    "empty.png": b"",
}
IN_ROI = [[0] * 9, [0] * 3 + [0, 0, 255, 7, 7, 7]]
SWAPPED = [[v for x in range(0, 9, 3) for v in (r[x + 2], r[x + 1], r[x])] for r in RGB]
PALETTE = [[1, 2, 3, 200, 100, 50, 200, 100, 50, 1, 2, 3] + [1, 2, 3] * 4]
# (command after "run", channels, rows)
RESULTS = [
    ("keliCopy_8u_C3R rgb.png", 3, RGB),
    ("keliCopy_16s_C3R rgb.png", 3, RGB),
    ("keliCopy_32f_C3R rgb.png", 3, RGB),
    ("keliCopy_8u_C1R rgb.png", 1, GRAY_OF_RGB),
    ("keliCopy_32f_C4R rgb.png", 4, OPAQUE),
    ("keliCopy_8u_C4R rgba.png", 4, RGBA),
    ("keliCopy_8u_C4R graya.png", 4, [[9, 9, 9, 100, 8, 8, 8, 200]]),
    ("keliCopy_8u_C1R deep.png", 1, GRAY),
    ("keliCopy_8u_C1R gamma.png", 1, GRAY),
    ("keliCopy_8u_C3R palette.png", 3, PALETTE),
    ("keliCopy_8u_C3R rgb.png --roi 1,1,2,1", 3, IN_ROI),
    ("keliCopy_8u_C1R gray.png --roi 0,0,3,1 --dst mask.png", 1, [[1, 2, 3], [255, 1, 200]]),
    ("keliCopy_8u_AC4R rgb.png", 4, [[0 if i % 4 == 3 else v for i, v in enumerate(r)]
                                     for r in OPAQUE]),
    ("keliCopy_16s_AC4R rgb.png --dst rgba.png", 4,
     [[RGBA[y][i] if i % 4 == 3 else v for i, v in enumerate(r)] for y, r in enumerate(OPAQUE)]),
    ("keliCopy_8u_C1MR gray.png --mask mask.png", 1, [[0, 0, 3], [4, 0, 6]]),
    ("keliCopy_32f_C3C1R rgb.png --srcChannel 2", 1, [[30, 60, 0], [0, 255, 7]]),
    ("keliCopy_8u_C1C4R gray.png --dstChannel 3 --dst rgb.png", 4,
     [[GRAY[y][i // 4] if i % 4 == 3 else v for i, v in enumerate(r)]
      for y, r in enumerate(OPAQUE)]),
    ("keliCopy_8u_C3CR rgb.png --srcChannel 1 --dstChannel 2 --roi 2,0,1,2 --dst rgb.png", 3,
     [[10, 20, 30, 40, 50, 60, 255, 0, 0], RGB[1]]),
    ("keliCopy_8u_C3P3R rgb.png", 3, RGB),
    ("keliCopy_16s_P3C3R rgb.png --roi 1,1,2,1", 3, IN_ROI),
    ("keliCopy_32f_P4C4R rgb.png", 4, OPAQUE),
    ("keliSet_8u_C1R --value 200 --size 3x1", 1, [[200, 200, 200]]),
    ("keliSet_16s_C3R --value -5,300,128 --size 1x2", 3, [[0, 255, 128]] * 2),
    ("keliSet_32f_C3R --value 0.5,1.5,nan --size 1x1", 3, [[0, 2, 255]]),
    ("keliSet_32f_C3R --value 2.5,-inf,1e30 --size 1x1", 3, [[2, 0, 255]]),
    ("keliSet_8u_C3CR --value 99 --dstChannel 1 --dst rgb.png --roi 0,0,3,1", 3,
     [[10, 99, 30, 40, 99, 60, 255, 99, 0], RGB[1]]),
    ("keliSwapChannels_8u_C3IR rgb.png --dstOrder 2,1,0", 3, SWAPPED),
    ("keliSwapChannels_32s_C3R rgb.png --dstOrder 2,1,0", 3, SWAPPED),
    ("keliMirror_8u_C1R gray.png --flip horizontal", 1, [[4, 5, 6], [1, 2, 3]]),
    ("keliMirror_8u_C1IR gray.png --flip both", 1, [[6, 5, 4], [3, 2, 1]]),
    ("keliRemap_8u_C1R gray.png --map rotate:180 --interpolation nearest", 1,
     [[6, 5, 4], [3, 2, 1]]),
    ("keliScale_32f8u_C1R gray.png --vMin 1 --vMax 6", 1, [[0, 51, 102], [153, 204, 255]]),
    ("keliCopyConstBorder_8u_C1R gray.png --roi 1,0,2,2 --size 4x3 --topBorderHeight 1 "
     "--leftBorderWidth 1 --value 9", 1, [[9, 9, 9, 9], [9, 2, 3, 9], [9, 5, 6, 9]]),
    # Neighbourhoods at the edges are of repeated pixels.
    ("keliFilterMax_8u_C1R gray.png --maskSize 3x1 --anchor 0,0", 1, [[3, 3, 3], [6, 6, 6]]),
    ("keliFilterMin_16s_C1R gray.png", 1, [[1, 1, 2], [1, 1, 2]]),
    ("keliErode3x3_8u_C1IR gray.png", 1, [[1, 1, 2], [1, 1, 2]]),
    ("keliErode3x3_8u_C1IR gray.png --roi 1,0,1,2", 1, [[1, 1, 3], [4, 1, 6]]),
    ("keliDilate_8u_C1R gray.png --pMask cross", 1, [[4, 5, 6], [5, 6, 6]]),
]
# (command, what is printed after the status)
PRINTED = [
    ("keliHistogramEven_8u_C1R gray.png --nLevels 3 --lowerLevel 0 --upperLevel 8",
     "pHist:\n  0 <= v < 4: 3\n  4 <= v < 8: 3\n"),
    ("keliHistogramEven_8u_C3R rgb.png --nLevels 3,2,2 --lowerLevel 0 --upperLevel 256,8,256",
     "pHist, channel 0:\n  0 <= v < 128: 5\n  128 <= v < 256: 1\n"
     "pHist, channel 1:\n  0 <= v < 8: 3\npHist, channel 2:\n  0 <= v < 256: 6\n"),
    ("keliHistogramRange_8u_C1R gray.png --roi 1,0,2,2 --pLevels 2,4,6",
     "pHist:\n  2 <= v < 4: 2\n  4 <= v < 6: 1\n"),
    ("keliHistogramRange_16s_AC4R rgb.png --pLevels -9,8",
     "".join(f"pHist, channel {k}:\n  -9 <= v < 8: 3\n" for k in range(3))),
    ("keliHistogramRange_32f_C4R rgb.png --pLevels 0,0.1;-inf,20;1e-20,30.5,3e38;255,256",
     "pHist, channel 0:\n  0 <= v < 0.1: 2\npHist, channel 1:\n  -inf <= v < 20: 3\n"
     "pHist, channel 2:\n  1e-20 <= v < 30.5: 2\n  30.5 <= v < 3e+38: 2\n"
     "pHist, channel 3:\n  255 <= v < 256: 6\n"),
]
EVEN = "keliHistogramEven_8u_C3R rgb.png --lowerLevel 0"
# (command, words that the message must hold)
MISTAKES = [
    ("", "no command"), ("frobnicate", "frobnicate"), ("info", "needs"), ("version 1", "'1'"),
    ("info keliCpy_8u_C1R", "near matches: keliCopy_8u_C1R,"),
    ("info zzzzzzzz", "unknown function 'zzzzzzzz'"), ("list zzz", "zzz"),
    ("run keliCopy_8u_C1r a.png -o o.png", "keliCopy_8u_C1R"),
    ("run keliFree -o o.png", "not an image function"),
    ("run keliMalloc_8u_C1 -o o.png", "not an image function"),
    ("run keliGetLibVersion", "not an image function"),
    ("run keliCopy_8u_C1R none.png -o o.png", "none.png: cannot open"),
    ("run keliCopy_8u_C1R . -o o.png", ".: not a readable PNG"),
    ("run keliCopy_8u_C1R truncated.png -o o.png", "truncated.png: damaged PNG"),
    ("run keliCopy_8u_C1R header.png -o o.png", "header.png"),
    ("run keliCopy_8u_C1R bomb.png -o o.png", "bomb.png: the image is too large"),
    ("run keliCopy_8u_C1R short.png -o o.png", "short.png: damaged PNG"),
    ("run keliCopy_8u_C1R text.png -o o.png", "text.png: not a readable PNG"),
    ("run keliCopy_8u_C1R empty.png -o o.png", "empty.png: not a readable PNG"),
    ("run keliCopy_8u_C1MR gray.png --mask text.png -o o.png", "text.png"),
    ("run keliCopy_8u_C1R gray.png --dst text.png -o o.png", "text.png"),
    ("run keliCopy_8u_C1R gray.png --frob 1 -o o.png", "no option --frob"),
    ("run keliCopy_8u_C1R gray.png --mask mask.png -o o.png", "no option --mask"),
    ("run keliCopy_8u_C1R gray.png -o", "-o needs a value"),
    ("run keliCopy_8u_C1R gray.png -o o.png -o p.png", "-o is given twice"),
    ("run keliCopy_8u_C1R gray.png", "needs option -o"),
    ("run keliCopy_8u_C1R -o o.png", "needs 1 input file(s), got 0"),
    ("run keliCopy_8u_C1R gray.png gray.png -o o.png", "needs 1 input file(s), got 2"),
    ("run keliCopy_8u_C1MR gray.png -o o.png", "needs option --mask"),
    ("run keliSwapChannels_8u_C3R rgb.png -o o.png", "needs option --dstOrder"),
    ("run keliCopy_8u_C1R gray.png -o none/o.png", "none/o.png: cannot write"),
    ("run keliCopy_8u_C1R gray.png -o /dev/full", "/dev/full: cannot write"),
    ("run keliCopy_8u_C1R gray.png", "needs option -o"),
    ("run keliHistogramRange_8u_C1R gray.png --pLevels 0,1 -o none/o.png", "none/o.png: cannot"),
    ("run keliHistogramRange_8u_C1R gray.png -o o.png", "needs option --pLevels"),
    ("run keliHistogramRange_8u_C1R gray.png --pLevels 0,1 --nLevels 2", "no option --nLevels"),
    ("run keliHistogramRange_8u_C1R gray.png --pLevels 0,,1", "--pLevels: '' is not"),
    ("run keliHistogramRange_8u_C1R gray.png --pLevels 0,1;0,1", "--pLevels: needs 1, got"),
    ("run keliHistogramRange_8u_C1R gray.png --pLevels 0,2147483648", "2147483648 is out of"),
    ("run keliHistogramRange_8u_C3R rgb.png --pLevels 0,1;2,3", "needs 1 for all channels or 3"),
    (f"run {EVEN} --nLevels 5", "needs option --upperLevel"),
    (f"run {EVEN} --upperLevel 9 --nLevels 5,6", "--nLevels: needs 1 for all channels or 3"),
    (f"run {EVEN} --upperLevel 9,8,7,6 --nLevels 5", "--upperLevel: needs 1 for all"),
    (f"run {EVEN} --upperLevel 9 --nLevels 2147483647", "2147483647 is more than 1048576"),
    ("run keliCopy_8u_C3C1R rgb.png --srcChannel 3 -o o.png", "--srcChannel: 3 is out of range"),
    ("run keliCopy_8u_C1C3R gray.png --dstChannel -1 -o o.png", "--dstChannel: -1"),
    ("run keliSet_8u_C1R --value 1 -o o.png", "--size WxH or --dst"),
    ("run keliSet_8u_C1R --value 1 --dst gray.png --size 1x1 -o o.png", "exclude each other"),
    ("run keliSet_8u_C1MR --value 1 --mask mask.png --size 4x2 -o o.png", "leaves mask.png"),
    ("run keliCopy_8u_C1R gray.png --dst small.png -o o.png", "leaves small.png"),
] + [(f"run keliSet_8u_C1R --value {v} --size 2x2 -o o.png", f"--value: {m}") for v, m in [
    ("256", "256 is out of range"), ("-1", "-1 is out"), ("1.5", "'1.5' is not an integer"),
    ("x", "'x' is not"), ("1,2", "needs 1 number(s)"), ("99999999999999999999", "9999"),
]] + [(f"run keliSet_32f_C3R --value {v} --size 2x2 -o o.png", f"--value: {m}") for v, m in [
    ("1,2", "needs 3 number(s)"), ("1,2,3,4", "needs 3"), ("1,,3", "'' is not a number"),
    ("1,2,1e39", "1e39 is out of range"), ("1,2,3e", "'3e' is not"), ("1,2,1e999", "1e999"),
]] + [(f"run keliSet_8u_C1R --value 1 --size {s} -o o.png", f"--size: {m}") for s, m in [
    ("2", "needs 2"), ("0x5", "0x5 is empty"), ("axb", "'a' is not"), ("-1x5", "-1x5"),
    ("2000000000x2000000000", "2000000000x2000000000 is too large"),
]] + [(f"run keli{call} -o o.png", m) for call, m in [
    ("Dilate_8u_C1R gray.png --pMask star", "'star' is none of ellipse, cross, rectangle"),
    ("FilterMax_8u_C1R gray.png --maskSize 5000x1", "5000x1 is more than 4096"),
    ("Mirror_8u_C1R gray.png --flip diagonal", "'diagonal' is none of horizontal, vertical, both"),
    ("Remap_8u_C1R gray.png --map wave:3", "'wave:3' is neither"),
    ("Remap_8u_C1R gray.png", "needs option --map"),
    ("CopyWrapBorder_32s_C1IR gray.png", "cannot supply argument pSrcDst"),
]] + [(f"run keliCopy_8u_C1R gray.png -o o.png --roi {r}", m) for r, m in [
    ("0,0,0,1", "--roi: 0,0,0,1 is empty"), ("0,0,1,-1", "empty"), ("1,0,3,1", "leaves gray.png"),
    ("0,-1,1,1", "leaves gray.png"), ("2147483647,0,2,1", "leaves"), ("0,0,1", "needs 4"),
    ("a,0,1,1", "'a' is not an integer"),
]]


class ToolTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        for name, data in FILES.items():
            (self.folder / name).write_bytes(data)

    def keli(self, line):
        return subprocess.run([KELI] + line.split(), cwd=self.folder, capture_output=True,
                              text=True, timeout=60)

    def test_results(self):
        for line, channels, rows in RESULTS:
            with self.subTest(line):
                (self.folder / "o.png").unlink(missing_ok=True)
                done = self.keli(f"run {line} -o o.png")
                self.assertEqual((done.returncode, done.stdout, done.stderr),
                                 (0, "kelStatusOk (0)\n", ""))
                self.assertEqual(read(self.folder / "o.png"), (channels, rows))

    def test_printed_results(self):
        for line, text in PRINTED:
            with self.subTest(line):
                done = self.keli(f"run {line}")
                self.assertEqual((done.returncode, done.stdout, done.stderr),
                                 (0, "kelStatusOk (0)\n" + text, ""))

    def bars(self, line):
        """The heights of the bars in each channel of a drawn histogram."""
        done = self.keli(f"run {line} -o o.png")
        self.assertEqual((done.returncode, done.stdout), (0, "kelStatusOk (0)\n"), done.stderr)
        channels, rows = read(self.folder / "o.png")
        self.assertEqual(len(rows), 256)
        columns = [[row[i] for row in rows] for i in range(len(rows[0]))]
        for column in columns:
            self.assertEqual(column, sorted(column))
        return [[sum(v > 0 for v in c) for c in columns[k::channels]] for k in range(channels)]

    def test_drawn_histograms(self):
        gray = "keliHistogramRange_8u_C1R gray.png --pLevels"
        self.assertEqual(self.bars(f"{gray} 0,2,6,9"), [[64] * 86 + [256] * 86 + [64] * 86])
        many = self.bars(f"{gray} {','.join(str(v) for v in range(-2000, 2001))}")
        self.assertEqual((len(many[0]), max(many[0])), (1024, 256))
        self.assertEqual(sum(h > 0 for h in many[0]), 2)
        self.assertEqual(self.bars("keliHistogramRange_8u_C3R rgb.png --pLevels 0,8;0,21;255,256"),
                         [[192] * 256, [256] * 256, [64] * 256])

    def test_too_few_levels(self):
        for line in ["Range_8u_C1R gray.png --pLevels 5", "Range_32f_C3R rgb.png --pLevels 1,2;3;4,5",
                     "Even_8u_C1R gray.png --nLevels -3 --lowerLevel 0 --upperLevel 9"]:
            done = self.keli(f"run keliHistogram{line} -o o.png")
            self.assertEqual((done.returncode, done.stdout, done.stderr),
                             (1, "kelStatusBadHistogramLevels (-107)\n", ""))
            self.assertFalse((self.folder / "o.png").exists())

    def test_mistakes(self):
        for line, words in MISTAKES:
            with self.subTest(line):
                done = self.keli(line)
                self.assertEqual((done.returncode, done.stdout), (2, ""), done.stderr)
                self.assertRegex(done.stderr, r"\Akeli: [^\n]*\n\Z")
                self.assertIn(words, done.stderr)
                self.assertFalse((self.folder / "o.png").exists())

    def test_error_of_the_function(self):
        done = self.keli("run keliSwapChannels_8u_C3R rgb.png --dstOrder 0,1,3 -o o.png")
        self.assertEqual((done.returncode, done.stdout), (1, "kelStatusBadChannelOrder (-60)\n"))
        self.assertFalse((self.folder / "o.png").exists())

    def test_list(self):
        total = self.keli("list").stdout.splitlines()
        self.assertEqual(total[-1], f"{len(total) - 1} of {len(total) - 1} functions")
        for pattern, count in [("SET_16S_c4", 3), ("kelicopy_8u_ac4*", 3), ("*copy*_C?P?R", 6)]:
            lines = self.keli(f"list {pattern}").stdout.splitlines()
            self.assertEqual(lines[-1], f"{count} of {len(total) - 1} functions", pattern)
            self.assertEqual(len(lines), count + 1)

    def test_info_and_version(self):
        swap = self.keli("info keliSwapChannels_8u_C3IR").stdout
        for words in ["KelStatus keliSwapChannels_8u_C3IR(Kel8u* pSrcDst,", "inOut 8u C3",
                      "order [3]", "1. kelStatusNullPointer (-8)",
                      "4. kelStatusBadChannelOrder (-60)"]:
            self.assertIn(words, swap)
        self.assertNotIn("array of values", self.keli("info keliSet_8u_C1R").stdout)
        self.assertIn("array of values", self.keli("info keliSet_8u_C3R").stdout)
        self.assertRegex(self.keli("version").stdout, r"\A\d+\.\d+\.\d+\.\d+\n")
        self.assertEqual(self.keli("help").returncode, 0)


if __name__ == "__main__":
    KELI = os.path.abspath(sys.argv.pop(1))
    unittest.main()

#!/usr/bin/python3
"""Tests of report.py on a small run made up for them."""

import contextlib
import io
import json
import pathlib
import tempfile
import unittest
import xml.etree.ElementTree

import report

CONTEXT = {
    "processor": "P", "compiler": "C", "threads": "1", "rounds": "at least 15",
    "family data": "Copy & more", "family overhead": "Cost of a call", "library OpenCV": "4.6",
}


def entry(name, limit, peer=None, peer_name="", ns=100.0):
    result = {"name": name + "/iterations:1/manual_time", "limit": limit, "ns": ns,
              "label": "limit: memcpy of 4 KiB"}
    if peer is not None:
        result |= {"peer": peer, "label": f"peer: {peer_name}; " + result["label"]}
    return result


def sample_run():
    return {"context": CONTEXT, "benchmarks": [
        entry("overhead/keliCopy_8u_C1R/16x16+48", 1.5, ns=41.4),
        entry("data/keliCopy_8u_C1R/3840x2160", 0.5),
        entry("data/keliCopy_8u_C1R/64x64", 0.25, 2.0, "OpenCV cvtColor, alpha set"),
        entry("data/keliCopy_8u_C1R/640x480", 0.8, 0.5, "libyuv <CopyPlane>"),
        entry("data/keliCopy_8u_C3R/64x64", 0.75, 0.9, "libyuv CopyPlane"),
    ]}


class Joined(unittest.TestCase):
    def test_a_later_run_replaces_whole_families(self):
        later = {"context": CONTEXT | {"family fft": "Fourier", "library FFTW": "3"},
                 "benchmarks": [entry("data/keliCopy_8u_C1R/64x64", 0.3),
                                entry("fft/keliFFT/64x64", 0.1)]}
        run = report.joined([sample_run(), later])
        self.assertEqual([e["name"].rpartition("/iter")[0] for e in run["benchmarks"]],
                         ["overhead/keliCopy_8u_C1R/16x16+48", "data/keliCopy_8u_C1R/64x64",
                          "fft/keliFFT/64x64"])
        text = report.document(run)
        self.assertIn("- All figures of a family are from one run, with", text)
        self.assertIn("- Compared with: OpenCV 4.6, FFTW 3", text)


class Document(unittest.TestCase):
    def setUp(self):
        self.lines = report.document(report.joined([sample_run()])).splitlines()

    def test_sizes_stand_in_order_and_missing_ones_stay_empty(self):
        self.assertIn("| function | 64x64 limit | 64x64 peer | 640x480 limit | 640x480 peer "
                      "| 3840x2160 limit | 3840x2160 peer |", self.lines)
        self.assertIn("| `keliCopy_8u_C1R` | 0.25 | 2.00 OpenCV cvtColor, alpha set "
                      "| 0.80 | 0.50 libyuv <CopyPlane> | 0.50 |  |", self.lines)
        self.assertIn("| `keliCopy_8u_C3R` | 0.75 | 0.90 libyuv CopyPlane |  |  |  |  |",
                      self.lines)

    def test_summary_counts_rows_with_peers(self):
        self.assertIn("- 64x64: median limit 0.50, median peer 1.45, "
                      "faster than the best peer in 1 of 2 rows", self.lines)
        self.assertIn("- 3840x2160: median limit 0.50", self.lines)

    def test_only_the_cost_of_a_call_is_a_time(self):
        self.assertIn("| `keliCopy_8u_C1R` | 16x16+48 | 41 |", self.lines)
        self.assertFalse([line for line in self.lines if "| 100 |" in line])

    def test_padded_sizes_follow_the_plain_ones(self):
        sizes = sorted(["640x480+32", "3840x2160", "640x480", "64x64"], key=report.size_order)
        self.assertEqual(sizes, ["64x64", "640x480", "640x480+32", "3840x2160"])


class Refused(unittest.TestCase):
    def test_a_name_that_stands_twice(self):
        run = sample_run()
        run["benchmarks"].append(entry("data/keliCopy_8u_C3R/64x64", 0.5))
        with self.assertRaisesRegex(report.BadRun, "keliCopy_8u_C3R at 64x64"):
            report.document(run)


class Chart(unittest.TestCase):
    def test_bars_are_in_proportion(self):
        root = xml.etree.ElementTree.fromstring(report.chart(sample_run()))
        bars = {r.get("fill"): float(r.get("width")) for r in root if r.tag.endswith("rect")}
        # The peer takes half of the time: 1.6 of the limit against 0.8.
        self.assertAlmostEqual(bars[report.THEIRS] / bars[report.OURS], 2, places=2)
        texts = [t.text for t in root if t.tag.endswith("text")]
        self.assertIn("1.60 libyuv <CopyPlane>", texts)


class Main(unittest.TestCase):
    def run_main(self, run):
        with tempfile.TemporaryDirectory() as place:
            path = pathlib.Path(place)
            (path / "run.json").write_text(json.dumps(run))
            errors = io.StringIO()
            with contextlib.redirect_stderr(errors):
                code = report.main([str(path / "run.json"), "--docs", place])
            return code, sorted(p.suffix for p in path.iterdir()), errors.getvalue()

    def test_writes_page_and_chart(self):
        self.assertEqual(self.run_main(sample_run()), (0, [".json", ".md", ".svg"], ""))

    def test_refuses_failed_and_empty_runs(self):
        run = sample_run()
        run["benchmarks"][2] = {"name": "data/keliCopy_8u_C1R/64x64", "error_occurred": True,
                                "error_message": "another result"}
        code, files, errors = self.run_main(run)
        self.assertEqual((code, files), (1, [".json"]))
        self.assertIn("keliCopy_8u_C1R at 64x64 failed: another result", errors)
        self.assertEqual(self.run_main({"context": CONTEXT, "benchmarks": []})[:2], (1, [".json"]))


if __name__ == "__main__":
    unittest.main()

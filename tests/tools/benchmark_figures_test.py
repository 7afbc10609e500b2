"""Tests of what benchmarks/run makes of its measurements."""

import math
import os
import sys
import tempfile
import unittest

import loading

sys.path.insert(0, os.path.join(os.path.dirname(loading.TOOLS), "benchmarks"))
from measuring import figures, instructions, peer, place, processes  # noqa: E402


class FiguresTest(unittest.TestCase):
    def test_Median_OddAndEvenNumbers_IsTheMiddle(self):
        self.assertEqual(figures.Median([9, 1, 5]), 5)
        self.assertEqual(figures.Median([9, 1, 5, 6]), 5.5)
        self.assertRaises(ValueError, figures.Median, [])

    def test_Ratio_OneWildRound_ChangesNothing(self):
        self.assertEqual(figures.Ratio([2, 2, 900], [1, 1, 0.001]), 2)
        self.assertEqual(figures.Ratio([2], [0]), math.inf)

    def test_Exponent_CostGrowsWithSize_IsItsPower(self):
        self.assertAlmostEqual(figures.Exponent([1], [10], 10), 1)
        self.assertAlmostEqual(figures.Exponent([1], [100], 10), 2)

    def test_Verdict_FigureAndBound_AreComparedTheRightWay(self):
        for value, bound, least, verdict in ((1.5, 1.5, False, figures.HELD), (1.51, 1.5, False, figures.NOT_HELD),
                                             (150, 150, True, figures.HELD), (149, 150, True, figures.NOT_HELD)):
            self.assertEqual(figures.Result("1", "", "", value, bound, least).Verdict(), verdict)
        self.assertEqual(figures.NotMeasured("1", "", "no disk").Verdict(), figures.NOT_MEASURED)

    def test_Short_Numbers_HaveThreeDigitsThatCount(self):
        self.assertEqual([figures.Short(number) for number in (0.012345, 1.2345, 12.345, 1234.5)],
                         ["0.0123", "1.23", "12.3", "1234"])
        self.assertEqual(figures.Short(0), "0")
        self.assertEqual(figures.Short(math.inf), "inf")

    def test_Seconds_SmallAndLarge_HaveTheirUnit(self):
        self.assertEqual([figures.Seconds(time) for time in (12.5, 0.0125, 0.0000125)], ["12.5 s", "12.5 ms", "12.5 µs"])

    def test_Table_Results_StandInColumns(self):
        lines = figures.Table([figures.Result("1", "import", "5 µs", 2.5, 2.0, kind="clock"),
                               figures.NotMeasured("10b", "list", "no peer")]).splitlines()
        self.assertEqual(len(lines), 3)
        self.assertEqual(lines[1].split(), ["1", "import", "5", "µs", "2.50", "at", "most", "2.00", "clock", "NOT",
                                            "HELD"])
        self.assertTrue(lines[2].endswith(figures.NOT_MEASURED))
        self.assertEqual(lines[0].index("verdict"), lines[1].index("NOT HELD"))


class InstructionsTest(unittest.TestCase):
    def test_Compare_CountsBesideKeptOnes_TellTheChange(self):
        lines = instructions.Compare({"a": 1100, "b": 5}, {"a": 1000})
        self.assertEqual(lines, ["a: 1,100 instructions, +10.00 % against 1,000", "b: 5 instructions, nothing kept"])

    def test_Load_AfterSave_IsTheSame(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "counts.json")
            self.assertEqual(instructions.Load(path), {})
            instructions.Save(path, {"a": 1})
            self.assertEqual(instructions.Load(path), {"a": 1})


class ProcessesTest(unittest.TestCase):
    def test_Run_Program_CostsTimeAndMemory(self):
        cost = processes.Run([sys.executable, "-c", "print(sum(range(300000)))"])
        self.assertGreater(cost.cpu, 0)
        self.assertGreaterEqual(cost.wall, 0)
        self.assertGreater(cost.peak, 1 << 20)

    def test_Run_ProgramThatFails_Fails(self):
        self.assertRaises(processes.RunError, processes.Run, [sys.executable, "-c", "raise SystemExit(3)"])

    def test_Rounds_TwoRuns_TakeTurns(self):
        calls = []
        costs = processes.Rounds(2, lambda: calls.append("a") or 1, lambda: calls.append("b") or 2)
        self.assertEqual(calls, ["a", "b", "a", "b"])
        self.assertEqual(costs, [[1, 1], [2, 2]])


class PlaceTest(unittest.TestCase):
    def test_Describe_RootFolder_NamesItsFileSystem(self):
        kind, _ = place.FileSystem("/")
        self.assertNotEqual(kind, "unknown")
        self.assertIn(kind, place.Describe("/"))


class PeerTest(unittest.TestCase):
    def test_Fill_Intervals_StandInTheFilesOfTheirMonths(self):
        with tempfile.TemporaryDirectory() as folder:
            database = peer.Peer(os.path.join(folder, "peer"))
            start = 45838 * 86400 - 300  # 2025-06-29 23:55
            database.Fill([(start, start + 300, "Plan", 'a "b"'), (start + 300, start + 600, "Plan", "c")])
            with open(os.path.join(database.folder, "data", "2025-06.data"), encoding="utf-8") as june:
                self.assertEqual(june.read(), "inc 20250629T235500Z - 20250630T000000Z # \"Plan\" \"a 'b'\"\n"
                                 "inc 20250630T000000Z - 20250630T000500Z # \"Plan\" \"c\"\n")


if __name__ == "__main__":
    unittest.main()

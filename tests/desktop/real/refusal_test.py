"""The desktop program over a profile that can't be opened: a window says what to do, and it is tried again there."""

import unittest

import screens

screens.StartX11()

from program import Hand, Program, Walk  # noqa: E402
from screens import WaitFor  # noqa: E402


class RefusalTest(unittest.TestCase):
    def setUp(self):
        self.program = Program()
        self.addCleanup(lambda: self.program.process and screens.End(self.program.process))
        self.program.MakeUpDays()
        self.mailbox = self.program.profile / "mailbox.db"
        self.whole = self.mailbox.read_bytes()
        self.mailbox.write_bytes(b"garbage")
        self.program.Start()

    def Refusal(self):
        """The window that says so, in front."""
        window = self.program.Window()
        WaitFor(lambda: Hand.Front() == self.program.process.pid, "the window in front")
        said = " ".join(node.name for node in Walk(window))
        self.assertIn(f"The mailbox {self.mailbox} isn't a mailbox: move it away, or name another profile.", said)
        self.assertIn(f"tempodial --profile '{self.program.profile}' doctor", said)
        return window

    def test_Escape_EndsAsCommandsDo(self):
        self.Refusal()
        Hand().Keys("Escape")
        self.assertEqual(self.program.Ended(), 1)
        self.assertEqual(self.mailbox.read_bytes(), b"garbage")

    def test_TryAgain_WithAGoodCopy_OpensTheLog(self):
        self.Refusal()
        Hand().Keys("alt+t")
        self.Refusal()
        self.mailbox.write_bytes(self.whole)
        Hand().Keys("alt+t")
        self.assertTrue(self.program.Agenda())


if __name__ == "__main__":
    unittest.main()

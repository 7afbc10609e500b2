"""Tests of what shells complete."""

import json
import unittest

import shells


class CompletionTest(shells.Shells):
    def Commands(self):
        return json.loads(self.Program("completion", "outline"))

    def Ways(self):
        """The shells that are there, each as a function from a line to the words that it offers for the last."""
        def Matching(offers, line):
            return [offer for offer in offers if offer.startswith(line.split(" ")[-1])]

        ways = {"bash": self.Bash}
        for name, way in (("zsh", self.Zsh), ("fish", self.Fish)):
            if self.Has(name):
                ways[name] = lambda line, way=way: Matching(way(line), line)
        return ways.items()

    def Expect(self, line, *words):
        for name, way in self.Ways():
            self.assertEqual(sorted(way(line)), sorted(words), (name, line))

    def test_FirstWord_OffersCommands(self):
        own = {command["name"] for command in self.Commands()} - {""}
        words = {name.split(" ")[0] for name in own}
        for name, way in self.Ways():
            self.assertEqual(set(way("tempodial ")), words, name)
        self.Expect("tempodial exp", "export")
        self.Expect("tempodial nothing exp")

    def test_CommandBelowAnother_IsOffered(self):
        below = [command["name"].split(" ")[1] for command in self.Commands() if command["name"].startswith("projects ")]
        self.Expect("tempodial projects ", *below)
        self.Expect("tempodial --json projects ", *below)
        self.Expect("tempodial projects set --precedence ", "high", "medium", "low")

    def test_EachOption_OfEachCommand_IsOffered(self):
        commands = self.Commands()
        common = {argument["names"][-1] for argument in commands[0]["arguments"]}
        for command in commands[1:]:
            own = {argument["names"][-1] for argument in command["arguments"] if argument["option"]}
            self.assertEqual(set(self.Bash(f"tempodial {command['name']} --")), own | common, command["name"])

    def test_Options_AreThoseOfTheCommand(self):
        self.Expect("tempodial report --wo", "--work-week")
        self.Expect("tempodial list --wo")
        self.Expect("tempodial list --js", "--json")

    def test_ValueOfAnOption_IsOneOfItsWords(self):
        self.Expect("tempodial report --by p", "project")
        self.Expect("tempodial report --text --by d", "description", "date")
        self.Expect("tempodial export --format ", "ics", "csv", "json")
        self.Expect("tempodial completion ", "bash", "zsh", "fish")

    def test_ValueBehindAnEqualsSign_IsOffered(self):
        self.assertEqual(self.Bash("tempodial report --by=p", "tempodial", "report", "--by", "=", "p"), ["project"])
        self.assertEqual(self.Bash("tempodial export --format=", "tempodial", "export", "--format", "="),
                         ["ics", "csv", "json"])

    def test_Days_AreOffered(self):
        self.Expect("tempodial list last-", "last-week", "last-month", "last-year")
        self.Expect("tempodial list --from to", "today")
        self.Expect("tempodial problem-report --day w", "wednesday")

    def test_ArgumentBehindTheLast_GetsNoWords(self):
        self.Expect("tempodial list today to")

    def test_Projects_AreAskedOfTheProgram(self):
        self.Program("projects", "set", "Riverside", "--subject", "river")
        self.Program("projects", "set", "Rio: 3 houses", "--subject", "rio")
        self.Expect("tempodial apply Riv", "Riverside")
        for before in ("list --project", "timesheet", "projects rename", "projects remove", "assign", "edit @1 --project",
                       "add --project", "summary --project", "export --project"):
            self.Expect(f"tempodial {before} Riv", "Riverside")
        self.assertEqual(self.Bash("tempodial apply Ri"), [r"Rio:\ 3\ houses", "Riverside"])
        self.assertEqual(self.Bash('tempodial apply "Rio', "tempodial", "apply", '"Rio'), ["Rio: 3 houses"])
        self.assertEqual(self.Bash(r"tempodial apply Rio:\ 3", "tempodial", "apply", "Rio", ":", r"\ 3"),
                         [r"\ 3\ houses"])

    def test_Projects_AreThoseOfTheProfileNamed(self):
        self.Program("--profile", str(self.folder / "other one"), "projects", "set", "Elsewhere", "--subject", "else")
        self.assertEqual(self.Bash("tempodial --profile ~/other\\ one apply E",
                                   "tempodial", "--profile", "~/other\\ one", "apply", "E"), ["Elsewhere"])
        self.assertEqual(self.Bash("tempodial apply E"), [])

    def test_Activities_AreAskedOfTheProgram(self):
        self.Program("--quiet", "demo", "--days", "2")
        self.Program("--quiet", "sync")
        numbers = [line.split(" ")[0] for line in self.Program("list", "--ids", "-7d").splitlines() if line[:1] == "@"]
        self.assertTrue(numbers)
        for name, way in self.Ways():
            if name != "bash":
                self.assertEqual(sorted(way("tempodial edit @")), sorted(numbers), name)
        # What stands before the sign and the sign itself aren't replaced in bash.
        self.assertEqual(sorted(self.Bash("tempodial edit @", "tempodial", "edit", "@")),
                         sorted(number[1:] for number in numbers))
        self.assertEqual(sorted(self.Bash("tempodial delete @1 ", "tempodial", "delete", "@", "1", "")), sorted(numbers))

    def test_NoProfile_MakesNone(self):
        self.assertEqual(self.Bash("tempodial apply "), [r"No\ Project"])
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_Files_AreOffered(self):
        (self.folder / "my page.html").touch()
        (self.folder / "my folder").mkdir()
        self.assertEqual(sorted(self.Bash("tempodial report --out my")), ["my folder", "my page.html"])
        self.assertEqual(self.Bash("tempodial --profile my"), ["my folder"])


if __name__ == "__main__":
    unittest.main()

"""Tests that docs/command-line.md says what the program does, and all of it."""

import json
import pathlib
import re
import shlex
import unittest

import shells

PAGE = (pathlib.Path(__file__).resolve().parents[2] / "docs/command-line.md").read_text(encoding="utf-8")
COMMON, _, COMMANDS = PAGE.partition("\n## Commands\n")

# What needs a desktop or a recorder that runs, or changes the user's session.
SHOWN_ONLY = {"track"} | {"track " + word for word in ("probe", "pause", "resume", "project", "install", "uninstall")}

SURROUNDINGS = ("--locale", "en_US", "--now", "2006-10-10T17:00:00")


def Sections():
    """The sections on commands, by their names."""
    found = re.split(r"^### (.*)$", COMMANDS, flags=re.MULTILINE)[1:]
    return dict(zip(found[::2], found[1::2]))


def Options(text):
    """The options that a text names."""
    return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", text))


def Synopsis(section):
    """The lines that show how a command is called."""
    return "\n".join(line for line in section.split("\n") if line.startswith("    "))


def Examples(section):
    """The calls of a section, each with the JSON that it answers."""
    return re.findall(r"^```json\n\$ tempodial (.*)\n((?:.*\n)*?)```$", section, re.MULTILINE)


def Shape(value):
    """What a document is made of: the names of its fields and the kinds of values; of a list its first entry."""
    if isinstance(value, dict):
        return {name: Shape(one) for name, one in value.items()}
    if isinstance(value, list):
        return [Shape(one) for one in value[:1]]
    return "number" if isinstance(value, (int, float)) and not isinstance(value, bool) else type(value).__name__


class CommandLinePageTest(shells.Shells):
    def setUp(self):
        super().setUp()
        self.commands = {command["name"]: command for command in json.loads(self.Program("completion", "outline"))}

    def Own(self, name):
        return {argument["names"][-1] for argument in self.commands[name]["arguments"] if argument["option"]}

    def test_Sections_AreThoseOfTheProgramsCommands(self):
        self.assertEqual(set(Sections()), set(self.commands) - {""})

    def test_Synopsis_NamesTheOptionsOfTheCommand(self):
        for name, section in Sections().items():
            self.assertEqual(Options(Synopsis(section)), self.Own(name) - {"--help"}, name)
            for line in re.findall(r"^    tempodial (.*)$", section, re.MULTILINE):
                self.assertTrue(line.startswith(name), name)

    def test_Sections_NameNoOtherOptions(self):
        for name, section in Sections().items():
            self.assertLessEqual(Options(section), self.Own(name) | self.Own(""), name)

    def test_OptionsOfEveryCommand_AreNamed(self):
        table = COMMON.partition("## Options of every command")[2].partition("\n## ")[0]
        self.assertEqual(Options(table), self.Own(""))

    def test_Examples_AnswerAsTheyAreShown(self):
        self.Program(*SURROUNDINGS, "--quiet", "demo", "--days", "3")
        self.Program(*SURROUNDINGS, "projects", "set", "Riverside", "--subject", "riverside")
        self.Program(*SURROUNDINGS, "projects", "export", str(self.folder / "projects.toml"))
        self.Program(*SURROUNDINGS, "projects", "set", "Riverside", "--subject", "")
        for name, section in Sections().items():
            examples = Examples(section)
            self.assertTrue(examples, name + " has no example")
            for call, answer in examples if name not in SHOWN_ONLY else []:
                got = json.loads(self.Program(*SURROUNDINGS, *shlex.split(call)))
                self.assertEqual(Shape(got), Shape(json.loads(answer)), call)


if __name__ == "__main__":
    unittest.main()

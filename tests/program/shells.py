"""Completes command lines as shells do."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

PROGRAM = pathlib.Path(os.environ["TEMPODIAL_EXECUTABLE"])

# Sets what bash sets for a completion function, calls it, and prints what it answers.
BASH = r"""
eval "$("$1" completion bash)" || exit
COMP_LINE=$2 COMP_POINT=${#2} COMP_TYPE=9
shift 2
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
compopt() { :; }
_tempodial tempodial "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
[ ${#COMPREPLY[@]} = 0 ] || printf '%s\n' "${COMPREPLY[@]}"
"""

# What the function adds is printed by a stand-in for the shell's own word.
ZSH = r"""
compdef() { :; }
eval "$("$1" completion zsh)" || exit
compadd() { [[ $1 == -a ]] && print -rl -- ${(P)2} || { shift; print -rl -- "$@" } }
_describe() { print -rl -- ${${(P)argv[-1]}%%:*} }
_files() { print -r -- "files $*" }
compset() { words[CURRENT]=${words[CURRENT]#*=} }
shift
words=("$@") CURRENT=$#
_tempodial
:
"""

FISH = r"""
$argv[1] completion fish | source
complete --do-complete $argv[2]
"""


class Shells(unittest.TestCase):
    """A profile of its own, and the program first in the path."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.environment = dict(os.environ, HOME=str(self.folder), XDG_DATA_HOME=str(self.folder / "data"),
                                PATH=f"{PROGRAM.parent}:{os.environ['PATH']}", LC_ALL="C.UTF-8", TZ="UTC")
        self.environment.pop("TEMPODIAL_PROFILE", None)

    def Run(self, *arguments):
        """What a command answers that must say nothing on standard error."""
        run = subprocess.run(arguments, env=self.environment, cwd=self.folder, capture_output=True, text=True,
                             check=False, timeout=60)
        self.assertEqual((run.returncode, run.stderr), (0, ""), arguments)
        return run.stdout

    def Program(self, *arguments):
        return self.Run(PROGRAM, *arguments)

    def Has(self, shell):
        """Whether a shell is there; with TEMPODIAL_ALL_TOOLS it must be."""
        if "TEMPODIAL_ALL_TOOLS" in os.environ:
            self.assertTrue(shutil.which(shell), shell + " isn't there")
        return shutil.which(shell) is not None

    def Bash(self, line, *words):
        """The answers to a line, parted into words as bash does it; by blanks unless they are given."""
        return self.Run("bash", "-c", BASH, "bash", PROGRAM, line, *(words or line.split(" "))).splitlines()

    def Zsh(self, line):
        return self.Run("zsh", "-f", "-c", ZSH, "zsh", PROGRAM, *line.split(" ")).splitlines()

    def Fish(self, line):
        answers = self.Run("fish", "--no-config", "-c", FISH, PROGRAM, line).splitlines()
        return [answer.split("\t")[0] for answer in answers]

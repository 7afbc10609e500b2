"""What the lints share: which files there are, and how a lint reports."""

import os
import subprocess
import sys

CPP = (".h", ".cpp")


def Root():
    """The checkout that this file belongs to."""
    return os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def Git(root, *arguments):
    """The lines that git answers, or None outside a git checkout."""
    # A checkout may belong to another user, in a container for example.
    command = ["git", "-c", "safe.directory=*", "-c", "core.quotePath=off", *arguments]
    try:
        answer = subprocess.run(command, cwd=root, capture_output=True, text=True, check=True)
    except (OSError, subprocess.CalledProcessError):
        return None
    return answer.stdout.splitlines()


def Files(root):
    """All files of the checkout that git tracks or would, relative to it; all but build/ outside git."""
    files = Git(root, "ls-files", "--cached", "--others", "--exclude-standard")
    if files is None:
        files = []
        for folder, folders, names in os.walk(root):
            folders[:] = [name for name in folders if name not in ("build", ".git", "__pycache__")]
            files += [os.path.relpath(os.path.join(folder, name), root) for name in names]
    return sorted(file for file in set(files) if os.path.isfile(os.path.join(root, file)))


def IsData(file):
    """True for a file that is somebody else's form: templates of the product, data of the tests."""
    return file.startswith("resources/") or file.startswith("tests/") and "/data/" in file


def CppFiles(root):
    """The C++ files among them, without data."""
    return [file for file in Files(root) if file.endswith(CPP) and not IsData(file)]


def Read(root, file):
    """The text of a file as it is, line ends included."""
    with open(os.path.join(root, file), encoding="utf-8", newline="") as stream:
        return stream.read()


def Report(lint, findings, looked):
    """Prints the findings and gives the exit status: 0 for none, 1 for some, or when nothing was looked at."""
    for finding in findings:
        print(finding)
    if looked == 0:
        print(f"{lint}: found no files to look at")
        return 1
    print(f"{lint}: {looked} files, {len(findings)} findings")
    return 1 if findings else 0


def RootFromArguments():
    """The folder named on the command line, else this checkout."""
    return os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else Root()

"""Tests of tools/lint-includes."""

import os
import subprocess
import sys
import tempfile
import unittest

import loading

lint = loading.Load("lint-includes")

HEADERS = {
    "base/Date.h",
    "platform/system/Clock.h",
    "engine/foundation/TempodialUtils.h",
    "engine/core/TempodialMain.h",
    "engine/core/ProductWords.h",
    "engine/core/Connect.h",
    "engine/worklog/TempodialWorkLog.h",
    "engine/dialogs/ProgressBarForm.h",
    "engine/dialogs/SetProjectForm.h",
    "engine/outlook/TempodialInspector.h",
    "forms/ComboBox.h",
    "host/store/Mailbox.h",
    "host/windows/HostExplorer.h",
    "cli/SyncCommand.h",
}


def Findings(path, *includes):
    """What the lint says about a file with these includes."""
    text = "#pragma once\n" + "".join(f"#include {include}\n" for include in includes)
    return lint.Check(path, text, HEADERS.__contains__)


class ArrowTest(unittest.TestCase):
    def Allows(self, path, header):
        self.assertEqual(Findings(path, f'"{header}"'), [])

    def Refuses(self, path, header):
        found = Findings(path, f'"{header}"')
        self.assertEqual(len(found), 1, found)
        self.assertIn(f"src/{path}:2: ", found[0])
        self.assertIn("may not include", found[0])

    def test_OwnFolder_IsAllowed(self):
        self.Allows("base/Number.h", "base/Date.h")
        self.Allows("engine/worklog/Other.h", "engine/worklog/TempodialWorkLog.h")

    def test_Base_KnowsNoOneElse(self):
        self.Refuses("base/Number.h", "platform/system/Clock.h")
        self.Allows("platform/Platform.h", "base/Date.h")
        self.Refuses("platform/Platform.h", "engine/core/TempodialMain.h")

    def test_EngineFolders_KnowFoundationMainAndWords(self):
        for header in ("engine/foundation/TempodialUtils.h", "engine/core/TempodialMain.h", "engine/core/ProductWords.h"):
            self.Allows("engine/import/TempodialDataHandler.h", header)
        self.Refuses("engine/import/TempodialDataHandler.h", "engine/core/Connect.h")
        self.Refuses("engine/import/TempodialDataHandler.h", "engine/worklog/TempodialWorkLog.h")

    def test_EngineCore_KnowsAllOfTheEngine(self):
        self.Allows("engine/core/Other.h", "engine/worklog/TempodialWorkLog.h")
        self.Refuses("engine/core/Other.h", "host/store/Mailbox.h")
        self.Refuses("engine/core/Other.h", "forms/ComboBox.h")

    def test_Exceptions_AreSingleHeaders(self):
        self.Allows("engine/import/A.h", "engine/dialogs/ProgressBarForm.h")
        self.Allows("engine/reports/A.h", "engine/dialogs/ProgressBarForm.h")
        self.Allows("engine/dialogs/A.h", "engine/outlook/TempodialInspector.h")
        self.Allows("engine/outlook/A.h", "engine/dialogs/SetProjectForm.h")
        self.Refuses("engine/import/A.h", "engine/dialogs/SetProjectForm.h")
        self.Refuses("engine/worklog/A.h", "engine/dialogs/ProgressBarForm.h")

    def test_Host_DoesNotKnowTheEngine(self):
        self.Refuses("host/store/A.h", "engine/core/TempodialMain.h")
        self.Refuses("host/store/A.h", "host/windows/HostExplorer.h")
        self.Allows("host/windows/A.h", "host/store/Mailbox.h")
        self.Refuses("engine/worklog/A.h", "host/store/Mailbox.h")

    def test_Programs_KnowCoreAndHost(self):
        self.Allows("cli/A.h", "host/windows/HostExplorer.h")
        self.Allows("cli/A.h", "engine/core/Connect.h")
        self.Refuses("cli/A.h", "engine/worklog/TempodialWorkLog.h")
        self.Refuses("host/windows/A.h", "cli/SyncCommand.h")

    def test_HeaderThatIsNotInSrc_IsRefused(self):
        self.assertIn("is no file of src/", Findings("base/Number.h", '"Date.h"')[0])
        self.assertIn("is no file of src/", Findings("platform/system/A.h", '"../../base/Date.h"')[0])

    def test_FolderWithoutArrows_IsRefused(self):
        self.assertIn("no arrows", Findings("engine/novel/A.h")[0])
        self.assertIn("no arrows", Findings("stray.h")[0])


class NeedlessTest(unittest.TestCase):
    HEADER = "engine/dialogs/ProgressBarForm.h"

    def test_ExceptionThatIsNeeded_IsKept(self):
        needed = f'#include "{self.HEADER}"\n'
        self.assertEqual(lint.Needless({"engine/import/A.cpp": needed, "engine/import/B.cpp": ""}), [])

    def test_ExceptionThatNobodyNeeds_IsFound(self):
        other = '#include "engine/core/TempodialMain.h"\n'
        found = lint.Needless({"engine/import/A.cpp": other, "engine/reports/A.cpp": f'#include "{self.HEADER}"\n'})
        self.assertEqual(len(found), 1, found)
        self.assertIn(f'engine/import needs no "{self.HEADER}"', found[0])

    def test_ArrowThatNobodyNeeds_IsNoException(self):
        self.assertEqual(lint.Needless({"engine/worklog/A.cpp": "", "novel/A.cpp": ""}), [])

    def test_FolderThatIsNotThereYet_MayHaveExceptions(self):
        self.assertEqual(lint.Needless({"base/Date.h": ""}), [])


class LibraryTest(unittest.TestCase):
    def Refuses(self, path, header):
        self.assertEqual(len(Findings(path, f"<{header}>")), 1)

    def Allows(self, path, header):
        self.assertEqual(Findings(path, f"<{header}>"), [])

    def test_PortableFolders_KnowTheStandardLibraryOnly(self):
        for folder in ("base", "platform/system", "engine/core", "forms"):
            self.Allows(f"{folder}/A.h", "string_view")
            for header in ("windows.h", "Windows.h", "sqlite3.h", "unistd.h", "QWidget", "nlohmann/json.hpp"):
                self.Refuses(f"{folder}/A.h", header)

    def test_Libraries_StayInTheirFolder(self):
        self.Allows("host/store/A.h", "SQLiteCpp/Database.h")
        self.Allows("host/store/A.h", "sqlite3.h")
        self.Refuses("host/windows/A.h", "SQLiteCpp/Database.h")
        self.Refuses("cli/A.h", "sqlite3.h")
        self.Allows("desktop/qt/A.h", "QWidget")
        self.Refuses("host/windows/A.h", "QWidget")
        self.Refuses("cli/A.h", "QtCore/QObject")
        self.Allows("host/system/A.h", "expat.h")
        self.Refuses("host/store/A.h", "unicode/locid.h")
        self.Allows("driver/A.h", "nlohmann/json.hpp")
        self.Refuses("host/system/A.h", "nlohmann/json.hpp")
        self.Allows("addin/base/A.h", "windows.h")
        self.Refuses("host/system/A.h", "windows.h")
        self.Refuses("addin/com/A.h", "windows.h")
        self.Allows("host/system/A.h", "unistd.h")


class FileUseTest(unittest.TestCase):
    def Calls(self, path, line):
        return lint.Check(path, "#pragma once\n" + line + "\n", HEADERS.__contains__)

    def test_FileHeaders_StayInTheFilesFolder(self):
        for header in ("fcntl.h", "sys/stat.h", "sys/file.h", "dirent.h", "fstream", "filesystem"):
            self.assertEqual(Findings("host/files/A.h", f"<{header}>"), [])
            for path in ("host/store/A.h", "session/A.h", "cli/A.h"):
                found = Findings(path, f"<{header}>")
                self.assertEqual(len(found), 1, found)
                self.assertIn("files stay in host/files", found[0])

    def test_FileCalls_StayInTheFilesFolder(self):
        for call in ("::open(path)", "if (::unlink(path))", "std::rename(a, b)", "std::fopen(a, b)", "::fsync(number)"):
            self.assertEqual(self.Calls("host/files/A.h", call), [])
            found = self.Calls("host/store/A.h", call)
            self.assertEqual(len(found), 1, found)
            self.assertIn("src/host/store/A.h:2: host/store may not call ::", found[0])

    def test_OperationsOfTheSameNames_AreFree(self):
        for call in ("Mailbox::open(path)", "file.open(path)", "Profile::access(x)", "std::remove(a, b, c)"):
            self.assertEqual(self.Calls("host/store/A.h", call), [])

    def test_Exceptions_AreSingleFiles(self):
        self.assertEqual(Findings("terminal/ProgramRun.cpp", "<fcntl.h>"), [])
        self.assertEqual(self.Calls("terminal/ProgramRun.cpp", '::open("/dev/null", O_RDONLY)'), [])
        self.assertEqual(len(Findings("terminal/Other.cpp", "<fcntl.h>")), 1)


class OwnHeaderTest(unittest.TestCase):
    def test_OwnHeader_ComesFirst(self):
        self.assertEqual(Findings("engine/worklog/TempodialWorkLog.cpp", '"engine/worklog/TempodialWorkLog.h"'), [])
        found = Findings(
            "engine/worklog/TempodialWorkLog.cpp", '"base/Date.h"', '"engine/worklog/TempodialWorkLog.h"'
        )
        self.assertEqual(len(found), 1)
        self.assertIn("comes first", found[0])

    def test_OwnHeader_IsNotForgotten(self):
        self.assertIn("comes first", Findings("base/Date.cpp")[0])
        self.assertIn("comes first", Findings("base/Date.cpp", "<string>")[0])

    def test_SourceWithoutHeader_IsFree(self):
        self.assertEqual(Findings("cli/main.cpp", '"cli/SyncCommand.h"', "<string>"), [])


class ProgramTest(unittest.TestCase):
    def Run(self, root):
        program = os.path.join(loading.TOOLS, "lint-includes")
        return subprocess.run([sys.executable, "-B", program, root], capture_output=True, text=True, check=False)

    def test_Status_TellsWhetherThereAreFindings(self):
        with tempfile.TemporaryDirectory() as root:
            loading.Write(root, "src/base/Date.h", "#include <string>\n")
            good = self.Run(root)
            self.assertEqual((good.returncode, good.stdout), (0, "lint-includes: 1 files, 0 findings\n"))
            loading.Write(root, "src/base/Number.h", '#  include "base/Absent.h"\n')
            bad = self.Run(root)
            self.assertEqual(bad.returncode, 1)
            self.assertIn("src/base/Number.h:1: ", bad.stdout)

    def test_NeedlessException_IsAFinding(self):
        with tempfile.TemporaryDirectory() as root:
            loading.Write(root, "src/engine/import/A.h", "#include <string>\n")
            bad = self.Run(root)
            self.assertEqual(bad.returncode, 1)
            self.assertIn("lint-includes: 1 files, 1 findings", bad.stdout)

    def test_NoFiles_AreAFailure(self):
        with tempfile.TemporaryDirectory() as root:
            self.assertEqual(self.Run(root).returncode, 1)


if __name__ == "__main__":
    unittest.main()

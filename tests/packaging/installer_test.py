#!/usr/bin/env python3
"""Tests of the setup program for Windows, which Wine runs; run it by tools/with-wine after the preset mingw was built, and
dev, whose templates it installs. TEMPODIAL_NATIVE_BUILD names another build folder than that of dev."""

import glob
import hashlib
import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
NATIVE = os.environ.get("TEMPODIAL_NATIVE_BUILD") or os.path.join(ROOT, "build", "dev")
MINGW = os.path.join(ROOT, "build", "mingw")
MODULE = os.path.join(MINGW, "bin", "Tempodial.dll")
PROBE = os.path.join(MINGW, "tests", "tempodial-probe.exe")
SCRIPT = os.path.join(ROOT, "packaging", "windows", "tempodial.nsi")
OUT = os.path.join(MINGW, "setup")
PATIENCE = 60
# How the setup program ends.
NO_RIGHTS = 5
TOO_OLD = 6
LATER = "9.9.9"

CLASS = r"Software\Classes\%sCLSID\{6C1F8A52-3D0E-4B7B-9E57-2A94C60D7F13}"
PROGID = r"Software\Classes\Tempodial.Connect\CLSID"
ADDIN = r"Software\%sMicrosoft\Office\Outlook\Addins\Tempodial.Connect"
PRODUCT = r"Software\%sLindenfold\Tempodial"
UNINSTALL = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Tempodial"
RUNONCE = r"Software\Microsoft\Windows\CurrentVersion\RunOnce"
OTHER = "Wow6432Node" + "\\"
KEYS = (CLASS % "", CLASS % OTHER, r"Software\Classes\Tempodial.Connect", ADDIN % "", ADDIN % OTHER, UNINSTALL,
        PRODUCT % "", PRODUCT % OTHER)


def Wine(*arguments, check=True):
    """What a program for Windows prints. One that fails is run once more: on a busy machine Wine itself now and then
    fails to start one."""
    for isLast in (False, True):
        done = subprocess.run(["wine", *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, timeout=PATIENCE, check=False)
        said = done.stdout.decode(errors="replace").replace("\r", "")
        if done.returncode == 0 or not check:
            break
        complaint = f"{arguments} ended with {done.returncode}: {said}{done.stderr.decode(errors='replace')}"
        if isLast:
            raise AssertionError(complaint)
        print(complaint, file=sys.stderr)
    return said


def Status(*arguments):
    """How a program for Windows ends."""
    return subprocess.run(["wine", *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, timeout=PATIENCE, check=False).returncode


class Registry:
    """The values of the registry that a setup program may write, as they are at this moment."""

    def __init__(self):
        lines = Wine(PROBE, "list", *KEYS).splitlines()
        self.values = {tuple(line.split("\t")[:2]): line.split("\t")[2] for line in lines}

    def Value(self, hive, key, name=""):
        """A value, None without one."""
        return self.values.get((f"{hive}\\{key}", name))

    def Module(self, hive, view=""):
        return self.Value(hive, CLASS % view + r"\InprocServer32")


def Drive(path):
    """Where a path of drive C lies here."""
    return os.path.join(os.environ["WINEPREFIX"], "drive_c", *path.split("\\")[1:])


def Installed(folder):
    """The files below a folder of drive C."""
    start = Drive(folder)
    return sorted(os.path.relpath(os.path.join(place, name), start)
                  for place, _, names in os.walk(start) for name in names)


class InstallerTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        program = os.path.join(ROOT, "packaging", "windows", "build-installer")
        subprocess.run([program, "--modules", MODULE, MODULE, "--resources", os.path.join(NATIVE, "share", "tempodial"),
                        "--target", "amd64-unicode", "--out", OUT], check=True, stdout=subprocess.DEVNULL)
        cls.setup, = glob.glob(os.path.join(OUT, "tempodial-setup-*.exe"))
        cls.version = os.path.basename(cls.setup)[len("tempodial-setup-"):-len(".exe")]
        cls.later = os.path.join(OUT, "later.exe")
        subprocess.run(["makensis", "-V1", "-XTarget amd64-unicode", f"-DVERSION={LATER}",
                        f"-DCONTENT={os.path.join(OUT, cls.version)}", f"-DOUT={cls.later}", SCRIPT], check=True)
        local = Wine("cmd", "/c", "echo %LOCALAPPDATA%").strip()
        cls.user = local + r"\Programs\Tempodial"
        cls.machine = r"C:\Program Files\Tempodial"

    def setUp(self):
        self.RemoveAll()
        self.addCleanup(self.RemoveAll)

    def RemoveAll(self):
        """Whatever a test has left, for one that failed midway."""
        # What Windows is told to take away would else go when Wine starts anew, during another test.
        Wine(PROBE, "remove", *KEYS, RUNONCE)
        for folder in (self.user, self.machine, r"C:\elsewhere"):
            shutil.rmtree(Drive(folder), ignore_errors=True)

    def Setup(self, *options, setup=None):
        self.assertEqual(Status(setup or self.setup, "/S", *options), 0)

    def Uninstall(self, folder):
        """Uninstalls; the program goes on in a copy of itself, so its end shows only in what is gone."""
        program = Drive(folder) + "/uninstall.exe"
        Wine(program, "/S")
        end = time.monotonic() + PATIENCE
        while os.path.exists(program):
            self.assertLess(time.monotonic(), end, "the program that uninstalls doesn't come to its end")
            time.sleep(0.05)
        # It goes on with its folder.
        while os.path.isdir(Drive(folder)) and not os.listdir(Drive(folder)):
            self.assertLess(time.monotonic(), end)
            time.sleep(0.05)

    def AssertAddIn(self, registry, hive, view=""):
        values = {name: registry.Value(hive, ADDIN % view, name) for name in
                  ("FriendlyName", "Description", "LoadBehavior", "CommandLineSafe", "RequireShutdownNotification")}
        self.assertEqual(values, {"FriendlyName": "Tempodial", "Description": "Tempodial Outlook AddOn",
                                  "LoadBehavior": "3", "CommandLineSafe": "0", "RequireShutdownNotification": "1"})

    def AssertNothingIn(self, registry, hive):
        self.assertEqual([entry for entry in registry.values if entry[0].startswith(hive)], [])

    def test_ForUser_WritesKeysOfBothViewsAndFiles_AndTakesThemAway(self):
        self.Setup()
        registry = Registry()
        version = f"{self.user}\\{self.version}"
        self.assertEqual(registry.Module("HKCU"), version + r"\x64\Tempodial.dll")
        self.assertEqual(registry.Module("HKCU", OTHER), version + r"\x86\Tempodial.dll")
        self.assertEqual(registry.Value("HKCU", CLASS % "" + r"\InprocServer32", "ThreadingModel"), "Apartment")
        self.assertEqual(registry.Value("HKCU", CLASS % "" + r"\ProgID"), "Tempodial.Connect")
        self.assertEqual(registry.Value("HKCU", PROGID), "{6C1F8A52-3D0E-4B7B-9E57-2A94C60D7F13}")
        self.AssertAddIn(registry, "HKCU")
        self.assertEqual(registry.Value("HKCU", UNINSTALL, "DisplayVersion"), self.version)
        self.AssertNothingIn(registry, "HKLM")
        files = Installed(self.user)
        for name in ("x64/Tempodial.dll", "x86/Tempodial.dll", "WorkLogForm.oft", "WorkLogCategoryView.xml",
                     "ReportHeaderTemplate.html", "TDRefreshIcon.bmp", "userguide/userguide.html", "licence.txt"):
            self.assertIn(f"{self.version}/{name}", files)
        self.assertIn("uninstall.exe", files)
        self.Uninstall(self.user)
        self.assertEqual(Registry().values, {})
        self.assertFalse(os.path.exists(Drive(self.user)), Installed(self.user))

    def ShowToCom(self):
        """Wine doesn't look for classes of the user's own, so they are copied to where it does."""
        for key in (CLASS % "", r"Software\Classes\Tempodial.Connect"):
            Wine("reg", "copy", f"HKCU\\{key}", f"HKLM\\{key}", "/s", "/f")

    def test_ForUser_IsFoundByCom(self):
        self.Setup()
        self.ShowToCom()
        self.assertEqual(Wine(PROBE).strip().lower(), f"{self.user}\\{self.version}\\x64\\Tempodial.dll".lower())

    def test_ForAll_IsFoundByCom_AndGoneAfterwards(self):
        self.Setup("/AllUsers")
        registry = Registry()
        version = f"{self.machine}\\{self.version}"
        self.assertEqual(registry.Module("HKLM"), version + r"\x64\Tempodial.dll")
        self.assertEqual(registry.Module("HKLM", OTHER), version + r"\x86\Tempodial.dll")
        self.AssertAddIn(registry, "HKLM")
        self.AssertAddIn(registry, "HKLM", OTHER)
        self.AssertAddIn(registry, "HKCU")
        for view in ("", OTHER):
            self.assertEqual(registry.Value("HKLM", PRODUCT % view, "Install Directory"), version)
        self.assertIsNone(registry.Module("HKCU"))
        self.assertEqual(Wine(PROBE).strip().lower(), (version + r"\x64\Tempodial.dll").lower())
        self.Uninstall(self.machine)
        self.assertEqual(Registry().values, {})
        self.assertFalse(os.path.exists(Drive(self.machine)), Installed(self.machine))
        self.assertIn("no add-in is registered", Wine(PROBE, check=False))

    def test_ForAll_WithoutAnAdministratorsRights_IsRefused(self):
        setup = "Z:" + self.setup.replace("/", "\\")
        self.assertEqual(Status(PROBE, "limited", setup, "/S", "/AllUsers"), NO_RIGHTS)
        self.assertEqual(Registry().values, {})
        self.assertFalse(os.path.exists(Drive(self.machine)))
        self.assertEqual(Status(PROBE, "limited", setup, "/S"), 0)
        self.assertEqual(Registry().Module("HKCU"), f"{self.user}\\{self.version}\\x64\\Tempodial.dll")

    def test_ForAll_CantBeTakenAwayWithoutAnAdministratorsRights(self):
        self.Setup("/AllUsers")
        before = Registry().values
        program = self.machine + "\\uninstall.exe"
        # Without a copy of itself it tells how it ends.
        self.assertEqual(Status(PROBE, "limited", f'"{program}"', "/S", "_?=" + self.machine), NO_RIGHTS)
        self.assertEqual(Registry().values, before)
        self.assertIn(f"{self.version}/x64/Tempodial.dll", Installed(self.machine))

    def test_WindowsBefore7_IsRefused(self):
        older = os.path.join(OUT, "older.exe")
        shutil.copy(self.setup, older)
        key = r"HKCU\Software\Wine\AppDefaults\older.exe"
        Wine("reg", "add", key, "/v", "Version", "/d", "vista", "/f")
        self.addCleanup(Wine, "reg", "delete", key, "/f")
        self.assertEqual(Status(older, "/S"), TOO_OLD)
        self.assertEqual(Registry().values, {})
        Wine("reg", "add", key, "/v", "Version", "/d", "win7", "/f")
        self.assertEqual(Status(older, "/S"), 0)

    def test_Folder_ThatIsGiven_IsTakenAndKept(self):
        self.Setup(r"/D=C:\elsewhere")
        self.assertEqual(Registry().Module("HKCU"), f"C:\\elsewhere\\{self.version}\\x64\\Tempodial.dll")
        self.Setup(setup=self.later)
        self.assertEqual(Registry().Module("HKCU"), f"C:\\elsewhere\\{LATER}\\x64\\Tempodial.dll")
        with open(Drive(r"C:\elsewhere") + "/mine.txt", "w", encoding="utf-8"):
            pass
        self.Uninstall(r"C:\elsewhere")
        self.assertEqual(Installed(r"C:\elsewhere"), ["mine.txt"])

    def test_LaterVersion_TakesThePlaceOfTheEarlier(self):
        self.Setup("/AllUsers")
        self.Setup("/AllUsers", setup=self.later)
        registry = Registry()
        self.assertEqual(registry.Module("HKLM"), f"{self.machine}\\{LATER}\\x64\\Tempodial.dll")
        self.assertEqual(registry.Value("HKLM", PRODUCT % "", "Install Directory"), f"{self.machine}\\{LATER}")
        self.assertEqual(registry.Value("HKLM", UNINSTALL, "DisplayVersion"), LATER)
        self.assertEqual({name.split("/")[0] for name in Installed(self.machine)}, {LATER, "uninstall.exe"})
        self.Uninstall(self.machine)
        self.assertFalse(os.path.exists(Drive(self.machine)), Installed(self.machine))

    def Held(self):
        """A program that holds the add-in of all users, as Outlook does."""
        program = subprocess.Popen(["wine", PROBE, "hold"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=subprocess.DEVNULL)
        self.assertIn(b"Tempodial.dll", program.stdout.readline())

        def LetGo():
            program.stdin.close()
            program.wait(PATIENCE)
            program.stdout.close()

        return LetGo

    def test_LaterVersion_WhileTheEarlierIsHeld_LeavesIt_UntilTheNextTime(self):
        self.Setup("/AllUsers")
        letGo = self.Held()
        try:
            self.Setup("/AllUsers", setup=self.later)
            self.assertEqual(Registry().Module("HKLM"), f"{self.machine}\\{LATER}\\x64\\Tempodial.dll")
            # What is in use goes on finding its templates.
            for name in ("x64/Tempodial.dll", "ReportHeaderTemplate.html", "userguide/userguide.html"):
                self.assertIn(f"{self.version}/{name}", Installed(self.machine))
            self.assertIn(self.version, self.PendingRemoval("HKLM"))
            self.assertIn(LATER, Wine(PROBE))
        finally:
            letGo()
        self.Setup("/AllUsers", setup=self.later)
        self.assertEqual({name.split("/")[0] for name in Installed(self.machine)}, {LATER, "uninstall.exe"})
        self.assertIsNone(self.PendingRemoval("HKLM"))

    def test_LaterVersion_WhileTheUserHoldsTheEarlier_TellsWindowsToTakeItAway(self):
        self.Setup()
        self.ShowToCom()
        letGo = self.Held()
        try:
            self.Setup(setup=self.later)
            command, folder = self.PendingRemoval("HKCU").split(" /d /c rmdir /s /q ")
        finally:
            letGo()
        self.assertEqual(folder, f'"{self.user}\\{self.version}"')
        Wine(command.strip('"'), "/d", "/c", "rmdir", "/s", "/q", folder.strip('"'))
        self.assertEqual({name.split("/")[0] for name in Installed(self.user)}, {LATER, "uninstall.exe"})
        self.Setup()
        self.assertIsNone(self.PendingRemoval("HKCU"))

    def PendingRemoval(self, hive):
        """What Windows is told to do about this version when somebody signs in again, None for nothing."""
        prefix = f"{hive}\\{RUNONCE}\tTempodial {self.version}\t"
        lines = Wine(PROBE, "list", RUNONCE).splitlines()
        return next((line[len(prefix):] for line in lines if line.startswith(prefix)), None)

    def test_SameVersion_WhileItIsHeld_IsWrittenAnew(self):
        self.Setup("/AllUsers")
        letGo = self.Held()
        module = f"{self.machine}\\{self.version}\\x64\\Tempodial.dll"
        try:
            before = os.stat(Drive(module)).st_ino
            self.Setup("/AllUsers")
            self.assertNotEqual(os.stat(Drive(module)).st_ino, before)
            self.assertIn(self.version, Wine(PROBE))
        finally:
            letGo()
        self.Setup("/AllUsers")
        self.assertEqual([name for name in Installed(self.machine) if name.endswith(".old")], [])

    def test_UsersOwn_StaysWhenAllElseGoes(self):
        Wine("reg", "add", "HKCU\\" + PRODUCT % "", "/v", "ProjectXML", "/d", "<kept/>", "/f")
        temporary = Wine("cmd", "/c", "echo %TEMP%").strip()
        data = os.path.join(Drive(temporary), "Tempodial")
        os.makedirs(data, exist_ok=True)
        self.addCleanup(shutil.rmtree, data)
        with open(os.path.join(data, "TempodialHistory.out"), "w", encoding="utf-8") as stream:
            stream.write("kept")
        for options, folder in (((), self.user), (("/AllUsers",), self.machine)):
            self.Setup(*options)
            self.Uninstall(folder)
        self.assertEqual(Registry().Value("HKCU", PRODUCT % "", "ProjectXML"), "<kept/>")
        self.assertEqual(os.listdir(data), ["TempodialHistory.out"])

    def test_Sums_AreThoseOfWhatIsPacked(self):
        self.Setup()
        with open(os.path.join(OUT, "SHA256SUMS"), encoding="utf-8") as stream:
            sums = dict(reversed(line.split()) for line in stream)
        for bits in ("x64", "x86"):
            with open(Drive(f"{self.user}\\{self.version}\\{bits}\\Tempodial.dll"), "rb") as stream:
                self.assertEqual(hashlib.sha256(stream.read()).hexdigest(), sums[f"{self.version}/{bits}/Tempodial.dll"])


class SigningTest(unittest.TestCase):
    def test_Command_IsRunWithAllThatIsToBeSigned(self):
        with tempfile.TemporaryDirectory(prefix="tempodial-signing-") as folder:
            sign = os.path.join(folder, "sign")
            with open(sign, "w", encoding="utf-8") as stream:
                stream.write(f'#!/bin/sh\necho "$1 ${{2##*/}}" >>{folder}/signed\n')
            os.chmod(sign, 0o755)
            program = os.path.join(ROOT, "packaging", "windows", "build-installer")
            subprocess.run([program, "--modules", MODULE, MODULE, "--resources",
                            os.path.join(NATIVE, "share", "tempodial"), "--out", os.path.join(folder, "out"), "--sign",
                            f"{sign} us"], check=True, stdout=subprocess.DEVNULL)
            with open(os.path.join(folder, "signed"), encoding="utf-8") as stream:
                signed = stream.read().splitlines()
        self.assertEqual(signed[:2], ["us Tempodial.dll"] * 2)
        self.assertEqual(len(signed), 4)
        self.assertRegex(signed[3], r"^us tempodial-setup-[0-9.]+\.exe$")


if __name__ == "__main__":
    if "WINEPREFIX" not in os.environ:
        sys.exit("usage: tools/with-wine tests/packaging/installer_test.py")
    unittest.main()

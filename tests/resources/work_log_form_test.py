"""Reads the form template with tools that aren't ours: as a compound file, and as a message."""

import json
import os
import pathlib
import shutil
import struct
import subprocess
import tempfile
import unittest
import uuid

import olefile

import product_words

FORM = pathlib.Path(os.environ["TEMPODIAL_SHARE_DIR"]) / "WorkLogForm.oft"

PUBLIC_STRINGS = uuid.UUID("{00020329-0000-0000-C000-000000000046}")
COMMON = uuid.UUID("{00062008-0000-0000-C000-000000000046}")
APPOINTMENT = uuid.UUID("{00062002-0000-0000-C000-000000000046}")

TEXT, DATE, YES_NO = (8, 0), (7, 5), (11, 4)
FIELDS = {
    "Type": TEXT,
    "Day": DATE,
    "StartTime": TEXT,
    "Project": TEXT,
    "Description": TEXT,
    "People": TEXT,
    "Keyword": TEXT,
    "ApplyPast": YES_NO,
}



class Message:
    """What a message file holds, read by the rules of its format."""

    def __init__(self, path):
        with olefile.OleFileIO(str(path)) as file:
            self.issues = file.parsing_issues
            self.root_class = file.root.clsid
            self.streams = {"/".join(name): file.openstream(name).read() for name in file.listdir()}
            self.times = [file.getmtime(name) or file.getctime(name) for name in file.listdir(storages=True)]
        self.names = self._names()
        self.properties = self._properties()

    def _mapping(self, number):
        return self.streams[f"__nameid_version1.0/__substg1.0_{number:04X}0102"]

    def _set(self, index):
        start = (index - 3) * 16
        return PUBLIC_STRINGS if index == 2 else uuid.UUID(bytes_le=self._mapping(2)[start:start + 16])

    def _names(self):
        """The identifier in this file of each property: by its set, and its number or name."""
        names = {}
        for key, kind, position in struct.iter_unpack("<IHH", self._mapping(3)):
            if kind & 1:
                size = struct.unpack_from("<I", self._mapping(4), key)[0]
                key = self._mapping(4)[key + 4:key + 4 + size].decode("utf-16-le")
            names[self._set(kind >> 1), key] = 0x8000 + position
        return names

    def _properties(self):
        """The value of each property: by its identifier."""
        properties = {}
        for tag, flags, value in struct.iter_unpack("<II8s", self.streams["__properties_version1.0"][32:]):
            assert flags == 6
            number = struct.unpack_from("<I", value)[0]
            kind = tag & 0xFFFF
            if kind in (0x001F, 0x0102):
                stream = self.streams[f"__substg1.0_{tag:08X}"]
                assert number == len(stream) + (2 if kind == 0x001F else 0)
                value = stream.decode("utf-16-le") if kind == 0x001F else stream
            else:
                value = {0x0003: number, 0x000B: bool(number)}[kind]
            properties[tag >> 16] = value
        return properties

    def named(self, property_set, key):
        return self.properties[self.names[property_set, key]]


def checksum(name):
    """The checksum of a name: that of Ethernet, without its inversions at both ends."""
    total = 0
    for byte in name.encode("utf-16-le"):
        total ^= byte
        for _ in range(8):
            total = total >> 1 ^ (0xEDB88320 if total & 1 else 0)
    return total


class Reader:
    def __init__(self, data):
        self.data, self.offset = data, 0

    def take(self, layout):
        value = struct.unpack_from("<" + layout, self.data, self.offset)[0]
        self.offset += struct.calcsize("<" + layout)
        return value

    def text(self, count, width=1):
        return self.take(f"{count * width}s").decode("utf-16-le" if width == 2 else "ascii")


def read_fields(data):
    """The definitions of a stream of fields in the second format: by name, the types for automation and inside."""
    reader = Reader(data)
    assert reader.take("H") == 0x0103
    fields = {}
    for _ in range(reader.take("I")):
        assert reader.take("I") & 1, "a user's field"
        kind = reader.take("H")
        assert reader.take("I") == 0
        name = reader.text(reader.take("H"), 2)
        assert reader.text(reader.take("B")) == name
        for _ in range(4):
            assert reader.text(reader.take("B")) == ""
        fields[name] = (kind, reader.take("I"))
        block = Reader(reader.take(f"{reader.take('I')}s"))
        assert block.text(block.take("B"), 2) == name
        assert reader.take("I") == 0
    assert reader.offset == len(data)
    return fields


class WorkLogFormTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.message = Message(FORM)

    def test_CompoundFile_IsSoundAndATemplate(self):
        self.assertEqual(self.message.issues, [])
        self.assertEqual(self.message.root_class, "0006F046-0000-0000-C000-000000000046")

    def test_CompoundFile_HoldsNoTimes(self):
        self.assertEqual(set(self.message.times), {None})

    def test_MessageClass_IsTheProducts(self):
        message_class = self.message.properties[0x001A]
        self.assertEqual(message_class, product_words.Word("mFormClass"))
        self.assertEqual(message_class, "IPM.Appointment.TDActivity1")

    def test_FormName_IsTheLastPartOfTheClass(self):
        self.assertEqual(self.message.properties[0x3001], "TDActivity1")

    def test_FieldDefinitions_AreTheEightOfAnActivity(self):
        self.assertEqual(read_fields(self.message.named(COMMON, 0x8540)), FIELDS)
        self.assertEqual(self.message.named(COMMON, 0x8542), 0x02000000)

    def test_Defaults_AreThePromptAndNo(self):
        self.assertEqual(self.message.named(PUBLIC_STRINGS, "Keyword"), product_words.Word("mSelectAKeyword"))
        self.assertIs(self.message.named(PUBLIC_STRINGS, "ApplyPast"), False)

    def test_NewActivity_RemindsOfNothingAndShowsTheTimeAsFree(self):
        self.assertIs(self.message.named(COMMON, 0x8503), False)
        self.assertEqual(self.message.named(APPOINTMENT, 0x8205), 0)

    def test_NamedProperties_AreFoundByTheirHash(self):
        for (property_set, key), identifier in self.message.names.items():
            index = {PUBLIC_STRINGS: 2, COMMON: 3, APPOINTMENT: 4}[property_set]
            kind = index << 1 | isinstance(key, str)
            value = checksum(key) if isinstance(key, str) else key
            bucket = self.message._mapping(0x1000 + (value ^ kind) % 0x1F)
            self.assertIn((value, kind, identifier - 0x8000), list(struct.iter_unpack("<IHH", bucket)), key)

    def test_Page_HasTheControlsThatTheProgramWorks(self):
        page = json.loads(self.message.streams["TempodialPage"].decode("utf-8"))
        self.assertEqual(page["page"], product_words.Word("mMainPageName"))
        controls = {control["name"]: control for row in page["rows"] for control in row}
        self.assertEqual({name: (control["kind"], control.get("field")) for name, control in controls.items()}, {
            product_words.Word("mProjectComboBox"): ("combo", "Project"),
            "DescCombo": ("combo", "Keyword"),
            "ApplyCheckBox": ("check", "ApplyPast"),
            "SubjectBox": ("text", "Description"),
            "ApplicationBox": ("text", None),
            "PeopleBox": ("text", "People"),
            "StartBox": ("text", "Start"),
            "EndBox": ("text", "End"),
        })
        labels = [control["label"] for control in controls.values()]
        keys = [label[label.index("&") + 1].lower() for label in labels]
        self.assertEqual(len(set(keys)), len(labels), "each label has a key of its own")

    def test_MessageConverter_ReadsIt(self):
        with tempfile.TemporaryDirectory() as folder:
            copy = shutil.copy(FORM, folder)
            run = subprocess.run(["msgconvert", "--outfile", "form.eml", copy], cwd=folder, capture_output=True, text=True)
            self.assertEqual(run.returncode, 0, run.stderr)
            # It knows all of the file but the stream that is our own.
            self.assertEqual(run.stderr.strip().splitlines(), ["Unknown FILE entry TempodialPage"])
            self.assertTrue((pathlib.Path(folder) / "form.eml").stat().st_size > 0)


if __name__ == "__main__":
    unittest.main()

"""The product's own words, as its sources have them."""

import pathlib
import re

SOURCES = pathlib.Path(__file__).resolve().parents[2] / "src/engine"
STRINGS = (SOURCES / "foundation/TempodialStrings.cpp").read_text(encoding="utf-8")
SHARED = (SOURCES / "core/ProductWords.h").read_text(encoding="utf-8")


def Word(name):
    """The text of a field of the strings, or of a word that programs need too."""
    found = re.search(rf"\b{name} = ([^;]*);", STRINGS) or re.search(rf"\b{name} = ([^;]*);", SHARED)
    return "".join(
        part[1:-1] if part.startswith('"') else Word(part) for part in re.findall(r'"[^"]*"|\w+', found[1]))

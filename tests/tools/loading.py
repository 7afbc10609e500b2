"""Loads a script of tools/ as a module."""

import importlib.machinery
import importlib.util
import os

TOOLS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools")


def Load(name):
    """The script tools/NAME, which has no extension, as a module."""
    loader = importlib.machinery.SourceFileLoader(name.replace("-", "_"), os.path.join(TOOLS, name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


def Write(root, file, text):
    """Writes a file below a folder."""
    path = os.path.join(root, file)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8", newline="") as stream:
        stream.write(text)

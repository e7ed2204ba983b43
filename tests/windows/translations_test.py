#!/usr/bin/env python3
"""No text of the views lacks its translation: texts are collected anew from the sources into copies of the
translation files, which must then hold nothing unfinished and nothing that no source uses.
Usage: translations_test.py LUPDATE ROOT"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

SOURCES = ["app", "model", "panel", "ui", "windows"]
LANGUAGES = {"de": [], "en": ["-pluralonly"]}
lupdate, root = sys.argv[1], pathlib.Path(sys.argv[2])


def faults_of(language, options, folder):
    file = pathlib.Path(folder) / f"brimshade_{language}.ts"
    shutil.copy(root / "i18n" / file.name, file)
    subprocess.run([lupdate, "-silent", "-locations", "none", *options, *SOURCES, "-ts", file], cwd=root, check=True)
    messages = list(ElementTree.parse(file).iter("message"))
    if not messages:
        yield "no texts at all"
    for message in messages:
        source, translation = message.findtext("source"), message.find("translation")
        if translation.get("type"):
            yield f"{translation.get('type')}: {source}"
        for text in [translation.text or ""] + [form.text or "" for form in translation.findall("numerusform")]:
            lost = [mark for mark in ("%1", "%2", "%n") if text.strip() and mark in source and mark not in text]
            if lost:
                yield f"lost {lost}: {source}"


failed = False
with tempfile.TemporaryDirectory() as folder:
    for language, options in LANGUAGES.items():
        for fault in faults_of(language, options, folder):
            print(f"{language}: {fault}")
            failed = True
sys.exit(failed)

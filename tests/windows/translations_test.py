#!/usr/bin/env python3
"""No text in the views lacks its translation: texts are collected again from the sources into copies of the translation
files, in which nothing may then be unfinished or unused.
Usage: translations_test.py LUPDATE ROOT"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

SOURCES = ["app", "model", "panel", "ui", "windows", "desktop"]
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


def session_faults_of(language):
    """As a session's menu bar, no text may mention the Mac; and no text may be replaced that does not exist."""
    def texts(name):
        tree = ElementTree.parse(root / "i18n" / name)
        return {(context.findtext("name"), message.findtext("source"))
                for context in tree.iter("context") for message in context.iter("message")}

    there, replaced = texts("brimshade_de.ts"), texts(f"session_{language}.ts")
    for context, source in replaced - there:
        yield f"session: no such text: {context}: {source}"
    of_permission = {"PermissionCard", "PermissionStep"}  # never shown in a session
    for context, source in there - replaced:
        if re.search(r"\bmacOS\b|\bMac\b|Cmd|[⌘⌥]|pointer (will )?jump", source) and context not in of_permission:
            yield f"session: mentions the Mac: {context}: {source}"


failed = False
with tempfile.TemporaryDirectory() as folder:
    for language, options in LANGUAGES.items():
        for fault in [*faults_of(language, options, folder), *session_faults_of(language)]:
            print(f"{language}: {fault}")
            failed = True
sys.exit(failed)

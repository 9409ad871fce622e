"""What is wrong with the catalogues of translated texts, for tools/translations.sh:
translations.py CATALOGUES FRESH, where FRESH holds copies into which the sources' texts were brought just now."""

import collections
import glob
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

ENGLISH = "en"  # the sources' language: its catalogue holds plural forms alone

# What a translation must keep, each as often as the source has it.
KEPT = {
    "placeholder": r"%L?(?:\d{1,2}|n)",
    "tag": r"</?[a-zA-Z][^<>]*>",
    "file pattern": r"\*\.\w+",
    "line break": r"\n",
    "tab": r"\t",
}
# How a text ends tells what it is: a label, a sentence, or something that opens a dialog.
FULL_WIDTH = str.maketrans("：。！？（）", ":.!?()")
ENDS = ("...", ":", ".", "!", "?")

Text = collections.namedtuple("Text", "context source comment")


def texts(path):
    """Every message of a catalogue, by what it translates."""
    found = {}
    for context in xml.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = Text(context.findtext("name"), message.findtext("source") or "", message.findtext("comment") or "")
            found[key] = message
    return found


def plural_forms(language):
    """How many forms Qt has for a number of things in the language."""
    with tempfile.TemporaryDirectory() as folder:
        source, catalogue = os.path.join(folder, "a.cpp"), os.path.join(folder, "a.ts")
        with open(source, "w", encoding="utf-8") as file:
            file.write('QString text = QObject::tr("%n", nullptr, 1);\n')
        subprocess.run(["lupdate", "-silent", "-target-language", language, source, "-ts", catalogue], check=True)
        return len(xml.parse(catalogue).getroot().findall(".//numerusform"))


def ending(text):
    text = text.translate(FULL_WIDTH).replace("…", "...").replace("......", "...")
    return next((end for end in ENDS if text.rstrip().endswith(end)), "")


def accelerators(text):
    return len(re.findall(r"&(?=[^&\s])", text.replace("&&", "")))


def faults(source, translation, leaves_number_out=False):
    """What a translation has lost or doubled."""
    if not translation.strip():
        yield "is empty"
        return
    for what, pattern in KEPT.items():
        wanted, there = (collections.Counter(re.findall(pattern, text)) for text in (source, translation))
        if leaves_number_out:
            del wanted["%n"], there["%n"]
        for part in sorted((wanted - there) | (there - wanted)):
            yield f"has the {what} {part!r} {there[part]} times instead of {wanted[part]}"
    if accelerators(source) != accelerators(translation):
        yield f"has {accelerators(translation)} accelerators (&) instead of {accelerators(source)}"
    for what, blank in (("begins", re.compile(r"^\s*")), ("ends", re.compile(r"\s*$"))):
        if blank.search(source).group() != blank.search(translation).group():
            yield f"{what} with other blanks"
    is_sentence = " " in source
    wanted, there = ending(source), ending(translation)
    is_asked = (wanted, there) == ("!", "?")  # what the English says before "Yes" and "No", another language asks
    if (is_sentence or wanted != ".") and wanted != there and not is_asked:
        yield f"ends with {there!r} instead of {wanted!r}"


def faults_of(message, forms):
    translation = message.find("translation")
    if translation.get("type"):
        yield f"is {translation.get('type')}"
        return
    source = message.findtext("source")
    if message.get("numerus") != "yes":
        yield from faults(source, translation.text or "")
        return
    there = translation.findall("numerusform")
    if len(there) != forms:
        yield f"has {len(there)} plural forms instead of {forms}"
    for number, form in enumerate(there):
        # "One row" needs no number; the form for many does.
        yield from faults(source, form.text or "", leaves_number_out=number + 1 < len(there))


def check(path, fresh):
    language = xml.parse(path).getroot().get("language")
    name = os.path.basename(path)
    if name != f"coordsystem_manager_{language}.ts":
        yield f"{name}: its language is {language}"
    here, wanted = texts(path), texts(fresh)
    for text in wanted:
        if text not in here:
            yield f"{name}: misses {text.source!r} ({text.context})"
    for text in here:
        if text not in wanted:
            yield f"{name}: {text.source!r} ({text.context}) is no text of the sources"
    forms = plural_forms(language)
    for text, message in here.items():
        for fault in faults_of(message, forms):
            yield f"{name}: {text.source!r} ({text.context}) {fault}"


def main(catalogues, fresh):
    paths = sorted(glob.glob(os.path.join(catalogues, "*.ts")))
    found = [fault for path in paths for fault in check(path, os.path.join(fresh, os.path.basename(path)))]
    print("\n".join(found) or f"Translations: {len(paths)} catalogues, no findings")
    if not paths or found:
        print(f"{len(found)} findings; tools/translations.sh --update brings the sources' texts in.", file=sys.stderr)
    return 0 if paths and not found else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

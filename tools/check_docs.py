#!/usr/bin/python3
"""Checks that what README.md and docs/*.md name is there: files and headings that are linked to, and in `code` the paths,
classes and functions. Prints what is missing; exit code 1 when something is.

    tools/check_docs.py [FILES...]      only these documents
"""

import functools
import glob
import os
import re
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

LINK = re.compile(r"\]\(([^)\s]+)\)")
CODE = re.compile(r"`([^`]+)`")
HEADING = re.compile(r"^#+ +(.*)$", re.MULTILINE)
# A path: names parted by "/", or one with an ending that the sources use.
PATH = re.compile(r"[\w.-]+(/[\w.*-]+)+/?|[\w-]+\.(h|cpp|py|sh|txt|cmake|md|dot|svg|ts)")
# A name of the sources: one with a hump, a member, or a call.
NAME = re.compile(r"_?[A-Za-z0-9]*[a-z0-9][A-Z][A-Za-z0-9]*|\w+(::\w+)+(\(\))?|\w+\(\)")


def tracked():
    """The files of the tree, those that are new included, and their folders."""
    listed = subprocess.run(["git", "-C", ROOT, "ls-files", "--cached", "--others", "--exclude-standard"],
                            stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()
    files = [path for path in listed if os.path.exists(os.path.join(ROOT, path))]
    folders = {path[:i] for path in files for i, character in enumerate(path) if character == "/"}
    return files, folders


FILES, FOLDERS = tracked()
TOP = {path.split("/")[0] for path in FILES}


@functools.lru_cache(maxsize=None)
def text_of(path):
    with open(os.path.join(ROOT, path), encoding="utf-8", errors="replace") as file:
        return file.read()


@functools.lru_cache(maxsize=None)
def words():
    """Every name in the sources."""
    found = set()
    for path in FILES:
        if path.endswith((".h", ".cpp", ".py", ".sh", ".txt", ".cmake", ".json")) and not path.startswith("docs/"):
            found.update(re.findall(r"\w+", text_of(path)))
    return found


@functools.lru_cache(maxsize=None)
def anchors(document):
    """The names under which a document's headings are linked to."""
    prose = re.sub(r"^```.*?^```", "", text_of(document), flags=re.MULTILINE | re.DOTALL)
    found = set()
    for heading in HEADING.findall(prose):
        plain = re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", heading)
        found.add(re.sub(r"[^\w\- ]", "", plain.lower()).replace(" ", "-"))
    return found


def link_problem(document, target):
    if re.match(r"[a-z]+:", target):
        return None
    path, _, anchor = target.partition("#")
    file = os.path.normpath(os.path.join(os.path.dirname(document), path)) if path else document
    if file not in FILES and file not in FOLDERS:
        return f"there is no {file}"
    if anchor and anchor not in anchors(file):
        return f"{file} has no heading #{anchor}"
    return None


def is_path(name):
    """Whether a name is meant to be a path of the tree: it begins as one does."""
    first = name.split("/")[0]
    return bool(PATH.fullmatch(name)) and (first in TOP or "/" in name and any(
        folder == first or folder.endswith("/" + first) for folder in FOLDERS))


def stands(path):
    """Whether a path of the tree, or its end, is that one; an ending and "*" may be left to the reader."""
    pattern = re.compile("(.*/)?" + re.escape(path.rstrip("/")).replace(r"\*", "[^/]*") + r"(\.(h|cpp|py|sh))?")
    return any(pattern.fullmatch(there) for there in (*FILES, *FOLDERS))


def name_problem(name):
    """What is wrong with a name in `code`; None also for what is neither a path nor a name of the sources."""
    words_of_it = name.split()
    if len(words_of_it) > 1:  # a command line: its program
        return name_problem(words_of_it[0]) if "/" in words_of_it[0] else None
    if is_path(name):
        return None if stands(name) else "no file or folder of the tree is called so"
    if not NAME.fullmatch(name):
        return None
    parts = name.rstrip("()").split("::")
    missing = [part for part in parts if part not in words()]
    if missing:
        return f"the sources have no {missing[0]}"
    header = next((file for file in FILES if file.endswith(f"/{parts[0]}.h")), None)
    if len(parts) > 1 and header and not re.search(rf"\b{parts[1]}\b", re.sub("//.*", "", text_of(header))):
        return f"{header} has no {parts[1]}"
    return None


def problems(document):
    text = text_of(document)
    for number, line in enumerate(text.splitlines(), 1):
        found = [(target, link_problem(document, target)) for target in LINK.findall(line)]
        found += [(name, name_problem(name)) for name in CODE.findall(line)]
        for name, problem in found:
            if problem:
                yield f"{document}:{number}: {name}: {problem}"


def main():
    documents = sys.argv[1:] or ["README.md", *sorted(
        os.path.relpath(path, ROOT) for path in glob.glob(os.path.join(ROOT, "docs", "*.md")))]
    found = [problem for document in documents for problem in problems(document)]
    print("\n".join(found) if found else f"Links and names of {len(documents)} documents: all there")
    sys.exit(bool(found))


if __name__ == "__main__":
    main()

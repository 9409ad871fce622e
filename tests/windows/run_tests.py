#!/usr/bin/python3
"""Runs every test program of the Windows build under Wine and compares what fails with expected_failures.txt.

    run_tests.py [NAMES...]      only these programs

A test that fails and is not in the list is a fault, and so is one in the list that passes. Exit code 0 without either.
"""

import concurrent.futures
import json
import os
import re
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
BUILD = os.path.join(ROOT, "build", "windows")
LOGS = os.path.join(ROOT, "build", "log")
LONGEST = 600  # seconds


def programs():
    """Name, command and settings of each test, as CTest has them."""
    listed = subprocess.run(["ctest", "--test-dir", BUILD, "--show-only=json-v1"], stdout=subprocess.PIPE, check=True)
    for test in json.loads(listed.stdout)["tests"]:
        settings = {entry["name"]: entry["value"] for entry in test.get("properties", [])}
        environment = dict(line.split("=", 1) for line in settings.get("ENVIRONMENT", []))
        yield test["name"], test["command"], environment, settings["WORKING_DIRECTORY"]


def expected():
    """The reason for each test that is known to fail."""
    reasons = {}
    with open(os.path.join(HERE, "expected_failures.txt"), encoding="utf-8") as file:
        for line in file:
            if line.strip() and not line.startswith("#"):
                name, reason = line.rstrip("\n").split(" | ")
                reasons[name] = reason
    return reasons


def run(test):
    """How many tests of a program passed, and which did not."""
    name, command, environment, folder = test
    begun = time.monotonic()
    log = os.path.join(LOGS, f"windows-{name}.log")
    with open(log, "wb") as said:
        try:
            code = subprocess.run(command, cwd=folder, env={**os.environ, **environment}, stdin=subprocess.DEVNULL,
                                  stdout=said, stderr=said, timeout=LONGEST, check=False).returncode
        except subprocess.TimeoutExpired:
            code = "no end"
    with open(log, encoding="utf-8", errors="replace") as said:
        text = said.read()
    totals = re.findall(r"^Totals: (\d+) passed, (\d+) failed, (\d+) skipped", text, re.MULTILINE)
    failed = sorted({f"{name} {test}" for test in re.findall(r"^(?:FAIL!|XPASS) *: (.*?\))", text, re.MULTILINE)})
    passed = sum(int(total[0]) for total in totals) if totals else int(code == 0)
    crashed = text.count("Start testing of") != len(totals)
    if crashed or (code != 0 and not failed):
        failed.append(f"{name} ended with {code}")
    skipped = sum(int(total[2]) for total in totals)
    print(f"{name}: {passed} passed, {len(failed)} failed, {skipped} skipped, {time.monotonic() - begun:.0f} s", flush=True)
    return passed, failed


def main(names):
    tests = [test for test in programs() if not names or test[0] in names]
    if not tests:
        sys.exit("There is no such test.")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(run, tests))
    passed = sum(result[0] for result in results)
    failed = {name for result in results for name in result[1]}
    reasons = expected()
    of_these = {name: reason for name, reason in reasons.items() if name.split(" ")[0] in {test[0] for test in tests}}
    print(f"{passed} tests passed under Wine, {len(failed)} failed")
    for name in sorted(failed & set(of_these)):
        print(f"    expected: {name}: {of_these[name]}")
    for name in sorted(failed - set(of_these)):
        print(f"    FAILED: {name}")
    for name in sorted(set(of_these) - failed):
        print(f"    PASSED, against what is expected: {name}")
    if len(reasons) * 100 > passed and not names:
        sys.exit("More than 1 % of the tests are expected to fail.")
    sys.exit(failed != set(of_these))


if __name__ == "__main__":
    main(sys.argv[1:])

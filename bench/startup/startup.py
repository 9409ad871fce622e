#!/usr/bin/python3
"""How long the tool needs until its window is on the screen, against an empty Qt window in the same run.

    bench/startup/startup.py [BUILD FOLDER, default build/release] [RUNS, default 15]

The programs start by turns on a virtual display of their own, the tool as on a fresh machine: with an empty home and the
starter catalogue. Time is from the start of the process to the X server's word that its window is mapped. It prints the
medians, the quartiles, the memory that is each program's own (private pages), and the tool's ratios to the empty window:
as every Qt program shows it, with OpenGL's driver, and without the driver, as the tool does.
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
from screen import Screen  # noqa: E402


def private_memory(pid):
    """Pages that no other process shares, in MiB."""
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as rollup:
        return sum(int(line.split()[1]) for line in rollup if line.startswith("Private")) / 1024


def measure(program, environment, events):
    """Seconds until the program's window is mapped, and its private memory then, in MiB."""
    started = time.perf_counter()
    process = subprocess.Popen([program], env=environment, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    for line in events:
        if line.startswith("MapNotify"):
            break
    seconds = time.perf_counter() - started
    memory = private_memory(process.pid)
    process.kill()
    process.wait()
    return seconds, memory


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else "build/release")
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    empty = os.path.join(build, "bin", "bench_startup_empty_window")
    programs = {"empty window": (empty, {}),
                "without OpenGL": (empty, {"QT_XCB_GL_INTEGRATION": "none"}),
                "the tool": (os.path.join(build, "bin", "coordsystem_manager"), {})}
    results = {name: [] for name in programs}
    with tempfile.TemporaryDirectory() as home:
        screen = Screen()
        screen.open(managed=False)
        environment = {**os.environ, "HOME": home, "TMPDIR": home, "XDG_RUNTIME_DIR": home}
        watch = subprocess.Popen(["stdbuf", "-oL", "xev", "-root", "-event", "substructure"], env=environment,
                                 stdout=subprocess.PIPE, text=True)
        # Run 0 of each only warms the disk's cache.
        for run in range(runs + 1):
            for name, (program, setting) in programs.items():
                result = measure(program, {**environment, **setting}, watch.stdout)
                if run > 0:
                    results[name].append(result)
        watch.terminate()
        watch.wait()
        screen.close()

    medians = {}
    for name, measured in results.items():
        seconds, memory = (statistics.median(values) for values in zip(*measured))
        medians[name] = seconds, memory
        low, _, high = statistics.quantiles([1000 * each for each, _ in measured], n=4)
        print(f"{name:14} {seconds * 1000:6.1f} ms ({low:.1f} to {high:.1f})  {memory:6.1f} MiB")
    for name in ("empty window", "without OpenGL"):
        ratios = [tool / other for tool, other in zip(medians["the tool"], medians[name])]
        print(f"the tool to {name}: {ratios[0]:.2f} times the time, {ratios[1]:.2f} times the memory")


if __name__ == "__main__":
    main()

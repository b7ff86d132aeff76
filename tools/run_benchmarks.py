"""Builds the benchmark preset, runs its programs, and makes one table of medians and ratios against the targets.

A benchmark is named Case/Project or Case/<peer>, a size may follow; benchmarks/targets.json gives each case its peer and
the ratio to reach, or several of them: {"Case/1000": [{"peer": "std::vector", "ratio": 1.2}]}. A benchmark that sets the
counter bytes_each is measured by it, and not by its time.
"""
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "benchmark"
# What the benchmark library adds to a name for its own settings.
SETTING = re.compile(r"(min_time|min_warmup_time|repeats|iterations|threads):\d|(real|manual|process)_time$")
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def build():
    for command in (["cmake", "--preset", "benchmark"], ["cmake", "--build", "--preset", "benchmark"]):
        done = subprocess.run(command, cwd=ROOT, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode:
            sys.exit(done.stdout)


def programs(topics):
    found = sorted((BUILD / "bin").glob("*_benchmark"))
    return [program for program in found if not topics or program.name.removesuffix("_benchmark") in topics]


def figure(run):
    """What counts of one run: its bytes, or nanoseconds of processor time, or of real time where the benchmark asks for it."""
    if "bytes_each" in run:
        return run["bytes_each"]
    return run["real_time" if "real_time" in run["run_name"] else "cpu_time"] * NANOSECONDS[run["time_unit"]]


def measure(program):
    """The medians of one program: name to figure."""
    results = BUILD / f"{program.name}.json"
    print(f"{program.name} ...", file=sys.stderr)
    subprocess.run([program, "--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=7", "--benchmark_min_time=0.05",
                    "--benchmark_report_aggregates_only=true", "--benchmark_out_format=json", f"--benchmark_out={results}"],
                   check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, env={**os.environ, "G_SLICE": "always-malloc"})
    medians = [run for run in json.loads(results.read_text())["benchmarks"] if run.get("aggregate_name") == "median"]
    return {run["run_name"]: figure(run) for run in medians}


def by_case(medians):
    """Case to contender to nanoseconds. The contender's place in a name is where the project stands in that case."""
    named = {tuple(part for part in name.split("/") if not SETTING.match(part)): time for name, time in medians.items()}
    cases = {}
    for name, own in named.items():
        if "Project" in name:
            place = name.index("Project")
            around = (name[:place], name[place + 1:])
            cases["/".join([*around[0], *around[1]])] = {
                other[place]: time for other, time in named.items()
                if len(other) == len(name) and (other[:place], other[place + 1:]) == around}
    return cases


def number(time):
    return f"{time:,.2f}" if time < 100 else f"{time:,.0f}"


def goals(targets, case):
    """The targets of a case, of which there may be none, one or several."""
    given = targets.get(case, [])
    return given if isinstance(given, list) else [given]


def text(goal):
    return f"at most {goal['ratio']} x {goal['peer']}"


def verdict(times, goal):
    if goal["peer"] not in times:
        return f"{goal['peer']} is missing"
    return "reached" if times["Project"] <= goal["ratio"] * times[goal["peer"]] else "missed"


def row(case, times, wanted):
    peers = [peer for peer in sorted(times) if peer != "Project"]
    compared = [goal["peer"] for goal in wanted if goal["peer"] in times] or peers
    return "| " + " | ".join([
        case, number(times["Project"]),
        ", ".join(f"{peer} {number(times[peer])}" for peer in peers) or "none on this machine",
        ", ".join(f"{times['Project'] / times[peer]:.2f}" for peer in compared),
        ", ".join(map(text, wanted)), ", ".join(verdict(times, goal) for goal in wanted)]) + " |"


def processor():
    return re.search(r"model name\s*:\s*(.+)", pathlib.Path("/proc/cpuinfo").read_text()).group(1)


def table(cases, targets):
    lost = sorted(targets.keys() - cases.keys())
    return "\n".join([
        "# Benchmarks", "",
        f"Measured on {datetime.date.today().isoformat()} on {processor()}, {os.cpu_count()} cores, by the command `tools/benchmark`.",
        "Medians of seven runs, by turns, in nanoseconds, of a case named Memory in bytes; a ratio is the project's figure divided",
        "by the peer's. A case that ends in Threads was measured while its process had a second thread.", "",
        "| case | project | peers | ratio | target | |", "|---|---:|---|---:|---|---|",
        *(row(case, cases[case], goals(targets, case)) for case in sorted(cases)),
        *(f"| {case} | not measured | | | {', '.join(map(text, goals(targets, case)))} | missed |" for case in lost), ""])


def main(topics):
    build()
    targets = json.loads((ROOT / "benchmarks" / "targets.json").read_text())
    cases = {}
    for program in programs(topics):
        cases.update(by_case(measure(program)))
    if not cases:
        sys.exit("no benchmark of that name")
    if topics:
        print(table(cases, {case: target for case, target in targets.items() if case in cases}))
        return
    result = table(cases, targets)
    (ROOT / "docs" / "benchmarks.md").write_text(result)
    print(result)


if __name__ == "__main__":
    main(sys.argv[1:])

"""Builds the benchmark preset, runs its programs, and makes one table of medians and ratios against the targets.

A benchmark is named Case/Project or Case/<peer>, a size may follow; benchmarks/targets.json gives each case its peer and
the ratio to reach: {"Case/1000": {"peer": "std::vector", "ratio": 1.2}}.
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


def measure(program):
    """The medians of one program: name to nanoseconds of processor time, or of real time where a benchmark asks for it."""
    results = BUILD / f"{program.name}.json"
    print(f"{program.name} ...", file=sys.stderr)
    subprocess.run([program, "--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9", "--benchmark_min_time=0.1",
                    "--benchmark_report_aggregates_only=true", "--benchmark_out_format=json", f"--benchmark_out={results}"],
                   check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    medians = [run for run in json.loads(results.read_text())["benchmarks"] if run.get("aggregate_name") == "median"]
    return {run["run_name"]: run["real_time" if "real_time" in run["run_name"] else "cpu_time"] * NANOSECONDS[run["time_unit"]]
            for run in medians}


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


def row(case, times, target):
    own = times["Project"]
    peers = [peer for peer in sorted(times) if peer != "Project"]
    shown = ", ".join(f"{peer} {number(times[peer])}" for peer in peers) or "none on this machine"
    if not target or target["peer"] not in times:
        ratios = ", ".join(f"{own / times[peer]:.2f}" for peer in peers)
        return f"| {case} | {number(own)} | {shown} | {ratios} | {'' if not target else target['peer'] + ' is missing'} | |"
    ratio = own / times[target["peer"]]
    verdict = "reached" if ratio <= target["ratio"] else "missed"
    return f"| {case} | {number(own)} | {shown} | {ratio:.2f} | at most {target['ratio']} x {target['peer']} | {verdict} |"


def processor():
    return re.search(r"model name\s*:\s*(.+)", pathlib.Path("/proc/cpuinfo").read_text()).group(1)


def table(cases, targets):
    lost = sorted(targets.keys() - cases.keys())
    return "\n".join([
        "# Benchmarks", "",
        f"Measured on {datetime.date.today().isoformat()} on {processor()}, {os.cpu_count()} cores, by the command `tools/benchmark`.",
        "Medians of nine runs, by turns, in nanoseconds; a ratio is the project's time divided by the peer's.", "",
        "| case | project | peers | ratio | target | |", "|---|---:|---|---:|---|---|",
        *(row(case, cases[case], targets.get(case)) for case in sorted(cases)),
        *(f"| {case} | not measured | | | at most {targets[case]['ratio']} x {targets[case]['peer']} | missed |" for case in lost), ""])


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

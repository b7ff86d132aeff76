"""Builds the benchmark preset, runs its programs, and makes one table of medians and ratios against the targets.

A benchmark is named Case/Project or Case/<peer>, a size may follow; benchmarks/targets.json gives each case its peer and
the ratio to reach, or several of them: {"Case/1000": [{"peer": "std::vector", "ratio": 1.2}]}; {"below": 60000000} is a
target without a peer. benchmarks/topics.json says what one operation of a program's cases is. A benchmark that sets the
counter bytes_each is measured by it, and not by its time. A benchmark that fails makes this program fail, too.
"""
import datetime
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "benchmark"
# What the benchmark library adds to a name for its own settings.
SETTING = re.compile(r"(min_time|min_warmup_time|repeats|iterations|threads):\d|(real|manual|process)_time$")
REPETITIONS = 7
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
    """What counts of one run: its bytes, or nanoseconds of processor time."""
    return run["bytes_each"] if "bytes_each" in run else run["cpu_time"] * NANOSECONDS[run["time_unit"]]


def median(runs):
    """None when one of the runs failed."""
    return None if any(run.get("error_occurred") for run in runs) else statistics.median(map(figure, runs))


def measure(program):
    """The medians of one program: name to figure."""
    results = BUILD / f"{program.name}.json"
    print(f"{program.name} ...", file=sys.stderr)
    subprocess.run([program, "--benchmark_enable_random_interleaving=true", f"--benchmark_repetitions={REPETITIONS}",
                    "--benchmark_min_time=0.05", "--benchmark_out_format=json", f"--benchmark_out={results}"],
                   check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, env={**os.environ, "G_SLICE": "always-malloc"})
    runs = {}
    for run in json.loads(results.read_text())["benchmarks"]:
        if run["run_type"] == "iteration":
            runs.setdefault(run["run_name"], []).append(run)
    return {name: median(each) for name, each in runs.items()}


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
    if time is None:
        return "failed"
    return f"{time:,.2f}" if time < 100 else f"{time:,.0f}"


def quotient(times, peer, digits=2):
    return "failed" if None in (times["Project"], times[peer]) else f"{times['Project'] / times[peer]:.{digits}f}"


def goals(targets, case):
    """The targets of a case, of which there may be none, one or several."""
    given = targets.get(case, [])
    return given if isinstance(given, list) else [given]


def text(goal):
    return f"below {goal['below']:,}" if "below" in goal else f"at most {goal['ratio']} x {goal['peer']}"


def verdict(times, goal):
    if "below" in goal:
        limit = goal["below"]
    elif goal["peer"] not in times:
        return f"{goal['peer']} is missing"
    else:
        limit = times[goal["peer"]] and goal["ratio"] * times[goal["peer"]]
    if None in (times["Project"], limit):
        return "failed"
    reached = times["Project"] < limit if "below" in goal else times["Project"] <= limit
    return "reached" if reached else "missed"


def has_peers(targets, case):
    """Whether a target of the case, whatever its size, names a peer."""
    return any("peer" in goal for other in targets if other.split("/")[0] == case.split("/")[0] for goal in goals(targets, other))


def row(case, times, targets):
    wanted = goals(targets, case)
    peers = [peer for peer in sorted(times) if peer != "Project"]
    compared = [goal["peer"] for goal in wanted if goal.get("peer") in times] or peers
    return "| " + " | ".join([
        case, number(times["Project"]),
        ", ".join(f"{peer} {number(times[peer])}" for peer in peers) or ("none on this machine" if has_peers(targets, case) else "no peer"),
        ", ".join(quotient(times, peer) for peer in compared),
        ", ".join(map(text, wanted)), ", ".join(verdict(times, goal) for goal in wanted)]) + " |"


def missed(cases, targets):
    """Each target that is missed, in words."""
    for case, times in sorted(cases.items()):
        for goal in goals(targets, case):
            if verdict(times, goal) == "missed":
                words = case.removesuffix("/Threads") + (" beside a second thread" if case.endswith("/Threads") else "")
                found = f"{quotient(times, goal['peer'], 3)} x {goal['peer']}" if "peer" in goal else number(times["Project"])
                yield f"- {words}: {found}, wanted: {text(goal)}."


def failures(cases, lost):
    for case, times in sorted(cases.items()):
        yield from (f"{case}: {contender} failed" for contender, time in times.items() if time is None)
    yield from (f"{case}: not measured" for case in lost)


def processor():
    return re.search(r"model name\s*:\s*(.+)", pathlib.Path("/proc/cpuinfo").read_text()).group(1)


def topic_of(program):
    return program.name.removesuffix("_benchmark").removesuffix("Threads")


def explain(names, told):
    """What one operation of each topic is, and which cases it has."""
    return [f"- {', '.join(sorted(names[topic]))}: {told[topic]}" for topic in sorted(names)]


def table(cases, explanations, targets, lost):
    return "\n".join([
        "# Benchmarks", "",
        f"Measured on {datetime.date.today().isoformat()} on {processor()}, {os.cpu_count()} cores, by the command `tools/benchmark`.",
        f"A figure is the median of {REPETITIONS} repetitions, by turns, of one operation: nanoseconds of processor time, or bytes in a",
        "case named Memory. A ratio is the project's figure divided by the peer's. Rows that end in Threads are those of a process",
        "with a second thread, where counts of references are locked instructions.", "",
        "What one operation is:", "", *explanations, "",
        "## What is missed, and when", "", *(list(missed(cases, targets)) or ["Nothing."]), "",
        "## All cases", "",
        "| case | project | peers | ratio | target | |", "|---|---:|---|---:|---|---|",
        *(row(case, cases[case], targets) for case in sorted(cases)),
        *(f"| {case} | not measured | | | {', '.join(map(text, goals(targets, case)))} | missed |" for case in lost), ""])


def main(topics):
    build()
    targets = json.loads((ROOT / "benchmarks" / "targets.json").read_text())
    told = json.loads((ROOT / "benchmarks" / "topics.json").read_text())
    asked = programs(topics)
    if not asked:
        sys.exit("no benchmark of that name")
    untold = {topic_of(program) for program in asked} - told.keys()
    if untold:
        sys.exit(f"benchmarks/topics.json does not tell what one operation is of {', '.join(sorted(untold))}")
    cases = {}
    names = {}
    for program in asked:
        found = by_case(measure(program))
        cases.update(found)
        names.setdefault(topic_of(program), set()).update(case.split("/")[0] for case in found)
    lost = [] if topics else sorted(targets.keys() - cases.keys())
    result = table(cases, explain(names, told), targets, lost)
    if not topics:
        (ROOT / "docs" / "benchmarks.md").write_text(result)
    print(result)
    sys.exit("\n".join(failures(cases, lost)) or None)


if __name__ == "__main__":
    main(sys.argv[1:])

"""Builds and tests presets: one line a preset, details of what failed only, and the sum of all test cases at the end."""
import argparse
import os
import pathlib
import re
import subprocess
import sys
import time
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
PRESETS = ["gcc", "clang", "asan", "tsan", "windows", "coverage"]
LINT = "lint"
# The least share of lines of OPXCoreTools/ that the tests must run, in percent.
COVERAGE_FLOOR = 97
# The coverage counts OPXCoreTools/ alone: these programs test it, the others would only run it.
COVERING = ["Checks", "SharedData", "FilePaths", "TreeRecords", "Events", "EventsWithoutMemory", "DispatchMemory", "EventTools",
            "DataSource"]
CORES = os.cpu_count() or 1
# Lines of cmake and ninja that tell how far they are, not what went wrong.
PROGRESS = re.compile(r"^(\[\d+/\d+\]|-- ).*\n", re.MULTILINE)


def parse_arguments():
    parser = argparse.ArgumentParser(prog="tools/test", description="Builds and runs the tests.")
    parser.add_argument("presets", nargs="*", metavar="PRESET", choices=[[], *PRESETS, LINT],
                        help=f"of {', '.join(PRESETS)}, {LINT}; all of them when none is given")
    parser.add_argument("--test", metavar="NAME",
                        help="only this test program (Checks), or only the cases that match this GoogleTest filter (*Array*)")
    return parser.parse_args()


class Failure(Exception):
    """A step that ended badly; its text is what a person needs to see."""


def run(command, **options):
    """Runs a command of the build without input; answers whether it succeeded, and all it printed."""
    done = subprocess.run(command, cwd=ROOT, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, errors="replace", **options)
    return done.returncode == 0, done.stdout


def require(command):
    succeeded, output = run(command)
    if not succeeded:
        raise Failure(f"{' '.join(map(str, command))}\n{PROGRESS.sub('', output)}")
    return output


def counts_coverage(preset, name):
    return preset == "coverage" and name is None


def build(preset, name):
    targets = ["--target", *(f"{program}_tests" for program in COVERING)] if counts_coverage(preset, name) else []
    require(["cmake", "--preset", preset, "-DOPX_WARNINGS_AS_ERRORS=ON"])
    require(["cmake", "--build", "--preset", preset, *targets, "--", "-k", "0", f"-j{CORES}"])


def select(preset, folder, name):
    """The ctest arguments and the environment that choose what --test names."""
    if counts_coverage(preset, name):
        return ["-R", f"^({'|'.join(COVERING)})$"], {}
    if name is None:
        return [], {}
    listed = re.findall(r"Test +#\d+: (\S+)", require(["ctest", "--test-dir", folder, "-N"]))
    if name in listed:
        return ["-R", f"^{re.escape(name)}$"], {}
    return ["-L", "^cases$"], {"GTEST_FILTER": name}


def count_cases(results):
    """Passed and failed cases in the file that one test program wrote."""
    suites = ElementTree.parse(results).getroot()
    cases = [case for case in suites.iter("testcase") if case.get("status") == "run" and case.get("result") != "skipped"]
    failed = sum(1 for case in cases if case.find("failure") is not None)
    return len(cases) - failed, failed


def count(folder):
    """Sums the cases of each test program and prints what failed; a test without cases, or that crashed, counts as one."""
    passed = failed = 0
    for test in ElementTree.parse(folder / "results" / "ctest.junit").getroot().iter("testcase"):
        good = test.get("status") == "run"
        if not good:
            print(f"--- {test.get('name')} failed\n{test.findtext('system-out')}")
        cases = folder / "results" / f"{test.get('name')}.xml"
        counted = count_cases(cases) if cases.exists() and cases.stat().st_size else (int(good), 0)
        passed += counted[0]
        failed += counted[1] if good else max(counted[1], 1)
    return passed, failed


def launcher(preset):
    """Some kernels scatter addresses further than the race detector can follow; where allowed, it runs without that."""
    fixed = ["setarch", "-R"]
    return fixed if preset == "tsan" and run([*fixed, "true"])[0] else []


def run_tests(preset, name):
    folder = ROOT / "build" / preset
    for old in [*(folder / "results").glob("*"), *(folder.rglob("*.gcda") if preset == "coverage" else [])]:
        old.unlink()
    (folder / "results").mkdir(exist_ok=True)
    selection, environment = select(preset, folder, name)
    succeeded, _ = run([*launcher(preset), "ctest", "--preset", preset, f"-j{CORES}", "--output-junit", folder / "results" / "ctest.junit", *selection],
                            env={**os.environ, **environment})
    passed, failed = count(folder)
    return passed, failed if succeeded else max(failed, 1)


def check_coverage(folder):
    """Writes the report; answers whether the floor is reached, and the line that sums it up."""
    report = folder / "coverage"
    report.mkdir(exist_ok=True)
    # What was built for nothing else: notes that other programs left tell of sources as they were. And one worker: gcovr
    # waits for ever when one of several fails.
    objects = [folder / "OPXCoreTools", *(folder / "tests" / program for program in COVERING)]
    output = require(["gcovr", "--root", ROOT, "--filter", f"{ROOT}/OPXCoreTools/", "--object-directory", folder, *objects, "-j", "1",
                      "--txt", report / "coverage.txt", "--html-details", report / "index.html",
                      "--json-summary", report / "summary.json", "--json-summary-pretty", "--print-summary"])
    percent = float(re.search(r"lines: ([\d.]+)%", output).group(1))
    enough = percent >= COVERAGE_FLOOR
    if not enough:
        print(f"{(report / 'coverage.txt').read_text()}\nline coverage of OPXCoreTools/ is {percent} %, below {COVERAGE_FLOOR} %")
    return enough, f"{percent} % of the lines of OPXCoreTools/"


def test_preset(preset, name):
    if preset == LINT:
        print(require([ROOT / "tools" / "lint", "--all"]), end="")
        return 1, 0, ""
    build(preset, name)
    passed, failed = run_tests(preset, name)
    if not counts_coverage(preset, name):
        return passed, failed, ""
    enough, note = check_coverage(ROOT / "build" / preset)
    return passed + enough, failed + (not enough), note


def try_preset(preset, name):
    """Tests one preset and prints its line; what went wrong outside a test counts as one failure."""
    start = time.monotonic()
    try:
        passed, failed, note = test_preset(preset, name)
    except Failure as failure:
        print(failure)
        passed, failed, note = 0, 1, "stopped"
    print(f"{preset:9} {passed:5} passed {failed:3} failed {time.monotonic() - start:6.0f} s  {note}".rstrip(), flush=True)
    return passed, failed


def main():
    arguments = parse_arguments()
    presets = arguments.presets or [*PRESETS, *([] if arguments.test else [LINT])]
    results = [try_preset(preset, arguments.test) for preset in presets]
    passed, failed = (sum(column) for column in zip(*results))
    print(f"{passed} passed, {failed} failed")
    return 0 if passed and not failed else 1


if __name__ == "__main__":
    sys.exit(main())

"""Builds and tests presets: one line a preset, details of what failed only, and the sum of all test cases at the end."""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
PRESETS = ["gcc", "clang", "asan", "tsan", "windows", "coverage"]
LINT = "lint"
# Their programs take long or never end: they are compiled and not run.
BUILT_ONLY = ["benchmark", "fuzz"]
STEPS = [*PRESETS, LINT, *BUILT_ONLY]
# The programs without which a step is not run.
NEEDS = {"gcc": ["g++"], "clang": ["clang++"], "asan": ["clang++"], "tsan": ["clang++"], "coverage": ["g++", "gcovr"],
         "windows": ["x86_64-w64-mingw32-g++-posix", "/usr/lib/wine/wine64"], LINT: ["clang++", "clang-format", "clang-tidy"],
         "benchmark": ["g++"], "fuzz": ["clang++"]}
# The least share of lines of OPXCoreTools/ that the tests must run, in percent.
COVERAGE_FLOOR = 97
# The kinds of tests that are no test program, and the target that one needs.
TARGETS = {"Example": "{}", "Fuzz": "{}_corpus", "House": "OPXTreeBridge", "MustNotCompile": "OPXTreeBridge"}
CORES = os.cpu_count() or 1
# Lines of cmake and ninja that tell how far they are, not what went wrong.
PROGRESS = re.compile(r"^(\[\d+/\d+\]|-- ).*\n", re.MULTILINE)


def parse_arguments():
    parser = argparse.ArgumentParser(prog="tools/test", description="Builds and runs the tests.")
    parser.add_argument("presets", nargs="*", metavar="PRESET", choices=[[], *STEPS],
                        help=f"of {', '.join(STEPS)}; all of them when none is given")
    parser.add_argument("--test", metavar="NAME",
                        help="only this test program (Checks), or only the cases that match this GoogleTest filter (*Array*)")
    return parser.parse_args()


class Failure(Exception):
    """A step that ended badly; its text is what a person needs to see."""


class NoSuchTest(Exception):
    """Nothing of a preset is what --test names."""


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


def build(preset, *targets):
    chosen = ["--target", *targets] if targets else []
    require(["cmake", "--build", "--preset", preset, *chosen, "--", "-k", "0", f"-j{CORES}"])


def list_tests(preset, *label):
    return re.findall(r"Test +#\d+: (\S+)", require(["ctest", "--test-dir", ROOT / "build" / preset, "-N", *label]))


def target_of(test):
    """What must be built before a test runs."""
    kind, _, rest = test.rpartition(".")
    return TARGETS[kind].format(rest) if kind else f"{test}_tests"


def may_hold(program, pattern):
    """Whether the sources of a test program have the words of a GoogleTest filter: without, none of its cases matches."""
    text = "".join(path.read_text() for path in (ROOT / "tests" / program).rglob("*.cpp"))
    return all(word in text for word in re.findall(r"[A-Za-z_]\w*", pattern))


def holders(preset, name):
    """The test programs that may hold cases of the filter; what stands after a minus takes cases away."""
    patterns = name.split("-")[0].split(":")
    return [program for program in list_tests(preset, "-L", "^cases$") if any(may_hold(program, pattern) for pattern in patterns)]


def select(preset, name):
    """The tests to run, none for all, and the environment that chooses the cases that --test names."""
    if counts_coverage(preset, name):
        return list_tests(preset, "-L", "^covering$"), {}
    if name is None:
        return [], {}
    if name in list_tests(preset):
        return [name], {}
    found = holders(preset, name)
    if not found:
        raise NoSuchTest
    return found, {"GTEST_FILTER": name}


def count_cases(results):
    """Passed, failed and skipped cases in the file that one test program wrote."""
    cases = [case for case in ElementTree.parse(results).getroot().iter("testcase") if case.get("status") == "run"]
    skipped = sum(1 for case in cases if case.get("result") == "skipped")
    failed = sum(1 for case in cases if case.find("failure") is not None)
    return len(cases) - failed - skipped, failed, skipped


def count(folder):
    """Sums the cases of each test program and prints what failed; a test without cases, or that crashed, counts as one."""
    passed = failed = skipped = 0
    for test in ElementTree.parse(folder / "results" / "ctest.junit").getroot().iter("testcase"):
        good = test.get("status") == "run"
        if not good:
            print(f"--- {test.get('name')} failed\n{test.findtext('system-out')}")
        cases = folder / "results" / f"{test.get('name')}.xml"
        counted = count_cases(cases) if cases.exists() and cases.stat().st_size else (int(good), 0, 0)
        passed += counted[0]
        failed += counted[1] if good else max(counted[1], 1)
        skipped += counted[2]
    return passed, failed, skipped


def launcher(preset):
    """Some kernels scatter addresses further than the race detector can follow; where allowed, it runs without that."""
    fixed = ["setarch", "-R"]
    return fixed if preset == "tsan" and run([*fixed, "true"])[0] else []


def run_tests(preset, tests, environment):
    folder = ROOT / "build" / preset
    for old in [*(folder / "results").glob("*"), *(folder.rglob("*.gcda") if preset == "coverage" else [])]:
        old.unlink()
    (folder / "results").mkdir(exist_ok=True)
    selection = ["-R", f"^({'|'.join(map(re.escape, tests))})$"] if tests else []
    succeeded, _ = run([*launcher(preset), "ctest", "--preset", preset, f"-j{CORES}", "--output-junit", folder / "results" / "ctest.junit", *selection],
                       env={**os.environ, **environment})
    passed, failed, skipped = count(folder)
    return passed, failed if succeeded else max(failed, 1), skipped


def check_coverage(folder, programs):
    """Writes the report; answers whether the floor is reached, and the line that sums it up."""
    report = folder / "coverage"
    report.mkdir(exist_ok=True)
    # What was built for nothing else: notes that other programs left tell of sources as they were. And one worker: gcovr
    # waits for ever when one of several fails.
    objects = [folder / "OPXCoreTools", *(folder / "tests" / program for program in programs)]
    output = require(["gcovr", "--root", ROOT, "--filter", f"{ROOT}/OPXCoreTools/", "--object-directory", folder, *objects, "-j", "1",
                      "--txt", report / "coverage.txt", "--html-details", report / "index.html",
                      "--json-summary", report / "summary.json", "--json-summary-pretty", "--print-summary"])
    percent = float(re.search(r"lines: ([\d.]+)%", output).group(1))
    enough = percent >= COVERAGE_FLOOR
    if not enough:
        print(f"{(report / 'coverage.txt').read_text()}\nline coverage of OPXCoreTools/ is {percent} %, below {COVERAGE_FLOOR} %")
    return enough, f"{percent} % of the lines of OPXCoreTools/"


def test_preset(preset, name):
    tests, environment = select(preset, name)
    build(preset, *map(target_of, tests))
    passed, failed, skipped = run_tests(preset, tests, environment)
    if not passed + failed + skipped:
        raise NoSuchTest
    if not counts_coverage(preset, name):
        return passed, failed, skipped, ""
    enough, note = check_coverage(ROOT / "build" / preset, tests)
    return passed + enough, failed + (not enough), skipped, note


def take_step(step, name):
    """Passed, failed and skipped cases of one preset, or of what counts as one case, and a note."""
    if step == LINT:
        print(require([ROOT / "tools" / "lint", "--all"]), end="")
        return 1, 0, 0, ""
    require(["cmake", "--preset", step, "-DOPX_WARNINGS_AS_ERRORS=ON"])
    if step in BUILT_ONLY:
        build(step)
        return 1, 0, 0, "built only"
    return test_preset(step, name)


def try_step(step, name):
    """Takes one step and prints its line; one that is not run, or went wrong outside a test, counts as one failure."""
    missing = [program for program in NEEDS[step] if not shutil.which(program)]
    if missing:
        print(f"{step:9} not run: {', '.join(missing)} missing", flush=True)
        return 0, 1, 0
    start = time.monotonic()
    try:
        passed, failed, skipped, note = take_step(step, name)
    except NoSuchTest:
        passed, failed, skipped, note = 0, 0, 0, f"no such test: {name}"
    except Failure as failure:
        print(failure)
        passed, failed, skipped, note = 0, 1, 0, "stopped"
    print(f"{step:9} {passed:5} passed {failed:3} failed {skipped:3} skipped {time.monotonic() - start:6.0f} s  {note}".rstrip(), flush=True)
    return passed, failed, skipped


def main():
    arguments = parse_arguments()
    steps = arguments.presets or (PRESETS if arguments.test else STEPS)
    results = [try_step(step, arguments.test) for step in steps]
    passed, failed, skipped = (sum(column) for column in zip(*results))
    print(f"{passed} passed, {failed} failed, {skipped} skipped")
    return 0 if passed and not failed else 1


if __name__ == "__main__":
    sys.exit(main())

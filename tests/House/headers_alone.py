"""Compiles each public header as the only line of a source: it includes what it needs and warns at nothing.

usage: headers_alone.py COMPILER SOURCE_FOLDER GENERATED_FOLDER
"""
import concurrent.futures
import os
import pathlib
import subprocess
import sys

FOLDERS = ["HostRuntime/PublicInterfaces", "OPXCoreTools/ProtectedInterfaces", "OPXTreeBridge/PublicInterfaces"]
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]


def compile_alone(compiler, includes, header):
    command = [compiler, "-std=c++17", *WARNINGS, "-fsyntax-only", *includes, "-x", "c++", "-"]
    done = subprocess.run(command, input=f'#include "{header.name}"\n', capture_output=True, text=True)
    return "" if done.returncode == 0 else f"{header}\n{done.stderr}"


def main(compiler, source, generated):
    folders = [pathlib.Path(source, folder) for folder in FOLDERS]
    headers = [header for folder in folders for header in sorted(folder.glob("*.h"))]
    includes = [f"-I{folder}" for folder in [*folders, *sorted(pathlib.Path(generated).iterdir())] if folder.is_dir()]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        failures = [text for text in pool.map(lambda header: compile_alone(compiler, includes, header), headers) if text]
    print("\n".join(failures) or f"{len(headers)} headers compile alone with {compiler}")
    return 1 if failures or not headers else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

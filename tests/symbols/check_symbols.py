"""The shared library exports the functions of the tables and nothing else, and bears its name.

The tables, the registry compiled from them and the dynamic symbols must be the same names.
"""

import argparse
import re
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "api"))
import tables  # noqa: E402


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def differences(what, found, wanted):
    """One line for each name that is too much or missing."""
    out = [f"{what}: {name} is not in the tables" for name in sorted(found - wanted)]
    return out + [f"{what}: {name} is missing" for name in sorted(wanted - found)]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("library")
    for option in ("--nm", "--objdump", "--registry-names", "--soname"):
        parser.add_argument(option, required=True)
    args = parser.parse_args()

    wanted = {f.name for table in tables.load() for e in table["entry"] for f in e["functions"]}
    # A symbol's version, were there one, stays part of its name: there are none.
    lines = output(args.nm, "-D", "--defined-only", args.library).splitlines()
    exported = {line.split()[-1] for line in lines}
    registered = output(args.registry_names).split()

    problems = differences("library", exported, wanted)
    problems += differences("registry", set(registered), wanted)
    if len(registered) != len(set(registered)):
        problems.append("registry: a name stands twice")
    soname = re.findall(r"SONAME\s+(\S+)", output(args.objdump, "-p", args.library))
    if soname != [args.soname]:
        problems.append(f"SONAME is {soname}, not {args.soname}")
    if not wanted:
        problems.append("the tables are empty")
    print("\n".join(problems) or f"{len(wanted)} functions")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()

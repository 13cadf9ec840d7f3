#!/usr/bin/env python3
"""Holds what diff --json prints against docs/schemas/diff.schema.json.

    diff_schema.py --tool PATH --examples FOLDER --schema PATH

Compares the first of the example files, and a network whose values overflow,
with all of them, good and broken. Exits with 77, for "skipped", where the
package python3-jsonschema is not installed.
"""

import argparse
import json
import pathlib
import subprocess
import sys
import tempfile

try:
    import jsonschema
except ImportError:
    print("python3-jsonschema is not installed")
    sys.exit(77)

INFINITE = "# Hz S DB R 50\n1e9 1e300 45\n"


def compare(tool, first, second):
    done = subprocess.run(
        [tool, "diff", "--json", first, second],
        stdin=subprocess.DEVNULL,
        capture_output=True,
        check=False,
    )
    return done.returncode, json.loads(done.stdout)


def differences(validator, tool, first, second):
    """Sentences about what is not as it should be."""
    exit_code, result = compare(tool, first, second)
    found = [error.message for error in validator.iter_errors(result)]
    if {0: True, 1: False, 2: None}.get(exit_code, "none of these") is not result["equal"]:
        found.append(f"exit code {exit_code}, but equal is {result['equal']}")
    return [f"{first} {second}: {sentence}" for sentence in found]


def main():
    parser = argparse.ArgumentParser(description="Test of the schema of diff --json.")
    parser.add_argument("--tool", type=pathlib.Path, required=True)
    parser.add_argument("--examples", type=pathlib.Path, required=True)
    parser.add_argument("--schema", type=pathlib.Path, required=True)
    arguments = parser.parse_args()

    schema = json.loads(arguments.schema.read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    files = sorted(f for part in ("good", "broken") for f in (arguments.examples / part).iterdir())
    with tempfile.TemporaryDirectory(prefix="touchstone2-schema-") as folder:
        infinite = pathlib.Path(folder, "infinite.s1p")
        infinite.write_text(INFINITE, encoding="ascii")
        files.append(infinite)
        found = [
            sentence
            for first in (files[0], infinite)
            for second in files
            for sentence in differences(validator, arguments.tool, first, second)
        ]
    print("\n".join(found))
    print(f"{2 * len(files)} comparisons, {len(found)} defects")
    return 1 if found or len(files) < 2 else 0


if __name__ == "__main__":
    sys.exit(main())

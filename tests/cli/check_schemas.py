#!/usr/bin/env python3
"""Validates what the tool prints as JSON against the schemas in docs/schemas.

    check_schemas.py --tool PATH --examples FOLDER --schemas FOLDER

Run on all examples and on some files made here whose names and texts are not
plain. Damaged documents make sure that the schemas can refuse something.
"""

import argparse
import copy
import json
import pathlib
import subprocess
import sys
import tempfile

import jsonschema

ODD_FILES = {
    b"empty.s1p": b"",
    b"warnings.s1p": b"! caf\xe9 caf\xc3\xa9 \x01\n# GHz S RI R 50\n1 2 3",
    b"latin1 \xe9 %41#?.s1p": b"# GHz S RI R 50\n1 \x1b 3\n",
    b"no_records.s1p": b"# GHz S RI R 50\n",
    b"infinite.s1p": b"# Hz S DB R 50\n1e9 1e300 45\n",
    b"noise.s2p": b"# GHz S MA R 50\n1 1 2 3 4 5 6 7 8\n1 2 0.3 40 0.5\n",
}

# What a schema must refuse: a change of a valid report.
DAMAGES = {
    "a member is missing": lambda report: report.pop("valid"),
    "a member is new": lambda report: report.update(more=1),
    "another version": lambda report: report.update(schema_version=2),
    "a line of 0": lambda report: report["diagnostics"][0].update(line=0),
    "a severity of no kind": lambda report: report["diagnostics"][0].update(severity="note"),
}


class Check:
    """Runs the tool and counts what is not as it should be."""

    def __init__(self, arguments):
        self.arguments = arguments
        self.report = self.validator("report-1.json")
        self.diff = self.validator("diff-1.json")
        self.sarif = self.validator("sarif.json")
        self.documents = 0
        self.failures = 0

    def validator(self, name):
        schema = json.loads((self.arguments.schemas / name).read_text(encoding="utf-8"))
        jsonschema.Draft202012Validator.check_schema(schema)
        return jsonschema.Draft202012Validator(schema)

    def start(self, *arguments):
        return subprocess.run(
            [self.arguments.tool, *arguments], capture_output=True, check=False, timeout=60
        )

    def run(self, *arguments):
        return self.start(*arguments).stdout

    def fail(self, what):
        self.failures += 1
        print(f"FAILED  {what}")

    def validate(self, validator, document, what):
        self.documents += 1
        for error in validator.iter_errors(document):
            self.fail(f"{what}: {error.json_path}: {error.message}")

    def check_files(self, files):
        lines = self.run("check", "--json", *files).splitlines()
        if len(lines) != len(files):
            self.fail(f"check --json: {len(lines)} lines for {len(files)} files")
        for line in lines:
            report = json.loads(line)
            self.validate(self.report, report, f"check --json {report['path']!r}")
        for file in files:
            report = json.loads(self.run("info", "--json", file))
            self.validate(self.report, report, f"info --json {file!r}")
            if ("file" in report) != report["valid"]:
                self.fail(f"info --json {file!r}: a valid file, and no other, has the member file")

    def check_sarif(self, files):
        document = json.loads(self.run("check", "--format", "sarif", *files))
        self.validate(self.sarif, document, "check --format sarif")
        run = document["runs"][0]
        rules = [rule["id"] for rule in run["tool"]["driver"]["rules"]]
        used = {result["ruleId"] for result in run["results"]}
        if not used or len(rules) != len(set(rules)) or set(rules) != used:
            self.fail(f"check --format sarif: rules {rules}, used {sorted(used)}")

    def check_diff(self, file, others):
        for other in others:
            done = self.start("diff", "--json", file, other)
            what = f"diff --json {file!r} {other!r}"
            comparison = json.loads(done.stdout)
            self.validate(self.diff, comparison, what)
            if done.returncode != {True: 0, False: 1, None: 2}[comparison["equal"]]:
                self.fail(f"{what}: exit code {done.returncode}")

    def check_damages(self, file):
        report = json.loads(self.run("check", "--json", file))
        for what, damage in DAMAGES.items():
            damaged = copy.deepcopy(report)
            damage(damaged)
            if self.report.is_valid(damaged):
                self.fail(f"the schema accepts: {what}")


def main():
    parser = argparse.ArgumentParser(description="Tests of the tool's JSON.")
    parser.add_argument("--tool", type=pathlib.Path, required=True)
    parser.add_argument("--examples", type=pathlib.Path, required=True)
    parser.add_argument("--schemas", type=pathlib.Path, required=True)
    check = Check(parser.parse_args())

    examples = check.arguments.examples
    good = sorted((examples / "good").iterdir())
    broken = sorted((examples / "broken").iterdir())
    with tempfile.TemporaryDirectory(prefix="touchstone2-json-") as folder:
        odd = []
        for name, content in ODD_FILES.items():
            odd.append(folder.encode() + b"/" + name)
            with open(odd[-1], "wb") as file:
                file.write(content)
        files = [*good, *broken, *odd, "no such file.s1p"]
        check.check_files(files)
        check.check_sarif(files)
        check.check_diff(good[0], files)
        for file in odd:
            check.check_diff(file, files)
    check.check_damages(broken[0])
    print(f"{check.documents} documents, {check.failures} failures")
    return 1 if check.failures or not good or not broken else 0


if __name__ == "__main__":
    sys.exit(main())

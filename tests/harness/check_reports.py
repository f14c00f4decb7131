"""check_reports.py SCHEMA REPORT...: validates reports, and damaged copies of the last, which must be refused.

Exits with 77, a skipped test, without the validator (Debian's python3-jsonschema).
"""
import copy
import json
import sys

try:
    from jsonschema import Draft202012Validator
except ImportError:
    print("skipped: python3-jsonschema is not installed")
    sys.exit(77)

# Each takes a report and its first graded entry.
DAMAGES = {
    "no id": lambda report, entry: entry.pop("id"),
    "an id of one word": lambda report, entry: entry.update(id="top"),
    "a number as text": lambda report, entry: entry.update(x_um=str(entry["x_um"])),
    "a value without a number": lambda report, entry: entry.update(mil=None),
    "a limit without a unit": lambda report, entry: entry.update(limitUnit=None),
    "an unknown severity": lambda report, entry: entry.update(severity="orange"),
    "another version": lambda report, entry: report.update(version=1),
    "a third coordinate": lambda report, entry: entry["places"][0].update(z_um=0),
    "a third place": lambda report, entry: entry["places"].extend(entry["places"][:1] * 2),
    "one net": lambda report, entry: entry["nets"].pop(),
    "an unknown key": lambda report, entry: report.update(comment=""),
    "a negative count": lambda report, entry: report["counts"].update(red=-1),
    "a date of another form": lambda report, entry: report.update(date="22.11.2026"),
}


def main(schema_path, report_paths):
    with open(schema_path, encoding="utf-8") as file:
        schema = json.load(file)
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    problems = []
    report = {}
    for path in report_paths:
        with open(path, encoding="utf-8") as file:
            report = json.load(file)
        problems += [f"{path}: {error.json_path}: {error.message}" for error in validator.iter_errors(report)]
    for name, damage in DAMAGES.items():
        damaged = copy.deepcopy(report)
        entries = [entry for category in damaged["categories"] for entry in category["entries"]]
        damage(damaged, next(entry for entry in entries if entry["severity"] != "none"))
        if validator.is_valid(damaged):
            problems.append(f"accepted: {name}")
    print("\n".join(problems))
    return 1 if problems else 0


sys.exit(main(sys.argv[1], sys.argv[2:]))

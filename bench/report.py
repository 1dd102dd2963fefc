#!/usr/bin/env python3
"""Joins the results of the benchmark programs into one table, one JSON file and one picture.

usage: bench/report.py <folder with the programs' results> <JSON file> <picture>

Each measurement is named "work/contender". targets.json lists the targets of the library. The keys of an entry:

  work       pattern of the works that the target applies to (with wildcards * and ?)
  target     the maximum for the library: a ratio to the reference, or an absolute value without one
  reference  the contender that the library is compared with
  counter    the counter that is compared; the time by default
  unit       the unit of the counter, shown in the table
  flat_from  compares the cost of one element between works whose names end in the number of elements, from this number
             on: the highest cost with the lowest
  title      shows only one row, with this title, for the work that is furthest from its target
  show       further counters to show in the row
"""

import fnmatch
import json
import pathlib
import statistics
import subprocess
import sys

LIBRARY = "APIModule"
RECORDS = "detailed parking lots, records"
TEXT_TO_RECORDS = "detailed parking lots, text to records"
CLOCKS = ("/real_time", "/manual_time", "/process_time")


class Result:
    """The results of one contender at one work: medians over the repetitions."""

    def __init__(self, runs):
        # Works that wait are measured in wall-clock time, which their names indicate, all others in processor time.
        clock = "real_time" if runs[0]["name"].endswith(CLOCKS[:2]) else "cpu_time"
        scale = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}[runs[0]["time_unit"]]
        self.seconds = statistics.median(run[clock] for run in runs) * scale
        numbers = {key for key, value in runs[0].items() if isinstance(value, float)} - {"real_time", "cpu_time"}
        self.counters = {key: statistics.median(run[key] for run in runs) for key in sorted(numbers)}

    def value(self, counter):
        return self.counters[counter] if counter else self.seconds


def read_results(folder):
    """The results by work and contender, in the order of the programs, and the machine on which they were measured."""
    runs = {}
    context = {}
    for path in sorted(folder.glob("*_bench.json")):
        program = json.loads(path.read_text())
        context = {key: program["context"][key] for key in ("num_cpus", "mhz_per_cpu", "caches", "load_avg")}
        for run in program["benchmarks"]:
            if run.get("error_occurred"):
                sys.exit(f"{run['name']}: {run['error_message']}")
            if run["run_type"] == "iteration":
                runs.setdefault((run["family_index"], run["run_name"], path), []).append(run)
    works = {}
    for (_, name, _), found in sorted(runs.items(), key=lambda item: (item[0][2], item[0][0])):
        for clock in CLOCKS:
            name = name.removesuffix(clock)
        work, contender = name.rsplit("/", 1)
        works.setdefault(work, {})[contender] = Result(found)
    return works, context


def elements(work):
    return int(work.rsplit("/", 1)[1])


def ratio(value, reference):
    """The ratio of two costs. Two costs of zero are equal."""
    return value / reference if reference else (1.0 if value == 0 else float("inf"))


def row(target, work, results):
    """The outcome of a target at one work."""
    counter = target.get("counter")
    value = results[LIBRARY].value(counter)
    reference = target.get("reference")
    against = results[reference].value(counter) if reference else None
    reached = ratio(value, against) if reference else value
    return {
        "work": work,
        "counter": counter,
        "unit": target.get("unit", ""),
        "library": value,
        "reference": reference,
        "reference_value": against,
        "ratio": reached if reference else None,
        "target": target["target"],
        "reached": reached <= target["target"],
        "excess": reached / target["target"] if target["target"] else reached,
        "show": {key: {name: result.counters.get(key) for name, result in results.items()}
                 for key in target.get("show", [])},
        "peers": {} if counter else {name: result.seconds for name, result in results.items()
                                     if name not in (LIBRARY, reference)},
    }


def flat_row(target, works):
    """Compares the highest cost of one element with the lowest."""
    costs = {work: results[LIBRARY].seconds / elements(work) for work, results in works.items()
             if elements(work) >= target["flat_from"]}
    if len(costs) < 2:
        return []
    highest = max(costs, key=costs.get)
    lowest = min(costs, key=costs.get)
    reached = costs[highest] / costs[lowest]
    return [{
        "work": target["title"], "counter": None, "unit": "", "library": costs[highest],
        "reference": f"{elements(lowest)} lots", "reference_value": costs[lowest], "ratio": reached,
        "target": target["target"], "reached": reached <= target["target"], "excess": 0, "show": {}, "peers": {},
    }]


def rows_of(target, works):
    measured = {}
    for work, results in works.items():
        if fnmatch.fnmatchcase(work, target["work"]):
            missing = {LIBRARY, target.get("reference", LIBRARY)} - results.keys()
            if missing:
                print(f"not compared: {work}, where {' and '.join(sorted(missing))} was not measured")
            else:
                measured[work] = results
    if "flat_from" in target:
        return flat_row(target, measured)
    rows = [row(target, work, results) for work, results in measured.items()]
    if "title" in target and rows:
        worst = max(rows, key=lambda each: each["excess"])
        rows = [dict(worst, work=f"{target['title']} ({worst['work']})")]
    return rows


def time_text(seconds):
    for unit, scale in (("s", 1.0), ("ms", 1e-3), ("us", 1e-6)):
        if seconds >= scale:
            return f"{seconds / scale:.3g} {unit}"
    return f"{seconds / 1e-9:.3g} ns"


def value_text(value, each):
    if value is None:
        return ""
    return f"{value:.4g} {each['unit']}".strip() if each["counter"] else time_text(value)


def print_table(rows):
    lines = [("", LIBRARY, "reference", "", "ratio", "target", "", "others")]
    for each in rows:
        others = [f"{name} {time_text(seconds)}" for name, seconds in each["peers"].items()]
        for counter, values in each["show"].items():
            others += [f"{counter} " + ", ".join(f"{name} {value:.4g}" for name, value in values.items())]
        lines.append((each["work"], value_text(each["library"], each), each["reference"] or "",
                      value_text(each["reference_value"], each),
                      "" if each["ratio"] is None else f"{each['ratio']:.2f}",
                      f"<= {each['target']:g}", "reached" if each["reached"] else "MISSED", ", ".join(others)))
    widths = [max(len(line[column]) for line in lines) for column in range(len(lines[0]))]
    for line in lines:
        print("  ".join(f"{text:>{width}}" if column in (1, 3, 4) else f"{text:<{width}}"
                        for column, (text, width) in enumerate(zip(line, widths))).rstrip())
    missed = sum(not each["reached"] for each in rows)
    print(f"\n{len(rows) - missed} of {len(rows)} targets reached")


def draw(works, folder, picture):
    """The cost of reading parking lots against the size of the reply."""
    columns = [("QJsonDocument::fromJson", RECORDS, "fromJson"), ("APIModule, the part after fromJson", RECORDS, LIBRARY),
               ("APIModule, text to records", TEXT_TO_RECORDS, LIBRARY)]
    columns += [(f"{name}, text to records", TEXT_TO_RECORDS, name) for name in ("nlohmann", "RapidJSON", "simdjson")]
    sizes = sorted(elements(work) for work in works if work.startswith(RECORDS + "/"))
    lines = ["\t".join(['"bytes"'] + [f'"{title}"' for title, _, _ in columns])]
    try:
        for size in sizes:
            results = [works[f"{work}/{size}"][contender] for _, work, contender in columns]
            lines.append("\t".join(f"{value:.6g}" for value in
                                   [results[0].counters["bytes"]] + [result.seconds * 1e3 for result in results]))
    except KeyError:
        return  # some contenders were not measured
    if len(sizes) < 2:
        return
    data = folder / "reading-cost.dat"
    data.write_text("\n".join(lines) + "\n")
    script = pathlib.Path(__file__).with_name("reading-cost.gnuplot")
    subprocess.run(["gnuplot", "-c", str(script), str(data), str(picture)], check=True)
    print(f"picture: {picture}")


def main():
    folder, joined, picture = map(pathlib.Path, sys.argv[1:])
    works, context = read_results(folder)
    targets = json.loads(pathlib.Path(__file__).with_name("targets.json").read_text())
    rows = [each for target in targets for each in rows_of(target, works)]
    print_table(rows)
    results = {
        "context": context,
        "targets": rows,
        "works": {work: {name: {"seconds": result.seconds, **result.counters} for name, result in results.items()}
                  for work, results in works.items()},
    }
    joined.write_text(json.dumps(results, indent=1) + "\n")
    print(f"results: {joined}")
    draw(works, folder, picture)


if __name__ == "__main__":
    main()

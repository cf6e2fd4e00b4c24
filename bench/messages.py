#!/usr/bin/env -S python3 -B
"""Prints what message_bench measured (its JSON) as a Markdown table: for each benchmark and message the least processor
time of all repetitions, in nanoseconds for each message."""

import json
import sys

UNITS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

with open(sys.argv[1], encoding="utf-8") as file:
    runs = [run for run in json.load(file)["benchmarks"] if run["run_type"] == "iteration"]
if not runs or any(run.get("error_occurred") for run in runs):
    sys.exit("there is no benchmark, or one that failed")
runs.sort(key=lambda run: run["family_index"])  # as they were registered

least = {}
for run in runs:
    work, message = run["name"].split("/")[:2]
    items = round(run["items_per_second"] * run["cpu_time"] * UNITS[run["time_unit"]] / 1e9)  # of an iteration
    time = run["cpu_time"] * UNITS[run["time_unit"]] / items
    least[work, message] = min(time, least.get((work, message), time))

works = list(dict.fromkeys(work for work, _ in least))
messages = list(dict.fromkeys(message for _, message in least))
print(f"| ns for a message | {' | '.join(messages)} |\n|---|{'---:|' * len(messages)}")
for work in works:
    cells = [f"{least[work, message]:.0f}" if (work, message) in least else "" for message in messages]
    print(f"| {work} | {' | '.join(cells)} |")

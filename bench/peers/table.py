#!/usr/bin/env python3
"""Reads lines 'peer workload message min_ns median_ns median_cycles' (many rounds) and prints, per workload:
  ns: best block of all rounds (median of the rounds' medians)
  core cycles: best of the rounds' medians -- independent of the core's clock, the column for ratios
  ratio: cycles / cycles of the fastest peer in that column
TABLE=cycles prints the cycle and ratio tables only, TABLE=markdown the cycles as they stand in docs/performance.md."""
import os, sys, statistics
from collections import defaultdict
MSGS = ["options", "register", "invite", "invite_hops", "ok_sdp", "notify_xml", "bye_route", "compact_fold"]
mn, md, cy, peers, wls = defaultdict(list), defaultdict(list), defaultdict(list), [], []
for f in sys.argv[1:] or ["/dev/stdin"]:
    for l in open(f):
        p = l.split()
        if len(p) != 6 or p[3] == "FAIL": continue
        k = (p[0], p[1], p[2]); mn[k].append(float(p[3])); md[k].append(float(p[4])); cy[k].append(float(p[5]))
        if p[0] not in peers: peers.append(p[0])
        if p[1] not in wls: wls.append(p[1])
def fmt(x): return f"{x:.0f}" if x >= 100 else f"{x:.1f}"
def row(name, cells, w=17): print(f"{name:20s}" + "".join(f"{c:>{w}s}" for c in cells))
TITLES = {"W1": "decode and free", "W2": "decode and read the typed core", "W3": "a proxy's hop", "W4": "encode again"}
def markdown(w, rows):
    print(f"\n| {TITLES.get(w, w)} | {' | '.join(MSGS)} |\n|{'---|' * (len(MSGS) + 1)}")
    for p in rows: print(f"| {p.partition('-')[0]} | {' | '.join(f'{min(cy[p, w, m]):.0f}' if (p, w, m) in cy else '-' for m in MSGS)} |")
for w in wls:
    rows = [p for p in peers if any((p, w, m) in mn for m in MSGS)]
    if os.environ.get("TABLE") == "markdown":
        markdown(w, rows)
        continue
    if os.environ.get("TABLE") != "cycles":
        print(f"\n== {w}: ns per message, min (median)"); row("", MSGS)
        for p in rows: row(p, [f"{fmt(min(mn[k]))} ({fmt(statistics.median(md[k]))})" if (k := (p, w, m)) in mn else "-" for m in MSGS])
    print(f"-- {w}: core cycles, and ratio to the fastest in the column"); row("", MSGS)
    best = {m: min((min(cy[q, w, m]) for q in rows if (q, w, m) in cy), default=1) for m in MSGS}
    for p in rows: row(p, [f"{min(cy[k]):.0f}  {min(cy[k]) / best[m]:6.2f}x" if (k := (p, w, m)) in cy else "-" for m in MSGS])

#!/usr/bin/env python3
"""Runs every function's example through vthost and writes the reference.

    scripts/gallery.py VTHOST [--lang xx] [--out docs]

Reads docs/examples/<Function>.json for each function the module registers,
in registration order; runs the example call with its answer script and a
screenshot step; writes <out>/functions.md and <out>/gallery/<Function>.png.
An example file holds:

    {"about": "what it is for",
     "arguments": [["0", "strings", "what the argument holds"], ...],
     "ok": "the result on Ok", "cancel": "the result on Cancel" (dialogs only),
     "call": [ARG, ...],                 as vthost takes them (JSON values)
     "answer": [STEP, ...]}              dialogs only; the screenshot is added
"""
import argparse
import json
import os
import subprocess
import sys
import tempfile

KINDS = {1: "strings", 4: "reals"}


def registered(vthost):
    out = subprocess.run([vthost, "list", "--json"], check=True, capture_output=True, text=True)
    # The host lists the head first: registration order is the reverse.
    return list(reversed(json.loads(out.stdout)))


def with_screenshot(steps, path):
    """The steps with a screenshot taken just before the dialog is closed."""
    steps = list(steps)
    at = len(steps)
    for i in range(len(steps) - 1, -1, -1):
        if any(k in steps[i] for k in ("accept", "cancel")):
            at = i
            break
    steps.insert(at, {"screenshot": path})
    return steps


def run_example(vthost, name, example, shot, lang, config):
    # "@file.json" stands for an argument kept in a file, as vthost reads it.
    cmd = [vthost, "call", name] + [a if isinstance(a, str) and a.startswith("@") else json.dumps(a)
                                    for a in example["call"]]
    cmd += ["--config-dir", config]
    if lang:
        cmd += ["--lang", lang]
    answer_file = None
    if "answer" in example:
        answer_file = tempfile.NamedTemporaryFile("w", suffix=".json", delete=False)
        json.dump(with_screenshot(example["answer"], shot), answer_file)
        answer_file.close()
        cmd += ["--answer", answer_file.name]
    try:
        done = subprocess.run(cmd, capture_output=True, text=True, timeout=60)
    finally:
        if answer_file:
            os.unlink(answer_file.name)
    return cmd, done


def shell_words(cmd):
    def quote(w):
        return w if w and all(c.isalnum() or c in "-_./@=" for c in w) else "'" + w.replace("'", "'\\''") + "'"
    shown = ["vthost"] + cmd[1:]
    # The answer file is a temporary; show the example's own steps instead.
    if "--answer" in shown:
        i = shown.index("--answer")
        shown[i + 1] = "steps.json"
    if "--config-dir" in shown:
        i = shown.index("--config-dir")
        del shown[i:i + 2]
    return " ".join(quote(w) for w in shown)


def esc(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def result_svg(name, printed):
    """A picture of a function that opens no window: its result, plotted
    when it is a waveform, else listed."""
    try:
        value = json.loads(printed)
    except ValueError:
        return None
    w, h, m = 560, 300, 48
    listed = value.get("values") if isinstance(value, dict) else value
    if not (isinstance(value, dict) and value.get("x")) and isinstance(listed, list):
        h = 40 + 20 * min(len(listed), 16)
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" '
           f'font-family="DejaVu Sans, sans-serif" font-size="12">',
           f'<rect width="{w}" height="{h}" fill="#ffffff" stroke="#b0b0b0"/>',
           f'<text x="12" y="20" font-weight="bold">{esc(name)}</text>']
    if isinstance(value, dict) and value.get("x") and len(value["x"]) == len(value["values"]):
        pts = [(x, y) for x, y in zip(value["x"], value["values"]) if x is not None and y is not None]
        if not pts:
            return None
        xs, ys = [p[0] for p in pts], [p[1] for p in pts]
        log = min(xs) > 0 and max(xs) / min(xs) > 100
        fx = (lambda x: __import__("math").log10(x)) if log else (lambda x: x)
        x0, x1 = fx(min(xs)), fx(max(xs))
        y0, y1 = min(ys), max(ys)
        if y1 == y0:
            y0, y1 = y0 - 1, y1 + 1
        if x1 == x0:
            x1 = x0 + 1
        px = lambda x: m + (fx(x) - x0) / (x1 - x0) * (w - 2 * m)
        py = lambda y: h - m + (y0 - y) / (y1 - y0) * (h - 2 * m) + 0
        out.append(f'<rect x="{m}" y="{m}" width="{w - 2 * m}" height="{h - 2 * m}" fill="none" stroke="#808080"/>')
        poly = " ".join(f"{px(x):.1f},{py(y):.1f}" for x, y in pts)
        out.append(f'<polyline points="{poly}" fill="none" stroke="#1f5fbf" stroke-width="1.5"/>')
        for x, y in pts if len(pts) <= 40 else []:
            out.append(f'<circle cx="{px(x):.1f}" cy="{py(y):.1f}" r="2.5" fill="#1f5fbf"/>')
        g = lambda v: f"{v:.4g}"
        out += [f'<text x="{m}" y="{h - m + 16}">{g(min(xs))}</text>',
                f'<text x="{w - m}" y="{h - m + 16}" text-anchor="end">{g(max(xs))} {esc(value.get("xUnits", ""))}</text>',
                f'<text x="{m - 4}" y="{h - m}" text-anchor="end">{g(y0)}</text>',
                f'<text x="{m - 4}" y="{m + 10}" text-anchor="end">{g(y1)}</text>',
                f'<text x="{w / 2}" y="{h - 12}" text-anchor="middle">x {"(log)" if log else ""}</text>']
    else:
        items = value["values"] if isinstance(value, dict) else value
        if not isinstance(items, list):
            return None
        for i, item in enumerate(items[:16]):
            y = 48 + i * 20
            out.append(f'<text x="16" y="{y}" fill="#808080">{i}</text>')
            out.append(f'<rect x="40" y="{y - 14}" width="{w - 56}" height="18" fill="#f2f5fa" stroke="#c8d0dc"/>')
            out.append(f'<text x="46" y="{y}">{esc(json.dumps(item) if not isinstance(item, str) else item)}</text>')
    out.append("</svg>")
    return "\n".join(out)


def section(decl, example, cmd, done, picture):
    name = decl["name"]
    kind = "dialog factory" if decl["factory"] else "direct handler"
    lines = [f"## {name}", "", example["about"], "",
             f"{kind}; {decl['min']} to {decl['max']} arguments.", ""]
    if example.get("arguments"):
        lines += ["| Argument | Kind | Holds |", "|---|---|---|"]
        for arg, k, holds in example["arguments"]:
            lines.append(f"| {arg} | {k} | {holds.replace('|', chr(92) + '|')} |")
        lines.append("")
    lines += [f"**On Ok:** {example['ok']}", ""]
    if "cancel" in example:
        lines += [f"**On Cancel:** {example['cancel']}", ""]
    lines += ["Example:", "", "```sh", shell_words(cmd), "```", ""]
    if "answer" in example:
        lines += ["with `steps.json`:", "", "```json", json.dumps(example["answer"]), "```", ""]
    printed = done.stdout.strip() or "(nothing)"
    lines += ["printed:", "", "```", printed, "```", ""]
    if done.returncode != 0:
        lines += [f"exit code {done.returncode}: `{done.stderr.strip()}`", ""]
    if picture:
        lines += [f"![{name}](gallery/{os.path.basename(picture)})", ""]
    return "\n".join(lines)


def main():
    p = argparse.ArgumentParser()
    p.add_argument("vthost")
    p.add_argument("--lang", default="")
    p.add_argument("--out", default="docs")
    p.add_argument("--examples", default="docs/examples")
    a = p.parse_args()

    os.makedirs(os.path.join(a.out, "gallery"), exist_ok=True)
    parts = ["# Function reference", "",
             "Every script function of the module, in registration order, with an example",
             "call run through `vthost` by `scripts/gallery.sh`. This file is generated.", ""]
    failures = 0
    with tempfile.TemporaryDirectory() as config:
        for decl in registered(a.vthost):
            name = decl["name"]
            path = os.path.join(a.examples, name + ".json")
            if not os.path.exists(path):
                print(f"gallery: no example for {name}", file=sys.stderr)
                failures += 1
                continue
            with open(path, encoding="utf-8") as f:
                example = json.load(f)
            shot = os.path.join(a.out, "gallery", name + ".png")
            if os.path.exists(shot):
                os.unlink(shot)
            cmd, done = run_example(a.vthost, name, example, shot, a.lang, config)
            picture = shot if os.path.exists(shot) else None
            if not picture and "answer" not in example and done.returncode == 0:
                svg = result_svg(name, done.stdout.strip())
                if svg:
                    picture = os.path.join(a.out, "gallery", name + ".svg")
                    with open(picture, "w", encoding="utf-8") as f:
                        f.write(svg)
            if done.returncode != 0 or not picture:
                print(f"gallery: {name}: exit {done.returncode}: {done.stderr.strip()}", file=sys.stderr)
                failures += 1
            parts.append(section(decl, example, cmd, done, picture))
            print(f"gallery: {name}", file=sys.stderr)
    with open(os.path.join(a.out, "functions.md"), "w", encoding="utf-8") as f:
        f.write("\n".join(parts))
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Shrinks a fuzzer's script to the fewest lines that still show its finding:
the model and the window disagree (the default), or the model's output still
contains a given text (--model-says TEXT).

    tests/fuzz/minimize.py build/bin/tessaron-script fuzz-4-7.tsc > small.tsc
"""
import os
import subprocess
import sys


def play(driver, lines, gui):
    env = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    args = [driver] + (["--gui"] if gui else []) + ["-"]
    r = subprocess.run(args, input="\n".join(lines) + "\n", capture_output=True, text=True,
                       env=env, timeout=120)
    return r.stdout


def main():
    args = sys.argv[1:]
    says = None
    if "--model-says" in args:
        i = args.index("--model-says")
        says = args[i + 1]
        del args[i:i + 2]
    driver, script = args
    lines = [l for l in open(script, encoding="utf-8").read().split("\n")
             if l and not l.startswith("#")]

    def shows(ls):
        model = play(driver, ls, False)
        if says is not None:
            return says in model
        return model != play(driver, ls, True)

    assert shows(lines), "the script shows nothing to keep"
    chunk = len(lines) // 2
    while chunk >= 1:
        i = 0
        while i < len(lines):
            trial = lines[:i] + lines[i + chunk:]
            if trial and shows(trial):
                lines = trial
            else:
                i += chunk
        chunk //= 2
    print("\n".join(lines))


main()

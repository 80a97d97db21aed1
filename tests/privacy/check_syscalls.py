#!/usr/bin/env python3
"""Runs a program under strace and checks what it did to the world: no
network socket opened, and no file written except those the user asked for.

    check_syscalls.py --allow FILE ... -- PROGRAM ARGS...

A file is written when it is opened for writing, created, renamed, removed,
or a folder is made. Exit status 0 when all is clean, 1 with the offending
calls listed.
"""
import os
import re
import subprocess
import sys
import tempfile

NETWORK = re.compile(r"\bsocket\((AF_INET6?|AF_PACKET|PF_INET6?|AF_BLUETOOTH|AF_CAN)\b")
CONNECT = re.compile(r"\bconnect\(\d+, \{sa_family=(AF_INET6?)\b")
OPEN = re.compile(r'\b(?:open|openat|creat)\((?:[A-Z_]+, )?"([^"]*)", ([A-Z_|]+)')
CHANGE = re.compile(r'\b(rename|renameat2?|unlink|unlinkat|mkdir|mkdirat|truncate|link|symlink)'
                    r'\((?:[A-Z_]+|\d+, )?"([^"]*)"')
# Devices that take output without keeping it.
HARMLESS = {"/dev/null", "/dev/tty", "/dev/shm"}


def main():
    args = sys.argv[1:]
    sep = args.index("--")
    allowed = set()
    i = 0
    while i < sep:
        if args[i] == "--allow":
            allowed.add(os.path.realpath(args[i + 1]))
            i += 2
        else:
            sys.exit("unknown option " + args[i])
    program = args[sep + 1:]
    with tempfile.TemporaryDirectory() as tmp:
        log = os.path.join(tmp, "trace")
        env = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=tmp)
        run = subprocess.run(["strace", "-f", "-qq", "-s", "512", "-o", log,
                              "-e", "trace=%network,%file"] + program,
                             env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                             timeout=120)
        lines = open(log, encoding="utf-8", errors="replace").read().splitlines()
    bad = []
    for line in lines:
        if " = -1 " in line:  # refused by the system: nothing happened
            continue
        if NETWORK.search(line) or CONNECT.search(line):
            bad.append(line)
            continue
        m = OPEN.search(line)
        if m:
            path, flags = m.group(1), m.group(2)
            writes = any(f in flags for f in ("O_WRONLY", "O_RDWR", "O_CREAT", "O_TRUNC"))
            if writes and path not in HARMLESS and not path.startswith("/dev/shm/") \
                    and os.path.realpath(path) not in allowed and not path.startswith("/proc/"):
                bad.append(line)
            continue
        m = CHANGE.search(line)
        if m and os.path.realpath(m.group(2)) not in allowed:
            bad.append(line)
    if bad:
        print("the program reached the world beyond what was asked:")
        print("\n".join(bad[:40]))
        return 1
    print(f"clean: {len(lines)} calls traced, status {run.returncode}")
    return 0


sys.exit(main())

# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
"""Prints the binary interface of the library that gdb has loaded. Run by script/abi.

A symbol's line has the type it returns. A record's has its size and a field's its offset, in bytes. Types of Qt are
named, not described. Records and enumerations are those that the public headers name.
"""

import fileinput
import re
import subprocess

import gdb

library = gdb.objfiles()[0].filename


def symbols(*options):
    output = subprocess.check_output(["nm", "--dynamic", "--demangle", *options, library], text=True)
    return output.splitlines()


def describe_symbol(line):
    address, kind, name = line.split(maxsplit=2)
    if kind == "A":
        return f"    version {name}"
    if kind not in "TW":
        return f"    {kind} {name}"
    returned = gdb.block_for_pc(int(address, 16)).function.type.target()
    return f"    {name}: {returned.name or returned}"


def describe_record(name):
    record = gdb.lookup_type(name)
    print(f"\nrecord {name}: {record.sizeof}")
    for field in record.fields():
        print(f"    {field.bitpos // 8} {field.type.name or field.type} {field.name}")


def describe_enum(name):
    enum = gdb.lookup_type(name)
    print(f"\nenum {name}: {enum.sizeof}")
    for enumerator in enum.fields():
        print(f"    {enumerator.name} = {enumerator.enumval}")


dynamic = subprocess.check_output(["readelf", "--dynamic", "--wide", library], text=True)
print(re.search(r"soname: \[(.*)]", dynamic)[1])

print("\nexported")
# As a set, because a constructor is there twice.
print("\n".join(sorted({describe_symbol(line) for line in symbols("--defined-only", "--without-symbol-versions")})))

print("\nleft to the host")
print("\n".join("    " + line.split()[1] for line in symbols("--undefined-only") if " U " in line and "@" not in line))

record = ""
with fileinput.input(["smilparser/smilparser.h", "smilparser/smilcomposer.h"], encoding="utf-8") as headers:
    for line in headers:
        if match := re.match(r"class SMILPARSER_EXPORT (\w+)", line):
            record = match[1]
            describe_record(record)
        elif match := re.match(r" +enum (\w+)", line):
            describe_enum(f"{record}::{match[1]}")

gdb.execute("quit 0")

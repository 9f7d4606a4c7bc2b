# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
"""Tables in Markdown."""


def table(columns, rows):
    """A table; a column whose heading begins with "#" is one of numbers."""
    lines = [[column.lstrip("#") for column in columns],
             ["--:" if column.startswith("#") else "---" for column in columns], *rows]
    return "".join("| " + " | ".join(str(cell) for cell in line) + " |\n" for line in lines)

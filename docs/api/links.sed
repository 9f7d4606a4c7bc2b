# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
#
# The links to files that the rendered documentation has under another name, or not at all.
s,(\(../\)\{0\,1\}examples/\([a-z]*\)\.cpp),(\2_8cpp-example.html),g
s,(\(docs/\)\{0\,1\}figures/,(,g
s,\[\([^]]*\)\](\(LICENSE\|CONTRIBUTING\.md\|examples\)),\1,g
# A page is called by its heading. By its own path, Doxygen finds one only where that path has no blanks.
s,^# smilparser$,@mainpage notitle,
s,^# \([A-Za-z]*\)$,& {#\L\1},
s,(\(docs/\|\.\./\)\{0\,1\}\([A-Za-z]*\)\.md),(@ref \L\2),g
# A page takes its title from the heading when that comes first.
/^<!--$/,/^-->$/d

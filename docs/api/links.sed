# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
#
# The links to files that the rendered documentation has under another name, or not at all.
s,(examples/\(compose\|send\|show\).cpp),(\1_8cpp-example.html),g
s,(docs/figures/\(player\.png\|storyboard\.svg\)),(\1),g
# By its own path, Doxygen finds a page only where that path has no blanks.
s,(SECURITY\.md),(@ref security),g
s,^# Security$,& {#security},
s,\[\([^]]*\)\](\(LICENSE\|CONTRIBUTING\.md\|docs/[^)]*\)),\1,g
# A page takes its title from the heading when that comes first. On the front page, the head has the project's name
# already.
/^<!--$/,/^-->$/d
s,^# smilparser$,@mainpage notitle,

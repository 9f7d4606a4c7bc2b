# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
#
# The links to files that the rendered documentation has under another name, or not at all.
s,(examples/compose.cpp),(compose_8cpp-example.html),g
s,(docs/storyboard\.svg),(storyboard.svg),g
s,\[\([^]]*\)\](\(LICENSE\|CONTRIBUTING\.md\|docs/[^)]*\)),\1,g

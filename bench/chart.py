# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
"""The chart of docs/performance.md: bars in groups, as SVG."""

from html import escape

WIDTH = 760
LEFT = 230  # where bars begin
RIGHT = 210  # what is kept free for the numbers
BAR, STEP, TOP = 18, 26, 62

STYLE = """
    text { font: 14px system-ui, sans-serif; fill: #1f2328; }
    .title { font-size: 16px; font-weight: 600; }
    .group { font-weight: 600; }
    .card { fill: #ffffff; stroke: #d1d9e0; }
    .floor { stroke: #1f2328; stroke-dasharray: 4 3; }
    .bar { fill: #8c959f; }
    .own { fill: #0969da; }
    @media (prefers-color-scheme: dark) {
        text { fill: #f0f6fc; }
        .card { fill: #0d1117; stroke: #3d444d; }
        .floor { stroke: #f0f6fc; }
        .bar { fill: #6e7681; }
        .own { fill: #4493f8; }
    }
"""


def text(x, y, content, style="label", anchor="start"):
    return f'<text class="{style}" x="{x}" y="{y}" text-anchor="{anchor}">{escape(content)}</text>'


def chart(title, groups, own):
    """
    groups: [(heading, [(label, value, remark)])]. Bars of the value, with a line at 1 through all of them; the label
    that is `own` stands out.
    """
    scale = (WIDTH - LEFT - RIGHT) / max(value for _, bars in groups for _, value, _ in bars)
    lines = [text(20, 32, title, "title")]
    y = TOP
    for heading, bars in groups:
        lines.append(text(20, y + 14, heading, "group"))
        y += STEP
        for label, value, remark in bars:
            style = "own" if label == own else "bar"
            width = value * scale
            lines.append(text(LEFT - 10, y + 14, label, anchor="end"))
            lines.append(f'<rect class="{style}" x="{LEFT}" y="{y}" width="{width:.1f}" height="{BAR}" rx="2"/>')
            lines.append(text(WIDTH - RIGHT + 20, y + 14, f"{value:.2f}  {remark}"))
            y += STEP
        y += STEP / 2
    one = LEFT + scale
    lines.insert(1, f'<line class="floor" x1="{one:.1f}" y1="{TOP}" x2="{one:.1f}" y2="{y - STEP / 2:.1f}"/>')
    body = "\n".join("    " + line for line in lines)
    return f"""<svg xmlns="http://www.w3.org/2000/svg" role="img" viewBox="0 0 {WIDTH} {y:.0f}" width="{WIDTH}">
    <title>{escape(title)}</title>
    <style>{STYLE}    </style>
    <rect class="card" x="0.5" y="0.5" width="{WIDTH - 1}" height="{y - 1:.0f}" rx="6"/>
{body}
</svg>
"""

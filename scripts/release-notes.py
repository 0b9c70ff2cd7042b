#!/usr/bin/env python3
"""Turns docs/release-notes.md into the release history the packages carry.

  --metainfo            an AppStream <releases> element (newest first), indented
                        to sit directly under <component>; with --template FILE
                        the whole metainfo file, the line holding @RELEASES@
                        replaced by that element
  --changelog PACKAGE   a Debian changelog for the binary package PACKAGE

The notes hold one "## X.Y.Z" or "## X.Y.Z (YYYY-MM-DD)" heading per version;
under it, paragraphs and "- " bullet points (continuation lines indented).
A version without a date gets --date, else SOURCE_DATE_EPOCH, else today.
Markdown **bold** and `code` marks become plain text. Standard library only.
"""
import argparse
import datetime
import email.utils
import os
import re
import sys
import textwrap
from pathlib import Path
from xml.sax.saxutils import escape

ROOT = Path(__file__).resolve().parent.parent
HEADING = re.compile(r"^##\s+(\d+(?:\.\d+)+\S*)\s*(?:\((\d{4}-\d{2}-\d{2})\))?\s*$")
BULLET = re.compile(r"^\s*[-*]\s+")
MAINTAINER = "Torvane <support@torvane.example>"


def plain(text):
    return re.sub(r"\*\*(.+?)\*\*", r"\1", text).replace("`", "")


def parse(lines, fallback_date):
    """[(version, date, [("p" | "li", text), ...])], in file order."""
    releases, blocks, joinable = [], None, False
    for line in lines:
        if line.startswith("## "):
            match = HEADING.match(line)
            blocks, joinable = ([] if match else None), False  # "## Unreleased" and the like are left out
            if match:
                releases.append((match[1], match[2] or fallback_date, blocks))
        elif blocks is None:
            continue
        elif not line.strip():
            joinable = False
        elif BULLET.match(line):
            blocks.append(("li", plain(BULLET.sub("", line).strip())))
            joinable = True
        elif joinable:
            blocks[-1] = (blocks[-1][0], blocks[-1][1] + " " + plain(line.strip()))
        else:
            blocks.append(("p", plain(line.lstrip("#").strip())))
            joinable = not line.startswith("#")
    return releases


def metainfo(releases):
    out = ["  <releases>"]
    for version, date, blocks in releases:
        out += [f'    <release version="{version}" date="{date}">', "      <description>"]
        in_list = False
        for kind, text in blocks:
            if (kind == "li") != in_list:
                out.append("        <ul>" if kind == "li" else "        </ul>")
                in_list = kind == "li"
            out.append(f"          <li>{escape(text)}</li>" if in_list else f"        <p>{escape(text)}</p>")
        if in_list:
            out.append("        </ul>")
        out += ["      </description>", "    </release>"]
    return "\n".join(out + ["  </releases>"]) + "\n"


def changelog(releases, package):
    out = []
    for version, date, blocks in releases:
        when = datetime.datetime.strptime(date, "%Y-%m-%d").replace(tzinfo=datetime.timezone.utc)
        out += [f"{package} ({version}) stable; urgency=medium", ""]
        for _, text in blocks:
            out += textwrap.wrap(text, 80, initial_indent="  * ", subsequent_indent="    ",
                                 break_long_words=False, break_on_hyphens=False)
        out += ["", f" -- {MAINTAINER}  {email.utils.format_datetime(when)}", ""]
    return "\n".join(out)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    mode = parser.add_mutually_exclusive_group(required=True)
    mode.add_argument("--metainfo", action="store_true", help="print an AppStream <releases> element (see --template)")
    mode.add_argument("--changelog", metavar="PACKAGE", help="print a Debian changelog for PACKAGE")
    parser.add_argument("--input", type=Path, default=ROOT / "docs" / "release-notes.md",
                        help="the release notes (default: docs/release-notes.md)")
    parser.add_argument("-o", "--output", type=Path, help="write here instead of standard output")
    parser.add_argument("--template", type=Path, help="metainfo file whose @RELEASES@ line gets the element")
    parser.add_argument("--date", type=datetime.date.fromisoformat, help="YYYY-MM-DD for versions without one")
    args = parser.parse_args()

    if args.date:
        fallback = args.date
    elif "SOURCE_DATE_EPOCH" in os.environ:
        fallback = datetime.datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]), datetime.timezone.utc).date()
    else:
        fallback = datetime.date.today()
    releases = parse(args.input.read_text(encoding="utf-8").splitlines(), fallback.isoformat())
    if not releases:
        parser.error(f"{args.input}: no '## X.Y.Z' version heading")

    if args.changelog:
        text = changelog(releases, args.changelog)
    else:
        text = metainfo(releases)
        if args.template:
            element = text
            text, found = re.subn(r"^[ \t]*@RELEASES@[ \t]*$\n?", lambda _: element,
                                  args.template.read_text(encoding="utf-8"), count=1, flags=re.M)
            if not found:
                parser.error(f"{args.template}: no line holding only @RELEASES@")
    if args.output:
        args.output.write_text(text, encoding="utf-8")
    else:
        sys.stdout.write(text)


if __name__ == "__main__":
    main()

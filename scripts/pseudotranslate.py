#!/usr/bin/env python3
"""Writes the pseudo-translation "xx" from the source catalogue.

Every text becomes 40% longer, with accented letters and brackets, so that
an untranslated text (plain ASCII) or a clipped one (a missing bracket)
shows at a glance. Placeholders (%1, %n), tags, entities and the & of a
mnemonic keep their meaning. Qt's own standard button texts are added, so
that a clipped Ok or Cancel shows as well.

    scripts/pseudotranslate.py translations/vtdialogs.ts translations/vtdialogs_xx.ts
"""
import re
import sys
import xml.etree.ElementTree as ET

ACCENTS = str.maketrans(
    "aeiouycnsAEIOUYCNS",
    "áéíóúýçñšÁÉÍÓÚÝÇÑŠ",
)
# Runs that must pass through untouched.
KEEP = re.compile(r"(<head>.*?</head>|%L?\d+|%n|<[^>]*>|&[a-zA-Z#0-9]+;|&&|\\n|\n)", re.S)
PAD = "~"

# Qt's own texts that the forms show: the standard buttons of button boxes
# and message boxes, by the context Qt looks them up in. Without them a
# clipped Ok or Cancel would not show.
QT_TEXTS = {
    "QPlatformTheme": ["OK", "Save", "Save All", "Open", "&Yes", "Yes to &All", "&No", "N&o to All",
                       "Abort", "Retry", "Ignore", "Close", "Cancel", "Discard", "Help", "Apply",
                       "Reset", "Restore Defaults"],
    "QGnomeTheme": ["&OK", "&Save", "&Cancel", "&Close", "Close without Saving"],
    "QMessageBox": ["Show Details...", "Hide Details..."],
}


# Kept runs that end a line as shown.
BREAK = re.compile(r"\n|<br\s*/?>|</p>", re.I)


def padding(count: int) -> str:
    """count pad letters as words of a few letters: a translation is longer
    by more words, not by one long one, and a wrapping label must still be
    able to wrap it."""
    words = [PAD * 6] * (count // 6) + ([PAD * (count % 6)] if count % 6 else [])
    return " ".join(words)


def grow(run: str, tail: str) -> str:
    """The run with tail put after its last visible letter."""
    cut = len(run.rstrip())
    return run[:cut] + tail + run[cut:]


def pseudo(text: str) -> str:
    if not text.strip():
        return text
    parts = KEEP.split(text)
    out = [part if i % 2 else part.translate(ACCENTS) for i, part in enumerate(parts)]
    shown = [i for i in range(0, len(out), 2) if out[i].strip()]
    if not shown:
        return text
    # Each line grows by its own share, as a translated line would; one pad
    # for all at the end would only make the widest line wider. The brackets
    # go around the visible text, inside any markup: outside it they would
    # stand in paragraphs of their own.
    letters, last, end = 0, None, None
    for i, part in enumerate(parts):
        if i % 2 == 0:
            if part.strip():
                letters, last = letters + len(part), i
        elif BREAK.fullmatch(part):
            if last is not None and letters:
                out[last] = grow(out[last], padding(max(1, round(letters * 0.4))))
                letters = 0
            continue
        elif not part.startswith("<"):  # a placeholder, an entity: shown
            last = i
        end = last
    pad = padding(max(1, round(letters * 0.4) - 2)) if letters else ""
    out[end] = grow(out[end], pad + "]")
    first = shown[0]
    lead = len(out[first]) - len(out[first].lstrip())
    out[first] = out[first][:lead] + "[" + out[first][lead:]
    return "".join(out)


def main(src: str, dst: str) -> None:
    tree = ET.parse(src)
    root = tree.getroot()
    root.set("language", "xx")
    for message in root.iter("message"):
        source = message.findtext("source") or ""
        translation = message.find("translation")
        if translation is None:
            translation = ET.SubElement(message, "translation")
        translation.attrib.pop("type", None)
        numerus = message.get("numerus") == "yes"
        if numerus:
            for form in list(translation):
                translation.remove(form)
            ET.SubElement(translation, "numerusform").text = pseudo(source)
        else:
            translation.text = pseudo(source)
    for name, sources in QT_TEXTS.items():
        context = root.find(f"context[name='{name}']")
        if context is None:
            context = ET.SubElement(root, "context")
            ET.SubElement(context, "name").text = name
        for source in sources:
            message = ET.SubElement(context, "message")
            ET.SubElement(message, "source").text = source
            ET.SubElement(message, "translation").text = pseudo(source)
        # Laid out as lupdate lays out its own contexts.
        ET.indent(context, space="    ")
        context.tail = "\n"
    root[-1].tail = "\n"
    with open(dst, "wb") as f:
        f.write(b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        tree.write(f, encoding="utf-8", xml_declaration=False)
        f.write(b"\n")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])

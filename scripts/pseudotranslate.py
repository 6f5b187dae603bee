#!/usr/bin/env python3
"""Writes the pseudo-translation "xx" from the source catalogue.

Every text becomes 40% longer, with accented letters and brackets, so that
an untranslated text (plain ASCII) or a clipped one (a missing bracket)
shows at a glance. Placeholders (%1, %n), tags, entities and the & of a
mnemonic keep their meaning.

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


def pseudo(text: str) -> str:
    if not text.strip():
        return text
    parts = KEEP.split(text)
    out = []
    letters = 0
    for i, part in enumerate(parts):
        if i % 2:  # a kept run
            out.append(part)
        else:
            out.append(part.translate(ACCENTS))
            letters += len(part)
    pad = PAD * max(1, round(letters * 0.4) - 2)
    if not text.lstrip().startswith("<"):
        return "[" + "".join(out) + pad + "]"
    # Rich text: the brackets go around the visible text, inside the markup;
    # outside it they would stand in paragraphs of their own.
    shown = [i for i in range(0, len(out), 2) if out[i].strip()]
    if not shown:
        return text
    first, last = shown[0], shown[-1]
    lead = len(out[first]) - len(out[first].lstrip())
    out[first] = out[first][:lead] + "[" + out[first][lead:]
    trail = len(out[last].rstrip())
    out[last] = out[last][:trail] + pad + "]" + out[last][trail:]
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
    with open(dst, "wb") as f:
        f.write(b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        tree.write(f, encoding="utf-8", xml_declaration=False)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])

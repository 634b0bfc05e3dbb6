#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
"""Builds emoji.tsv, the emoji with their names and search words, from Unicode's data.

The data comes from Debian's packages unicode-data (the emoji and their order) and
unicode-cldr-core (names and keywords in English and Arabic). To build the list anew:

    apt-get install unicode-data unicode-cldr-core
    resources/make-emoji.py

What the names lack, being a version older than the emoji, stands in this file.
"""

import argparse
import pathlib
import re
import unicodedata
import xml.etree.ElementTree

HEADER = """\
# Emoji, in the order in which keyboards show them.
# From Unicode's emoji data and CLDR annotations, as packaged in Debian's unicode-data and
# unicode-cldr-core. Copyright 1991-2022 Unicode, Inc.; licensed under Unicode-DFS-2016
# (https://www.unicode.org/license.txt). Changed: a selection, in a form of our own.
# Made by make-emoji.py: change that, not this.
#
# EMOJI, English name, Arabic name, English words, Arabic words (in their search form, the name
#     first, separated by |), and for those that take a skin tone: the emoji with the first
#     tone wherever one belongs, and the sequence that two different tones need, without them
"""

TONES = "\U0001f3fb\U0001f3fc\U0001f3fd\U0001f3fe\U0001f3ff"
PRESENTATION = "\ufe0f"

# English and Arabic words, the name first.
ADDED_WORDS = {
    "\U0001fae8": (["shaking face", "earthquake", "shock", "vibrate"],
                   ["وجه يهتز", "اهتزاز", "زلزال", "صدمة", "وجه"]),
    "\U0001fa77": (["pink heart", "cute", "heart", "like", "love"],
                   ["قلب وردي", "حب", "قلب", "وردي"]),
    "\U0001fa75": (["light blue heart", "cyan", "heart", "sky blue", "teal"],
                   ["قلب أزرق فاتح", "أزرق", "سماوي", "قلب"]),
    "\U0001fa76": (["gray heart", "grey heart", "heart", "silver", "slate"],
                   ["قلب رمادي", "رمادي", "فضي", "قلب"]),
    "\U0001faf7": (["leftwards pushing hand", "block", "push", "refuse", "stop", "wait"],
                   ["يد تدفع إلى اليسار", "توقف", "دفع", "رفض", "يد"]),
    "\U0001faf8": (["rightwards pushing hand", "block", "push", "refuse", "stop", "wait"],
                   ["يد تدفع إلى اليمين", "توقف", "دفع", "رفض", "يد"]),
    "\U0001face": (["moose", "animal", "antlers", "elk"], ["موظ", "أيل", "حيوان", "قرون"]),
    "\U0001facf": (["donkey", "animal", "burro", "mule"], ["حمار", "بغل", "حيوان"]),
    "\U0001fabd": (["wing", "angelic", "bird", "flying"], ["جناح", "طائر", "طيران", "ملاك"]),
    "\U0001f426\u200d\u2b1b": (["black bird", "bird", "crow", "raven", "rook"],
                               ["طائر أسود", "طائر", "غراب"]),
    "\U0001fabf": (["goose", "bird", "fowl", "honk"], ["إوزة", "طائر", "وزة"]),
    "\U0001fabc": (["jellyfish", "marine", "sea", "sting"],
                   ["قنديل البحر", "بحر", "حيوان", "لسعة"]),
    "\U0001fabb": (["hyacinth", "bluebonnet", "flower", "lavender", "lupine"],
                   ["زهرة الزنبق", "خزامى", "زهرة", "زنبق"]),
    "\U0001fada": (["ginger root", "ginger", "root", "spice"],
                   ["جذر الزنجبيل", "بهار", "جذر", "زنجبيل"]),
    "\U0001fadb": (["pea pod", "beans", "legume", "pea", "vegetable"],
                   ["قرن بازلاء", "بازلاء", "بقوليات", "خضار"]),
    "\U0001faad": (["folding hand fan", "cooling", "fan", "flutter", "hot"],
                   ["مروحة يدوية", "تبريد", "حر", "مروحة"]),
    "\U0001faae": (["hair pick", "comb", "hair"], ["مشط شعر", "شعر", "مشط"]),
    "\U0001fa87": (["maracas", "instrument", "music", "percussion", "shake"],
                   ["ماراكاس", "آلة موسيقية", "إيقاع", "موسيقى"]),
    "\U0001fa88": (["flute", "instrument", "music", "pipe", "recorder"],
                   ["ناي", "آلة موسيقية", "مزمار", "موسيقى"]),
    "\U0001faaf": (["khanda", "religion", "Sikh"], ["خاندا", "دين", "سيخ"]),
    "\U0001f6dc": (["wireless", "computer", "internet", "network", "wifi"],
                   ["شبكة لاسلكية", "إنترنت", "شبكة", "لاسلكي", "واي فاي"]),
}

# The same comparison as the program's: see emojiSearchForm.
SAME_LETTERS = str.maketrans({"ة": "ه", "ى": "ي", "\u0671": "ا", "ـ": None, "\u0670": None})
SIGNS = re.compile("[\\s_:\u2013\u2014\u2019\u2018\u201c\u201d'\"!,.()|-]+")


def search_form(text):
    decomposed = unicodedata.normalize("NFD", text.casefold())
    bare = "".join(c for c in decomposed if unicodedata.category(c) != "Mn")
    form = unicodedata.normalize("NFC", bare).translate(SAME_LETTERS)
    return SIGNS.sub(" ", form).strip()


def search_forms(words):
    forms = dict.fromkeys(map(search_form, words))
    forms.pop("", None)
    return "|".join(forms)


def without_tones(text):
    return "".join(c for c in text if c not in TONES)


def plain(text):
    return text.replace(PRESENTATION, "")


def read_emoji(path):
    """The fully-qualified emoji and their names, in order."""
    row = re.compile(r"([0-9A-F ]+?)\s*; fully-qualified\s*# \S+ E[0-9.]+ (.*)")
    for line in path.read_text(encoding="utf-8").splitlines():
        if match := row.fullmatch(line):
            yield "".join(chr(int(code, 16)) for code in match[1].split()), match[2]


def without_controls(text):
    """Some Arabic names open an embedding and never close it; joiners are part of words."""
    return "".join(c for c in text if unicodedata.category(c) != "Cf" or c in "\u200c\u200d")


def read_annotations(folder, language):
    """Names and keywords by emoji without presentation selectors."""
    names, words = {}, {}
    for kind in ("annotationsDerived", "annotations"):
        tree = xml.etree.ElementTree.parse(folder / kind / f"{language}.xml")
        for node in tree.iter("annotation"):
            text = without_controls(node.text).strip()
            if node.get("type") == "tts":
                names[node.get("cp")] = text
            else:
                words[node.get("cp")] = text.split(" | ")
    return {key: (names[key], words.get(key, [])) for key in names}


def annotation(table, emoji, language):
    if emoji in ADDED_WORDS and emoji not in table:
        words = ADDED_WORDS[emoji][language]
        return words[0], words
    if plain(emoji) not in table:
        raise SystemExit(f"{emoji} has no name; add it to ADDED_WORDS")
    name, words = table[plain(emoji)]
    return name, [name, *words]


def toned_forms(toned):
    """For each base emoji's name: its form with the first tone on every person, and the
    sequence without tones that mixed tones are made from."""
    same, mixed = {}, {}
    for emoji, name in toned:
        base, _, details = name.rpartition(": ")
        tones = [word for word in details.split(", ") if word.endswith("skin tone")]
        persons = [word for word in details.split(", ") if word not in tones]
        if len(tones) == 2 and persons in ([], ["person", "person"]):
            mixed[base] = without_tones(emoji)
        elif len(tones) == 1 and TONES[0] in emoji:
            same[f"{base}: {', '.join(persons)}" if persons else base] = emoji
    return same, mixed


def write_list(emoji_folder, cldr_folder, target):
    english = read_annotations(cldr_folder, "en")
    arabic = read_annotations(cldr_folder, "ar")
    everything = list(read_emoji(emoji_folder / "emoji-test.txt"))
    sequences = {emoji for emoji, _ in everything}
    toned = [(e, name) for e, name in everything if without_tones(e) != e]
    same, mixed = toned_forms(toned)
    lines, used = [], set()
    for emoji, test_name in everything:
        if without_tones(emoji) != emoji:
            continue
        english_name, english_words = annotation(english, emoji, 0)
        arabic_name, arabic_words = annotation(arabic, emoji, 1)
        fields = [emoji, english_name, arabic_name,
                  search_forms([*english_words, test_name]), search_forms(arabic_words)]
        if template := same.get(test_name):
            used.add(test_name)
            for tone in TONES:
                if template.replace(TONES[0], tone) not in sequences:
                    raise SystemExit(f"{test_name}: not every tone exists")
            fields.append(template)
            other = mixed.get(test_name, "")
            if plain(other) not in ("", plain(emoji)):
                fields.append(other)
        lines.append("\t".join(fields))
    if unknown := set(same) - used:
        raise SystemExit(f"toned emoji without a base: {sorted(unknown)}")
    target.write_text(HEADER + "\n".join(lines) + "\n", encoding="utf-8")


def main():
    here = pathlib.Path(__file__).resolve().parent
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--emoji", type=pathlib.Path,
                        default=pathlib.Path("/usr/share/unicode/emoji"),
                        help="the folder with emoji-test.txt")
    parser.add_argument("--annotations", type=pathlib.Path,
                        default=pathlib.Path("/usr/share/unicode/cldr/common"),
                        help="the folder with annotations and annotationsDerived")
    parser.add_argument("--output", type=pathlib.Path, default=here / "emoji.tsv")
    arguments = parser.parse_args()
    write_list(arguments.emoji, arguments.annotations, arguments.output)


if __name__ == "__main__":
    main()

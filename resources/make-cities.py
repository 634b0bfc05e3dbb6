#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Velvetnook developers
# SPDX-License-Identifier: MIT
"""Builds cities.tsv, the offline list of places, from GeoNames data.

The data comes from Debian's package libtimezonemap-data (licence CC BY 4.0, see the header
that is written below). To build the list anew:

    apt-get install libtimezonemap-data
    resources/make-cities.py

The corrections that stand in this file bring the data, of 2015, up to date where a wrong or
missing line would give wrong prayer times or hide a capital.
"""

import argparse
import collections
import itertools
import pathlib
import re
import unicodedata

HEADER = """\
# Places: the cities of the world, their coordinates and time zones.
# From the GeoNames gazetteer (https://www.geonames.org/), as packaged in Debian's
# libtimezonemap-data; licensed under Creative Commons Attribution 4.0 International
# (https://creativecommons.org/licenses/by/4.0/). Changed: a selection, regrouped, coordinates
# rounded, time zones and capitals brought up to date. Provided as is, without warranties.
# Made by make-cities.py: change that, not this.
#
# =COUNTRY CODE, English name, other names (comma-separated)
# @TIME ZONE
# :REGION
# CITY, its name in ASCII where that is more than the name without accents, latitude,
#     longitude, thousands of inhabitants (rounded down), other names (comma-separated)
"""

SMALLEST = 25_000
SMALLEST_WITH_LATIN_NAMES = 900_000
SMALLEST_WITH_ARABIC_NAMES = 150_000
MOST_ARABIC_NAMES = 4

# Parts of cities, abandoned and destroyed places are left out, but for these parts.
LEFT_OUT = {"PPLX", "PPLH", "PPLQ", "PPLW"}
KEPT_PARTS = {("IN", "Navi Mumbai"), ("MY", "Subang Jaya"), ("PS", "East Jerusalem")}

# Lines with the figures of another one.
MISTAKES = {("GB", "City of London")}

# Capitals that are too small, or were not yet capitals, in the data.
ALSO_CAPITALS = {("BI", "Gitega"), ("IL", "Jerusalem"), ("LK", "Sri Jayewardenepura Kotte"),
                 ("PS", "Ramallah")}

# Zones renamed since.
RENAMED_ZONES = {
    "America/Godthab": "America/Nuuk",
    "America/Thunder_Bay": "America/Toronto",
    "America/Yellowknife": "America/Edmonton",
    "Asia/Choibalsan": "Asia/Ulaanbaatar",
    "Asia/Rangoon": "Asia/Yangon",
    "Europe/Kiev": "Europe/Kyiv",
    "Europe/Uzhgorod": "Europe/Kyiv",
    "Europe/Zaporozhye": "Europe/Kyiv",
}

# Regions that have got another time since. Chilean Aysen and Ciudad Juarez have zones of their
# own by now, which ICU 72 does not know; these zones' clocks show the same.
ZONE_OF_REGION = {
    "CL.02": "America/Punta_Arenas",
    "CL.10": "America/Punta_Arenas",
    "KZ.06": "Asia/Atyrau",
    "KZ.13": "Asia/Qostanay",
    "KZ.14": "Asia/Qyzylorda",
    "RU.03": "Asia/Barnaul",
    "RU.04": "Asia/Barnaul",
    "RU.07": "Europe/Astrakhan",
    "RU.30": "Asia/Vladivostok",
    "RU.33": "Europe/Kirov",
    "RU.67": "Europe/Saratov",
    "RU.75": "Asia/Tomsk",
    "RU.81": "Europe/Ulyanovsk",
    "RU.93": "Asia/Chita",
}
ZONE_OF_CITY = {("MX", "Ciudad Juárez"): "America/Denver"}

# Names of today, with what people also type.
COUNTRY_NAMES = {
    "AE": ["United Arab Emirates", "UAE", "Emirates"],
    "BA": ["Bosnia and Herzegovina", "Bosnia"],
    "CD": ["Democratic Republic of the Congo", "DR Congo", "Congo-Kinshasa"],
    "CG": ["Republic of the Congo", "Congo", "Congo-Brazzaville"],
    "CI": ["Ivory Coast", "Cote d'Ivoire"],
    "CV": ["Cape Verde", "Cabo Verde"],
    "CZ": ["Czechia", "Czech Republic"],
    "GB": ["United Kingdom", "UK", "Great Britain", "Britain"],
    "MK": ["North Macedonia", "Macedonia"],
    "MM": ["Myanmar", "Burma"],
    "NL": ["Netherlands", "Holland"],
    "PS": ["Palestine", "Palestinian Territory"],
    "SZ": ["Eswatini", "Swaziland"],
    "TL": ["East Timor", "Timor-Leste"],
    "TR": ["Turkey", "Türkiye"],
    "US": ["United States", "America", "United States of America"],
}

# Lines that the data lacks, and names that it does not have.
ADDED = [("Yaren", "NR", "Pacific/Nauru", "Yaren", -0.547, 166.921, 1_000)]
RENAMED_CITIES = {("UA", "Kiev"): "Kyiv"}
OTHER_NAMES = {("PW", "Melekeok"): ["Ngerulmud"], ("MM", "Nay Pyi Taw"): ["Naypyidaw"]}

APOSTROPHES = "'`\u02bb\u02bc\u02be\u02bf\u2018\u2019"
LATIN_NAME = re.compile("[A-Z][A-Za-z .-]{2,}")
ARABIC_NAME = re.compile("[\u0621-\u06d3 ]+")
PURE_ARABIC_NAME = re.compile("[\u0621-\u063a\u0641-\u064a ]+")

City = collections.namedtuple(
    "City", "name ascii others latitude longitude kind country region zone population")


def table(path):
    for line in path.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            yield line.split("\t")


def read_cities(folder):
    regions = {row[0]: row[1] for row in table(folder / "admin1Codes.txt")}
    for row in table(folder / "cities15000.txt"):
        country, code = row[8], f"{row[8]}.{row[10]}"
        zone = ZONE_OF_CITY.get((country, row[1]), ZONE_OF_REGION.get(code, row[17]))
        name = RENAMED_CITIES.get((country, row[1]), row[1])
        plain = row[2] if name == row[1] else name
        yield City(name, plain, row[3].split(","), float(row[4]), float(row[5]), row[7],
                   country, regions.get(code, ""), RENAMED_ZONES.get(zone, zone), int(row[14]))
    for name, country, zone, region, latitude, longitude, population in ADDED:
        yield City(name, name, [], latitude, longitude, "PPLC", country, region, zone,
                   population)


def is_capital(city):
    return city.kind == "PPLC" or (city.country, city.name) in ALSO_CAPITALS


def is_kept(city):
    key = (city.country, city.name)
    if key in MISTAKES or (city.kind in LEFT_OUT and key not in KEPT_PARTS):
        return False
    return city.population >= SMALLEST or is_capital(city)


def latin_names(city):
    """Names that people write in Latin letters, not the data's machine transliterations."""
    known = {city.name, city.ascii}
    return [
        name for name in city.others
        if LATIN_NAME.fullmatch(name) and name not in known and not name.isupper()
        and not name.startswith(("Gorad ", "Lungsod "))
    ]


def arabic_names(city):
    names = [name for name in city.others if ARABIC_NAME.fullmatch(name)]
    names.sort(key=lambda name: not PURE_ARABIC_NAME.fullmatch(name))
    return names[:MOST_ARABIC_NAMES]


def other_names(city):
    names = list(OTHER_NAMES.get((city.country, city.name), []))
    if city.population >= SMALLEST_WITH_LATIN_NAMES or is_capital(city):
        names += latin_names(city)
    if city.population >= SMALLEST_WITH_ARABIC_NAMES or is_capital(city):
        names += arabic_names(city)
    return names


def without_accents(name):
    letters = unicodedata.normalize("NFD", name.lower())
    return "".join(
        c for c in letters if unicodedata.category(c) != "Mn" and c not in APOSTROPHES)


def city_line(city):
    is_plain = without_accents(city.name) == without_accents(city.ascii)
    fields = [city.name, "" if is_plain else city.ascii,
              f"{city.latitude:.2f}", f"{city.longitude:.2f}", str(city.population // 1000),
              ",".join(other_names(city))]
    return "\t".join(fields)


def country_line(row):
    names = COUNTRY_NAMES.get(row[0], [row[4]])
    return f"={row[0]}\t{names[0]}\t{','.join([row[1], *names[1:]])}"


def without_repeats(cities):
    """The data has some cities twice; of these the larger line is kept."""
    kept = {}
    for city in sorted(cities, key=lambda city: (-city.population, city.name)):
        where = (city.country, city.name, round(city.latitude, 1), round(city.longitude, 1))
        kept.setdefault(where, city)
    return kept.values()


def write_list(folder, target):
    by_country = collections.defaultdict(list)
    for city in without_repeats(filter(is_kept, read_cities(folder))):
        by_country[city.country].append(city)
    lines = []
    for row in sorted(table(folder / "countryInfo.txt")):
        cities = sorted(by_country.pop(row[0], []), key=lambda city: (city.zone, city.region))
        if cities:
            lines.append(country_line(row))
        for zone, in_zone in itertools.groupby(cities, key=lambda city: city.zone):
            lines.append(f"@{zone}")
            for region, in_region in itertools.groupby(in_zone, key=lambda city: city.region):
                lines.append(f":{region}")
                lines += map(city_line, in_region)
    if by_country:
        raise SystemExit(f"countries without a name: {sorted(by_country)}")
    target.write_text(HEADER + "\n".join(lines) + "\n", encoding="utf-8")


def main():
    here = pathlib.Path(__file__).resolve().parent
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--data", type=pathlib.Path,
                        default=pathlib.Path("/usr/share/libtimezonemap/ui"),
                        help="the folder with cities15000.txt and its companions")
    parser.add_argument("--output", type=pathlib.Path, default=here / "cities.tsv")
    arguments = parser.parse_args()
    write_list(arguments.data, arguments.output)


if __name__ == "__main__":
    main()

# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""decadesInfo.xml: decades, films, events, and their links to the presets."""

import re
from collections import Counter

import presetCheck
import readers

DECADES = [("19 Century", 20, 9), ("1900's", 10, 4), ("1910's", 10, 5), ("1920's", 11, 5), ("1930's", 11, 5),
           ("1940's", 12, 5), ("1950's", 6, 5), ("1960's", 14, 5), ("1970's", 17, 5), ("1980's", 9, 5),
           ("1990 - 1994", 27, 5), ("1995 - 1999", 12, 4), ("2000's", 32, 5), ("2010 - 2020", 23, 6)]  # films, events
EVENT_FILMS = 92
PRESETS_IN_NO_DECADE = 12
WITHOUT_FILMS = "73"
FIRST_EVENT_AFTER_THE_GAP = 62
STORY_LENGTH = (713, 966)  # of the shortest and the longest in English
LANGUAGES = ["fr", "en", "de", "ja", "zh_CN"]
LETTERS = {"fr": re.compile("[àâçéèêëîïôùû]"), "en": re.compile(r"\b(the|of|and|was)\b"), "de": re.compile("[äöüß]"),
           "ja": re.compile("[\u3041-\u3096\u30a1-\u30fa]"), "zh_CN": re.compile("[的是在了]")}  # that tell it from others
FEWEST_LETTERS = 5
TITLE_ENDS = {"fr": r"\d{4}$", "en": r"\d{4}$", "de": r"\d{4}$", "ja": "\\d{4}年頃?$", "zh_CN": r"\d{4}年$"}
EAST_ASIAN = re.compile("[\u3040-\u30ff\u4e00-\u9fff]")
FOREIGN_QUOTES = {"fr": "“”„「」《", "en": "«»„「」《", "de": "«»”「」《", "ja": "“”„«»《", "zh_CN": "„«»「」"}
TABBED_CREDITS = 1
LABELS = {"name_de": "19. Jahrhundert", "name_fr": "19ème Siècle", "name_ja": "19世紀", "name_zh_CN": "19世纪"}


def names_of(films) -> list:
    return [] if films is None else [film.get("name") for film in films]


def faults(data) -> list:
    found = readers.schema_faults("decades.rng", data.history_file)
    if found:
        return found
    if not data.history_file.read_bytes().startswith(b"<?xml version='1.0' encoding='utf-8'?>\n"):
        found.append("decadesInfo.xml: begins with another declaration")
    found += decade_faults(data.history) + film_faults(data)
    events = list(data.history.iter("event"))
    if [event.get("id") for event in events] != [str(number) for number in range(1, len(events) + 1)]:
        return [*found, "decadesInfo.xml: the events do not ascend by one"]
    for event in events:
        found += [f"event {event.get('id')}: {fault}" for fault in event_faults(event)]
    tabs = sum(event.findtext("copyright").startswith("\t") for event in events)
    found += [f"decadesInfo.xml: {tabs} credits begin with a tab"] if tabs != TABBED_CREDITS else []
    lengths = [len(event.findtext("description_en")) for event in events]
    if (min(lengths), max(lengths)) != STORY_LENGTH:
        found.append(f"decadesInfo.xml: English stories of {min(lengths)} to {max(lengths)} characters")
    return found + language_faults(events) + order_faults(data.history)


def decade_faults(history) -> list:
    found = [] if [decade.get("id") for decade in history] == [str(n) for n in range(1, 15)] else ["ids of the decades"]
    rows = [(decade.get("name"), len(decade.find("decade_films")), len(decade.find("events"))) for decade in history]
    found += [f"decadesInfo.xml: {row}, not {told}" for row, told in zip(rows, DECADES) if row != told]
    found += [f"decadesInfo.xml: {len(rows)} decades"] if len(rows) != len(DECADES) else []
    labels = [{key: value for key, value in decade.items() if key.startswith("name_")} for decade in history]
    if labels[0] != LABELS or any(labels[1:]):
        found.append("decadesInfo.xml: translated labels")
    return found


def film_faults(data) -> list:
    films = [name for films in data.history.iter("decade_films") for name in names_of(films)]
    tried = [name for films in data.history.iter("event_films") for name in names_of(films)]
    found = [f"decadesInfo.xml: {film} stands {count} times in decades" for film, count in Counter(films).items()
             if count > 1]
    looks = set(data.preset_ids) - set(presetCheck.NO_LOOKS)
    found += [f"decadesInfo.xml: {film} is no preset" for film in sorted(set(films + tried) - looks)]
    if len(tried) != EVENT_FILMS:
        found.append(f"decadesInfo.xml: {len(tried)} films of events, not {EVENT_FILMS}")
    found += [f"decadesInfo.xml: {look} stands in no decade" for look in sorted(looks - set(films))
              if presetCheck.HISTORY_ID.fullmatch(look)]
    if len(looks - set(films)) != PRESETS_IN_NO_DECADE:
        found.append(f"decadesInfo.xml: {len(looks - set(films))} presets stand in no decade")
    return found


def years_of(decade) -> range:
    """The years of a decade by its English label."""
    numbers = [int(number) for number in re.findall(r"\d{4}", decade.get("name"))]
    if not numbers:
        return range(1801, 1901)  # the century, whose last year is in the 1900's, too
    return range(numbers[0], (numbers[1] if len(numbers) > 1 else numbers[0] + 9) + 1)


def order_faults(history) -> list:
    """Events and history presets stand in the decade of their year, among its other films."""
    found = []
    for decade in history:
        years = years_of(decade)
        kinds = [bool(presetCheck.HISTORY_ID.fullmatch(film)) for film in names_of(decade.find("decade_films"))]
        if kinds == sorted(kinds) or kinds == sorted(kinds, reverse=True):
            found.append(f"{decade.get('name')}: its films are not mixed")
        for event in decade.iter("event"):
            year = re.search(r"\d{4}$", event.findtext("title_en"))
            if year is None or int(year[0]) not in years:
                found.append(f"event {event.get('id')}: its year is not of {decade.get('name')}")
        for film in names_of(decade.find("decade_films")):
            if presetCheck.HISTORY_ID.fullmatch(film) and int(film[:4]) not in years:
                found.append(f"{film}: stands in {decade.get('name')}")
    return found


def picture_number(event: int) -> int:
    return 2 * event + (1 if event >= FIRST_EVENT_AFTER_THE_GAP else -1)


def event_faults(event) -> list:
    number = picture_number(int(event.get("id")))
    story = event.findtext("description_en")
    films = names_of(event.find("event_films"))
    years = {language: re.findall(r"\d{4}", event.findtext(f"title_{language}")) for language in LANGUAGES}
    rules = {
        "image": event.findtext("image") == f"{number}.jpg",
        "thumbnail": event.findtext("thumbnail") == f"{number}-thumb.jpg",
        "films": (event.find("event_films") is None) == (event.get("id") == WITHOUT_FILMS),
        "a film twice": len(set(films)) == len(films),
        "credit": re.fullmatch(r"\t?© \S.*\S", event.findtext("copyright")) is not None,
        f"{len(story)} characters in English": STORY_LENGTH[0] <= len(story) <= STORY_LENGTH[1],
        f"the titles have different years: {years}": len(set(map(tuple, years.values()))) == 1,
    }
    found = [fault for fault, held in rules.items() if not held]
    for language in LANGUAGES:
        title, story = event.findtext(f"title_{language}"), event.findtext(f"description_{language}")
        found += [f"{language}: the title has no subject and year"] if not re.search(r"\S • .*\d{4}", title) else []
        found += readers.text_faults({f"title_{language}": title, f"description_{language}": story})
        if set(FOREIGN_QUOTES[language]) & set(title + story):
            found.append(f"{language}: quotation marks of another language")
    found += readers.text_faults({"credit": event.findtext("copyright").lstrip("\t")})
    french = {name: event.findtext(name) for name in ("title_fr", "description_fr")}
    return found + readers.french_faults(french)


def language_faults(events) -> list:
    """Texts that stand twice, and signs that are not those of the language."""
    texts = {f"event {event.get('id')}, {language}": event.findtext(f"description_{language}")
             for event in events for language in LANGUAGES}
    counts = Counter(texts.values())
    found = [f"{where}: the story of another event or language" for where, text in texts.items() if counts[text] > 1]
    for where, text in texts.items():
        language = where.split(", ")[1]
        if len(LETTERS[language].findall(text)) < FEWEST_LETTERS:
            found.append(f"{where}: hardly a letter of the language")
        if language != "ja" and LETTERS["ja"].search(text):
            found.append(f"{where}: Japanese")
    titles = [(language, event.findtext(f"title_{language}")) for event in events for language in LANGUAGES]
    found += [f"{title}: the title of two events" for (_, title), count in Counter(titles).items() if count > 1]
    for language, title in titles:
        foreign = language in ("fr", "en", "de") and EAST_ASIAN.search(title)
        if foreign or not re.search(TITLE_ENDS[language], title):
            found.append(f"{title}: no title in {language}")
    return found


def figures(data) -> list:
    events = list(data.history.iter("event"))
    lengths = [len(event.findtext("description_en")) for event in events]
    films = [len(names_of(event.find("event_films"))) for event in events]
    films_of_decades = sum(len(films) for films in data.history.iter("decade_films"))
    return [f"history     {len(data.history)} decades, {films_of_decades} films, "
            f"{len(events)} events with {sum(films)} films, one with none",
            f"            English stories of {min(lengths)} to {max(lengths)} characters"]

# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Faults put into copies of the embedded data, one at a time: each has to be found, and by the check that is meant."""

import base64
import re
import shutil
import sqlite3
import tempfile
from contextlib import closing
from pathlib import Path

import catalogueCheck
import historyCheck
import noteCheck
import presetCheck
from readers import Data, decoded


def replaced(old: str, new: str):
    """A change of a text: its first `old` becomes `new`."""
    return lambda text: text.replace(old, new, 1)


def substituted(pattern: str, new: str, count: int = 1):
    """A change of a text: its first matches of `pattern`, which may go over lines; all with a `count` of 0."""
    return lambda text: re.sub(pattern, new, text, count=count, flags=re.DOTALL)


def exchanged(one: str, other: str):
    return lambda text: text.replace(one, "\0").replace(other, one).replace("\0", other)


def described(preset: str, language: str, change):
    """A change of the HTML behind a note's Base64."""
    pattern = re.compile(f'(<preset id="{preset}".*?<description_{language}>)([^<]*)', re.DOTALL)

    def apply(text: str) -> str:
        return pattern.sub(lambda found: found[1] + encoded(change(decoded(found[2]))), text, count=1)
    return apply


def encoded(text: str) -> str:
    return base64.b64encode(text.encode("utf-8")).decode("ascii")


def of_preset(preset: str, name: str, value: str):
    """Gives a parameter of a preset another value."""
    pattern = re.compile(f'(<Preset id="{re.escape(preset)}".*?<Param name="{name}" value=")[^"]*', re.DOTALL)
    return lambda text: pattern.sub(lambda found: found[1] + value, text, count=1)


def equal_looks(text: str) -> str:
    first = re.search(r'<Preset id="FomaPan100".*?</Tags>(.*?)</Preset>', text, re.DOTALL)[1]
    return re.sub(r'(<Preset id="FomaPan400".*?</Tags>).*?(</Preset>)',
                  lambda found: found[1] + first.replace("FomaPan100", "FomaPan400") + found[2], text, count=1,
                  flags=re.DOTALL)


def without_channel_mixer(text: str) -> str:
    film = re.search('<Preset id="AdoxCMS20".*?</Preset>', text, re.DOTALL)[0]
    return text.replace(film, re.sub(r'<Param name="ChannelMixer[^>]*>', "", film))


def sorted_films(text: str) -> str:
    """The films of the second decade: those of the history first."""
    start = text.index('<decade id="2"')
    first, last = text.index("<film ", start), text.index("</decade_films>", start)
    films = sorted(text[first:last].split("\n"), key=lambda line: " - " not in line)
    return text[:first] + "\n".join(films) + text[last:]


def tagged(preset: str, old: str, new: str):
    """Another tag, or one more, for a preset."""
    pattern = re.compile(f'(<Preset id="{re.escape(preset)}".*?<Tag name=){re.escape(old)}', re.DOTALL)
    return lambda text: pattern.sub(lambda found: found[1] + new, text, count=1)


def moved(text: str, preset: str, behind: str) -> str:
    """A preset of default.xml that stands before another one."""
    element = re.search(f'  <Preset id="{preset}".*?</Preset>\r\n', text, re.DOTALL)[0]
    return text.replace(element, "").replace(f'  <Preset id="{behind}"', element + f'  <Preset id="{behind}"')


CURVE = "value = {&#10;&#9;0, 0,&#10;&#9;{},&#10;&#9;1, 1,&#10;}&#10;"
SOFT, VELVIA = "FujiAstia100", "FujiVelvia50"

PRESET_FAULTS = [  # (what, change of default.xml, what has to be said)
    ("no byte-order mark", replaced("\ufeff", ""), "byte-order mark"),
    ("a line end of one character", replaced("\r\n", "\n"), "CRLF"),
    ("not well-formed", replaced("</Tags>", "</Tag>"), "mismatch"),
    ("an unknown element", replaced("<Tags>", "<Other></Other><Tags>"), "Other"),
    ("another type", replaced('type="Buildin"', 'type="Builtin"'), "Invalid attribute"),
    ("an id twice", replaced(f'id="{SOFT}"', f'id="{VELVIA}"'), "2 presets have this id"),
    ("a preset less", substituted('  <Preset id="Astia".*?</Preset>\r\n', ""), "228"),
    ("the first ones exchanged", exchanged('"autoCorrection"', '"noCorrection"'), "first three"),
    ("an unknown tag", replaced('<Tag name="Slide" />', '<Tag name="Dia" />'), "tag Dia"),
    ("one expert less", replaced(' expert="true"', ""), "149 for experts"),
    ("a version 2 elsewhere", lambda text: text.replace(' version="2"', "", 1).replace(
        'type="Buildin">', 'type="Buildin" version="2">', 1), "version 2"),
    ("a name that is not the id", replaced(f'name="{SOFT}"', 'name="Soft"'), "names are not all there"),
    ("a straight apostrophe in a name", replaced('name_fr="', 'name_fr="l\''), "straight apostrophe"),
    ("a parameter twice", substituted('(<Param name="CropAuto" value="true" />)', r"\1\1"), "twice"),
    ("an unknown parameter", replaced('name="VibrancyIntensity" value="4"', 'name="Vibrance" value="4"'), "Vibrance"),
    ("a flag that is none", of_preset(SOFT, "ColorIntentAutoActive", "yes"), "'yes'"),
    ("a number out of its range", of_preset(SOFT, "GrainIntensity", "201"), "'201'"),
    ("a number below -100", of_preset(SOFT, "ColorModeContrast", "-101"), "'-101'"),
    ("a word for a number", of_preset(SOFT, "GrainIntensity", "many"), "'many'"),
    ("a word for another number", of_preset(SOFT, "ColorRenderingIntensity", "many"), "'many'"),
    ("a number in another notation", of_preset(SOFT, "ColorModeContrast", "1e1"), "'1e1'"),
    ("a word that is none", of_preset(SOFT, "GrainFilmFormat", "35mm"), "'35mm'"),
    ("a seed of six digits", of_preset("FujiInstax210", "FramingSeed", "100000"), "'100000'"),
    ("a default that is not neutral", of_preset("default", "HSLGreenHue", "7"), "not neutral"),
    ("a rendering that is no film", of_preset("Arkadia", "ColorRenderingType", "Sepia"), "'Sepia'"),
    ("a rendering that is no preset", of_preset("Arkadia", "ColorRenderingType", "Nothing"), "'Nothing'"),
    ("a film rendered as another", of_preset(SOFT, "ColorRenderingType", VELVIA), "rendered as another"),
    ("a slide that is black-and-white by type", of_preset(SOFT, "PresetType", "BWPreset"), "not that of its tags"),
    ("no Lua", of_preset(SOFT, "ToneCurveMasterPoints", "value = [0, 0, 1, 1,]"), "no table"),
    ("a table without its last comma", of_preset(SOFT, "ToneCurveMasterPoints", "value = {0, 0, 1, 1}"), "no table"),
    ("a text in a table", of_preset(SOFT, "ToneCurveMasterPoints", "value = {0, 0, 'a', 1,}"), "no table"),
    ("a curve that turns back", of_preset(SOFT, "ToneCurveMasterPoints", CURVE.replace("{}", "0, 0.5")), "ascend"),
    ("a curve above 1", of_preset(SOFT, "ToneCurveMasterPoints", CURVE.replace("{}", "0.5, 1.5")), "outside"),
    ("a curve of six pairs", of_preset(SOFT, "ToneCurveMasterPoints", CURVE.replace(
        "{}", "0.2, 0, 0.3, 0, 0.4, 0, 0.5, 0")), "pairs"),
    ("a word that is used no more", substituted('value="PurplishBlue"', 'value="Blue"', 0), "PurplishBlue"),
    ("a range that is not used up", substituted('(name="ExposureBias" value=)"0.8"', r'\1"0.7"', 0), "ExposureBias"),
    ("a name that is used no more", substituted("NotCEControl", "FrameID", 0), "NotCEControl"),
    ("the history among the others", lambda text: moved(text, "1839 - Daguerreotype", "Poetic"), "stands before"),
    ("a name on the base", replaced('<Preset id="default"', '<Preset id="default" name="default"'), "beside its id"),
    ("a film of two kinds", tagged(SOFT, '"Film"', '"Film" /><Tag name="Digital"'), "not of one kind"),
    ("a history preset without its tag", tagged("2007 - iPhone", '"TimeMachine"', '"Film"'), "by its id or by its tag"),
    ("both color and black-and-white", tagged(SOFT, '"Color"', '"Color" /><Tag name="B&amp;W"'), "both black"),
    ("neither", tagged(SOFT, '"Color"', '"Grain"'), "neither color"),
    ("a film that is neither", tagged(SOFT, '"Slide"', '"Grain"'), "a slide or a negative"),
    ("toned without toning", tagged(SOFT, '"Color"', '"Color" /><Tag name="Toned"'), "toned without"),
    ("framed without a frame", tagged(SOFT, '"Color"', '"Color" /><Tag name="Frame"'), "a frame is missing"),
    ("a vignette without one", tagged(SOFT, '"Color"', '"Color" /><Tag name="Vignette"'), "a vignette is missing"),
    ("grain without one", lambda text: tagged("Astia", '"Color"', '"Color" /><Tag name="Grain"')(
        of_preset("Astia", "GrainType", "")(text)), "the grain is missing"),
    ("a frame without its tag", substituted('(id="Darkroom".*?)(<Param )', r'\1<Param name="FrameID" value="14" />\2'),
     "shows what no tag tells"),
    ("a vignette without its tag", tagged("Blurred", '"Vignette"', '"Grain"'), "shows what no tag tells"),
    ("a soft focus as a vignette", tagged("Glamour", '"Designer"', '"Designer" /><Tag name="Vignette"'),
     "a vignette is missing"),
    ("a black-and-white film without grain", of_preset("AdoxCMS20", "GrainType", ""), "its response to colors"),
    ("a black-and-white film without its response", without_channel_mixer, "its response to colors"),
    ("tables on one line", substituted("&#10;", " ", 0), "hardly a table"),
    ("a rendering switch elsewhere",
     substituted("(id=\"FujiAstia100\".*?)ColorModeContrast", r"\1ColorRenderingActive"),
     "FujiAstia100: ColorRenderingActive"),
    ("a look that crops", substituted("(id=\"FujiAstia100\".*?)ColorModeContrast", r"\1CropAuto"), "no look sets"),
    ("a centre of two points", of_preset("default", "VignettedBlurCenterPoint", "value={0.5,0.5,0.5,0.5,}"),
     "not one point"),
    ("two equal looks", equal_looks, "has the parameters of"),
]
USER_FAULTS = [
    ("no GUID", replaced('id="{', 'id="'), "GUID"),
    ("a tag", replaced("  <Param", '  <Tags><Tag name="Film"/></Tags>\n  <Param'), "tags"),
    ("a parameter twice in it", substituted(r"  <Param[^\n]*\n(  <Param[^\n]*\n)", r"\1\1"), "a parameter twice"),
    ("two presets", substituted("( <Preset .*</Preset>\n)", r"\1\1"), "more than one preset"),
    ("a parameter less", substituted("  <Param[^\n]*\n(?= </Preset>)", ""), "33 parameters"),
]
NOTE_FAULTS = [
    ("a declaration", lambda text: '<?xml version="1.0"?>\n' + text, "declaration"),
    ("languages in another order", exchanged("title_ja>", "title_de>"), "Did not expect element"),
    ("a note of no preset", replaced(f'id="{SOFT}"', 'id="FujiAstia101"'), "no preset"),
    ("a note less", substituted('  <preset id="Astia".*?</preset>\n', ""), "138 notes"),
    ("a name of its own", replaced('name="Fuji Astia', 'name="Astia'), "not that of the preset"),
    ("a title of its own", replaced("<title_de>Fuji Astia", "<title_de>Astia"), "not the name in de"),
    ("a mended leftover", replaced("<title_fr>11<", "<title_fr>12<"), "as it was left"),
    ("no Base64", substituted("(<description_ja>)[^<]{9}", r"\1*"), "as it was left"),
    ("broken Base64 of a film", substituted('(id="FujiAstia100".*?<description_ja>)[^<]', r"\1*"), "Base64"),
    ("a tag that is not closed", described(SOFT, "de", replaced("</p>", "")), "not expected here"),
    ("a picture", described(SOFT, "de", replaced("<p>", '<p><img src="x"/>')), "<img/>"),
    ("a bare ampersand", described(SOFT, "fr", replaced("<p>", "<p>R&D ")), "ampersand"),
    ("another label", described(SOFT, "en", replaced("First produced: ", "Produced: ")), "four labelled lines"),
    ("a line break lost in the head", described(SOFT, "de", replaced("<br/>", "")), "de: the head"),
    ("a value lost in the head", described("Emo", "en", replaced("Zyx Labs", "")), "en: the head"),
    ("labels exchanged", described(SOFT, "ja", exchanged("制作", "種類")), "ja: the head"),
    ("a straight quotation mark in the head", described(SOFT, "en", replaced("Fuji<", 'Fuji"<')), "line 1 of the head"),
    ("two notes of one", replaced('id="Provia"', 'id="Velvia"'), "2 notes of Velvia"),
    ("a note of the history", replaced('id="Provia"', 'id="2007 - iPhone"'), "a history preset"),
    ("a name shared by two more", replaced('name="Vintage"', 'name="Sepia"'), "names of several notes"),
    ("a short paragraph", described(SOFT, "de", substituted("<p>.*", "<p>Kurz.</p>")), "missing or short"),
    ("dates on another note", described("Emo", "en", lambda text: text.replace("Creation year", "Creation date")),
     "2 notes with dates"),
    ("a paragraph within another", described(SOFT, "de", replaced("</p>", "<p>")), "<p> is not expected"),
    ("a paragraph that ends nowhere", described(SOFT, "de", lambda text: text[:-len("</p>")]), "is not closed"),
    ("a label in the text", described(SOFT, "de", lambda text: text + "<b>Typ:</b>"), "a label after the text"),
    ("text behind the paragraphs", described(SOFT, "de", lambda text: text + "Ende"), "between the paragraphs"),
    ("a paragraph lost in one language", described(SOFT, "zh_CN", lambda text: text[:text.rindex("<p>")]), "differ"),
    ("a plain blank in French", described(SOFT, "fr", substituted("(<p>[^<]*)\u00a0:", r"\1 :")), "the blank at"),
    ("straight quotation marks", described(SOFT, "en", replaced("<p>", '<p>"The" ')), "straight quotation"),
    ("a negative by its type", described(SOFT, "en", replaced("Slide color film", "Color negative film")),
     "a negative by its type alone"),
    ("another head in one language", described(SOFT, "fr", lambda text: text.replace(
        "<b>Début de production : </b>", "<b>Année de création :</b> ").replace(
        "<b>Fin de production : </b>", "<b>Année d’arrêt :</b> ")), "differ in their heads"),
    ("a type that is not that of its tags", described(SOFT, "en", replaced("Slide color film", "Black-and-white film")),
     "black and white"),
]
HISTORY_FAULTS = [
    ("another declaration", replaced("'utf-8'", '"utf-8"'), "declaration"),
    ("a decade renamed", replaced('"1900\'s"', '"1900s"'), "1900s"),
    ("a label lost", replaced(' name_ja="19世紀"', ""), "Invalid attribute"),
    ("a label misspelled", replaced('name_ja="19世紀"', 'name_ja="19世"'), "translated labels"),
    ("a decade renumbered", replaced('<decade id="2"', '<decade id="3"'), "ids of the decades"),
    ("a film moved to another decade", lambda text: replaced('<film name="Sepia" />', '<film name="2007 - iPhone" />')(
        replaced('<film name="2007 - iPhone" />', '<film name="Sepia" />')(text)),
     "2007 - iPhone: stands in 19 Century"),
    ("a history preset in no decade", replaced('<film name="2007 - iPhone" />', '<film name="FujiVelviaVivid" />'),
     "2007 - iPhone stands in no decade"),
    ("a film less", substituted(' *<film name="Sepia" />\n', ""), "13 presets stand in no decade"),
    ("a film of an event more", replaced("</event_films>", '<film name="Sepia" /></event_films>'),
     "93 films of events"),
    ("films of a decade sorted", sorted_films, "not mixed"),
    ("a film in two decades", replaced('<film name="Sepia" />', '<film name="Pola" />'), "Pola stands 2 times"),
    ("a film that is no preset", replaced('<film name="Sepia" />', '<film name="Nothing" />'), "Nothing is no preset"),
    ("an event with another number", replaced('<event id="2">', '<event id="3">'), "ascend"),
    ("another picture", replaced("<image>125.jpg<", "<image>123.jpg<"), "event 62: image"),
    ("another thumbnail", replaced("<thumbnail>1-thumb.jpg<", "<thumbnail>1.jpg<"), "event 1: thumbnail"),
    ("no films", substituted("        <event_films>.*?</event_films>\n", ""),
     "event 1: films"),
    ("a tab lost", replaced("<copyright>\t", "<copyright>"), "0 credits begin with a tab"),
    ("a decade less", substituted('  <decade id="14".*?</decade>\n', ""), "13 decades"),
    ("two blanks", substituted("(<description_de>[^<]{99}[^ ]*) ", r"\1  "), "two blanks"),
    ("a lost letter", replaced("<description_de>", "<description_de>\ufffd"), "a lost character"),
    ("a blank at the end", replaced("</description_de>", " </description_de>"), "a blank at an end"),
    ("markup in a story", replaced("<description_de>", "<description_de>&lt;p&gt;"), "markup"),
    ("a story in another language", substituted("(<description_en>([^<]*)<.*?<description_de>)[^<]*", r"\1\2"),
     "another event or language"),
    ("a story with the letters of another", substituted("<description_zh_CN>[^<]*", "<description_zh_CN>" + 50 * "漢字"),
     "hardly a letter"),
    ("no copyright sign", replaced("<copyright>©", "<copyright>"), "credit"),
    ("a short story", substituted("<description_en>.{400}", "<description_en>"), "characters"),
    ("the longest story cut", replaced("had work again.<", "had work.<"), "English stories of 713 to 960 characters"),
    ("another year in one language", substituted("(<title_de>[^<]*)1839", r"\g<1>1840"),
     "different years"),
    ("another decade's year", substituted(r"(<title_\w+>[^<]*)1839", r"\g<1>1939", 0), "its year is not of"),
    ("a title without its dot", replaced(" • ", " - "), "no subject and year"),
    ("a plain blank before a colon", substituted("(<description_fr>[^<]*?)\u00a0:", r"\1 :"),
     "description_fr: the blank"),
    ("a plain blank in a title", substituted("(<title_fr>«)\u00a0", r"\1 "), "title_fr: the blank"),
    ("a Japanese title in German", substituted("<title_de>[^<]*", "<title_de>ル・グラ • 1827年"), "no title in de"),
    ("a title of another event", substituted("(<title_en>([^<]*)<.*?<title_en>)[^<]*", r"\1\2"),
     "the title of two events"),
    ("Japanese in German", replaced("<description_de>", "<description_de>カメラ "), "de: Japanese"),
    ("quotation marks of another language", replaced("<description_de>", "<description_de>«So» "),
     "de: quotation marks of another"),
    ("a straight apostrophe", replaced("<description_fr>", "<description_fr>l'été "), "a straight apostrophe"),
    ("a straight quotation mark", replaced("<description_fr>", '<description_fr>"été" '), "a straight quotation mark"),
    ("markup in a credit", replaced("<copyright>© ", "<copyright>© &lt;b&gt;"), "credit: markup"),
    ("a film twice in an event", substituted('(<event_films>\\s*)(<film name="[^"]*" />)', r"\1\2\2"), "a film twice"),
    ("languages in another order", exchanged("title_fr>", "title_en>"), "Did not expect element"),
]
CATALOGUE_FAULTS = [  # (what, statements, what has to be said)
    ("an index less", "DROP INDEX module_cid_idx", "schema"),
    ("an index made later", "DROP INDEX body_maker_idx; CREATE INDEX body_maker_idx ON Body(maker)", "another order"),
    ("a column more", "ALTER TABLE Body ADD COLUMN year INTEGER", "schema"),
    ("a module less", "DELETE FROM Module WHERE id = 7", "modules: 85939"),
    ("a body renumbered", "UPDATE Body SET id = 9999 WHERE identifier = 'AppleIPhone7'", "a module of no body"),
    ("a null value", "UPDATE Module SET lens_name = NULL WHERE id = 9", "a null value"),
    ("no word for none", "UPDATE Module SET lens_id = '' WHERE id = 9", "rows without lens id"),
    ("a cid of another form", "UPDATE Module SET cid = 'C12_001' WHERE id = 9", "the cid C12_001"),
    ("a lens id of another form", "UPDATE Module SET lens_id = 'a0 40' WHERE id = 50000", "the lens id a0 40"),
    ("a module for two ids", "UPDATE Module SET cid = (SELECT m.cid FROM Module m WHERE m.body = Module.body "
     "AND m.name = Module.name AND m.id < Module.id) WHERE id = (SELECT max(id) FROM Module WHERE bridge = 0 "
     "GROUP BY body, name HAVING count(*) > 1 LIMIT 1)", "a module twice on one body"),
    ("a word for a focal length", "UPDATE Module SET fmax = 'long' WHERE id = 50000", "a number of another kind"),
    ("a bracket lost", "UPDATE Module SET name = replace(name, ')', '') WHERE name LIKE '%(F016)'", "a broken name"),
    ("a range that runs backwards", "UPDATE Module SET fmin = 99, fmax = 98 WHERE id = 9", "runs backwards"),
    ("RAW and RGB only", "UPDATE Module SET raw_only = 1 WHERE id = 4", "rows with both marks: 1"),
    ("a maker renamed", "UPDATE Maker SET name = 'Fuji' WHERE name = 'Fujifilm'", "the maker Fujifilm"),
    ("another version", "UPDATE Metadata SET value = '1'", "its version"),
    ("an own module that is not embedded", "UPDATE Module SET cid = 'C1000a_001' WHERE cid = 'C33759b_023'",
     "the embedded modules"),
    ("a body of no maker", "UPDATE Body SET maker = 99 WHERE identifier = 'AppleIPhone7'", "a body of no maker"),
    ("a flag of 2", "UPDATE Module SET bridge = 2 WHERE id = 9", "neither 0 nor 1"),
    ("a lens that nothing tells", "UPDATE Module SET lens_id = 'NULL', lens_name = 'NULL' WHERE name LIKE 'EF%' OR "
     "name LIKE 'Canon EF50%'", "nothing in the metadata"),
    ("a file for two lenses", "UPDATE Module SET cid = (SELECT cid FROM Module WHERE id = 9) WHERE id = 8",
     "two lenses"),
    ("a row twice", "INSERT INTO Module SELECT 99999, cid, body, name, fmin, fmax, amin, amax, lens_id, lens_name, "
     "bridge, raw_only, rgb_only, lens_id_thumbnail FROM Module WHERE id = 9", "same row twice"),
    ("another maker's identifier", "UPDATE Body SET identifier = 'SonyX' WHERE identifier = 'AppleIPhone7'",
     "SonyX of Apple iPhone 7"),
    ("an accent in an identifier", "UPDATE Body SET identifier = 'Appleé' WHERE identifier = 'AppleIPhone7'",
     "other signs"),
    ("a prime with a range", "UPDATE Module SET fmax = 51 WHERE name = 'Canon EF50mm f/1.4 USM'",
     "Canon EF50mm f/1.4 USM: 50.0 to 51.0"),
    ("a built-in lens among others", "UPDATE Module SET bridge = 1 WHERE id = 50000", "built-in lens and others"),
    ("another lens's thumbnail", "UPDATE Module SET lens_id_thumbnail = 1 WHERE id = 50000", "two thumbnails"),
    ("half a range of apertures", "UPDATE Module SET amax = 0 WHERE id = 50000", "a widest aperture alone"),
    ("no name of a lens", "UPDATE Module SET name = '' WHERE id = 9", "a name that is missing"),
    ("own rows of one kind", "UPDATE Module SET raw_only = 0 WHERE cid = 'C33759b_023'", "own rows"),
    ("an index on another column",
     "DROP INDEX module_lens_id_idx; CREATE INDEX module_lens_id_idx ON Module(lens_name)", "schema"),
    ("an index that seems useless", "UPDATE sqlite_stat1 SET stat = '85940 85940' WHERE idx = 'module_lens_id_idx'",
     "answered without module_lens_id_idx"),
    ("two of them", "UPDATE sqlite_stat1 SET stat = '518 518' WHERE idx = 'body_identifier_idx'",
     "answered without an index"),
    ("no statistics", "DELETE FROM sqlite_stat1", "rows of statistics: 0"),
    ("an identifier twice", "UPDATE Body SET identifier = 'AppleIPhone8' WHERE identifier = 'AppleIPhone7'",
     "identifiers"),
]


def said_of_text(check, data: Data, file: Path, change) -> list:
    text = file.read_bytes().decode("utf-8")
    changed = change(text)
    if changed == text:
        return ["the seeding changed nothing"]
    file.write_bytes(changed.encode("utf-8"))
    found = check.faults(Data(data.presets_file.parent.parent))
    file.write_bytes(text.encode("utf-8"))
    return found


def execute(file: Path, statements: str) -> None:
    with closing(sqlite3.connect(file)) as catalogue, catalogue:
        catalogue.executescript(statements)


def halve(file: Path) -> None:
    content = file.read_bytes()
    file.write_bytes(content[:len(content) // 2])


def said_of_catalogue(data: Data, change, *arguments) -> list:
    kept = data.catalogue_file.read_bytes()
    change(data.catalogue_file, *arguments)
    found = catalogueCheck.faults(data)
    data.catalogue_file.write_bytes(kept)
    return found


def seed_all(data: Data) -> list:
    """(what, what was said of it, what has to be said) of each fault."""
    results = []
    for check, file, seeds in ((presetCheck, data.presets_file, PRESET_FAULTS),
                               (presetCheck, data.user_file, USER_FAULTS),
                               (noteCheck, data.notes_file, NOTE_FAULTS),
                               (historyCheck, data.history_file, HISTORY_FAULTS)):
        results += [(what, said_of_text(check, data, file, change), said) for what, change, said in seeds]
    results += [(what, said_of_catalogue(data, execute, statements), said)
                for what, statements, said in CATALOGUE_FAULTS]
    return [*results, ("half a catalogue", said_of_catalogue(data, halve), "malformed")]


def run(resources: Path) -> int:
    """Seeds each fault; 1 if one is not found, or if the data has some before."""
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder) / "resources"
        for name in ("presets", "timeMachine", "calibration"):
            shutil.copytree(resources / name, copy / name)
        data = Data(copy)
        checks = (presetCheck, noteCheck, historyCheck, catalogueCheck)
        before = [fault for check in checks for fault in check.faults(data)]
        if before:
            print("\n".join(before))
            return 1
        results = seed_all(data)
    missed = [(what, found) for what, found, said in results if not any(said in fault for fault in found)]
    for what, found in missed:
        print(f"not found: {what}; said instead: {found[:3]}")
    print(f"{len(results) - len(missed)} of {len(results)} seeded faults found")
    return 1 if missed else 0

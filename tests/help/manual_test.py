#!/usr/bin/env python3
"""The manual is whole: every topic of the value dialogs has its page, and every page is listed and leads somewhere.

    manual_test.py

Reads help/ as it stands. The pictures are those of the value dialogs; the build lays them beside the pages.
"""

import pathlib
import sys
import xml.etree.ElementTree as ET

ROOT = pathlib.Path(__file__).resolve().parents[2]
HELP = ROOT / "help"
PICTURES = ROOT / "src/entry/pictures"
XHTML = "{http://www.w3.org/1999/xhtml}"

# Topic number of each value dialog, and the pictures that explain its measure.
TOPICS = {
    33: ["Width"], 34: ["TipNone", "TipStel", "TipSwag", "TipCarb"], 35: ["PlateThk"], 36: ["TipKerf"],
    37: ["RightAng", "Overlap"],
    200: ["SqrBack", "RndBack", "GuDouble", "GuTriple", "GuFlatBo", "GuNarrow", "GuOShape"],
    201: ["Length"], 202: ["Pitch"], 203: ["NumTeeth"], 204: ["Hook"], 205: ["ClrAngle"], 206: ["GuRadius"],
    207: ["Gu1stRd", "GuF1stRd", "GuO1stRd"], 208: ["GuDRad2", "Gu2ndRd", "GuFRad2"], 209: ["Gu3rdRd"],
    210: ["GuBotAng"], 211: ["GuWidth", "GuFWidth", "GuOWidth"], 212: ["GuBkAngl"], 213: ["GuDepth"],
    214: ["GuBkRad"], 215: ["TipClear"], 216: ["Seat"], 217: ["SeatWide"], 218: ["SeatHigh"],
    400: [], 407: [], 409: ["CutDepth"], 410: [], 412: [], 420: [], 430: [],
    500: ["WheelDia"], 501: ["CenToCen"], 502: ["RimWidth"], 510: [], 520: [], 600: [], 700: [],
}
# Pages that go by a name: what the help menu opens, the measures without a topic, and the chapters.
NAMED = {
    "contents": [], "search": [], "support": [],
    "frost-notch-width": ["FrostWidth"], "frost-notch-height": ["FrostHeight"],
    "frost-notch-radius": ["FrostRadius"], "frost-notch-angle": ["FrostAngle"],
    "typing": [], "units": [], "results": [], "variable-pitch": [], "power-figures": [], "documents": [],
    "window": [], "editors": [], "messages": [],
}

wrong = []


def expect(holds, text):
    if not holds:
        wrong.append(text)


def read_page(path):
    """The page as a tree, or None when it is not well-formed."""
    try:
        return ET.parse(path).getroot()
    except ET.ParseError as error:
        wrong.append(f"{path.name}: {error}")
        return None


def text_of(element):
    return "".join(element.itertext()).strip() if element is not None else ""


def targets(page, element, attribute):
    return [found.get(attribute, "") for found in page.iter(XHTML + element)]


def pictures_of(page):
    return {pathlib.PurePosixPath(source).stem for source in targets(page, "img", "src")}


def check_page(name, page):
    title = text_of(page.find(f"{XHTML}head/{XHTML}title"))
    expect(title, f"{name}: no title")
    expect(title == text_of(page.find(f"{XHTML}body/{XHTML}h1")), f"{name}: its heading is not its title")
    anchors = {e.get("id") for e in page.iter() if e.get("id")}
    for target in targets(page, "a", "href"):
        file, _, anchor = target.partition("#")
        expect((HELP / file).is_file() if file else anchor in anchors, f"{name}: no such page: {target!r}")
    for target in targets(page, "link", "href"):
        expect(target and (HELP / target).is_file(), f"{name}: no such style sheet: {target!r}")
    for picture in page.iter(XHTML + "img"):
        source = pathlib.PurePosixPath(picture.get("src", ""))
        expect(str(source.parent) == "pictures", f"{name}: a picture outside pictures/: {source}")
        expect((PICTURES / source.name).is_file(), f"{name}: no such picture: {source}")
        expect(picture.get("alt", "").strip(), f"{name}: a picture that says nothing to those who cannot see it: {source}")


def check_identifiers(project, pages):
    keywords = list(project.iter("keyword"))
    ids = [k.get("id") for k in keywords if k.get("id")]
    for twice in {i for i in ids if ids.count(i) > 1}:
        wrong.append(f"tarnwick.qhp: {twice} stands twice")
    page_of = {k.get("id"): k.get("ref") for k in keywords if k.get("id")}

    wanted = {f"topic-{number}": keys for number, keys in TOPICS.items()} | NAMED
    for identifier, keys in wanted.items():
        name = page_of.get(identifier)
        expect(name is not None, f"tarnwick.qhp: no page for {identifier}")
        if name in pages and pages[name] is not None:
            for key in sorted(set(keys) - pictures_of(pages[name])):
                wrong.append(f"{name}: without its picture {key}")
    topic_pages = [name for identifier, name in page_of.items() if identifier.startswith("topic-")]
    expect(len(set(topic_pages)) == len(topic_pages), "tarnwick.qhp: two topics share a page")
    for identifier in page_of:
        expect(identifier in wanted, f"tarnwick.qhp: nobody asks for {identifier}")
    for keyword in keywords:
        expect(keyword.get("name", "").strip(), f"tarnwick.qhp: a keyword without a name for {keyword.get('ref')}")
        expect(keyword.get("ref") in pages, f"tarnwick.qhp: keyword {keyword.get('name')!r} leads nowhere")
    return set(page_of.values())


def check_project(pages):
    project = ET.parse(HELP / "tarnwick.qhp").getroot()
    expect(project.findtext("namespace") == "org.tarnwick.manual", "tarnwick.qhp: another namespace")
    expect(project.findtext("virtualFolder") == "manual", "tarnwick.qhp: another virtual folder")
    expect(project.find(".//filterAttribute") is None, "tarnwick.qhp: the manual is behind a filter")

    files = [f.text for f in project.iter("file")]
    expect("pictures/*.svg" in files, "tarnwick.qhp: without the pictures")
    for file in files:
        expect(file == "pictures/*.svg" or (HELP / file).is_file(), f"tarnwick.qhp: no such file: {file}")
    in_tree = [s.get("ref") for s in project.find(".//toc").iter("section")]
    for section in in_tree:
        expect(section in pages, f"tarnwick.qhp: the contents lead nowhere: {section}")
    known = check_identifiers(project, pages)
    for name in pages:
        expect(files.count(name) == 1, f"tarnwick.qhp: {name} is not among its files, once")
        expect(name in in_tree, f"tarnwick.qhp: {name} is not in the contents tree")
        expect(name in known, f"tarnwick.qhp: {name} has no identifier")


def check_lists(pages):
    """The two pages that list the others list them all."""
    for name in ("contents.html", "search.html"):
        page = pages.get(name)
        expect(page is not None, f"{name} is missing")
        if page is not None:
            for other in sorted(set(pages) - {name} - set(targets(page, "a", "href"))):
                wrong.append(f"{name}: does not lead to {other}")


def main():
    pages = {path.name: read_page(path) for path in sorted(HELP.glob("*.html"))}
    expect(pages, "help/ holds no page")
    for name, page in pages.items():
        if page is not None:
            check_page(name, page)
    check_project(pages)
    check_lists(pages)
    for line in wrong:
        print(line)
    print(f"{len(pages)} pages of the manual, {len(wrong)} faults")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/python3
"""Takes the pictures of docs/images, from the tool itself on a virtual display.

    tools/take_pictures.py [BUILD FOLDER]            takes them anew
    tools/take_pictures.py --check [BUILD FOLDER]    takes them into build/pictures and compares them with those of docs/images

The tool is driven as in the end-to-end tests, on its starter catalogue. Every step looks at what it shows before the picture is
taken: the figures that the documents tell stand here. A step that does not show what it should ends all with exit code 1;
so do pictures that no document shows, and documents that show others.
"""

import argparse
import functools
import glob
import os
import re
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "tests", "end_to_end"))

import tool  # noqa: E402
from desktop import Atspi, Desktop, GLib, ask, hands, press, type_text, wait_for  # noqa: E402
from screen import whole_picture, window_picture  # noqa: E402

IMAGES = os.path.join(ROOT, "docs", "images")
DRAWN = {"rooms.svg"}  # by tools/draw_rooms.py
FEW_COLOURS = ("-strip", "+dither", "-colors", "255")
LARGEST_DIFFERENCE = 0.01  # of a picture's area; another tab is more, a date, a folder's name or a scrolled table less

COUNTRY = "United Kingdom"
GRID = "OSGB36 / British National Grid"
RD = "Amersfoort / RD New"
TABS = ("Ellipsoid", "Projection", "Datum shift", "Height", "Check", "Definition")
# The Kadaster's points for the validation of RDNAPTRANS 2008.
RD_POINTS = ("Texel 117380.1200 575040.3400 1.0 53.160753042 4.824761912 42.8614",
             "Noord-Groningen 247380.5600 604580.7800 2.0 53.419482050 6.776726674 42.3586",
             "Amersfoort 155000.0000 463000.0000 0.0 52.155172897 5.387203657 43.2551",
             "Zeeuws-Vlaanderen 16460.9100 377380.2300 3.0 51.368607152 3.397588595 47.4024",
             "Zuid-Limburg 182260.4500 311480.6700 200.0 50.792584916 5.773795548 245.9478")


class Sight:
    """What a person sees in a window at one moment: not the tree, nor what a drop-down list holds."""

    def __init__(self, window):
        self.lines = set()  # of text, wherever they stand
        self.fields = {}  # what is written in each, by its label
        self.pressable = set()
        self.ticked = set()
        self._look_at(window)

    def _look_at(self, widget):
        kind, name = widget.kind, widget.name
        texts = [name]
        if kind in ("text", "label", "spin button"):
            texts.append(self._written(widget))
        if kind in ("text", "spin button"):
            self.fields[name] = texts[-1]
        elif kind == "push button" and widget.enabled:
            self.pressable.add(name)
        elif kind == "check box" and widget.accessible.get_state_set().contains(Atspi.StateType.CHECKED):
            self.ticked.add(name)
        if kind in ("label", "frame", "image"):
            texts.append(widget.accessible.get_description())
        for text in texts:
            self.lines.update(line.strip() for line in (text or "").split("\n"))
        if kind in ("table cell", "label", "push button", "page tab"):
            return
        for child in widget.children():
            if child.kind == "text" or kind != "combo box" and child.kind != "tree" and child.showing:
                self._look_at(child)

    @staticmethod
    def _written(widget):
        try:
            return widget.text
        except GLib.Error:
            return ""  # a label that is no more than its name


class Photographer:
    def __init__(self, desktop, installed, folder):
        self.desktop = desktop
        self.tool = installed
        self.folder = folder
        self.taken = []

    def sees(self, *lines, fields=None, pressable=(), ticked=(), window=None):
        """Waits until all of that is to be seen in the window, the main one if none is given: whole lines of text
        anywhere, fields by their labels with what is written in them, buttons that can be pressed, ticked boxes."""
        window = window or self.tool.main
        missing = []

        def is_seen():
            sight = Sight(window)
            missing[:] = [repr(line) for line in lines if line not in sight.lines]
            missing.extend(f"{text!r} in {name!r}, which holds {sight.fields.get(name)!r}"
                           for name, text in (fields or {}).items() if sight.fields.get(name) != text)
            missing.extend(f"the button {name!r}" for name in pressable if name not in sight.pressable)
            missing.extend(f"a tick at {name!r}" for name in ticked if name not in sight.ticked)
            return not missing

        wait_for(is_seen, lambda: ", ".join(missing))

    def has_rows(self, table, count):
        """The table has that many rows, those that must be scrolled to included."""
        rows = functools.partial(Atspi.Table.get_n_rows, table.accessible)
        wait_for(lambda: rows() == count, lambda: f"{count} rows in {table.name!r}, which has {rows()}")

    # Pictures

    def path(self, name):
        return os.path.join(self.folder, name + ".png")

    def take(self, name, title=tool.TITLE):
        """Saves what the window's place on the screen shows, its frame included, once it holds still."""
        hands("mousemove", 1, 1)
        window = ask("xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$").split()[0]
        window_picture(window, self.path(name), *FEW_COLOURS)
        self.keep(name)

    def keep(self, name):
        """Counts the picture as taken, if there is something on it."""
        assert name not in self.taken, f"{name} is taken twice"
        colours, deviation = ask("identify", "-format", "%k %[fx:standard_deviation]", self.path(name)).split()
        assert int(colours) > 64 and float(deviation) > 0.03, f"{name} is blank: {colours} colours"
        self.taken.append(name)
        print(os.path.relpath(self.path(name), ROOT), flush=True)

    # Steps, each from where the one before has left the tool

    def window(self):
        self.tool.item(tool.ROOT)
        first = self.tool.items()[2]
        self.tool.item(self.tool.items()[1]).double_click()
        wait_for(lambda: first not in self.tool.items(), "the first group to be folded")
        self.tool.scroll_to(COUNTRY)
        self.tool.unfold(COUNTRY)
        self.tool.scroll_to(GRID)
        self.tool.item(GRID).click()
        self.tool.tab("Projection")
        self.sees(GRID, "Method", "Transverse Mercator", "Show angles in", "Decimal degrees", "Save",
                  "Back to the values before", *TABS,
                  fields={"Latitude of origin": "49", "Central meridian": "-2", "Scale factor": "0.9996012717",
                          "False easting": "400000", "False northing": "-100000"}, pressable=("Add", "Exit"))
        assert self.tool.item(GRID).selected and not self.tool.save_enabled
        self.take("window")

    def ellipsoid(self):
        self.tool.tab("Ellipsoid")
        self.sees(GRID, "Ellipsoid", "Airy 1830",
                  fields={"Semi-major axis a": "6377563.396", "Inverse flattening 1/f": "299.3249646",
                          "Semi-minor axis b": "6356256.909237", "Eccentricity e": "0.081673373874"})
        self.take("ellipsoid")

    def height(self):
        self.tool.tab("Height")
        self.sees(GRID, "Geoid model", "(none)", "Model file", "Model ellipsoid")
        self.take("height")

    def definition(self):
        self.tool.tab("Definition")
        self.sees("In the registry: EPSG:27700, OSGB36 / British National Grid: the same to 0.01 mm over its area",
                  "WKT 1 (ESRI)", "With identifier", 'PROJCS["OSGB36 / British National Grid",',
                  'SPHEROID["Airy_1830",6377563.396,299.3249646]],',
                  fields={"PROJ definition": "+proj=tmerc +lat_0=49 +lon_0=-2 +k_0=0.9996012717 +x_0=400000 +y_0=-100000 "
                                             "+a=6377563.396 +rf=299.3249646 +units=m +no_defs",
                          "Where from": "EPSG:27700, EPSG v10.076", "Remark": ""},
                  pressable=("Copy the PROJ definition", "Copy the WKT", "Save as .prj", "Save group...", "From registry...", "From text..."))
        self.take("definition")

    def check_point(self):
        """The worked example of the Ordnance Survey's guide: 651409.903 m, 313177.270 m."""
        panel = self.tool.tab("Check")
        panel.find("text", "Latitude").fill("52 39 27.2531")
        panel.find("text", "Longitude").fill("1 43 4.5177")
        self.sees("The system's own", "Grid scale factor: 1.0003773154  (377.32 ppm)", "Convergence: 2.9573767°",
                  "Combined factor: 1.0003773154  (377.32 ppm)", "On WGS 84: unknown: the system defines no datum shift",
                  "The registry's shifts move this point by 129 to 134 m.", "Closing error: 0.000 mm", "Point", "Distortion",
                  "Points", "Compare", pressable=("Copy as text",),
                  fields={"Easting": "651409.9029", "Northing": "313177.2703", "Ellipsoidal height": "0.0000"})
        self.take("check-point")

    def check_distortion(self):
        panel = self.tool.main
        panel.find("page tab", "Distortion").click()
        self.sees("Origin", "500 km", "Picture of the linear distortion", "Point at the map for the distortion there.",
                  "Design", "For this area", "Move the meridian", "Scale factor: 0.9996012717 → 0.9996138",
                  "Distortion in ppm: -398.7 to 373.6 → -386.2 to 386.1", fields={"Height": "0 m"}, pressable=("Take over",))
        self.take("check-distortion")

    def compare(self):
        """The United Kingdom's grid against the registry's with its datum shift."""
        panel = self.tool.main
        panel.find("page tab", "Compare").click()
        panel.find("push button", "From registry...").click()
        dialog = self.tool.dialog("From registry")
        type_text("british national grid")
        dialog.find("table cell", "27700").click()
        dialog.find("push button", "Take over").click()
        self.tool.gone("From registry")
        panel.find("check box", "With datum shifts").click()
        self.sees("minus EPSG:27700, OSGB36 / British National Grid", "From catalogue...", "500 km", "Apart from the mean",
                  "No datum shift is defined by OSGB36 / British National Grid: it counts as on WGS 84.",
                  "Picture of the difference", "Checked point, ΔE: -128.738 m", "Checked point, ΔN: 38.866 m",
                  "Checked point, Distance: 134.477 m", "Mean, Distance: 128.346 m", "Apart from it, Distance: 42.574 m",
                  ticked=("With datum shifts",))
        self.take("check-compare")

    def group(self):
        self.tool.tab("Definition").find("push button", "Save group...").click()
        dialog = self.tool.dialog("Save group as .prj")
        folder = os.path.join(self.tool.home, "For the GIS")
        os.makedirs(folder)
        type_text(folder)
        press("Return")
        saved = ["ED50 _ TM 0 N.prj", "OSGB36 _ British National Grid.prj", "OSNI 1952 _ Irish National Grid.prj"]
        self.sees(COUNTRY, "WKT 1 (ESRI)", *saved, "Systems: 3", "Saved: 3", "Left out: 0",
                  "1: Does not come back with an import of this form: the datum shift.", fields={"Folder": folder},
                  pressable=("Copy summary", "Close"), window=dialog)
        self.has_rows(dialog.find("table", "Files"), 3)
        assert sorted(os.listdir(folder)) == saved, os.listdir(folder)
        self.take("save-group", "Save group as .prj")
        press("Escape")
        self.tool.gone("Save group as .prj")

    def take_from_registry(self, words, code):
        self.tool.tab("Definition").find("push button", "From registry...").click()
        dialog = self.tool.dialog("From registry")
        type_text(words)
        dialog.find("table cell", code).click()
        return dialog

    def registry(self):
        dialog = self.take_from_registry("british national grid", "27700")
        self.sees("By name or code", "From coordinates", "Covers the point", "Deprecated ones too", "Systems found: 1",
                  GRID, "Transverse Mercator", "Datum shift to WGS 84", "OSGB36 to WGS 84 (6), accuracy 2 m",
                  fields={"Search": "british national grid"}, pressable=("Take over", "Cancel"), window=dialog)
        self.take("from-registry", "From registry")
        dialog.find("push button", "Take over").click()
        self.tool.gone("From registry")

    def datum_shift(self):
        self.tool.tab("Datum shift")
        self.sees(GRID, "Datum", "Ordnance Survey of Great Britain 1936", "Shift to WGS 84",
                  "Seven parameters (three: the rest 0)",
                  fields={"Translation X": "446.448", "Translation Y": "-125.157", "Translation Z": "542.06",
                          "Rotation X": "0.15", "Rotation Y": "0.247", "Rotation Z": "0.842", "Scale difference": "-20.489"},
                  pressable=("From points...", "Reverse rotation signs", "Back to the values before", "Save"))
        self.take("datum-shift")

    def coordinates(self):
        self.tool.tab("Definition").find("push button", "From registry...").click()
        dialog = self.tool.dialog("From registry")
        type_text("3735")  # of the whole list every row would be read out
        self.sees("Systems found: 1", window=dialog)
        dialog.find("page tab", "From coordinates").click()
        for field, text in (("Latitude", "40.0"), ("Longitude", "-83"), ("First coordinate", "728350"),
                            ("Second coordinate", "1827200")):
            dialog.find("text", field + " of point 1").fill(text)
        dialog.find("table cell", "3735")
        press("Return")
        self.sees("400 m", "the same", "NAD83 / Ohio South (ftUS)", "if northing comes first, in US survey feet", "own",
                  "Systems found: 14. Distances are without datum shift, which can move a place by some hundred metres.",
                  "Lambert Conic Conformal (2SP)", "The registry counts in US survey foot, the record in metres.",
                  "NAD83(NSRS2007) to WGS 84 (1), accuracy 2 m",
                  pressable=("Paste rows", "Clear", "Take over", "Cancel"), window=dialog)
        self.take("from-coordinates", "From registry")
        dialog.find("push button", "Cancel").click()
        self.tool.gone("From registry")

    def text(self):
        self.tool.tab("Definition")
        self.tool.main.find("push button", "From text...").click()
        dialog = self.tool.dialog("From text")
        given = "+proj=tmerc +lat_0=0 +lon_0=9 +x_0=3500000 +ellps=bessel +towgs84=598.1,73.7,418.2,0.202,0.045,-2.455,6.7"
        type_text(given)
        self.sees("Paste or type WKT, a PROJ definition, PROJJSON, or a code as EPSG:25832.", "Understood:",
                  "Gauss-Krüger (scale factor 1)", "Central meridian: 9°", "False easting: 3500000 m",
                  "Ellipsoid: Bessel 1841, a 6377397.155 m, 1/f 299.1528128",
                  'Datum shift to WGS 84: 598.1 m, 73.7 m, 418.2 m, 0.202", 0.045", -2.455", 6.7 ppm',
                  fields={"Definition": given}, pressable=("Take over", "Cancel"), window=dialog)
        self.take("from-text")
        press("Escape")
        self.tool.gone("From text")

    def shift(self):
        self.tool.scroll_to("Netherlands")
        self.tool.unfold("Netherlands")
        self.tool.scroll_to(RD)
        self.tool.item(RD).click()
        self.tool.tab("Datum shift").find("push button", "From points...").click()
        dialog = self.tool.dialog("Shift from points")
        dialog.find("combo box").choose("Easting, northing, height")
        table = dialog.find("table", "Points")
        table.click()
        for point in RD_POINTS:
            press("Home")
            type_text(point.replace(" ", "\t") + "\n")
            press("Down")
        self.has_rows(table, len(RD_POINTS) + 1)  # the last takes the next point
        self.sees("Latitude, longitude, height", "Seven", "Texel", "22.2", "-60.7", "-473.7", "Zuid-Limburg", "95.3", "104.9",
                  "-233.2", pressable=("Take over", "Cancel"), window=dialog)
        self.take("shift-from-points", "Shift from points")
        press("Escape")
        self.tool.gone("Shift from points")

    def menu(self):
        self.tool.scroll_to("Uruguay")  # so that there is room for the menu
        self.tool.menu_at(self.tool.item(COUNTRY))
        entries = self.desktop.menu().names("menu item")
        assert entries == ["ImportCoordSys", "AddCoordSys", "EditSysGroup", "DelSysGroup"], entries
        self.take("menu")

    def name(self):
        self.desktop.menu().find("menu item", "AddCoordSys").click()
        dialog = self.tool.dialog("AddCoordSys")
        type_text("Harbour extension")
        self.sees("Harbour extension", pressable=("Ok", "Cancel"), window=dialog)
        self.take("name")
        press("Escape")
        self.tool.gone("AddCoordSys")

    def ellipsoids(self):
        self.tool.scroll_to(tool.ROOT)
        self.tool.command(self.tool.item(tool.ROOT), "Edit Ellipsoid")
        listed = self.tool.dialog("Edit Ellipsoid", "Add")
        listed.find("combo box").choose("Bessel 1841")
        self.sees("Ellipsoid Name", "ellipsoid a(m)", "ellipsoid f", "6377397.155", "299.1528128", "Edit", "Delete",
                  pressable=("Add",), window=listed)
        assert not any(listed.find("push button", name).enabled for name in ("Edit", "Delete"))  # it is shipped
        self.take("ellipsoids")
        press("Escape")
        self.tool.gone("Edit Ellipsoid")

    def geoids(self):
        model = os.path.join(self.tool.home, "Valley 2024.ggf")
        with open(model, "wb") as file:
            file.write(b"a geoid model")
        self.tool.scroll_to(tool.ROOT)  # the shown system was looked up again
        self.tool.command(self.tool.item(tool.ROOT), "AddGeoid")
        self.tool.dialog("New Geoid", "Add").find("push button", "Add").click()
        entry = self.tool.dialog("New Geoid", "OK")
        entry.find("combo box").find("text").fill("Valley")
        entry.find("push button", "Browser").click()
        self.choose_file("selete file", model)
        self.sees("Geoid Name", "Valley", "File Path", "Valley 2024.ggf", "Ellipsoid Name", "Airy 1830",
                  pressable=("OK", "Cancel", "Browser"), window=entry)
        self.take("geoids")
        press("Escape")
        self.tool.gone("New Geoid", "OK")
        press("Escape")
        self.tool.gone("New Geoid")

    def points(self):
        """A list of control points with two digits of one northing changed over: 377308 for 377380."""
        given = os.path.join(self.tool.home, "control points.csv")
        with open(given, "w", encoding="utf-8") as file:
            file.write("Point;x;y;Latitude;Longitude;Height\n")
            for point in RD_POINTS:
                name, easting, northing, _, latitude, longitude, height = point.split()
                northing = northing.replace("377380", "377308")
                file.write(";".join((name, easting, northing, latitude, longitude, height)) + "\n")
        self.tool.scroll_to(RD)
        self.tool.item(RD).click()
        dialog = self.take_from_registry("amersfoort new", "28992")  # with its shift
        dialog.find("push button", "Take over").click()
        self.tool.gone("From registry")
        panel = self.tool.tab("Check")
        panel.find("page tab", "Points").click()
        window = ask("xdotool", "search", "--onlyvisible", "--name", f"^{tool.TITLE}$").split()[0]
        hands("windowsize", "--sync", window, 1240, 680)
        panel.find("push button", "Open...").click()
        self.choose_file("Open points", given)
        columns = self.tool.dialog("Columns")
        self.sees("Semicolon", "metres", "Point", "x", "y", "Latitude", "Longitude", "Height", "Texel", "117380.1200",
                  "377308.2300", "Columns of one kind belong together: degrees, minutes and seconds.",
                  ticked=("First line is a heading",), pressable=("OK", "Cancel"), window=columns)
        self.has_rows(columns.find("table"), len(RD_POINTS) + 2)  # what the columns are, and the heading
        self.take("points-columns", "Columns")
        columns.find("push button", "OK").click()
        self.tool.gone("Columns")

    def residuals(self):
        """Four points off by 2 to 13 cm, and one by 72 m."""
        panel = self.tool.main
        panel.find("combo box", "Own").choose("WGS 84")
        panel.find("spin button", "Tolerance").click()
        press("ctrl+a")
        type_text("0.25\n")
        panel.find("table cell", "Texel").click()
        press("End")
        self.has_rows(panel.find("table", "Points"), len(RD_POINTS) + 1)
        self.sees(RD, "control points.csv: 5 rows read.", "5 points, 5 with both pairs, 1 beyond the tolerance", "WGS 84",
                  "0.0674", "0.0161", "0.0671", "72.0139", "72.0141", "0.1298", "Texel   ΔE 0.0113   ΔN 0.0664   0.0674 m",
                  "Picture of the points", "Fit", fields={"Tolerance": "0.250 m"},
                  pressable=("Open...", "Paste", "Copy", "Save...", "Delete", "Clear", "Next marked", "Report..."))
        self.take("check-points")

    def fit(self):
        panel = self.tool.main
        press("Home")
        panel.find("table cell", "Zeeuws-Vlaanderen").click()
        press("space")
        panel.find("check box", "Fit").click()
        self.sees("before", "after ± standard deviation", "RMS, largest", "Scale factor before: 0.9999079",
                  "Scale factor after: 0.999907613 ± 0.000000253", "False easting before: 155000 m",
                  "False easting after: 155000.0213 m ± 0.0319", "False northing before: 463000 m",
                  "False northing after: 462999.9987 m ± 0.0321", "Misfit before: 0.0809, 0.1298",
                  "Misfit after: 0.0703, 0.0939 m",
                  'Remainder: Against the ground remain a rotation of 0.09 ± 0.04" and a scale of 0 ± 0.19 ppm.',
                  "Zeeuws-Vlaanderen   ΔE 0.1672   ΔN 72.0139   72.0141 m", pressable=("Take over", "Report..."),
                  ticked=("Fit", "Scale factor", "False easting", "False northing"))
        self.take("points-fit")
        panel.find("check box", "Fit").click()

    def report(self):
        panel = self.tool.main
        report = os.path.join(self.tool.home, "Amersfoort.pdf")
        panel.find("push button", "Report...").click()
        self.choose_file("Save report", report)
        self.sees("Amersfoort.pdf: report saved.")
        read = " ".join(ask("pdftotext", "-layout", report, "-").split())
        for text in (RD, "within the tolerance", "Zeeuws-Vlaanderen", "Points and residuals", "Linear distortion", "EPSG:28992"):
            assert text in read, f"{text!r} is not in the report: {read}"
        pages = os.path.join(self.tool.home, "page")
        subprocess.run(["pdftoppm", "-r", "65", "-png", "-l", "2", report, pages], check=True)
        subprocess.run(["convert", f"{pages}-1.png", f"{pages}-2.png", "-bordercolor", "gray", "-border", "1", "+append",
                        *FEW_COLOURS, self.path("report")], check=True)
        self.keep("report")

    def choose_file(self, title, path):
        self.tool.dialog(title).find("text", "File name:").fill(path)
        press("Return")
        self.tool.gone(title)


STEPS = (Photographer.window, Photographer.ellipsoid, Photographer.height, Photographer.definition, Photographer.check_point,
         Photographer.check_distortion, Photographer.compare, Photographer.group, Photographer.registry,
         Photographer.datum_shift, Photographer.coordinates, Photographer.text, Photographer.shift, Photographer.menu,
         Photographer.name, Photographer.ellipsoids, Photographer.geoids, Photographer.points, Photographer.residuals,
         Photographer.fit, Photographer.report)


def complaints_of_documents(taken):
    """Pictures that a document shows and no step takes, and the other way round."""
    made = {name + ".png" for name in taken} | DRAWN
    shown = {}
    for document in [os.path.join(ROOT, "README.md"), *glob.glob(os.path.join(ROOT, "docs", "*.md"))]:
        with open(document, encoding="utf-8") as file:
            for name in re.findall(r"!\[[^]]*\]\((?:docs/)?images/([^)]+)\)", file.read()):
                shown.setdefault(name, os.path.relpath(document, ROOT))
    found = [f"{shown[name]} shows {name}, which no step takes" for name in sorted(set(shown) - made)]
    found += [f"no document shows {name}" for name in sorted(made - set(shown))]
    there = {name for name in os.listdir(IMAGES) if not name.endswith(".dot")}
    found += [f"docs/images/{name} is of no step" for name in sorted(there - made)]
    return found


def complaints_of_pictures(folder, taken):
    """Pictures of `folder` that are not as those of docs/images."""
    for name in taken:
        new, old = (os.path.join(place, name + ".png") for place in (folder, IMAGES))
        if not os.path.exists(old):
            yield f"there is no docs/images/{name}.png"
            continue
        sizes = [ask("identify", "-format", "%wx%h", path) for path in (new, old)]
        if sizes[0] != sizes[1]:
            yield f"{name} is {sizes[0]} large, not {sizes[1]}"
            continue
        width, height = map(int, sizes[0].split("x"))
        differing = subprocess.run(["compare", "-metric", "AE", "-fuzz", "10%", new, old, "null:"], stderr=subprocess.PIPE,
                                   text=True, check=False).stderr
        share = float(differing) / (width * height)
        if share > LARGEST_DIFFERENCE:
            yield f"docs/images/{name}.png is not what the tool shows: {share:.1%} of it differs"


def take_all(build, folder):
    """Goes through the steps; the names of the pictures."""
    with tempfile.TemporaryDirectory() as scratch:
        desktop = Desktop(scratch)
        try:
            desktop.open()
            home = os.path.join(scratch, "user")
            os.makedirs(home)
            installed = tool.Tool(desktop, home, build)
            installed.start()
            photographer = Photographer(desktop, installed, folder)
            for step in STEPS:
                try:
                    step(photographer)
                except Exception as error:
                    failed = os.path.join(ROOT, "build", "failed-picture.png")
                    whole_picture(failed)
                    sys.exit(f"The step {step.__name__!r} failed, as {failed} shows: {error!r}")
            installed.close()
            return photographer.taken
        finally:
            desktop.close()


def use_one_family_of_fonts(folder):
    """What is drawn must not depend on which other fonts this machine has."""
    path = os.path.join(folder, "fonts.conf")
    with open(path, "w", encoding="utf-8") as file:
        file.write(f"""<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>{folder}</cachedir>
  <include ignore_missing="yes">/etc/fonts/conf.d</include>
</fontconfig>
""")
    os.environ["FONTCONFIG_FILE"] = path


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--check", action="store_true", help="compare the pictures with those of docs/images")
    parser.add_argument("build", nargs="?", default=os.path.join(ROOT, "build", "release"))
    arguments = parser.parse_args()
    folder = os.path.join(ROOT, "build", "pictures") if arguments.check else IMAGES
    os.makedirs(folder, exist_ok=True)
    with tempfile.TemporaryDirectory() as settings:
        use_one_family_of_fonts(settings)
        taken = take_all(os.path.abspath(arguments.build), folder)
    complaints = complaints_of_documents(taken)
    if arguments.check:
        complaints += complaints_of_pictures(folder, taken)
    if complaints:
        sys.exit("\n".join([*complaints, "tools/take_pictures.py takes the pictures anew."]))


if __name__ == "__main__":
    main()

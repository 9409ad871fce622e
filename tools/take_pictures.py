#!/usr/bin/python3
"""Takes the pictures of docs/images anew, from the tool itself on a virtual display: tools/take_pictures.py [BUILD FOLDER].

The tool is driven as in the end-to-end tests, on its starter catalogue.
"""

import os
import re
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "tests", "end_to_end"))

import tool  # noqa: E402
from desktop import Desktop, ask, hands, press, type_text, wait_for  # noqa: E402
from screen import window_picture  # noqa: E402

IMAGES = os.path.join(ROOT, "docs", "images")
COUNTRY = "United Kingdom"
GRID = "OSGB36 / British National Grid"
# The Kadaster's points for the validation of RDNAPTRANS 2008.
RD_POINTS = ("Texel 117380.1200 575040.3400 1.0 53.160753042 4.824761912 42.8614",
             "Noord-Groningen 247380.5600 604580.7800 2.0 53.419482050 6.776726674 42.3586",
             "Amersfoort 155000.0000 463000.0000 0.0 52.155172897 5.387203657 43.2551",
             "Zeeuws-Vlaanderen 16460.9100 377380.2300 3.0 51.368607152 3.397588595 47.4024",
             "Zuid-Limburg 182260.4500 311480.6700 200.0 50.792584916 5.773795548 245.9478")


class Photographer:
    def __init__(self, desktop, installed):
        self.desktop = desktop
        self.tool = installed

    def take(self, name):
        self.take_window(tool.TITLE, name)

    def take_window(self, title, name):
        """Saves what the window's place on the screen shows, its frame included, once it holds still."""
        hands("mousemove", 1, 1)
        window = ask("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()[0]
        target = os.path.join(IMAGES, name + ".png")
        window_picture(window, target, "-strip", "+dither", "-colors", "255")
        print(target)

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
        self.take("window")

    def tabs(self):
        for title in ("Ellipsoid", "Height", "Definition"):
            self.tool.tab(title)
            self.take(title.lower())
        self.tool.tab("Check")
        panel = self.tool.main
        # The worked example of the Ordnance Survey's guide: 651409.903 m, 313177.270 m.
        panel.find("text", "Latitude").fill("52 39 27.2531")
        panel.find("text", "Longitude").fill("1 43 4.5177")
        self.take("check-point")
        panel.find("page tab", "Distortion").click()
        self.take("check-distortion")

    def group(self):
        self.tool.tab("Definition").find("push button", "Save group...").click()
        dialog = self.tool.dialog("Save group as .prj")
        folder = os.path.join(self.tool.home, "For the GIS")
        os.makedirs(folder)
        type_text(folder)
        press("Return")
        wait_for(lambda: dialog.all("push button", "Close"), "the summary")
        self.take_window("Save group as .prj", "save-group")
        press("Escape")
        self.tool.gone("Save group as .prj")

    def take_from_registry(self, words, code, picture=None):
        self.tool.tab("Definition").find("push button", "From registry...").click()
        dialog = self.tool.dialog("From registry")
        type_text(words)
        dialog.find("table cell", code).click()
        if picture:
            self.take_window("From registry", picture)
        dialog.find("push button", "Take over").click()
        self.tool.gone("From registry")

    def compare(self):
        """The United Kingdom's grid against the registry's with its datum shift."""
        panel = self.tool.tab("Check")
        panel.find("page tab", "Compare").click()
        panel.find("push button", "From registry...").click()
        dialog = self.tool.dialog("From registry")
        type_text("british national grid")
        dialog.find("table cell", "27700").click()
        dialog.find("push button", "Take over").click()
        self.tool.gone("From registry")
        panel.find("check box", "With datum shifts").click()
        self.take("check-compare")

    def registry(self):
        self.take_from_registry("british national grid", "27700", "from-registry")
        self.tool.tab("Datum shift")
        self.take("datum-shift")

    def coordinates(self):
        self.tool.tab("Definition").find("push button", "From registry...").click()
        dialog = self.tool.dialog("From registry")
        dialog.find("page tab", "From coordinates").click()
        for field, text in (("Latitude", "40.0"), ("Longitude", "-83"), ("First coordinate", "728350"),
                            ("Second coordinate", "1827200")):
            dialog.find("text", field + " of point 1").fill(text)
        dialog.find("table cell", "3735")
        press("Return")
        self.take_window("From registry", "from-coordinates")
        dialog.find("push button", "Cancel").click()
        self.tool.gone("From registry")

    def shift(self):
        self.tool.scroll_to("Netherlands")
        self.tool.unfold("Netherlands")
        self.tool.scroll_to("Amersfoort / RD New")
        self.tool.item("Amersfoort / RD New").click()
        self.tool.tab("Datum shift").find("push button", "From points...").click()
        dialog = self.tool.dialog("Shift from points")
        dialog.find("combo box").choose("Easting, northing, height")
        dialog.find("table", "Points").click()
        for point in RD_POINTS:
            press("Home")
            type_text(point.replace(" ", "\t") + "\n")
            press("Down")
        self.take_window("Shift from points", "shift-from-points")
        press("Escape")
        self.tool.gone("Shift from points")

    def points(self):
        """A list of control points with two digits of one northing changed over: 377308 for 377380."""
        given = os.path.join(self.tool.home, "control points.csv")
        with open(given, "w", encoding="utf-8") as file:
            file.write("Point;x;y;Latitude;Longitude;Height\n")
            for point in RD_POINTS:
                name, easting, northing, _, latitude, longitude, height = point.split()
                northing = northing.replace("377380", "377308")
                file.write(";".join((name, easting, northing, latitude, longitude, height)) + "\n")
        self.tool.scroll_to("Amersfoort / RD New")
        self.tool.item("Amersfoort / RD New").click()
        self.take_from_registry("amersfoort new", "28992")  # with its shift
        panel = self.tool.tab("Check")
        panel.find("page tab", "Points").click()
        window = ask("xdotool", "search", "--onlyvisible", "--name", f"^{tool.TITLE}$").split()[0]
        before = re.findall(r"(?:WIDTH|HEIGHT)=(\d+)", ask("xdotool", "getwindowgeometry", "--shell", window))
        hands("windowsize", "--sync", window, 1240, 680)
        panel.find("push button", "Open...").click()
        self.choose_file("Open points", given)
        columns = self.tool.dialog("Columns")
        self.take_window("Columns", "points-columns")
        columns.find("push button", "OK").click()
        self.tool.gone("Columns")
        panel.find("combo box", "Own").choose("WGS 84")
        panel.find("spin button", "Tolerance").click()
        press("ctrl+a")
        type_text("0.25\n")
        panel.find("table cell", "Texel").click()
        press("End")
        self.take("check-points")
        press("Home")
        panel.find("table cell", "Zeeuws-Vlaanderen").click()
        press("space")
        panel.find("check box", "Fit").click()
        self.take("points-fit")
        panel.find("check box", "Fit").click()
        report = os.path.join(self.tool.home, "Amersfoort.pdf")
        panel.find("push button", "Report...").click()
        self.choose_file("Save report", report)
        panel.find("label", "Amersfoort.pdf: report saved.")
        target = os.path.join(IMAGES, "report.png")
        pages = os.path.join(self.tool.home, "page")
        subprocess.run(["pdftoppm", "-r", "65", "-png", "-l", "2", report, pages], check=True)
        subprocess.run(["convert", f"{pages}-1.png", f"{pages}-2.png", "-bordercolor", "gray", "-border", "1", "+append",
                        "-strip", "+dither", "-colors", "255", target], check=True)
        print(target)
        hands("windowsize", "--sync", window, *before)

    def choose_file(self, title, path):
        self.tool.dialog(title).find("text", "File name:").fill(path)
        press("Return")
        self.tool.gone(title)

    def text(self):
        self.tool.tab("Definition")
        self.tool.main.find("push button", "From text...").click()
        self.tool.dialog("From text")
        type_text("+proj=tmerc +lat_0=0 +lon_0=9 +x_0=3500000 +ellps=bessel +towgs84=598.1,73.7,418.2,0.202,0.045,-2.455,6.7")
        self.take("from-text")
        press("Escape")
        self.tool.gone("From text")

    def commands(self):
        self.tool.scroll_to("Uruguay")  # so that there is room for the menu
        self.tool.menu_at(self.tool.item(COUNTRY))
        self.take("menu")
        self.desktop.menu().find("menu item", "AddCoordSys").click()
        self.tool.dialog("AddCoordSys")
        type_text("Harbour extension")
        self.take("name")
        press("Escape")
        self.tool.gone("AddCoordSys")

    def dialogs(self):
        model = os.path.join(self.tool.home, "Valley 2024.ggf")
        with open(model, "wb") as file:
            file.write(b"a geoid model")
        self.tool.scroll_to(tool.ROOT)
        self.tool.command(self.tool.item(tool.ROOT), "Edit Ellipsoid")
        listed = self.tool.dialog("Edit Ellipsoid", "Add")
        listed.find("combo box").choose("Bessel 1841")
        self.take("ellipsoids")
        press("Escape")
        self.tool.gone("Edit Ellipsoid")

        self.tool.scroll_to(tool.ROOT)  # the shown system was looked up again
        self.tool.command(self.tool.item(tool.ROOT), "AddGeoid")
        self.tool.dialog("New Geoid", "Add").find("push button", "Add").click()
        entry = self.tool.dialog("New Geoid", "OK")
        entry.find("combo box").find("text").fill("Valley")
        entry.find("push button", "Browser").click()
        self.tool.dialog("selete file").find("text", "File name:").fill(model)
        press("Return")
        self.tool.gone("selete file")
        self.take("geoids")
        press("Escape")
        self.tool.gone("New Geoid", "OK")
        press("Escape")
        self.tool.gone("New Geoid")


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(ROOT, "build", "release"))
    os.makedirs(IMAGES, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        desktop = Desktop(folder)
        try:
            desktop.open()
            home = os.path.join(folder, "user")
            os.makedirs(home)
            installed = tool.Tool(desktop, home, build)
            installed.start()
            photographer = Photographer(desktop, installed)
            for step in (photographer.window, photographer.tabs, photographer.compare, photographer.group,
                         photographer.registry, photographer.coordinates, photographer.text, photographer.shift,
                         photographer.commands, photographer.dialogs, photographer.points):
                step()
            installed.close()
        finally:
            desktop.close()


if __name__ == "__main__":
    main()

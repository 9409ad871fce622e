"""The parameter panel as a surveyor uses it: from the registry into a system, checked, and out to other programs."""

import os
import subprocess
from random import Random

import tool
from desktop import press, type_text, wait_for

GRID = {"Latitude of origin": 49, "Central meridian": -2, "Scale factor": 0.9996012717, "False easting": 400000,
        "False northing": -100000}  # EPSG 27700
SHIFT = {"Translation X": 446.448, "Translation Y": -125.157, "Translation Z": 542.06, "Rotation X": 0.15,
         "Rotation Y": 0.247, "Rotation Z": 0.842, "Scale difference": -20.489}  # EPSG 1314


class Panel(tool.ToolTest):
    def add_group(self, name):
        self.tool.command(self.tool.item(tool.ROOT), "AddSysGroup")
        self.tool.input_name("AddSysGroup", name)
        wait_for(lambda: self.tool.item(name).selected, f"the new group {name!r}")

    def add_system(self, group, name):
        self.tool.command(self.tool.item(group), "AddCoordSys")
        self.tool.input_name("AddCoordSys", name)
        wait_for(lambda: self.tool.item(name).selected, f"the new system {name!r}")

    def assert_shown(self, tab, figures, tolerance=1e-9):
        panel = self.tool.tab(tab)

        def shown():
            fields = {field.name: field.text for field in panel.all("text")}
            return {label: float(fields.get(label) or "nan") for label in figures}

        wait_for(lambda: all(abs(shown()[label] - figures[label]) < tolerance for label in figures),
                 lambda: f"{figures}, not {shown()}")

    def take_from_registry(self, code):
        self.tool.tab("Definition").find("push button", "From registry...").click()
        registry = self.tool.dialog("From registry")
        type_text(code)
        registry.find("table cell", code).click()
        taker = registry.find("push button", "Take over")
        wait_for(lambda: taker.enabled, "the system to be chosen")
        taker.click()
        self.tool.gone("From registry")

    def test_from_the_registry_and_out_to_a_file_and_in_again(self):
        self.tool.start()
        self.add_group("Yard")
        self.add_system("Yard", "Harbour")
        self.take_from_registry("27700")
        self.assertTrue(self.tool.save_enabled)
        self.assert_shown("Projection", GRID)
        self.assert_shown("Datum shift", SHIFT)

        # The worked example of the Ordnance Survey's guide to coordinate systems in Great Britain.
        panel = self.tool.tab("Check")
        panel.find("text", "Latitude").fill("52 39 27.2531")
        panel.find("text", "Longitude").fill("1 43 4.5177")
        self.assertAlmostEqual(float(panel.find("text", "Easting").text), 651409.903, delta=0.001)
        self.assertAlmostEqual(float(panel.find("text", "Northing").text), 313177.270, delta=0.001)

        path = os.path.join(self.folder, "harbour.prj")
        panel = self.tool.tab("Definition")
        panel.find("combo box", "WKT 1 (ESRI)").choose("WKT 2:2019")  # ESRI's form has no datum shift
        panel.find("push button", "Save as .prj").click()
        chooser = self.tool.dialog("Save as .prj")
        chooser.find("text", "File name:").fill(path)
        press("Return")
        self.tool.gone("Save as .prj")
        self.assertTrue(os.path.exists(path))

        self.add_group("Imported")
        self.tool.command(self.tool.item("Imported"), "ImportCoordSys")
        chooser = self.tool.dialog("Selecte WKT file")
        chooser.find("text", "File name:").fill(path)
        press("Return")
        self.tool.gone("Selecte WKT file")
        wait_for(lambda: self.tool.item(tool.ROOT).selected, "the rebuilt tree")
        self.tool.unfold("Imported")
        self.assertEqual(self.tool.items()[1:3], ["Imported", "Harbour"])
        self.tool.item("Harbour").click()
        self.assert_shown("Projection", GRID)
        self.assert_shown("Datum shift", SHIFT)

    def saved(self, name):
        """The values of a system in the catalogue's file."""
        systems = ({value.get("key"): value.get("text") for value in system}
                   for system in self.tool.file("CoordinateSystem_custom.vcs").iter("system"))
        return next(system for system in systems if system["name"] == name)

    def turn_to(self, widget):
        for _ in range(20):
            if widget.focused:
                return
            press("Tab")
        wait_for(lambda: widget.focused, "the keyboard to come to " + widget.name)

    def test_an_outlier_a_fit_and_a_report_by_the_keyboard(self):
        random = Random(13)
        places = [(random.uniform(-3, 0), random.uniform(50.5, 55)) for _ in range(200)]
        # The false easting is 2 cm more than the system's.
        grid = subprocess.run(["proj", "-f", "%.4f", "+proj=tmerc", "+lat_0=49", "+lon_0=-2", "+k=0.9996012717",
                               "+x_0=400000.02", "+y_0=-100000", "+ellps=airy"], stdout=subprocess.PIPE, check=True,
                              input="\n".join(f"{lon} {lat}" for lon, lat in places), text=True).stdout.splitlines()
        grid[136] = "401000.0000\t301000.0000"
        lines = [f"P{i}\t{lat}\t{lon}\t{point}" for i, ((lon, lat), point) in enumerate(zip(places, grid), 1)]

        self.tool.start()
        self.add_group("Yard")
        self.add_system("Yard", "Harbour <2>")
        self.take_from_registry("27700")
        panel = self.tool.tab("Check")
        panel.find("page tab", "Points").click()
        self.desktop.copy("Name\tLatitude\tLongitude\tEasting\tNorthing\n" + "\n".join(lines))
        self.turn_to(panel.find("push button", "Paste"))
        press("space")
        self.tool.dialog("Columns")
        press("Return")
        self.tool.gone("Columns")
        panel.find("label", "200 points, 200 with both pairs, 1 beyond the tolerance")
        self.turn_to(panel.find("push button", "Next marked"))
        press("space")
        wait_for(lambda: any(name.startswith("P137 ") for name in panel.names("label")), "the outlier to be told of")
        press("space")
        panel.find("label", "200 points, 200 with both pairs, 1 left out")
        self.turn_to(panel.find("check box", "Fit"))
        press("space")
        taker = panel.find("push button", "Take over")
        wait_for(lambda: taker.enabled, "a fit")
        self.turn_to(taker)
        press("space")
        wait_for(lambda: not taker.enabled, "the fit to be taken over")

        report = os.path.join(self.folder, "harbour.pdf")
        self.turn_to(panel.find("push button", "Report..."))
        press("space")
        self.name_file("Save report", report)
        panel.find("label", "harbour.pdf: report saved.")
        text = subprocess.run(["pdftotext", "-layout", report, "-"], check=True, capture_output=True, text=True).stdout
        pages = text.split("\f")[:-1]
        for part in ("Harbour <2>", "EPSG:27700", "All 199 compared points are within the tolerance of 0.05 m.",
                     "left out of the figures by hand: P137", "Airy 1830", "Inverse flattening 1/f", "446.448 m"):
            self.assertIn(part, pages[0])
        self.assertRegex(pages[0], r"PROJ \d+\.\d+\.\d+, EPSG v\d+")
        self.assertRegex(text, r"137 +P137 .*\n.*Left out of the figures")
        self.assertRegex(text, r"200 +P200 +5\d\.\d+ +-\d\.\d+ +\d{6}\.\d{4} +\d{6}\.\d{4} +-?0\.000")
        for number, page in enumerate(pages, 1):
            self.assertIn(f"Page {number} of {len(pages)}", page)
            self.assertEqual(number > 2, "No. Name" in page)  # the list's heading on each of its pages
        self.assert_shown("Projection", {"False easting": 400000.02, "Scale factor": 0.9996012717}, tolerance=1e-4)

    def test_a_shift_from_points_by_the_keyboard(self):
        self.tool.start()
        self.add_group("North Sea")
        self.add_system("North Sea", "Platform")
        self.take_from_registry("23031")
        panel = self.tool.tab("Datum shift")
        self.turn_to(panel.find("push button", "From points..."))
        press("space")
        dialog = self.tool.dialog("Shift from points")
        # The example of IOGP 373-7-2, method 9603; Tab goes from cell to cell.
        type_text("one\t53:48:36.565N\t2:07:51.477E\t28.02\t53:48:33.82N\t2:07:46.38E\t73.0\n")
        wait_for(lambda: dialog.all("table cell", "53:48:33.82N"), "the point to be typed")
        self.turn_to(dialog.find("combo box", "Seven"))
        press("Down")
        taker = dialog.find("push button", "Take over")
        wait_for(lambda: taker.enabled, "three parameters")
        self.turn_to(taker)
        press("space")
        self.tool.gone("Shift from points")
        self.assert_shown("Datum shift", {"Translation X": -84.87, "Translation Y": -96.49, "Translation Z": -116.95,
                                          "Rotation X": 0}, tolerance=0.1)
        self.assertTrue(self.tool.save_enabled)

    def name_file(self, title, path):
        """Types a path into the dialog for files, whose field the keyboard is in."""
        field = self.tool.dialog(title).find("text", "File name:")
        press("ctrl+a")
        type_text(path)
        wait_for(lambda: field.text == path, "the path to be typed")
        press("Return")

    def test_a_mistyped_value_costs_nothing(self):
        self.tool.start()
        first, second = self.tool.items()[2:4]
        panel = self.tool.tab("Projection")

        panel.find("text", "False easting").fill("123456.789")
        press("Return")
        panel.find("text", "False easting").fill("5x5")
        press("Escape")
        self.assert_shown("Projection", {"False easting": 123456.789})

        meridian = float(panel.find("text", "Central meridian").text)
        panel.find("text", "Central meridian").fill("200")
        self.tool.item(second).click()
        self.tool.item(first).click()
        self.assert_shown("Projection", {"Central meridian": meridian})

        panel.find("text", "Latitude of origin").fill("47")
        press("Tab")
        panel.find("text", "Latitude of origin").fill("45x5")
        self.tool.save()
        self.assert_shown("Projection", {"Latitude of origin": 47})
        saved = self.saved(first)
        self.assertEqual([float(saved[key]) for key in ("false_east", "org_lon", "org_lat")],
                         [123456.789, meridian, 47])

    def test_back_to_the_values_before(self):
        self.tool.start()
        first = self.tool.items()[2]
        self.take_from_registry("27700")
        panel = self.tool.tab("Projection")
        self.assert_shown("Projection", GRID)
        panel.find("push button", "Back to the values before").click()
        self.assert_shown("Projection", {"Central meridian": -177, "Scale factor": 0.9996})
        self.tool.save()
        self.assertEqual(float(self.saved(first)["org_lon"]), -177)
        panel.find("push button", "Forward to the edited values").click()
        self.assert_shown("Projection", GRID)

    def test_the_keyboard_stays_where_it_was(self):
        self.tool.start()
        field = self.tool.tab("Projection").find("text", "False easting")
        field.fill("1 000 000.00 m")
        self.tool.save()
        wait_for(lambda: field.focused, "the keyboard to be back in the field")
        self.tool.tab("Definition").find("push button", "From registry...").click()
        self.tool.dialog("From registry")
        press("Escape")
        self.tool.gone("From registry")
        press("Tab")
        wait_for(lambda: self.tool.tab("Definition").find("text", "Remark").focused, "the field behind the button")
        press("Tab")
        wait_for(lambda: self.tool.button("From text...").focused, "the next button")
        press("space")
        self.tool.dialog("From text")
        type_text("epsg:25833")
        press("Tab", "Tab", "space")
        self.tool.gone("From text")
        press("Tab")
        wait_for(lambda: self.tool.button("Add").focused, "the window's buttons after the tab's last one")
        self.assert_shown("Projection", {"Central meridian": 15, "False easting": 500000})


if __name__ == "__main__":
    tool.run()

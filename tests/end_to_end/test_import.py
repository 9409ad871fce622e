"""Importing a folder of real .prj files, as other programs write them, through the file dialog."""

import os
import subprocess

import tool
from desktop import press, wait_for

GROUP = "From the field"


def projinfo(code, dialect):
    return subprocess.run(["projinfo", f"EPSG:{code}", "-o", dialect, "--single-line", "-q"],
                          check=True, stdout=subprocess.PIPE, text=True).stdout.strip()


class Import(tool.ToolTest):
    # From the EPSG registry: systems 25832, 2154, 3395 and 27700.
    FIGURES = {
        "ETRS89 / UTM zone 32N": {"Central meridian": 9, "Scale factor": 0.9996, "False easting": 500000},
        # GDAL gives a system of the ESRI dialect the name that the registry has for it.
        "RGF93 v1 / Lambert-93": {"Standard parallel 1": 49, "Standard parallel 2": 44, "Latitude of origin": 46.5,
                                  "Central meridian": 3, "False easting": 700000, "False northing": 6600000},
        "WGS 84 / World Mercator": {"Central meridian": 0, "Scale factor": 1, "False northing": 0},
        "OSGB36 / British National Grid": {"Latitude of origin": 49, "Central meridian": -2,
                                           "Scale factor": 0.9996012717, "False easting": 400000,
                                           "False northing": -100000},
    }

    def setUp(self):
        super().setUp()
        self.files = os.path.join(self.folder, "field data")
        os.makedirs(self.files)

    def write(self, name, text, encoding="utf-8"):
        with open(os.path.join(self.files, name), "w", encoding=encoding, newline="") as file:
            file.write(text)

    def add_group(self, name):
        self.tool.command(self.tool.item(tool.ROOT), "AddSysGroup")
        self.tool.input_name("AddSysGroup", name)
        wait_for(lambda: self.tool.item(name).selected, f"the new group {name!r}")

    def choose_all(self):
        """In the file dialog: goes to the folder, shows its .prj files, takes them all."""
        chooser = self.tool.dialog("Selecte WKT file")
        chooser.find("text", "File name:").fill(self.files)
        press("Return")
        chooser.find("combo box", self.files)
        # The list of completions that typing opened takes the first click to close.
        chooser.find("label", "File name:").click()
        chooser.find("combo box", "*.txt").choose("*.prj")
        listed = chooser.find("tree", "Files")
        first = sorted(name for name in os.listdir(self.files) if name.endswith(".prj"))[0]
        listed.find("table cell", first).click()
        press("ctrl+a")
        opener = chooser.find("push button", "Open")
        wait_for(lambda: opener.enabled, "the files to be chosen")
        opener.click()

    def systems(self, group):
        """Unfolds the group, which the rebuilt tree shows first and folded, and reads its systems."""
        groups = self.tool.items()
        self.tool.unfold(group)
        following = groups[groups.index(group) + 1]
        unfolded = self.tool.items()
        return unfolded[unfolded.index(group) + 1:unfolded.index(following)]

    def shown(self, panel, labels):
        fields = {field.name: field.text for field in panel.all("text")}
        return {label: float(fields.get(label, "nan")) for label in labels}

    def test_a_folder_of_prj_files(self):
        self.write("01 utm.prj", projinfo(25832, "WKT1_GDAL"))
        self.write("02 lambert.prj", projinfo(2154, "WKT1_ESRI") + "\r\n")
        self.write("03 geographic.prj", projinfo(4326, "WKT1_GDAL"))
        self.write("04 mercator.prj", "\ufeff" + projinfo(3395, "WKT2:2019"))
        self.write("05 utm again.prj", projinfo(25832, "WKT1_GDAL"))
        self.write("06 rubbish.prj", "GEOGCS[")
        self.write("07 empty.prj", "")
        self.write("08 british.prj", projinfo(27700, "WKT1_GDAL"))

        self.tool.start()
        self.add_group(GROUP)
        self.tool.command(self.tool.item(GROUP), "ImportCoordSys")
        self.choose_all()
        for message in ("Import file isn't projection coordinates!",
                        "The Imported projection coordinates already exist in the group!",
                        "Import file failed!",
                        "Import file failed!"):
            self.tool.answer("Warning", message, "OK")

        wait_for(lambda: self.tool.item(tool.ROOT).selected, "the rebuilt tree")
        self.assertTrue(self.tool.save_enabled, "an import is a change")
        imported = list(self.FIGURES)
        self.assertCountEqual(self.systems(GROUP), imported)
        self.tool.save()
        self.assertEqual(self.tool.exit(), 0)

        self.tool.start()
        self.assertCountEqual([name for name in self.tool.items() if name in imported], imported)
        for system, figures in self.FIGURES.items():
            with self.subTest(system):
                self.tool.item(system).click()
                panel = self.tool.tab("Projection")
                wait_for(lambda: self.shown(panel, figures) == figures,
                         lambda: f"{figures}, not {self.shown(panel, figures)}")


if __name__ == "__main__":
    tool.run()

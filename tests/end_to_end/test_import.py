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
        # GDAL gives a system of the ESRI dialect the name that the registry has for it.
        imported = ["ETRS89 / UTM zone 32N", "RGF93 v1 / Lambert-93", "WGS 84 / World Mercator",
                    "OSGB36 / British National Grid"]
        self.assertCountEqual(self.systems(GROUP), imported)
        self.tool.save()
        self.assertEqual(self.tool.exit(), 0)

        self.tool.start()
        self.assertCountEqual([name for name in self.tool.items() if name in imported], imported)
        self.tool.item("OSGB36 / British National Grid").click()
        self.tool.tab("Projection")
        fields = [field.text for field in self.tool.main.all("text")]
        self.assertIn("400000", [text.rstrip("0").rstrip(".") if "." in text else text for text in fields])


if __name__ == "__main__":
    tool.run()

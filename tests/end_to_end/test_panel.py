"""The parameter panel as a surveyor uses it: from the registry into a system, checked, and out to other programs."""

import os

import tool
from desktop import press, type_text, wait_for
from panel import PanelTest

GRID = {"Latitude of origin": 49, "Central meridian": -2, "Scale factor": 0.9996012717, "False easting": 400000,
        "False northing": -100000}  # EPSG 27700
SHIFT = {"Translation X": 446.448, "Translation Y": -125.157, "Translation Z": 542.06, "Rotation X": 0.15,
         "Rotation Y": 0.247, "Rotation Z": 0.842, "Scale difference": -20.489}  # EPSG 1314


class Panel(PanelTest):
    def saved(self, name):
        """The values of a system in the catalogue's file."""
        systems = ({value.get("key"): value.get("text") for value in system}
                   for system in self.tool.file("CoordinateSystem_custom.vcs").iter("system"))
        return next(system for system in systems if system["name"] == name)

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

"""Control points: those that a system is checked against and fitted to, and a datum shift from them."""

import os
import subprocess
from random import Random

import tool
from desktop import press, type_text, wait_for
from panel import PanelTest


class Points(PanelTest):
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


if __name__ == "__main__":
    tool.run()

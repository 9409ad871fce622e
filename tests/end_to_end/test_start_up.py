"""Starting, editing, saving, leaving, and what a crash or a damaged file must not cost."""

import os

import tool
from desktop import hands, press, visible_windows, wait_for

CATALOGUE = "CoordinateSystem_custom.vcs"


class StartUp(tool.ToolTest):
    def semi_major_axis(self):
        return self.tool.tab("Ellipsoid").find("text", "Semi-major axis a")

    def edit(self, system, figure):
        self.tool.item(system).click()
        wait_for(lambda: self.tool.item(system).selected, f"{system!r} to be selected")
        self.semi_major_axis().fill(figure)
        wait_for(lambda: self.tool.save_enabled, "Save to be enabled")

    def test_a_fresh_machine_shows_the_starter_catalogue(self):
        self.tool.start()
        items = self.tool.items()
        self.assertEqual(items[0], tool.ROOT)
        self.assertGreater(len(items), 10)
        self.assertTrue(self.tool.item(items[2]).selected, "the first system of the first group is shown")
        self.assertEqual(float(self.semi_major_axis().text), 6378137)
        self.assertFalse(self.tool.save_enabled)
        self.assertFalse(os.path.exists(self.tool.data), "nothing is written before the user saves")

    def test_start_up_does_not_map_what_it_does_not_use(self):
        self.tool.start()
        libraries = self.tool.mapped_libraries()
        self.assertTrue(any(name.startswith("libQt5Widgets") for name in libraries))
        heavy = [name for name in libraries if name.startswith(("libgdal", "libproj", "libGLX_mesa", "libLLVM"))]
        self.assertEqual(heavy, [])

    def test_who_reaches_for_the_tabs_has_the_projection_module_mapped(self):
        self.tool.start()
        x, y, width, height = self.tool.main.find("page tab", "Check").place
        hands("mousemove", x + width // 2, y + height // 2)
        wait_for(lambda: "libvorn_projection.so" in self.tool.mapped_libraries(), "the module to be mapped")
        self.assertEqual(self.tool.exit(), 0)

    def test_an_edit_is_saved_and_found_again(self):
        self.tool.start()
        system = self.tool.items()[4]
        self.edit(system, "6378137.25")
        self.tool.save()
        self.assertTrue(os.path.exists(os.path.join(self.tool.data, CATALOGUE)))
        self.assertEqual(self.tool.exit(), 0)

        self.tool.start()
        self.tool.item(system).click()
        wait_for(lambda: self.semi_major_axis().text == "6378137.25", "the edit to be shown again")
        self.assertFalse(self.tool.save_enabled)
        self.assertEqual(self.tool.exit(), 0)

    def test_leaving_with_unsaved_changes(self):
        self.tool.start()
        first, second = self.tool.items()[2:4]
        self.edit(first, "6378138")
        self.tool.button("Exit").click()
        self.tool.dialog("Warning")
        for key in ("Return", "space", "Escape", "alt+F4"):  # none of them answers
            press(key)
        self.tool.answer("Warning", "Data is changed!", "Yes")
        self.tool.answer("information", "Do you want to exit program?", "No")
        wait_for(lambda: not self.tool.save_enabled, "the changes to be saved")
        self.edit(second, "6378139")
        self.tool.button("Exit").click()
        self.tool.dialog("Warning")
        press("n")
        self.assertEqual(self.tool.ended(), 0)

        self.tool.start()
        wait_for(lambda: self.semi_major_axis().text == "6378138", "the saved edit")
        self.tool.item(second).click()
        wait_for(lambda: float(self.semi_major_axis().text) == 6378137, "the figure as it was before the lost edit")

    def test_one_instance_whatever_became_of_the_last(self):
        self.tool.start()
        second = self.tool.launch()
        wait_for(lambda: second.poll() is not None, "the second instance to end")
        self.assertEqual(second.returncode, 0)
        self.assertEqual(visible_windows(second.pid), [])
        self.assertEqual(self.tool.titles(), [tool.TITLE])

        system = self.tool.items()[2]
        self.edit(system, "6378140")
        self.tool.save()
        self.edit(system, "6378141")
        self.tool.kill()
        self.tool.start()
        wait_for(lambda: self.semi_major_axis().text == "6378140", "what was saved before the crash")
        self.assertEqual(self.tool.exit(), 0)

    def test_a_damaged_catalogue_costs_one_save_at_most(self):
        self.tool.start()
        system = self.tool.items()[2]
        for figure in ("6378150", "6378151"):
            self.edit(system, figure)
            self.tool.save()
        self.assertEqual(self.tool.exit(), 0)
        path = os.path.join(self.tool.data, CATALOGUE)
        with open(path, "r+b") as catalogue:
            catalogue.truncate(os.path.getsize(path) // 2)
        with open(path, "rb") as catalogue:
            damaged = catalogue.read()

        self.tool.start()
        wait_for(lambda: self.semi_major_axis().text == "6378150", "the save before the last")
        self.edit(system, "6378152")
        self.tool.save()
        self.assertEqual(self.tool.exit(), 0)
        set_aside = [name for name in os.listdir(self.tool.data) if name.startswith(CATALOGUE + ".damaged-")]
        self.assertEqual(len(set_aside), 1)
        with open(os.path.join(self.tool.data, set_aside[0]), "rb") as kept:
            self.assertEqual(kept.read(), damaged)


if __name__ == "__main__":
    tool.run()

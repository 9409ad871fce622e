"""The user's own ellipsoids, through the dialogs that a restart must not forget."""

import os

import tool
from desktop import press, wait_for

TITLE = "Edit Ellipsoid"
SHIPPED = "GRS 1980"


class Ellipsoids(tool.ToolTest):
    def open_list(self):
        self.tool.command(self.tool.item(tool.ROOT), TITLE)
        return self.tool.dialog(TITLE, "Add")

    def fill_entry(self, name, a, f):
        """Fills the dialog that adds (or, without a name, edits) an ellipsoid and presses OK."""
        entry = self.tool.dialog(TITLE, "OK")
        if name is not None:
            entry.find("combo box").find("text").fill(name)
        entry.find("text", "ellipsoid a(m)").fill(a)
        entry.find("text", "ellipsoid f").fill(f)
        entry.find("push button", "OK").click()

    def shown(self, dialog):
        return (dialog.find("combo box").name, dialog.find("text", "ellipsoid a(m)").text,
                dialog.find("text", "ellipsoid f").text)

    def test_add_edit_cover_delete_and_find_again(self):
        self.tool.start()
        listed = self.open_list()
        listed.find("combo box").choose(SHIPPED)
        self.assertFalse(listed.find("push button", "Edit").enabled)
        self.assertFalse(listed.find("push button", "Delete").enabled)

        listed.find("push button", "Add").click()
        self.fill_entry("Plant 1 & 2", "6378137.000", "298.257223563")
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed) == ("Plant 1 & 2", "6378137.000", "298.257223563"), "the new ellipsoid")
        self.assertTrue(listed.find("push button", "Edit").enabled)
        path = os.path.join(self.tool.data, "Ellipsoid_custom.xml")
        self.assertTrue(os.path.exists(path), "an addition is on disk at once")

        listed.find("push button", "Edit").click()
        self.fill_entry(None, "6378200", "300")
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed) == ("Plant 1 & 2", "6378200", "300"), "the edited ellipsoid")

        # A shipped name is refused, one's own is covered only on demand; what was typed stays.
        listed.find("push button", "Add").click()
        self.fill_entry(SHIPPED, "6378300", "301")
        self.tool.answer("Warning", "new add ellipsoid name can't same as system!", "OK")
        self.fill_entry("Plant 1 & 2", "6378300", "0")
        self.tool.answer("information", "please input correct param!", "OK")
        self.fill_entry("Plant 1 & 2", "6378300", "301")
        self.tool.answer("Warning", "has same name as system, whether cover?", "No")
        self.tool.dialog(TITLE, "OK").find("push button", "OK").click()
        self.tool.answer("Warning", "has same name as system, whether cover?", "Yes")
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed) == ("Plant 1 & 2", "6378300", "301"), "the covered ellipsoid")

        listed.find("push button", "Add").click()
        self.fill_entry("Doomed", "6370000", "299")
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed)[0] == "Doomed", "the second ellipsoid")
        listed.find("push button", "Delete").click()
        self.tool.answer("Warning", "Are you sure you want to delete ellipsoid [Doomed]?", "Yes")
        wait_for(lambda: self.shown(listed)[0] != "Doomed", "the ellipsoid to go")
        press("Escape")
        self.tool.gone(TITLE)
        self.assertFalse(self.tool.save_enabled)
        self.tool.kill()

        self.tool.start()
        listed = self.open_list()
        names = listed.find("combo box").entries()
        self.assertIn("Plant 1 & 2", names)
        self.assertNotIn("Doomed", names)
        self.assertIn(SHIPPED, names)
        listed.find("combo box").choose("Plant 1 & 2")
        self.assertEqual(self.shown(listed), ("Plant 1 & 2", "6378300", "301"))
        listed.find("combo box").choose(SHIPPED)
        wait_for(lambda: float(self.shown(listed)[1]) == 6378137, "the shipped figures")


if __name__ == "__main__":
    tool.run()

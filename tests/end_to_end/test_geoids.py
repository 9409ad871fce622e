"""The user's own geoid models: their entries and the copies of their files."""

import os

import tool
from desktop import press, wait_for

TITLE = "New Geoid"


class Geoids(tool.ToolTest):
    def setUp(self):
        super().setUp()
        self.models = os.path.join(self.folder, "models of mine")
        os.makedirs(self.models)

    def write_model(self, folder, name, content):
        path = os.path.join(folder, name)
        with open(path, "wb") as model:
            model.write(content)
        return path

    def read(self, name):
        with open(os.path.join(self.tool.geoid_data, name), "rb") as model:
            return model.read()

    def open_list(self):
        self.tool.command(self.tool.item(tool.ROOT), "AddGeoid")
        return self.tool.dialog(TITLE, "Add")

    def browse(self, path):
        self.tool.dialog(TITLE, "OK").find("push button", "Browser").click()
        chooser = self.tool.dialog("selete file")
        chooser.find("text", "File name:").fill(path)
        press("Return")
        self.tool.gone("selete file")

    def add(self, listed, name, path, ellipsoid):
        listed.find("push button", "Add").click()
        entry = self.tool.dialog(TITLE, "OK")
        entry.find("combo box", nth=0).find("text").fill(name)
        entry.all("combo box")[1].choose(ellipsoid)
        self.browse(path)
        self.tool.dialog(TITLE, "OK").find("push button", "OK").click()

    def shown(self, dialog):
        name, ellipsoid = (box.name for box in dialog.all("combo box"))
        return name, dialog.find("text", "File Path").text, ellipsoid

    def test_add_edit_cover_delete_and_find_again(self):
        content = bytes(range(256)) * 5000
        first = self.write_model(self.models, "Valley.ggf", content)
        second = self.write_model(self.models, "Ridge 2.vgf", b"ridge")
        namesake = self.write_model(self.folder, "Valley.ggf", b"another model of the same name")

        self.tool.start()
        listed = self.open_list()
        self.add(listed, "Valley 2024", first, "GRS 1980")
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed) == ("Valley 2024", "Valley.ggf", "GRS 1980"), "the new entry")
        self.assertEqual(self.read("Valley.ggf"), content)

        # A file of that name is there already: it stays.
        self.add(listed, "Valley 2025", namesake, "WGS 84")
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed) == ("Valley 2025", "Valley.ggf", "WGS 84"), "the second entry")
        self.assertEqual(self.read("Valley.ggf"), content)

        listed.find("push button", "Edit").click()
        self.browse(second)
        self.tool.dialog(TITLE, "OK").find("push button", "OK").click()
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed) == ("Valley 2025", "Ridge 2.vgf", "WGS 84"), "the edited entry")
        self.assertEqual(self.read("Ridge 2.vgf"), b"ridge")

        self.add(listed, "Valley 2024", second, "WGS 84")
        self.tool.answer("Warning", "has same file name, whether or not covered?", "No")
        self.tool.dialog(TITLE, "OK").find("push button", "OK").click()
        self.tool.answer("Warning", "has same file name, whether or not covered?", "Yes")
        self.tool.gone(TITLE, "OK")
        wait_for(lambda: self.shown(listed) == ("Valley 2024", "Ridge 2.vgf", "WGS 84"), "the covered entry")

        listed.find("push button", "Delete").click()
        self.tool.answer("Warning", "Are you sure you want to delete geoid [Valley 2024]?", "Yes")
        wait_for(lambda: self.shown(listed)[0] == "Valley 2025", "the entry to go")
        self.assertEqual(self.read("Ridge 2.vgf"), b"ridge", "a model file outlives its entries")

        # Nothing chosen: refused, and the dialog stays.
        listed.find("push button", "Add").click()
        self.tool.dialog(TITLE, "OK").find("push button", "OK").click()
        self.tool.answer("information", "please input correct param!", "OK")
        self.tool.dialog(TITLE, "OK").find("push button", "Cancel").click()
        self.tool.gone(TITLE, "OK")
        press("Escape")
        self.tool.gone(TITLE)
        self.tool.kill()

        self.tool.start()
        listed = self.open_list()
        self.assertEqual(listed.all("combo box")[0].entries(), ["Valley 2025"])
        self.assertEqual(self.shown(listed), ("Valley 2025", "Ridge 2.vgf", "WGS 84"))


if __name__ == "__main__":
    tool.run()

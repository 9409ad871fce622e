"""The tree's commands by menu and button: what is seen, what is unsaved, and what a restart shows."""

import tool
from desktop import press, wait_for

ROOT_MENU = ["AddSysGroup", "Edit Ellipsoid", "AddGeoid"]
GROUP_MENU = ["ImportCoordSys", "AddCoordSys", "EditSysGroup", "DelSysGroup"]
SYSTEM_MENU = ["EditSys", "DelSys"]


class Commands(tool.ToolTest):
    def add_group(self, name):
        self.tool.command(self.tool.item(tool.ROOT), "AddSysGroup")
        self.tool.input_name("AddSysGroup", name)
        self.tool.gone("AddSysGroup")
        wait_for(lambda: self.tool.item(name).selected, f"the new group {name!r} to be current")

    def add_system(self, group, name):
        self.tool.command(self.tool.item(group), "AddCoordSys")
        self.tool.input_name("AddCoordSys", name)
        self.tool.gone("AddCoordSys")
        wait_for(lambda: self.tool.item(name).selected, f"the new system {name!r} to be current")

    def below(self, group):
        """The names that the unfolded tree shows from a group on."""
        return self.tool.items()[self.tool.items().index(group):]

    def test_each_kind_of_item_has_its_menu(self):
        self.tool.start()
        first_group, first_system = self.tool.items()[1:3]
        rows = [(tool.ROOT, ROOT_MENU), (first_group, GROUP_MENU), (first_system, SYSTEM_MENU)]
        for name, entries in rows:
            with self.subTest(name):
                menu = self.tool.menu_at(self.tool.item(name))
                self.assertEqual(menu.names("menu item"), entries)
                press("Escape")
                wait_for(lambda: not menu.showing, "the menu to close")
                # It is the current item's by the keyboard.
                for keys in ("Menu", "shift+F10"):
                    press(keys)
                    menu = self.desktop.menu()
                    self.assertEqual(menu.names("menu item"), entries)
                    press("Escape")
                    wait_for(lambda: not menu.showing, "the menu to close")
        # Empty space: what lies below the root once that is folded.
        self.tool.item(tool.ROOT).double_click()
        wait_for(lambda: self.tool.items() == [tool.ROOT], "the root to be folded")
        menu = self.tool.menu_at(self.tool.tree)
        self.assertEqual(menu.names("menu item"), ROOT_MENU)
        press("Escape")

    def test_a_catalogue_kept_by_hand(self):
        self.tool.start()
        shipped = self.tool.items()

        self.add_group("Site & works 100%")
        self.assertFalse(self.tool.save_enabled, "a new group alone is no change")
        self.assertEqual(self.tool.items()[1], "Site & works 100%")

        self.add_system("Site & works 100%", "North yard <1>")
        self.assertTrue(self.tool.save_enabled)
        self.add_system("Site & works 100%", "South %s \"yard\"")
        self.assertEqual(self.tool.items()[:4],
                         [tool.ROOT, "Site & works 100%", "South %s \"yard\"", "North yard <1>"])

        # The Add button while a system is current adds beside it.
        self.tool.item("North yard <1>").click()
        self.tool.button("Add").click()
        self.tool.input_name("AddCoordSys", "East yard")
        wait_for(lambda: self.tool.item("East yard").selected, "the new system")
        self.assertEqual(self.tool.items()[1:3], ["Site & works 100%", "East yard"])

        self.tool.command(self.tool.item("East yard"), "EditSys")
        self.tool.input_name("EditSys", "West yard")
        self.tool.item("West yard")
        self.tool.command(self.tool.item("Site & works 100%"), "EditSysGroup")
        self.tool.input_name("EditSysGroup", "Harbour")
        self.tool.item("Harbour")
        self.assertEqual(self.tool.items()[1:5], ["Harbour", "West yard", "South %s \"yard\"", "North yard <1>"])

        self.tool.command(self.tool.item("North yard <1>"), "DelSys")
        self.tool.answer("Warning", "are you sure delete coord system North yard <1> ?", "No")
        self.assertIn("North yard <1>", self.tool.items())
        self.tool.command(self.tool.item("North yard <1>"), "DelSys")
        self.tool.answer("Warning", "are you sure delete coord system North yard <1> ?", "Yes")
        wait_for(lambda: "North yard <1>" not in self.tool.items(), "the deleted system to go")

        doomed = shipped[1]
        self.tool.command(self.tool.item(doomed), "DelSysGroup")
        self.tool.answer("Warning", f"are you sure delete coord system group {doomed} ?", "Yes")
        wait_for(lambda: doomed not in self.tool.items(), "the deleted group to go")

        self.tool.save()
        self.assertEqual(self.tool.exit(), 0)

        self.tool.start()
        self.assertEqual(self.tool.items()[:4], [tool.ROOT, "Harbour", "West yard", "South %s \"yard\""])
        self.assertNotIn(doomed, self.tool.items())
        wait_for(lambda: self.tool.item("West yard").selected, "the first system to be selected")

    def test_refused_names_leave_the_dialog_open(self):
        self.tool.start()
        group, system = self.tool.items()[1:3]
        rows = [
            (tool.ROOT, "AddSysGroup", "AddSysGroup", "", "please input valid content!"),
            (tool.ROOT, "AddSysGroup", "AddSysGroup", group, "has same as coord group name!"),
            (group, "AddCoordSys", "AddCoordSys", system, "has same as coord system name!"),
            (group, "AddCoordSys", "AddCoordSys", "a,b", "please input valid content!"),
            (system, "EditSys", "EditSys", system, "has same as coord system name!"),
        ]
        before = self.tool.items()
        for item, entry, title, name, message in rows:
            with self.subTest(entry=entry, name=name):
                self.tool.command(self.tool.item(item), entry)
                self.tool.input_name(title, name)
                self.tool.answer("information", message, "OK")
                dialog = self.tool.dialog(title)
                self.assertEqual(dialog.find("text").text, name)
                dialog.find("push button", "Cancel").click()
                self.tool.gone(title)
        self.assertEqual(self.tool.items(), before)
        self.assertFalse(self.tool.save_enabled)


if __name__ == "__main__":
    tool.run()

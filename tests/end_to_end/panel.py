"""What a surveyor does with the parameter panel, for the tests of it."""

import tool
from desktop import press, type_text, wait_for


class PanelTest(tool.ToolTest):
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

    def turn_to(self, widget):
        for _ in range(20):
            if widget.focused:
                return
            press("Tab")
        wait_for(lambda: widget.focused, "the keyboard to come to " + widget.name)

    def name_file(self, title, path):
        """Types a path into the dialog for files, whose field the keyboard is in."""
        field = self.tool.dialog(title).find("text", "File name:")
        press("ctrl+a")
        type_text(path)
        wait_for(lambda: field.text == path, "the path to be typed")
        press("Return")

#!/usr/bin/env python3
"""Starts the demo in its real window on a private desktop and reads it the way a screen reader does.

Usage: accessibility_test.py PATH-OF-THE-DEMO [TEST...]

Every screen is judged node by node (told.faults), so that a further one takes a class with its screen's key and what its
reader must hear. Keys come from the display's keyboard, presses through the accessibility bus.
"""

import os
import signal
import socket
import subprocess
import sys
import unittest

from private_desktop import PrivateDesktop, wait_for

DEMO = ""
DESKTOP = None
TOLD = None  # the module `told`; it looks for its bus when it is imported, so that it comes after the desktop


class ScreenTest(unittest.TestCase):
    """The program with one screen on view."""

    arguments = []

    def setUp(self):
        self.demo = DESKTOP.start([DEMO, *self.arguments])
        self.addCleanup(self.end_demo)
        wait_for(self.window, "the window")
        DESKTOP.give_window_the_keyboard()

    def end_demo(self):
        if self.demo in DESKTOP.children:
            self.assertEqual(DESKTOP.stop(self.demo), 0)

    def window(self):
        """The window as it is told now; nothing while there is none."""
        for application in TOLD.applications():
            told = TOLD.read(application)
            if told and told.children and application.get_process_id() == self.demo.pid:
                return told.children[0]
        return None

    def window_with(self, role, name=None):
        """The window as soon as it tells of such a node."""
        def look():
            window = self.window()
            return window if window and window.find(role, name) else None
        return wait_for(look, f"{role} '{name or ''}'")

    def node(self, role, name=None):
        return self.window_with(role, name).find(role, name)[0]

    def settle(self, is_settled, what):
        """The window as soon as that holds of it."""
        def look():
            window = self.window()
            return window if window and is_settled(window) else None
        return wait_for(look, what)

    def focused(self, role):
        """The one node of that role that has the focus, as soon as there is one."""
        def has_focus(window):
            return [node for node in window.find(role) if "focused" in node.states]
        return has_focus(self.settle(has_focus, f"the focus on a {role}"))[0]

    def assert_sound(self, window):
        """Nothing is wrong with any node, and one thing at most has the keyboard."""
        told = "\n".join(window.lines())
        self.assertEqual(TOLD.faults(window), [], told)

    def assert_tells(self, window, *expected):
        """That there is a node of each role and name."""
        missing = [pair for pair in expected if not window.find(*pair)]
        self.assertEqual(missing, [], "\n".join(window.lines()))

    def assert_walks(self, list_name, first, second):
        """Down and Up move the focus between the first rows of a list, which tell their name, detail and place."""
        self.node("list", list_name).children[0].do("SetFocus")
        DESKTOP.press("Home", "Down")
        for key, (name, description) in (("Up", second), ("Down", first)):
            row = self.focused_row(description)
            self.assertEqual((row.name, row.role), (name, "list item"))
            self.assertIn("selected", row.states)
            DESKTOP.press(key)
        self.focused_row(second[1])

    def focused_row(self, description):
        def rows(window):
            return [row for row in window.find("list item")
                    if {"focused", "selected"} <= row.states and description in row.description]
        return rows(self.settle(rows, f"the focus on the row '{description}'"))[0]


class WindowTest(ScreenTest):
    """What stands around every screen, and one that is to come."""

    arguments = ["--screen", "search"]

    def test_an_upcoming_screen_is_told(self):
        window = self.window_with("heading", "Search")
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "NAVIGATION"), ("heading", "TOOLS"), ("heading", "APPS"),
                          ("push button", "Search files..."), ("menu item", "Tools"))
        selected = [row.name for row in window.find("list item") if "selected" in row.states]
        self.assertEqual(selected, ["Search"])
        self.assertTrue([label for label in window.find("label") if label.name.endswith(" free")])
        self.assertNotIn("enabled", window.find("push button", "Settings")[0].states)
        self.assertIn("enabled", window.find("push button", "Activity History")[0].states)

    def test_a_menu_is_told_and_its_line_is_pressed(self):
        self.node("menu item", "File").do("Press")
        window = self.window_with("popup menu", "File")
        self.assert_sound(window)
        self.assertIn("expanded", window.find("menu item", "File")[0].states)
        DESKTOP.press("Escape")
        self.settle(lambda told: not told.find("popup menu"), "the menu closed")
        self.node("menu item", "Tools").do("Press")
        menu = self.node("popup menu", "Tools")
        menu.find("menu item", "Scan for Duplicates")[0].do("Press")
        self.window_with("heading", "Duplicate Finder")

    def test_a_row_of_the_sidebar_is_pressed(self):
        self.node("list item", "Duplicates").do("Press")
        window = self.window_with("heading", "Duplicate Finder")
        self.assertEqual([row.name for row in window.find("list item") if "selected" in row.states], ["Duplicates"])


class DiskAnalyzerTest(ScreenTest):
    """The Disk Analyzer."""

    arguments = ["--screen", "diskAnalyzer", "--refresh"]
    LIST = "CONTENTS (8 items)"

    def test_the_screen_is_told(self):
        window = self.window_with("list", self.LIST)
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "Disk Analyzer"), ("heading", "VISUAL MAP"), ("heading", self.LIST),
                          ("push button", "Home"),
                          ("image", "Map of what takes the most space"))
        self.assertNotIn("enabled", window.find("push button", "Go back")[0].states)

    def test_the_rows_are_walked_and_a_menu_is_told(self):
        self.window_with("list", self.LIST)
        self.assert_walks(self.LIST, ("Library", "1 of 8"), ("Downloads", "2 of 8"))
        DESKTOP.press("Menu")
        window = self.window_with("popup menu")
        self.assert_sound(window)
        self.assert_tells(window, ("menu item", "Reveal in Finder"), ("menu item", "Move to Trash"))
        DESKTOP.press("Escape")
        self.settle(lambda told: not told.find("popup menu"), "the menu closed")


class DuplicateFinderAtRestTest(ScreenTest):
    """The Duplicate Finder before its first scan."""

    arguments = ["--screen", "duplicates"]

    def test_what_is_to_be_done_is_told(self):
        window = self.window_with("label", "Configure scan directories above and click Start Scan")
        self.assert_sound(window)

    def test_the_scope_is_walked(self):
        window = self.window_with("list", "Scan Directories")
        folder, = window.find("list", "Scan Directories")[0].find("list item")
        self.assertEqual((folder.name, folder.description), ("~", "Click to change this folder, 1 of 1"))
        lock = "Built-in default — always excluded"
        self.assert_walks("Ignore Directories", ("~/Library", f"{lock}, 1 of 8"), ("~/.Trash", f"{lock}, 2 of 8"))


class DuplicateFinderTest(ScreenTest):
    """The Duplicate Finder, and the sheet with what it has done."""

    arguments = ["--screen", "duplicates", "--refresh"]

    def test_the_screen_is_told(self):
        window = self.window_with("label", "7 files marked for deletion (165 MB)")
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "Duplicate Finder"), ("label", "Groups: 6"), ("label", "Files: 13"),
                          ("label", "Wasted: 165 MB"), ("label", "To delete: 7 files (165 MB)"),
                          ("push button", "Move to Trash"), ("list", "Groups"), ("panel", "Types of files"))
        self.assertIn("checked", window.find("radio button", "All")[0].states)
        kept = [row for row in window.find("list item") if row.description.startswith("KEEP")]
        self.assertTrue(kept and all("checked" in row.states for row in kept))
        going = [row for row in window.find("list item") if row.description.startswith("DELETE")]
        self.assertTrue(going and not any("checked" in row.states for row in going))

    def test_the_rows_are_walked(self):
        self.window_with("list", "Groups")
        name = "holiday-photos.zip"
        self.assert_walks("Groups", (name, "48 MB wasted, 1 of 19"), (name, ", 2 of 19"))

    def test_a_chip_is_chosen_by_a_press(self):
        self.node("radio button", "Media").do("Press")
        window = self.settle(lambda told: [chip for chip in told.find("radio button", "Media")
                                           if "checked" in chip.states], "the chip chosen")
        self.assert_sound(window)

    def test_the_scope_is_told(self):
        window = self.window_with("heading", "Scan Directories")
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "Ignore Directories"), ("list item", "~/Library"))
        self.assertIn("collapsed", window.find("combo box", "Min file size:")[0].states)
        window.find("combo box", "Min file size:")[0].do("SetFocus")
        DESKTOP.press("space", "Up")
        window = self.settle(lambda told: [choice for choice in told.find("list item", "10 KB")
                                           if "selected" in choice.states], "the choices open")
        self.assert_sound(window)
        self.assertEqual([choice.name for choice in window.find("list", "Min file size:")[0].children
                          if "checked" in choice.states], ["100 KB"])
        self.assertEqual(window.find("combo box", "Min file size:")[0].description, "10 KB")
        DESKTOP.press("Escape")
        window = self.settle(lambda told: not told.find("list item", "10 KB"), "the choices closed")
        window.find("push button", "Hide Settings")[0].do("Press")
        self.settle(lambda told: not told.find("heading", "Scan Directories"), "the scope hidden")
        self.assert_sound(self.window())

    def test_the_question_and_the_history_are_told(self):
        self.node("push button", "Move to Trash").do("Press")
        window = self.window_with("alert")
        self.assert_sound(window)
        question = window.find("alert")[0]
        self.assertEqual(question.name, "Confirm Deletion")
        question.find("push button", "Move to Trash")[0].do("Press")
        self.settle(lambda told: not told.find("alert"), "the question gone")
        self.node("push button", "Activity History").do("Press")
        window = self.window_with("dialog", "Activity History")
        self.assert_sound(window)
        row = window.find("dialog")[0].find("list")[0].children[0]
        self.assertIn("collapsed", row.states)
        row.do("Press")
        self.settle(lambda told: "expanded" in told.find("dialog")[0].find("list")[0].children[0].states,
                    "the entry expanded")
        self.assert_sound(self.window())


class SmartCleanupTest(ScreenTest):
    """Smart Cleanup: its categories, their previews, the review and the question."""

    arguments = ["--screen", "cleanup"]
    LIST = "Categories"
    CHECK_STATES = {"checkable", "checked"}

    def row(self, window, name):
        return window.find("list item", name)[0]

    def with_row(self, name):
        """The window as soon as the list has that row."""
        return self.window_with("list item", name)

    def test_the_screen_is_told(self):
        window = self.window_with("list", self.LIST)
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "Smart Cleanup"), ("label", "Categories: 7"),
                          ("label", "Total Reclaimable: 524 MB"), ("label", "Selected: 0 B"), ("label", "SAFE TO DELETE"),
                          ("label", "REVIEW REQUIRED"), ("push button", "Select All"), ("push button", "Select None"),
                          ("push button", "Rescan"))
        logs = self.row(window, "Log Files")
        self.assertEqual(logs.description, "SAFE TO DELETE, 3.5 MB, 3 files, System & application logs, 6 of 7")
        self.assertIn("collapsed", logs.states)
        self.assertIn("enabled", logs.find("check box", "Log Files")[0].states)
        locked = self.row(window, "Trash")
        self.assertNotIn("enabled", locked.find("check box", "Trash")[0].states)
        self.assertNotIn("checkable", locked.states)

    def test_the_rows_are_walked(self):
        self.window_with("list", self.LIST)
        self.assert_walks(self.LIST, ("Old Downloads", "1 of 7"), ("Browser Caches", "2 of 7"))

    def test_a_preview_and_its_picks_are_told(self):
        self.with_row("Log Files")
        self.node("list item", "Log Files").do("Press")
        window = self.with_row("sync.log")
        self.assert_sound(window)
        self.assertIn("expanded", self.row(window, "Log Files").states)
        file = self.row(window, "sync.log")
        self.assertEqual(file.description, "3.0 MB, ~/Library/Logs, 9 of 13")
        self.assertNotIn("expandable", file.states)
        guide = self.row(window, "Select files to delete (largest first)")
        self.assertEqual(guide.description, "Right-click any file for more actions, 0 selected · 0 B, 8 of 13")
        self.assertEqual(guide.states & (self.CHECK_STATES | {"expandable"}), set())
        file.do("Press")
        window = self.window_with("label", "1 categories selected · 3.0 MB to clean")
        self.assert_sound(window)
        self.assert_tells(window, ("label", "Selected: 3.0 MB"), ("push button", "Clean 3.0 MB"))
        for name in ("Log Files", "sync.log"):
            self.assertIn("checked", self.row(window, name).states, name)
        DESKTOP.press("Menu")
        window = self.window_with("popup menu")
        self.assert_sound(window)
        self.assert_tells(window, ("menu item", "Copy Path"), ("menu item", "Exclude from Cleanup"))

    def test_a_lock_is_lifted_and_the_question_is_told(self):
        self.with_row("Empty Folders")
        self.node("list item", "Empty Folders").do("Press")
        self.node("check box", "I've reviewed these files").do("Press")
        window = self.settle(lambda told: "enabled" in told.find("check box", "Empty Folders")[0].states, "the lock lifted")
        self.assert_sound(window)
        window.find("check box", "Empty Folders")[0].do("Press")
        window = self.window_with("push button", "Clean 4 items")
        self.assertIn("checked", self.row(window, "Empty Folders").states)
        window.find("push button", "Clean 4 items")[0].do("Press")
        window = self.window_with("alert", "Confirm Cleanup")
        self.assert_sound(window)
        self.assertIn("Empty Folders", window.find("alert")[0].description)
        DESKTOP.press("Escape")
        self.settle(lambda told: not told.find("alert"), "the question gone")


class AppManagerTest(ScreenTest):
    """The App Manager: its lists, their panes, the sheet and the questions."""

    arguments = ["--screen", "appManager"]
    LIST = "Installed"
    GHOSTS = "Ghost Files"

    def row(self, window, name):
        return window.find("list item", name)[0]

    def open_ghosts(self):
        self.node("page tab", self.GHOSTS).do("Press")
        return self.window_with("list item", "Grindstone")

    def test_the_screen_is_told(self):
        window = self.window_with("list item", "Browser")
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "App Manager"), ("label", "Installed: 12"), ("page tab", "Installed"),
                          ("page tab", "Ghost Files"), ("push button", "Export"), ("push button", "Refresh"),
                          ("label", "Select an app"), ("combo box", "Sort by"), ("list", self.LIST))
        browser = self.row(window, "Browser")
        self.assertEqual(browser.description, "121.0, 96 MB, Today, 1 of 12")
        self.assertNotIn("checked", browser.states)

    def test_the_rows_are_walked(self):
        self.window_with("list item", "Browser")
        self.assert_walks(self.LIST, ("Browser", "1 of 12"), ("Sketchpad", "2 of 12"))

    def test_details_and_the_sheet_are_told(self):
        self.window_with("list item", "Sketchpad")
        self.node("list item", "Sketchpad").do("Press")
        window = self.window_with("push button", "Uninstall Sketchpad")
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "Sketchpad"), ("heading", "SIZE BREAKDOWN"), ("label", "Application: 44 MB"),
                          ("heading", "LOCATION"), ("link", "Show in Finder"))
        window.find("push button", "Uninstall Sketchpad")[0].do("Press")
        window = self.window_with("alert", "Uninstall Sketchpad?")
        self.assert_sound(window)
        sheet = window.find("alert")[0]
        self.assertEqual(sheet.description, "The app and selected associated files will be moved to Trash.")
        files = sheet.find("list", "Associated Files")[0].children
        self.assertEqual([file.name for file in files], ["com.example.sketchpad.plist", "Sketchpad"])
        self.assertTrue(all("checked" in file.states for file in files))
        DESKTOP.press("Escape")
        self.settle(lambda told: not told.find("alert"), "the sheet gone")

    def test_several_are_asked_about(self):
        window = self.window_with("list item", "Sketchpad")
        self.row(window, "Sketchpad").find("check box")[0].do("Press")
        window = self.window_with("label", "1 apps selected")
        self.assert_sound(window)
        self.assertIn("checked", self.row(window, "Sketchpad").states)
        self.assert_tells(window, ("push button", "Clear selection"))

    def test_ghosts_are_told(self):
        window = self.open_ghosts()
        self.assert_sound(window)
        ghost = self.row(window, "Sketchpad")
        self.assertTrue(ghost.description.startswith("LOOKS INSTALLED, 2 files, "), ghost.description)
        self.assertIn("checked", ghost.states)
        ghost.do("Press")
        window = self.window_with("heading", "SIZE BY CATEGORY")
        self.assert_sound(window)
        self.assert_tells(window, ("heading", "Sketchpad"), ("label", "Files: 2"), ("label", "Categories: 2"),
                          ("link", "Select None"), ("label", "Selected files will be moved to Trash"))


class BrokenBusTest(unittest.TestCase):
    """The window matters more than what listens to it."""

    def setUp(self):
        self.desktop = PrivateDesktop()
        self.addCleanup(self.desktop.end)

    def assert_works(self, demo):
        """It has a window and ends when it is asked to, which takes its event loop."""
        self.desktop.give_window_the_keyboard()
        self.assertIsNone(demo.poll())
        self.assertEqual(self.desktop.stop(demo), 0)

    def test_a_launcher_that_never_answers_stops_nothing(self):
        launcher = self.desktop.children[-1]
        os.kill(launcher.pid, signal.SIGSTOP)
        try:
            self.assert_works(self.desktop.start([DEMO]))
        finally:
            os.kill(launcher.pid, signal.SIGCONT)

    def test_a_bus_that_takes_connections_and_never_speaks_stops_nothing(self):
        bus = self.desktop.process("accessibility.conf")
        os.kill(bus, signal.SIGSTOP)
        try:
            self.assert_works(self.desktop.start([DEMO], stderr=subprocess.DEVNULL))
        finally:
            os.kill(bus, signal.SIGCONT)

    def test_a_bus_told_by_the_environment_that_never_speaks_stops_nothing(self):
        path = os.path.join(self.desktop.folder, "silent")
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(path)
            silent.listen()
            self.desktop.environment["AT_SPI_BUS_ADDRESS"] = "unix:path=" + path
            self.assert_works(self.desktop.start([DEMO], stderr=subprocess.DEVNULL))

    def test_a_registry_that_never_answers_stops_nothing(self):
        first = self.desktop.start([DEMO], stderr=subprocess.DEVNULL)  # nothing else here brings the registry up
        registry = self.desktop.process("at-spi2-registryd")
        self.desktop.give_window_the_keyboard()
        self.assertEqual(self.desktop.stop(first), 0)
        os.kill(registry, signal.SIGSTOP)
        try:
            self.assert_works(self.desktop.start([DEMO], stderr=subprocess.DEVNULL))
        finally:
            os.kill(registry, signal.SIGCONT)

    def test_a_bus_that_ends_takes_nothing_with_it(self):
        demo = self.desktop.start([DEMO], stderr=subprocess.DEVNULL)
        self.desktop.give_window_the_keyboard()
        os.kill(self.desktop.process("accessibility.conf"), signal.SIGKILL)  # the toolkit is about to ask it, or just asking
        self.desktop.press("F10", "Escape")
        self.assert_works(demo)


def main():
    global DEMO, DESKTOP, TOLD  # pylint: disable=global-statement
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    DEMO = os.path.abspath(sys.argv[1])
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    DESKTOP = PrivateDesktop()
    try:
        os.environ.update(DESKTOP.environment)
        import told  # pylint: disable=import-outside-toplevel
        TOLD = told
        program = unittest.main(argv=sys.argv[:1] + sys.argv[2:], verbosity=2, exit=False)
    finally:
        DESKTOP.end()
    sys.exit(not program.result.wasSuccessful())


if __name__ == "__main__":
    main()

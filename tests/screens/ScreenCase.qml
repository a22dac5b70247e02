import QtQuick
import QtTest
import Quillmere.Screens

// What the tests of the screens share. They find things by what a person sees, and use them with mouse and keys. Each
// test begins with nothing noted down and fails when anything has warned by its end.
TestCase {
    id: base

    readonly property int patience: 10000 // ms; sanitizers make everything slow

    when: windowShown

    function initTestCase() {
        Program.watchWarnings();
        Program.window.requestActivate();
        tryCompare(Program.window, "active", true, patience);
        compare(Program.takeWarnings(), "");
    }

    function init() {
        clearAway();
        Program.forget();
    }

    function cleanup() {
        compare(Program.takeWarnings(), "");
    }

    function cleanupTestCase() {
        compare(Program.takeWarnings(), "");
    }

    // What a test that has failed may have left.
    function clearAway() {
        Surroundings.releaseProbes();
        Surroundings.releaseDisk();
        Surroundings.recycleAsEver();
        Program.removeTextField();
        Surroundings.setDark(true);
        for (let i = 0; i < 3 && Program.menuLines() !== ""; ++i)
            press(Qt.Key_Escape);
        restPointer();
    }

    // What an object tells of itself. By name, since only the running program knows what type the object is of.
    function told(object, property) {
        return object[property];
    }

    function sidebar() {
        return Program.named("sidebarList");
    }

    function menuBar() {
        return told(Program.window, "menuBar");
    }

    // Moves the pointer to where nothing answers it.
    function restPointer() {
        mouseMove(menuBar(), menuBar().width - 5, 5);
    }

    // The text that reads so, as soon as it is there and everything has its place.
    function find(text, under) {
        tryVerify(() => Program.textItem(text, under ?? null) !== null, patience,
                  `"${text}" is on view; there is:\n${Program.texts(under ?? null)}`);
        Program.settle();
        return Program.textItem(text, under ?? null);
    }

    function tryGone(text, under) {
        tryVerify(() => Program.textItem(text, under ?? null) === null, patience, `"${text}" is gone`);
    }

    function click(text, under) {
        clickOn(find(text, under));
    }

    function clickOn(item) {
        mouseClick(item);
        Program.settle();
    }

    function press(key, modifiers) {
        keyClick(key, modifiers ?? Qt.NoModifier);
        Program.settle();
    }

    // What stands at the head of a screen.
    function headOf(title) {
        return { "Duplicates": "Duplicate Finder", "Cleanup": "Smart Cleanup" }[title] ?? title;
    }

    // Selects a screen in the sidebar.
    function open(title) {
        click(title, sidebar());
        compare(Program.selectedScreen(), title);
        tryVerify(() => Program.hasAppeared(), patience, "the screen has been seen");
        Program.settle();
    }

    // The screen on view.
    function screen() {
        return Program.itemWith("view");
    }

    function focusItem() {
        return Program.window.activeFocusItem;
    }

    // Whether the item is the one or in it.
    function isWithin(item, outer) {
        while (item && item !== outer)
            item = item.parent;
        return item === outer;
    }

    // Goes on with the Tab key until what has the keyboard fulfils the condition.
    function tabTo(what, condition) {
        for (let i = 0; i < 60; ++i) {
            press(Qt.Key_Tab);
            if (focusItem() && condition(focusItem()))
                return;
        }
        fail(`the Tab key never comes to ${what}`);
    }

    // Opens a menu of the menu bar and gives its lines.
    function openMenu(title) {
        click(title, menuBar());
        tryVerify(() => Program.menuLines() !== "", patience, `the menu ${title} is open`);
        Program.settle();
        return Program.menuLines();
    }

    function closeMenu() {
        press(Qt.Key_Escape);
        tryVerify(() => Program.menuLines() === "", patience, "no menu is open");
    }

    // A command of the menu bar.
    function choose(menu, line) {
        openMenu(menu);
        clickOn(menuLine(line));
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
    }

    // The line of an open menu that is lit; none is "".
    function lit() {
        Program.settle();
        const line = Program.itemWith("isDivider");
        verify(line, "a menu is open");
        return Program.itemWith("highlighted", line.parent, true)?.text ?? "";
    }

    // Uses the right button, or the menu key, and waits for the menu.
    function openContextMenu(how) {
        how();
        tryVerify(() => Program.menuLines() !== "", patience, "the context menu opens");
        Program.settle();
    }

    // The line of an open context menu.
    function contextLine(title) {
        return find(title, Program.itemWith("isDivider").parent);
    }

    function chooseInContext(title) {
        clickOn(contextLine(title));
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
    }

    // Runs `doing` while the move to the Trash that `begin` sets going is under way. The move lets the main loop turn, so
    // that all of it happens inside of the call of `begin`.
    function whileRecycling(begin, doing) {
        let isDone = false;
        Surroundings.duringNextRecycle(() => {
            doing();
            isDone = true;
        });
        begin();
        tryVerify(() => isDone, patience, "all was done while the file was on its way");
    }

    // The line of an open menu of the menu bar.
    function menuLine(title) {
        const line = Program.itemWith("keysText");
        verify(line, "a menu is open");
        return find(title, line.parent);
    }
}

import QtQuick
import Quillmere.Screens

// The Duplicate Finder by keyboard: the way through its controls, the rows and their menus.
DuplicatesCase {
    name: "DuplicateKeys"

    function current() {
        return nameOf(list().currentItem);
    }

    function test_keyboardWalksAndToggles_data() {
        return [
            { tag: "Space", key: Qt.Key_Space },
            { tag: "Return", key: Qt.Key_Return },
            { tag: "Enter", key: Qt.Key_Enter },
        ];
    }

    function test_keyboardWalksAndToggles(data) {
        const before = going();
        focusList();
        verify(list().currentItem.isCurrent);
        press(data.key);
        compare(going(), before); // the first row is a head
        press(Qt.Key_Down);
        compare(current(), "a/photo.JPG");
        press(data.key);
        compare(going(), ["a/photo.JPG"].concat(before));
        press(Qt.Key_Down);
        press(Qt.Key_Down);
        compare(current(), "c/photo.png");
        press(data.key);
        compare(going(), ["a/photo.JPG"].concat(before.filter(name => name !== "c/photo.png")));
        press(Qt.Key_Up);
        compare(current(), "b/photo.jpg");
        verify(list().activeFocus);
        Program.picture("duplicates-keyboard");
    }

    function test_clickBringsTheKeyboardToItsRow() {
        clickFile("a/film.mov");
        verify(list().activeFocus);
        compare(current(), "a/film.mov");
        press(Qt.Key_Down);
        compare(current(), "b/film.mov");
        press(Qt.Key_Space);
        verify(!going().includes("b/film.mov"));
    }

    function test_keyboardScrollsToTheCurrentRow() {
        Program.window.height = 800;
        focusList();
        for (let i = 1; i < list().count; ++i)
            press(Qt.Key_Down);
        compare(current(), "b/plain.zip");
        const bottom = () => list().currentItem.mapToItem(list(), 0, list().currentItem.height).y;
        tryVerify(() => bottom() <= list().height + 1, patience, "the whole row is on view");
        verify(list().contentY > 0);
    }

    function test_menuKeyOpensTheMenuAtItsRow() {
        focusList();
        press(Qt.Key_Down);
        press(Qt.Key_Down);
        openContextMenu(() => press(Qt.Key_Menu));
        const place = Program.itemWith("isDivider").mapToItem(list().currentItem, 0, 0);
        verify(place.x >= 0 && place.x < list().width && place.y > 0 && place.y < 3 * list().currentItem.height,
               `the menu stands at its row, not at ${place}`);
        press(Qt.Key_Return);
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        compare(Surroundings.calls(), `open ${path("b/photo.jpg")}`);
        tryCompare(list(), "activeFocus", true, patience);
    }

    // The buttons of a head take no focus, or the Tab key would stop twice at each group.
    function test_menuKeyOfferedOnAHeadDoesWhatItsButtonsDo() {
        focusList();
        verify(list().currentItem.isHead);
        openContextMenu(() => press(Qt.Key_Menu));
        compare(Program.menuLines(), "Newest\nOldest");
        press(Qt.Key_Down);
        press(Qt.Key_Return);
        tryVerify(() => Program.menuLines() === "", patience, "the menu closes");
        const byKey = going().join();
        click("Newest", head(groups()[0]));
        const newest = going().join();
        verify(newest !== byKey);
        click("Oldest", head(groups()[0]));
        compare(going().join(), byKey);
    }

    function test_listThatIsNotOnViewGetsNoKeys() {
        focusList();
        const view = list();
        Surroundings.holdDisk(path("a"));
        press(Qt.Key_R, Qt.ControlModifier);
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits");
        verify(!view.visible && !view.activeFocus);
        press(Qt.Key_Menu);
        compare(Program.menuLines(), "");
        Surroundings.releaseDisk();
        waitForScan();
        tryVerify(() => list().activeFocus, patience, "the list has the keys again");
    }

    function test_controlsAreReachedInReadingOrder() {
        const order = [];
        Program.named("settingsButton").forceActiveFocus();
        for (let i = 0; i < 40 && focusItem() !== Program.named("trashButton"); ++i) {
            order.push(list().activeFocus ? list() : focusItem());
            press(Qt.Key_Tab);
        }
        const position = item => order.indexOf(item);
        const way = [Program.named("settingsButton"), scanButton(), Program.itemWith("text", screen(), "Add Folder"),
                     Program.itemWith("text", screen(), "Add Exclusion"), Program.named("minSizePicker"),
                     Program.named("resetScope"), chip("all"),
                     Program.itemWith("text", screen(), "Select None"),
                     Program.itemWith("text", screen(), "Keep Oldest"), list()].map(position);
        verify(way.every((place, i) => place >= 0 && (i === 0 || place > way[i - 1])), way.join());
    }
}

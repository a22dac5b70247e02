import QtQuick
import Quillmere.Screens

// The context menus of the Duplicate Finder's rows: how they open, and the mark on the row that they are for.
DuplicatesCase {
    name: "RowMenus"

    function marked() {
        return rows().filter(row => row.isMenuTarget).map(row => row.isHead ? row.title : nameOf(row));
    }

    function currents() {
        return rows().filter(row => row.isCurrent).map(nameOf);
    }

    function test_rightButtonMarksItsRowAndChangesNoOther() {
        clickFile("a/photo.JPG");
        clickFile("a/photo.JPG");
        const before = going();
        openFileMenu("b/film.mov");
        compare(marked(), ["b/film.mov"]);
        compare(nameOf(list().currentItem), "a/photo.JPG");
        compare(going(), before);
        Program.picture("row-menu-mark");
        closeMenu();
        compare(marked(), []);
        compare(currents(), ["a/photo.JPG"]);
    }

    function test_rightButtonBringsNoCurrentRow() {
        openFileMenu("b/film.mov");
        compare(list().currentIndex, -1);
        compare(marked(), ["b/film.mov"]);
        closeMenu();
        compare(list().currentIndex, -1);
    }

    function test_headIsMarkedToo() {
        const title = groups()[1];
        openContextMenu(() => mouseClick(head(title), 60, 25, Qt.RightButton));
        compare(marked(), [title]);
        closeMenu();
        compare(marked(), []);
    }

    function test_markMovesToTheRowOfTheNextMenu() {
        openFileMenu("b/film.mov");
        closeMenu();
        openFileMenu("c/photo.png");
        compare(marked(), ["c/photo.png"]);
        closeMenu();
    }

    function test_keysOpenTheMenuOfTheCurrentRow_data() {
        return [
            { tag: "Menu", press: () => press(Qt.Key_Menu) },
            { tag: "Shift+F10", press: () => press(Qt.Key_F10, Qt.ShiftModifier) },
        ];
    }

    function test_keysOpenTheMenuOfTheCurrentRow(data) {
        focusList();
        press(Qt.Key_Down);
        const name = nameOf(list().currentItem);
        openContextMenu(data.press);
        compare(marked(), [name]);
        chooseInContext("Copy Path");
        compare(Surroundings.clipboard(), path(name));
        compare(marked(), []);
        tryVerify(() => list().currentItem.activeFocus, patience, "the row has the keys again");
    }

    function test_noRowNoMenu() {
        list().forceActiveFocus();
        list().currentIndex = -1;
        press(Qt.Key_Menu);
        press(Qt.Key_F10, Qt.ShiftModifier);
        compare(Program.menuLines(), "");
        verify(list().contentHeight < list().height);
        mouseClick(list(), 40, list().height - 5, Qt.RightButton);
        Program.settle();
        compare(Program.menuLines(), "");
    }

    function test_rowsEndBesideTheScrollHandle() {
        const row = file("a/film.mov");
        compare(row.mapToItem(screen(), row.width, 0).x, scanButton().mapToItem(screen(), scanButton().width, 0).x);
        verify(row.width < list().width);
    }

    function test_headHasAsMuchAirAboveAsBeside() {
        const one = head("film.mov");
        const title = Program.textItem("film.mov", one);
        const place = title.mapToItem(one, 0, 0);
        const capitals = title.baselineOffset - 0.73 * told(title, "font").pixelSize; // where their tops are
        verify(Math.abs(place.y + capitals - one.gap - place.x) <= 2, `${place.y + capitals - one.gap} above, ${place.x} beside`);
    }

    function test_rowsOfAGroupHaveOneRhythm() {
        const centre = name => {
            const label = Program.textItem(Program.texts(file(name)).split("\n").find(text => /film/.test(text)), file(name));
            return label.mapToItem(file(name), 0, label.height / 2).y;
        };
        compare(centre("c/film.mov"), centre("b/film.mov"));
        compare(centre("a/film.mov"), centre("b/film.mov"));
    }
}

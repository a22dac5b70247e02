pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// The grid of tiles, walked by key.
Item {
    id: stage
    width: 800
    height: 600

    // Four cells in a row.
    Component {
        id: grids
        TileGrid {
            id: grid
            width: 400
            height: 200
            cellWidth: 100
            cellHeight: 80
            model: 30
            delegate: Item {
                required property int index
                width: 100
                height: 80
                BodyText { text: `cell ${parent.index}` }
                TapHandler { onTapped: grid.take(parent.index) }
            }
        }
    }

    Component {
        id: models
        ListModel { }
    }

    ControlCase {
        name: "ControlGrid"
        stage: stage

        function test_gridIsWalkedByKey() {
            const grid = make(grids);
            press(Qt.Key_Tab);
            verify(grid.activeFocus);
            compare(grid.currentIndex, 0);
            for (const [key, cell] of [[Qt.Key_Down, 4], [Qt.Key_Right, 5], [Qt.Key_End, 29], [Qt.Key_Up, 25], [Qt.Key_Home, 0]]) {
                press(key);
                compare(grid.currentIndex, cell);
            }
            press(Qt.Key_End);
            verify(onView().includes("cell 29"));
            for (let i = 0; i < 10; ++i)
                press(Qt.Key_Left);
            compare(grid.currentIndex, 19);
        }

        // A held key comes faster than frames do.
        function test_gridShowsItsCurrentCellBeforeTheNextFrame() {
            const grid = make(grids);
            grid.walk(Qt.Key_End, Qt.NoModifier);
            compare(grid.contentY, 440);
            grid.walk(Qt.Key_Home, Qt.NoModifier);
            compare(grid.contentY, 0);
        }

        function test_gridGoesOnAtOnceWithTheWheel() {
            const grid = make(grids);
            mouseWheel(grid, 50, 50, 0, -120);
            compare(grid.contentY, RowSteps.wheelDistance(-120));
            for (let i = 0; i < 20; ++i)
                mouseWheel(grid, 50, 50, 0, -120);
            compare(grid.contentY, 440);
        }

        function test_gridsKeysAreTurnedAroundWhereOneReadsFromTheRight() {
            const grid = make(grids);
            grid.LayoutMirroring.enabled = true;
            press(Qt.Key_Tab);
            press(Qt.Key_Left);
            compare(grid.currentIndex, 1);
        }

        function test_gridTellsWhatIsAskedOfACell() {
            const grid = make(grids);
            const asked = Array.from(["cellOpened", "cellToggled", "menuRequested", "selectionExtended"], name => spy(grid, name));
            press(Qt.Key_Return); // without a current cell, and without the keyboard
            press(Qt.Key_Tab);
            press(Qt.Key_Return);
            press(Qt.Key_Enter);
            press(Qt.Key_Space);
            press(Qt.Key_F10, Qt.ShiftModifier);
            mouseClick(grid, 150, 20, Qt.RightButton);
            press(Qt.Key_Right, Qt.ShiftModifier);
            compare(Array.from(asked, one => one.count).join(), "2,1,2,1");
            compare(asked[2].signalArguments[1][0], 1);
            compare(asked[3].signalArguments[0][1], 1);
            mouseClick(grid, 250, 20);
            compare(grid.currentIndex, 2);
        }

        function cells(count) {
            const model = createTemporaryObject(models, stage);
            for (let i = 0; i < count; ++i)
                model.append({ number: i });
            return model;
        }

        // All of them go, and others come.
        function change(grid) {
            grid.goToTop();
            grid.model.clear();
            for (let i = 0; i < 12; ++i)
                grid.model.append({ number: i });
            tryCompare(grid, "count", 12, patience);
            Program.settle();
        }

        // The grid has the keyboard by a click, no current cell, and is some way down; its first row on view is cut.
        function leftByClick() {
            const grid = make(grids, { model: cells(30) });
            grid.contentY = 100;
            mousePress(stage, 700, 500);
            mouseRelease(stage, 700, 500);
            grid.forceActiveFocus(Qt.MouseFocusReason);
            verify(grid.activeFocus);
            return grid;
        }

        function test_focusThatNoKeyHasBroughtLightsNoCellAndMovesNothing() {
            const grid = leftByClick();
            compare(grid.currentIndex, -1);
            compare(grid.contentY, 100);
            stage.forceActiveFocus(Qt.MouseFocusReason);
            grid.forceActiveFocus(Qt.PopupFocusReason);
            compare(grid.currentIndex, -1);
            compare(grid.contentY, 100);
        }

        function test_focusByKeyLightsTheFirstCellThatIsWholeInView() {
            const grid = leftByClick();
            stage.forceActiveFocus(Qt.MouseFocusReason);
            press(Qt.Key_Tab);
            verify(grid.activeFocus);
            compare(grid.currentIndex, 8);
            compare(grid.contentY, 100);
        }

        function test_otherCellsUnderTheKeyboardBeginAnew() {
            const grid = make(grids, { model: cells(30) });
            press(Qt.Key_Tab);
            press(Qt.Key_End);
            change(grid);
            tryCompare(grid, "currentIndex", 0, patience);
            compare(grid.contentY, 0);
        }

        function test_otherCellsUnderThePointerAreNotLit() {
            const grid = leftByClick();
            change(grid);
            compare(grid.currentIndex, -1);
        }

        function test_emptyGridTakesNoKeys() {
            const grid = make(grids, { model: 0 });
            press(Qt.Key_Tab);
            for (const key of [Qt.Key_Down, Qt.Key_End, Qt.Key_Return, Qt.Key_Menu])
                press(key);
            compare(grid.currentIndex, -1);
        }
    }
}

import QtQuick
import Quillmere.Screens

// What the tests of the Duplicate Finder's scope share. Each begins with the default scope and a fresh folder of equal files.
DuplicatesCase {
    readonly property string home: Surroundings.at("home")

    function init() {
        clearAway();
        Program.window.height = ampleHeight;
        Surroundings.userWillCancel();
        twins = Duplicates.makeTwins();
        Duplicates.scanOnly([], usualMinSize);
        open("Dashboard");
        open("Duplicates");
        clickOn(Program.named("resetScope"));
        restPointer();
        Program.forget();
    }

    function scanPathList() {
        return Program.named("scanPathList");
    }

    function ruleList() {
        return Program.named("ruleList");
    }

    // The rows of the folders; all of them have room.
    function scanPathRows() {
        return eachOf(scanPathList(), row => row);
    }

    function scanPaths() {
        return scanPathRows().map(row => row.pathText);
    }

    // What `value` says of each row, one after the other brought into view.
    function eachOf(list, value) {
        Program.settle();
        const top = list.contentY;
        const values = [];
        for (let i = 0; i < list.count; ++i) {
            list.positionViewAtIndex(i, ListView.Contain);
            Program.settle();
            values.push(value(list.itemAtIndex(i)));
        }
        list.contentY = top;
        Program.settle();
        return values;
    }

    // What is told of each rule: rows are used again.
    function rules() {
        return eachOf(ruleList(), row => ({ ruleText: row.ruleText, symbol: row.symbol,
                                            canBeRemoved: Program.named("removeExclusion", row) !== null }));
    }

    // The row of that rule, scrolled into view.
    function rule(text) {
        const index = rules().findIndex(row => row.ruleText === text);
        verify(index >= 0, `there is a rule ${text}`);
        const list = ruleList() as ListView;
        list.positionViewAtIndex(index, ListView.Contain);
        Program.settle();
        return list.itemAtIndex(index);
    }

    function add(folder) {
        Surroundings.userWillChoose(folder);
        click("Add Folder", screen());
        Surroundings.userWillCancel();
    }

    function exclude(folder) {
        Surroundings.userWillChoose(folder);
        click("Add Exclusion", screen());
        Surroundings.userWillCancel();
    }
}

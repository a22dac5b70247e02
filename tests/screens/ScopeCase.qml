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

    function scanPathRows() {
        return itemsOf(Program.named("scanPathList"));
    }

    function scanPaths() {
        return scanPathRows().map(row => row.pathText);
    }

    function itemsOf(view) {
        Program.settle();
        const items = [];
        for (let i = 0; i < view.count; ++i) {
            view.positionViewAtIndex(i, ListView.Contain);
            items.push(view.itemAtIndex(i));
        }
        return items;
    }

    function rules() {
        return itemsOf(Program.named("ruleList"));
    }

    // The row of that rule, scrolled into view.
    function rule(text) {
        const index = rules().findIndex(row => row.ruleText === text);
        verify(index >= 0, `there is a rule ${text}`);
        const list = Program.named("ruleList") as ListView;
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

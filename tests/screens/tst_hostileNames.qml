import QtQuick
import Quillmere.Screens

// The Disk Analyzer over names that other programs stumble on: shown as they are, or as near as letters come, and
// handed on with the right bytes.
AnalyzerCase {
    name: "HostileNames"

    readonly property string odd: Surroundings.at("odd")

    function names() {
        return [
            { tag: "newline", shown: "line\u21B5break", bytes: "line%0Abreak", size: "9.0 MB", items: 1 },
            { tag: "markup", shown: "\"quoted\" & <b>bold", bytes: "%22quoted%22%20%26%20%3Cb%3Ebold",
              size: "8.0 MB", items: 1 },
            { tag: "emoji", shown: "emoji \u{1F980}", bytes: "emoji%20%F0%9F%A6%80", size: "7.0 MB", items: 1 },
            { tag: "255 bytes", shown: "w".repeat(255), bytes: "w".repeat(255), size: "6.0 MB", items: 2 },
            { tag: "invalid UTF-8", shown: "bytes \uFFFD\uFFFD", bytes: "bytes%20%FF%FE", size: "6.0 MB", items: 2 },
        ];
    }

    function showOdd() {
        analyze(odd);
        find("CONTENTS (7 items)");
    }

    // The menu of the row, and the line chosen from it.
    function chooseForRow(name, line) {
        openRowMenu(name);
        chooseInContext(line);
    }

    function test_showsName_data() {
        return names();
    }

    function test_showsName(data) {
        showOdd();
        verify(row(data.shown));
        compare(row(data.shown).height, row("loop").height);
        compare(row(data.shown).sizeText, data.size);
        const label = Program.textItem(data.shown, table());
        verify(label.mapToItem(table(), label.width, 0).x < table().width);
        compare(label.lineCount, 1);
        compare(Program.textItem(data.shown, map()).lineCount, 1);
        Program.picture("hostile");
    }

    function test_goesInAndHandsOnTheBytes_data() {
        return names();
    }

    function test_goesInAndHandsOnTheBytes(data) {
        showOdd();
        chooseForRow(data.shown, "Reveal in Finder");
        compare(Surroundings.encoded(Surroundings.calls().replace(/^reveal /, "")), `${odd}/${data.bytes}`);
        chooseForRow(data.shown, "Copy Path");
        compare(Surroundings.encoded(Surroundings.clipboard()), `${odd}/${data.bytes}`);
        drill(data.shown, data.items);
        compare(Program.texts(Program.named("breadcrumbList")), data.shown);
        verify(row("inside"));
        Program.forget();
        chooseForRow("inside", "Open");
        compare(Surroundings.encoded(Surroundings.calls().replace(/^open /, "")), `${odd}/${data.bytes}/inside`);
    }

    function test_tileGoesIn_data() {
        return names();
    }

    function test_tileGoesIn(data) {
        showOdd();
        clickOn(tile(data.shown));
        find(`CONTENTS (${data.items} items)`);
        click("Open in Finder");
        compare(Surroundings.encoded(Surroundings.calls().replace(/^show /, "")), `${odd}/${data.bytes}`);
    }

    function test_fetchesDeeperLevel_data() {
        return names();
    }

    // From one folder higher up the odd ones lie at the depth where `du` measures, and are listed when gone into.
    function test_fetchesDeeperLevel(data) {
        analyze(Surroundings.at(""));
        click("odd", table());
        find("CONTENTS (7 items)");
        drill(data.shown, data.items);
        verify(row("inside"));
    }

    function test_longParentRowIsCutAndToldByItsTooltip() {
        const name = "w".repeat(255);
        analyze(odd);
        drill(name, 2);
        drill("deeper", 1);
        const parentRow = Program.named("parentRow");
        const line = `..  ${name}`;
        const label = Program.textItem(line, parentRow);
        verify(label.mapToItem(parentRow, label.width, 0).x < parentRow.width);
        compare(Program.texts().split("\n").filter(text => text === line).length, 1);
        mouseMove(parentRow);
        tryVerify(() => Program.texts().split("\n").filter(text => text === line).length === 2, patience, "a tooltip tells it");
    }

    function test_brokenAndCircularLinksAreRowsOfTheirOwn() {
        showOdd();
        verify(!row("loop").isFolder);
        verify(!row("nowhere").isFolder);
        click("loop", table());
        compare(Program.texts(Program.named("breadcrumbList")), "");
    }
}

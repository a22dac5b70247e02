import QtQuick
import Quillmere.Screens

// The window around the screens: sidebar, title bar, disk widget, and the screens that are still to come.
ScreenCase {
    name: "Shell"

    function test_startsOnTheDashboard() {
        compare(Program.firstScreen(), "Dashboard");
    }

    function test_nothingBeginsAheadOfTheFirstPicture() {
        verify(!Program.beganEarly());
        tryVerify(() => Program.watchesDisk(), patience, "the window has appeared");
    }

    function test_comingBackRefreshesTheDiskAndIsTold() {
        Program.setActive(false);
        compare(Surroundings.posted(), "");
        Surroundings.setVolume(500 * 2 ** 30, 300 * 2 ** 30, "Disk");
        Program.setActive(true);
        compare(Surroundings.posted(), "Platform.becameActive");
        find("200 GB used");
        tryCompare(Program.named("refreshDiskSpinner"), "isRunning", false, patience);
    }

    function test_anotherStartBringsTheWindowBack() {
        Program.window.showMinimized();
        tryCompare(Program.window, "visibility", Window.Minimized, patience);
        Program.startAgain("token-1");
        tryCompare(Program.window, "visibility", Window.Windowed, patience);
        tryCompare(Program.window, "active", true, patience);
        compare(Program.activationToken(), "token-1");
        Program.startAgain("");
        compare(Program.activationToken(), "token-1");
    }

    function test_windowHasItsSizes() {
        compare(Program.window.title, "Quillmere");
        compare(Program.window.width, 1280);
        compare(Program.window.height, 800);
        compare(Program.window.minimumWidth, 1100);
        compare(Program.window.minimumHeight, 700);
    }

    function test_sidebarShowsTheScreensUnderThreeSections() {
        const sections = ["NAVIGATION", "TOOLS", "APPS"];
        const titles = Array.from(screens(), row => row.tag);
        const lines = Program.texts(sidebar()).split("\n");
        compare(lines.filter(line => sections.includes(line)).join(), sections.join());
        compare(lines.filter(line => titles.includes(line)).join(), titles.join());
        compare(lines[lines.indexOf("Duplicates") + 1], "1,247");
        compare(lines.length, sections.length + titles.length + 1);
    }

    function screens() {
        const rows = sidebar() as ListView;
        verify(rows.count >= 9);
        return Array.from({ length: rows.count }, (row, i) => ({ tag: told(rows.itemAtIndex(i), "itemTitle") }));
    }

    function test_clickSelects_data() {
        return screens();
    }

    function test_clickSelects(row) {
        open(row.tag === "Search" ? "Dashboard" : "Search");
        open(row.tag);
        find(headOf(row.tag), screen());
        verify(sidebarRow(row.tag).isSelected);
        for (const title of ["Dashboard", "Search", "Cleanup"])
            compare(sidebarRow(title).isSelected, title === row.tag, title);
    }

    function sidebarRow(title) {
        return Program.itemWith("itemTitle", sidebar(), title);
    }

    function test_keysSelect_data() {
        return [
            { tag: "Dashboard", key: Qt.Key_1 },
            { tag: "File Browser", key: Qt.Key_2 },
            { tag: "Search", key: Qt.Key_3 },
            { tag: "Disk Analyzer", key: Qt.Key_4 },
            { tag: "Duplicates", key: Qt.Key_5 },
        ];
    }

    function test_keysSelect(row) {
        open("Organizer");
        press(row.key, Qt.ControlModifier);
        compare(Program.selectedScreen(), row.tag);
        find(headOf(row.tag), screen());
    }

    function test_searchOpensByKeyAndByPill() {
        open("Organizer");
        press(Qt.Key_K, Qt.ControlModifier);
        compare(Program.selectedScreen(), "Search");
        open("Organizer");
        const pill = Program.named("searchPill");
        compare(Program.texts(pill), "Search files...\nCtrl+K");
        clickOn(pill);
        compare(Program.selectedScreen(), "Search");
        open("Organizer");
        tabTo("the search pill", item => item === pill);
        press(Qt.Key_Return);
        compare(Program.selectedScreen(), "Search");
    }

    function test_searchPillTellsItsKey() {
        mouseMove(Program.named("searchPill"));
        find("Open Search (Ctrl+K)");
        restPointer();
        tryGone("Open Search (Ctrl+K)");
    }

    function test_upcomingScreenPretendsNothing_data() {
        return Array.from(Program.upcomingScreens(), title => ({ tag: title }));
    }

    function test_upcomingScreenPretendsNothing(row) {
        open(row.tag);
        find(row.tag, screen());
        const lines = Program.texts(screen()).split("\n");
        compare(lines.length, 2);
        compare(lines[0], row.tag);
        verify(lines[1].includes(" will "), lines[1]);
        compare(Program.controlCount(screen()), 0);
    }

    function test_lightDesktopGivesLightWindow() {
        compare(String(Program.window.color), "#0d1117");
        compare(String(find("Dashboard", sidebar()).color), "#e6edf3");
        Surroundings.setDark(false);
        compare(String(Program.window.color), "#ffffff");
        compare(String(find("Dashboard", sidebar()).color), "#1f2328");
        Surroundings.setDark(true);
        compare(String(Program.window.color), "#0d1117");
    }
}

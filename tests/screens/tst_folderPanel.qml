import QtQuick
import Quillmere.Screens

// The program's own folder panel, over the home folder that the tests share.
ScreenCase {
    name: "FolderPanel"

    function list() {
        return Program.named("panelList");
    }

    function result() {
        return told(Program.named("panelResult"), "text");
    }

    function ask() {
        Program.askForFolder("Which folder?");
        find("Which folder?");
        find("Movies", list());
        tryVerify(() => list().activeFocus, patience, "the keyboard is in the list");
    }

    function tryAnswer(expected) {
        tryVerify(() => Program.panelAnswers() === expected, patience, "the answer is there");
        tryGone("Which folder?");
    }

    function cleanup() {
        if (Program.textItem("Which folder?"))
            press(Qt.Key_Escape);
        compare(Program.takeWarnings(), "");
    }

    function test_choosesByKeysAlone() {
        ask();
        compare(result(), "~");
        press(Qt.Key_D);
        compare(result(), "~/Documents");
        press(Qt.Key_Return);
        find("Invoices", list());
        press(Qt.Key_Down);
        tabTo("Open", item => item.objectName === "panelAccept");
        compare(result(), "~/Documents/Invoices");
        press(Qt.Key_Return);
        tryAnswer(Surroundings.at("home") + "/Documents/Invoices");
    }

    function test_choosesByPointerAlone() {
        ask();
        mouseDoubleClickSequence(find("Documents", list()));
        find("Invoices", list());
        click("Home", Program.named("panelPlaces"));
        click("Equal", list());
        click("Open");
        tryAnswer(Surroundings.at("home") + "/Equal");
    }

    function test_keepsItsKeysFromTheWindow() {
        open("Disk Analyzer");
        ask();
        for (const key of [Qt.Key_1, Qt.Key_2, Qt.Key_K, Qt.Key_R, Qt.Key_Comma])
            press(key, Qt.ControlModifier);
        press(Qt.Key_F, Qt.AltModifier);
        compare(Program.selectedScreen(), "Disk Analyzer");
        compare(Program.menuLines(), "");
        verify(list().activeFocus);
        compare(result(), "~");
    }

    function test_givesTheKeyboardBack() {
        open("Duplicates");
        Program.named("scanButton").forceActiveFocus(Qt.TabFocusReason);
        ask();
        press(Qt.Key_Escape);
        tryAnswer("none");
        verify(Program.named("scanButton").activeFocus);
    }

    // Everything that the panel lists waits while the disk does.
    function test_showsThatAFolderDoesNotAnswer() {
        Surroundings.holdDisk(Surroundings.at("home") + "/Documents");
        ask();
        press(Qt.Key_D);
        press(Qt.Key_Return);
        find("Loading…");
        verify(!Program.named("panelAccept").enabled);
        click("Movies", Program.named("panelPlaces"));
        compare(result(), "~/Movies");
        tryGone("Loading…");
        Surroundings.releaseDisk();
        tryVerify(() => Program.named("panelAccept").enabled, patience, "the other folder is there");
        compare(result(), "~/Movies");
    }
}

import QtQuick
import Quillmere.Screens

// The Duplicate Finder's picker of the least size.
ScopeCase {
    name: "DuplicateMinSize"

    function picker() {
        return Program.named("minSizePicker");
    }

    function test_minSizeIsPickedByMouse() {
        Duplicates.scanOnly([twins + "/a", twins + "/b", twins + "/c"], usualMinSize);
        clickOn(picker());
        find("10 MB", picker().popup.contentItem);
        compare(Program.texts(picker().popup.contentItem), "1 KB\n10 KB\n100 KB\n1 MB\n10 MB");
        Program.picture("scope-picker");
        const width = picker().width;
        click("1 KB", picker().popup.contentItem);
        tryVerify(() => !picker().popup.visible, patience, "the choices close");
        compare(picker().displayText, "1 KB");
        compare(picker().width, width);
        scan();
        compare(groups(), ["photo.JPG", "film.mov", "report.pdf", "plain", "note.txt"]);
        clickOn(picker());
        click("10 KB", picker().popup.contentItem);
        scan();
        compare(groups(), ["photo.JPG", "film.mov", "report.pdf", "plain"]);
        clickOn(picker());
        click("1 MB", picker().popup.contentItem);
        scan();
        find("Configure scan directories above and click Start Scan", screen());
    }

    function test_minSizeIsPickedByKeyboard() {
        tabTo("the picker", item => item === picker());
        verify(picker().visualFocus);
        press(Qt.Key_Space);
        tryVerify(() => picker().popup.visible, patience, "the choices open");
        press(Qt.Key_Up);
        press(Qt.Key_Return);
        tryVerify(() => !picker().popup.visible, patience, "the choices close");
        compare(picker().displayText, "10 KB");
        press(Qt.Key_Down);
        compare(picker().displayText, "100 KB");
        press(Qt.Key_Space);
        tryVerify(() => picker().popup.visible, patience, "the choices open");
        press(Qt.Key_Down);
        press(Qt.Key_Escape);
        tryVerify(() => !picker().popup.visible, patience, "the choices close");
        compare(picker().displayText, "100 KB");
    }

    function test_choicesAreToldOneByOne() {
        const option = text => Program.itemWith("text", picker().popup.contentItem, text);
        tabTo("the picker", item => item === picker());
        compare(picker().Accessible.description, "100 KB");
        press(Qt.Key_Space);
        tryVerify(() => picker().popup.visible, patience, "the choices open");
        press(Qt.Key_Up);
        compare(picker().Accessible.description, "10 KB");
        verify(option("10 KB").Accessible.selected);
        verify(!option("10 KB").checked);
        verify(!option("100 KB").Accessible.selected);
        verify(option("100 KB").checked);
        compare(picker().popup.contentItem.Accessible.name, "Min file size:");
        press(Qt.Key_Escape);
        tryVerify(() => !picker().popup.visible, patience, "the choices close");
        compare(picker().Accessible.description, "100 KB");
    }

    function test_minSizeOutlivesTheScreenAndNamesAnyValue() {
        clickOn(picker());
        click("10 MB", picker().popup.contentItem);
        open("Organizer");
        open("Duplicates");
        compare(picker().displayText, "10 MB");
        Duplicates.scanOnly([], 3000); // as a setting made elsewhere may be
        compare(picker().displayText, "2.9 KB");
        Duplicates.scanOnly([], usualMinSize);
    }
}

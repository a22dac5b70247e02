import QtQuick
import Quillmere.Screens

// Which keys of the window rest while a menu, a list of choices, a sheet or a question is up, as the table in
// docs/architecture.md has it.
LayersCase {
    name: "KeysInLayers"

    // The keys of the window: what the menu bar, the title bar and the screens have of their own.
    readonly property var windowKeys: [
        [Qt.Key_1, Qt.ControlModifier], [Qt.Key_2, Qt.ControlModifier], [Qt.Key_3, Qt.ControlModifier],
        [Qt.Key_4, Qt.ControlModifier], [Qt.Key_5, Qt.ControlModifier], [Qt.Key_K, Qt.ControlModifier], [Qt.Key_R, Qt.ControlModifier],
        [Qt.Key_N, Qt.ControlModifier], [Qt.Key_Comma, Qt.ControlModifier], [Qt.Key_Slash, Qt.ControlModifier],
        [Qt.Key_Y, Qt.ControlModifier | Qt.ShiftModifier], [Qt.Key_Menu, Qt.NoModifier], [Qt.Key_F10, Qt.ShiftModifier],
    ]

    function verifyUnder(isUp) {
        verify(isUp());
        compare(Program.selectedScreen(), "Duplicates");
        compare(Surroundings.posted(), "");
    }

    function test_keysOfTheWindowRest_data() {
        return layers_data();
    }

    function test_keysOfTheWindowRest(data) {
        focusList();
        data.open();
        Program.forget();
        const before = view();
        for (const [key, modifiers] of windowKeys) {
            press(key, modifiers);
            verifyUnder(data.isUp);
            compare(view(), before);
        }
        compare(Surroundings.mail() + Surroundings.calls(), "");
        Program.picture("layer-" + data.tag);
        press(Qt.Key_Escape);
    }

    function test_editingKeysLeaveTheTextBelowAlone_data() {
        return layers_data();
    }

    function test_editingKeysLeaveTheTextBelowAlone(data) {
        const field = Program.addTextField("some words");
        field.forceActiveFocus();
        data.open();
        for (const key of [Qt.Key_A, Qt.Key_X, Qt.Key_V, Qt.Key_C, Qt.Key_V, Qt.Key_Z])
            press(key, Qt.ControlModifier);
        verify(data.isUp());
        compare(told(field, "text"), "some words");
        compare(told(field, "selectedText"), "");
        press(Qt.Key_Escape);
    }

    function test_menuBarKeyRestsButInTheBarsOwnMenu_data() {
        return layers_data().filter(layer => layer.tag !== "menu of the bar");
    }

    function test_menuBarKeyRestsButInTheBarsOwnMenu(data) {
        focusList();
        data.open();
        const before = view();
        press(Qt.Key_F10);
        verify(data.isUp());
        compare(view(), before);
        press(Qt.Key_Escape);
    }

    function test_letterOfAMenuLeadsFromMenuToMenuAndRestsElsewhere_data() {
        return layers_data().filter(layer => layer.tag !== "question for a text");
    }

    function test_letterOfAMenuLeadsFromMenuToMenuAndRestsElsewhere(data) {
        focusList();
        data.open();
        const isMenu = data.tag.startsWith("menu");
        const before = view();
        press(Qt.Key_T, Qt.AltModifier);
        compare(Program.menuLines().startsWith("Refresh Current View"), isMenu);
        if (!isMenu)
            compare(view(), before);
        press(Qt.Key_Escape);
        compare(Program.menuLines(), "");
        if (isMenu)
            verify(list().activeFocus, Program.focusPath());
    }

    function test_quitKeyWorksEverywhere_data() {
        return layers_data();
    }

    function test_quitKeyWorksEverywhere(data) {
        data.open();
        keyPress(Qt.Key_Q, Qt.ControlModifier);
        verify(Program.exits() > 0);
        keyRelease(Qt.Key_Q, Qt.ControlModifier);
        verify(data.isUp());
        press(Qt.Key_Escape);
    }

    function test_escapeClosesTheUppermostAndGivesTheKeyboardBack_data() {
        return layers_data();
    }

    function test_escapeClosesTheUppermostAndGivesTheKeyboardBack(data) {
        focusList();
        data.open();
        press(Qt.Key_Escape);
        tryVerify(() => !data.isUp(), patience, "it is gone");
        Program.settle();
        verify(isWithin(focusItem(), data.focus()), `the keyboard is back, and not at\n${Program.focusPath()}`);
        compare(Program.isSheetUp(), data.tag === "question over a sheet");
        compare(Surroundings.recycled(), "");
    }

    function test_leftAndRightDoNothingInTheMenuOfARow() {
        focusList();
        openFileMenu("b/film.mov");
        const before = view();
        press(Qt.Key_Left);
        press(Qt.Key_Right);
        compare(view(), before);
        press(Qt.Key_Escape);
        verify(list().activeFocus);
    }

    function test_tabKeyStaysInside_data() {
        return layers_data().filter(layer => layer.tag !== "choices");
    }

    function test_tabKeyStaysInside(data) {
        focusList();
        data.open();
        for (const [key, modifiers] of [[Qt.Key_Tab, Qt.NoModifier], [Qt.Key_Backtab, Qt.ShiftModifier]]) {
            for (let i = 0; i < 8; ++i) {
                press(key, modifiers);
                verify(data.isUp());
                verify(!isWithin(focusItem(), screen()), Program.focusPath());
                verify(!sidebar().activeFocus);
            }
        }
        press(Qt.Key_Escape);
    }

    function test_tabKeyLeavesTheChoices() {
        clickOn(picker());
        press(Qt.Key_Tab);
        tryVerify(() => !picker().popup.visible, patience, "the choices close");
        verify(!picker().activeFocus);
        verify(isWithin(focusItem(), screen()));
    }

    function test_escapeWithNothingUpDoesNothing() {
        focusList();
        const before = view();
        press(Qt.Key_Escape);
        compare(view(), before);
        verify(list().activeFocus);
    }

    function test_oneBackdropAtATime() {
        openSheet();
        compare(backdrops(), 1);
        press(Qt.Key_Escape);
        askToClear();
        compare(backdrops(), 1);
        press(Qt.Key_Escape);
        tryVerify(() => !Program.named("confirmCancel"), patience, "the question is gone");
        compare(backdrops(), 1);
    }

    // How many of the window's layers dim what is below.
    function backdrops() {
        Program.settle();
        const dimmed = Array.from(overlay().children, item => item).filter(
                    item => item.visible && String(item.color ?? "") === "#a6010409");
        return dimmed.length;
    }

    function overlay() {
        let item = Program.named("sheetClose");
        while (item.parent && item.parent.parent)
            item = item.parent;
        return item;
    }
}

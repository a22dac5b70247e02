import QtQuick
import QtTest
import Quillmere.Screens

// What the tests of the controls share: each control is made alone, in a window that holds nothing else, and used with mouse
// and keys. Each test fails when anything has warned by its end.
TestCase {
    id: base

    required property Item stage

    readonly property int patience: 10000 // ms; sanitizers make everything slow

    when: windowShown

    function initTestCase() {
        Program.watchWarnings();
        stage.Window.window.requestActivate();
        tryCompare(stage.Window.window, "active", true, patience);
    }

    function init() {
        mouseMove(stage, stage.width - 2, stage.height - 2);
        stage.forceActiveFocus();
    }

    function cleanup() {
        compare(Program.takeWarnings(), "");
    }

    function make(component, properties) {
        const made = createTemporaryObject(component, stage, properties ?? {});
        verify(made);
        waitForRendering(stage);
        return made;
    }

    Component {
        id: spies
        SignalSpy { }
    }
    function spy(target, signalName) {
        return createTemporaryObject(spies, base, { target: target, signalName: signalName });
    }

    function focusItem() {
        return stage.Window.window.activeFocusItem;
    }

    function press(key, modifiers) {
        keyClick(key, modifiers ?? Qt.NoModifier);
    }

    function write(text) {
        for (const sign of text)
            keyClick(sign);
    }

    // A control with the keyboard in it.
    function field(component, properties) {
        const made = make(component, properties);
        made.forceActiveFocus(Qt.TabFocusReason);
        return made;
    }

    // All texts on view, tooltips and dialogs too, a line each.
    function onView() {
        return Program.texts(stage.Window.contentItem);
    }

    function longText() {
        return "long ".repeat(2000);
    }
}

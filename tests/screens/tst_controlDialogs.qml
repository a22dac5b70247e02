pragma ComponentBehavior: Bound

import QtQuick
import Quillmere
import Quillmere.Screens

// Questions and messages over the window, answered by mouse and by keys alone.
Item {
    id: stage
    width: 900
    height: 700

    Component {
        id: questions
        ConfirmDialog {
            title: "Rename 3 files?"
            text: "This will rename files in: /tmp"
            cancelLabel: "Cancel"
            actionLabel: "Rename"
        }
    }
    Component {
        id: alerts
        PlainAlert {
            title: "Error"
            text: "Couldn't create folder: File exists"
            closeLabel: "OK"
        }
    }
    Component {
        id: prompts
        TextPrompt {
            title: "New Folder"
            fieldLabel: "Folder name"
            cancelLabel: "Cancel"
            actionLabel: "Create"
        }
    }

    ControlCase {
        name: "ControlDialogs"
        stage: stage

        // It is shown as it is made.
        function ask(component, properties) {
            const dialog = createTemporaryObject(component, stage, properties ?? {});
            tryCompare(dialog, "opened", true, patience);
            waitForRendering(stage);
            return dialog;
        }

        function button(name) {
            return Program.named(name, stage.Window.contentItem);
        }

        function test_destructiveQuestionBeginsOnCancel() {
            const question = ask(questions);
            const no = spy(question, "rejected");
            verify(button("confirmCancel").visualFocus);
            press(Qt.Key_Return);
            tryCompare(no, "count", 1);
        }

        function test_plainQuestionBeginsOnItsAction() {
            const question = ask(questions, { isDestructive: false });
            const yes = spy(question, "accepted");
            verify(button("confirmAction").visualFocus);
            press(Qt.Key_Return);
            tryCompare(yes, "count", 1);
        }

        function test_questionIsAnsweredOnce() {
            const question = ask(questions);
            const yes = spy(question, "accepted");
            const no = spy(question, "rejected");
            const action = button("confirmAction");
            mouseClick(action);
            action.clicked();
            tryCompare(question, "visible", false);
            compare(yes.count, 1);
            compare(no.count, 0);
        }

        function test_escapeCancelsAQuestion() {
            const question = ask(questions);
            const no = spy(question, "rejected");
            press(Qt.Key_Escape);
            tryCompare(no, "count", 1);
        }

        function test_tabStaysInside() {
            ask(questions);
            for (let i = 0; i < 5; ++i) {
                press(Qt.Key_Tab);
                verify(button("confirmCancel").activeFocus || button("confirmAction").activeFocus, `after ${i + 1}`);
            }
        }

        function test_alertClosesBy_data() {
            return [
                { tag: "Return", close: () => press(Qt.Key_Return) },
                { tag: "Enter", close: () => press(Qt.Key_Enter) },
                { tag: "Escape", close: () => press(Qt.Key_Escape) },
                { tag: "its button", close: () => mouseClick(button("alertClose")) },
            ];
        }

        function test_alertClosesBy(row) {
            const alert = ask(alerts);
            const ends = spy(alert, "dismissed");
            verify(onView().includes("File exists"));
            row.close();
            tryCompare(ends, "count", 1);
        }

        function test_longTextsScrollInsideTheWindow() {
            const alert = ask(alerts, { text: "a line\n".repeat(300), title: longText() });
            verify(alert.height < stage.height, alert.height);
            verify(alert.y >= 0);
            const words = Program.itemWith("flickableDirection", alert.contentItem) as Flickable;
            compare(words.contentY, 0);
            press(Qt.Key_Down);
            verify(words.contentY > 0);
            press(Qt.Key_Up);
            press(Qt.Key_Up);
            compare(words.contentY, 0);
            press(Qt.Key_Return);
            tryCompare(alert, "visible", false);
        }

        function test_dialogStandsOnWholePixels() {
            for (const text of ["one line", "two\nlines", "three\nlines\nhere"]) {
                const alert = ask(alerts, { text: text });
                for (const figure of [alert.x, alert.y, alert.width, alert.height])
                    compare(figure, Math.round(figure));
                alert.close();
                tryCompare(alert, "visible", false);
            }
        }

        function test_promptAcceptsWhatWasWritten() {
            const prompt = ask(prompts);
            const yes = spy(prompt, "accepted");
            keyClick("a");
            keyClick("b");
            press(Qt.Key_Return);
            tryCompare(yes, "count", 1);
            compare(yes.signalArguments[0][0], "ab");
        }

        function test_promptWithoutATextAcceptsNothing() {
            const prompt = ask(prompts);
            const yes = spy(prompt, "accepted");
            press(Qt.Key_Return);
            verify(!button("promptAction").enabled);
            verify(prompt.visible);
            compare(yes.count, 0);
            keyClick("a");
            verify(button("promptAction").enabled);
            mouseClick(button("promptAction"));
            tryCompare(yes, "count", 1);
        }

        function test_writingReplacesWhatThePromptBeganWith() {
            const prompt = ask(prompts, { initialText: "old name" });
            const yes = spy(prompt, "accepted");
            keyClick("n");
            press(Qt.Key_Return);
            tryCompare(yes, "count", 1);
            compare(yes.signalArguments[0][0], "n");
        }

        function test_escapeAndCancelLeaveThePrompt_data() {
            return [
                { tag: "Escape", leave: () => press(Qt.Key_Escape) },
                { tag: "Cancel", leave: () => mouseClick(button("promptCancel")) },
            ];
        }

        function test_escapeAndCancelLeaveThePrompt(row) {
            const prompt = ask(prompts, { initialText: "name" });
            const yes = spy(prompt, "accepted");
            const no = spy(prompt, "rejected");
            row.leave();
            tryCompare(no, "count", 1);
            compare(yes.count, 0);
        }
    }
}

import QtQuick
import Quillmere.Screens

// Where the keyboard is while the Duplicate Finder scans, and afterwards.
DuplicatesCase {
    name: "DuplicateScanFocus"

    function stopButton() {
        return Program.named("stopButton");
    }

    function holdScanByKey(key, modifiers) {
        Surroundings.holdDisk(path("b"));
        press(key, modifiers);
        tryVerify(() => Surroundings.isDiskHeld(), patience, "the scan waits");
        tryVerify(() => stopButton()?.activeFocus && stopButton().visualFocus, patience, "Stop has the keyboard, and shows it");
    }

    function end() {
        Surroundings.releaseDisk();
        waitForScan();
    }

    function test_itIsOnStopAndThenInTheListAgain() {
        focusList();
        holdScanByKey(Qt.Key_R, Qt.ControlModifier);
        end();
        tryVerify(() => list().currentItem?.isCurrent && list().currentItem.activeFocus, patience, "a row has the keyboard");
        compare(list().currentIndex, 0);
    }

    function test_itIsOnStopAndThenOnTheButtonThatBegan() {
        tabTo("Rescan", item => item === scanButton());
        holdScanByKey(Qt.Key_Space);
        end();
        tryVerify(() => scanButton().activeFocus && scanButton().visualFocus, patience, "Rescan has the keyboard");
    }

    function test_afterAStopThatLeavesNothingItIsOnWhatStartsAScan() {
        focusList();
        holdScanByKey(Qt.Key_R, Qt.ControlModifier);
        press(Qt.Key_Return);
        compare(stopButton().text, "Stopping…");
        end();
        verify(!list());
        tryVerify(() => scanButton().activeFocus && scanButton().visualFocus, patience, "Start Scan has the keyboard");
    }

    function test_whatIsBegunByAClickHasNoRing() {
        holdScan("b");
        verify(!stopButton().activeFocus);
        end();
        verify(scanButton().activeFocus && !scanButton().visualFocus);
    }
}

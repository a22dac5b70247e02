import QtQuick
import Quillmere.Screens

// Where the keyboard is while the Disk Analyzer scans, and afterwards: never on what is not on view.
AnalyzerCase {
    name: "DiskScanFocus"

    function stopButton() {
        return Program.named("stopButton");
    }

    function holdScanByKey(key, modifiers) {
        Surroundings.holdProbes();
        press(key, modifiers);
        tryVerify(() => Disk.probeCount() === 1, patience, "a probe is at work");
    }

    function verifyOnStop() {
        tryVerify(() => stopButton()?.activeFocus && stopButton().visualFocus, patience, "Stop has the keyboard, and shows it");
    }

    function end() {
        Surroundings.releaseProbes();
        waitForScan();
    }

    function verifyOnFirstRow() {
        tryVerify(() => table().currentItem?.activeFocus, patience, `a row has the keyboard, not\n${Program.focusPath()}`);
        compare(table().currentIndex, 0);
        verify(table().currentItem.isCurrent);
    }

    function test_itIsOnStopAndThenInTheTableAgain() {
        tabTo("the table", () => table().activeFocus);
        holdScanByKey(Qt.Key_R, Qt.ControlModifier);
        verifyOnStop();
        end();
        verifyOnFirstRow();
    }

    function test_stopByKeyBringsTheTableBack() {
        tabTo("the table", () => table().activeFocus);
        holdScanByKey(Qt.Key_R, Qt.ControlModifier);
        verifyOnStop();
        press(Qt.Key_Space);
        tryVerify(() => !Disk.isScanning(), patience, "the scan has ended");
        Surroundings.releaseProbes();
        verifyOnFirstRow();
    }

    function test_itIsOnStopAndThenOnTheButtonThatBegan() {
        tabTo("Rescan", item => item === Program.named("scanButton"));
        holdScanByKey(Qt.Key_Return);
        verifyOnStop();
        end();
        tryVerify(() => Program.named("scanButton").activeFocus && Program.named("scanButton").visualFocus, patience, "Rescan has it");
    }

    function test_whatStaysOnViewKeepsIt() {
        tabTo("Change Folder", item => item === Program.named("changeFolderButton"));
        holdScanByKey(Qt.Key_R, Qt.ControlModifier);
        find("Scanning...");
        verify(Program.named("changeFolderButton").activeFocus);
        end();
        verify(Program.named("changeFolderButton").activeFocus);
    }

    function test_spaceAfterAClickStopsNothing() {
        holdScan();
        find("Scanning...");
        verify(!stopButton().activeFocus);
        press(Qt.Key_Space);
        verify(Disk.isScanning());
        end();
        verify(Program.named("scanButton").activeFocus && !Program.named("scanButton").visualFocus);
    }
}

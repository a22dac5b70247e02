import QtQuick
import Quillmere.Screens

// What the Duplicate Finder tells of one file by two ways, and of the last file: on the heads of the groups, and before a
// delete run.
DuplicatesCase {
    name: "DuplicateMarks"

    readonly property string sameTip: "Two of these paths lead to one and the same file: if one goes, both are gone."
    readonly property string linksTip: "Some of these are hard links, names of one file: if one goes, nothing is lost and nothing is freed."
    readonly property string lossTip: "No copy of this group stays."

    function init() {
        clearAway();
        Program.window.height = ampleHeight;
        Surroundings.userWillCancel();
        twins = Duplicates.makeWays();
        Duplicates.scanOnly(Array.from(["a", "way", "b", "c"], folder => `${twins}/${folder}`), usualMinSize);
        open("Dashboard");
        open("Duplicates");
        scan();
        compare(groups(), ["photo.jpg", "linked.bin", "plain.pdf", "film.mov"]);
        restPointer();
        Program.forget();
    }

    // The marks on view at the head of a group.
    function marks(title) {
        const texts = Program.texts(head(title)).split("\n");
        return ["SAME FILE", "NOTHING KEPT"].filter(mark => texts.includes(mark)).join();
    }

    function test_headsTellOfOneFileByTwoWays() {
        tryVerify(() => marks("photo.jpg") === "SAME FILE", patience, "the disk has been asked");
        compare(Array.from(["photo.jpg", "linked.bin", "plain.pdf", "film.mov"], title => marks(title)),
                ["SAME FILE", "SAME FILE", "", "SAME FILE"]);
        clickFile("a/photo.jpg");
        compare(marks("photo.jpg"), "SAME FILE,NOTHING KEPT");
        clickFile("b/plain.pdf");
        compare(marks("plain.pdf"), "NOTHING KEPT");
        Program.picture("duplicates-marks");
        Surroundings.setDark(false);
        Program.settle();
        Program.picture("duplicates-marks-light");
        clickFile("way/photo.jpg");
        compare(marks("photo.jpg"), "SAME FILE");
    }

    function test_marksSayWhatTheyMean_data() {
        return [
            { tag: "same file", title: "photo.jpg", mark: "SAME FILE", tip: sameTip },
            { tag: "hard links", title: "linked.bin", mark: "SAME FILE", tip: linksTip },
            { tag: "nothing kept", title: "plain.pdf", mark: "NOTHING KEPT", tip: lossTip },
        ];
    }

    function test_marksSayWhatTheyMean(data) {
        clickFile("b/plain.pdf");
        mouseMove(find(data.mark, head(data.title)));
        find(data.tip);
        Program.picture("duplicates-mark-" + data.tag.replace(" ", "-"));
        restPointer();
        tryGone(data.tip);
    }

    function test_marksLeaveRoomForTheTitle() {
        Program.window.width = 900;
        clickFile("a/photo.jpg");
        find("SAME FILE", head("photo.jpg"));
        const title = find("photo.jpg", head("photo.jpg"));
        const mark = find("NOTHING KEPT", head("photo.jpg"));
        const button = Program.itemWith("text", head("photo.jpg"), "Newest");
        const right = item => item.mapToItem(head("photo.jpg"), item.width, 0).x;
        verify(!title.truncated);
        verify(right(title) < right(mark) && right(mark) < right(button), "they stand beside each other");
    }

    function note() {
        return Program.named("confirmNote")?.text ?? "";
    }

    function test_questionTellsWhatElseTheRunMeans() {
        clickFile("a/photo.jpg");
        clickOn(chip("images"));
        askToDelete();
        find("Move 2 files (600 KB) to Trash? This can be undone from the Trash.");
        const all = "3 of the files that go are hidden by the filter. In 1 groups no copy stays. "
            + "1 of them are the very file that is kept, reached another way.";
        tryVerify(() => note() === all, patience, `the note is whole, not "${note()}"`);
        Program.settle();
        Program.picture("duplicates-note");
        Surroundings.setDark(false);
        Program.settle();
        Program.picture("duplicates-note-light");
        clickOn(Program.named("confirmCancel"));
        tryGone("Confirm Deletion");
    }

    function test_questionHasNoNoteWhereThereIsNothingToTell() {
        click("Select None", screen());
        clickFile("b/plain.pdf");
        askToDelete();
        find("Move 1 files (150 KB) to Trash? This can be undone from the Trash.");
        compare(note(), "");
        clickOn(Program.named("confirmCancel"));
        tryGone("Confirm Deletion");
    }
}

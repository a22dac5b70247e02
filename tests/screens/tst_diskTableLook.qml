import QtQuick
import Quillmere.Screens

// What can be told apart in the Disk Analyzer's table, and where its scroll handle stands.
AnalyzerCase {
    name: "DiskTableLook"

    readonly property int usualHeight: 800

    function luminance(colour) {
        const linear = part => part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4);
        return 0.2126 * linear(colour.r) + 0.7152 * linear(colour.g) + 0.0722 * linear(colour.b);
    }

    function contrast(one, other) {
        const light = Math.max(luminance(one), luminance(other));
        const dark = Math.min(luminance(one), luminance(other));
        return (light + 0.05) / (dark + 0.05);
    }

    function cleanup() {
        Program.window.height = usualHeight;
        Surroundings.setDark(true);
        compare(Program.takeWarnings(), "");
    }

    // The colour on view at a place of the item.
    function colourAt(item, x, y) {
        const place = item.mapToItem(Program.window.contentItem, x, y);
        return grabImage(Program.window.contentItem).pixel(place.x, place.y);
    }

    function handle() {
        return Program.itemWith("minimumSize", table())?.contentItem;
    }

    function makeTableScroll() {
        drill("Equal", 20);
        Program.window.height = 600;
        tryVerify(() => handle(), patience, "there is more than fits");
        Program.settle();
    }

    function palettes() {
        return [{ tag: "dark", isDark: true }, { tag: "light", isDark: false }];
    }

    function test_scrollHandleStandsBetweenTheRowsAndTheCardsOutline() {
        makeTableScroll();
        const card = table().parent;
        const rowOnView = Program.itemWith("entryName", table());
        const begin = handle().mapToItem(card, 0, 0).x;
        verify(begin > rowOnView.mapToItem(card, rowOnView.width, 0).x);
        verify(begin + handle().width < card.width - 1);
        compare(card.width - rowOnView.mapToItem(card, rowOnView.width, 0).x, rowOnView.mapToItem(card, 0, 0).x);
    }

    function test_scrollHandleIsSeenAtRest_data() {
        return palettes();
    }

    function test_scrollHandleIsSeenAtRest(palette) {
        Surroundings.setDark(palette.isDark);
        makeTableScroll();
        const bar = handle();
        const ratio = contrast(colourAt(bar, 2, bar.height / 2), colourAt(bar, -2, bar.height / 2));
        verify(ratio >= 3, ratio);
    }

    function test_trackOfAShareIsSeenUnderThePointer_data() {
        return palettes();
    }

    function test_trackOfAShareIsSeenUnderThePointer(palette) {
        Surroundings.setDark(palette.isDark);
        const lit = row("notes.txt");
        mouseMove(lit);
        tryCompare(lit, "hovered", true, patience);
        Program.settle();
        const track = Program.named("shareFill", lit).parent;
        const ratio = contrast(colourAt(track, track.width - 8, 3), colourAt(track, track.width - 8, -4));
        verify(ratio >= 1.2, ratio);
    }
}

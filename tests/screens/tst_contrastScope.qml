import QtQuick
import Quillmere.Screens

// Every text of the Duplicate Finder's scope can be told from what is behind it, a rule that a folder overrides among them, in
// both palettes.
ScopeCase {
    id: base

    name: "ContrastScope"

    ContrastMeter {
        id: meter
        test: base
    }

    function cleanup() {
        Program.window.height = usualHeight;
        compare(meter.take(), "");
        compare(Program.takeWarnings(), "");
    }

    function test_overriddenRule_data() {
        return meter.palettes;
    }

    function test_overriddenRule(palette) {
        Surroundings.setDark(palette.isDark);
        meter.measure("scope");
        add(home + "/Library/Mail");
        find("· overridden", rule("~/Library"));
        meter.measure("scope overridden");
        meter.measureHovered([rule("~/Library"), scanPathRows()[1]], "scope overridden and hovered");
        clickOn(Program.named("removeScanPath", scanPathRows()[1]));
    }
}

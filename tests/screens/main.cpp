#include "screens/ScreenSetup.h"

#include <QtQuickTest/quicktest.h>

// Runs the tests of the screens: each tst_*.qml of this folder, or the one that "-input FILE" names.
int main(int argc, char *argv[])
{
    for (const char *variable : {"QT_QPA_PLATFORM", "QT_QUICK_BACKEND"}) {
        if (qEnvironmentVariableIsEmpty(variable))
            qputenv(variable, qstrcmp(variable, "QT_QPA_PLATFORM") == 0 ? "offscreen" : "software");
    }
    ScreenSetup setup;
    return quick_test_main_with_setup(argc, argv, "screens", QUILLMERE_SCREENS_DIR, &setup);
}

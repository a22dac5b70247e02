#pragma once

#include "support/TempHome.h"

#include <QString>

/// The home folder of the whole test program, set in its environment. There is one object of it at a time, in
/// `main`.
class TrashHome
{
public:
    TrashHome();

    /// The home folder. Empty at the start of each test that uses a RecyclerTest.
    static QString path();

    /// Where the home Trash is.
    static QString trash();

private:
    TempHome temp_;
};

#pragma once

#include <QString>
#include <QStringList>

/// What the demo is asked for on its command line.
struct DemoOptions
{
    bool isLight = false;
    bool refreshes = false;
    bool isGallery = false; // in place of the program
    QString screen;         ///< a navigate key; empty for the first screen
    QString picture;        ///< a file to save a picture to; empty for none

    /// Ends the process where they ask for help, with what the demo takes, or hold what it doesn't know, with a
    /// message. Needs no application object.
    static DemoOptions from(const QStringList &arguments);
};

#pragma once

#include <QGenericPlugin>

/// Loaded into a program from outside (QT_QPA_GENERIC_PLUGINS=firstframe:exit), so that the program needs no hook of
/// its own. At the first frame that a window has shown it prints "ready" on standard output; with "exit" it ends the
/// process there.
class FirstFramePlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FirstFramePlugin.json")

public:
    QObject *create(const QString &key, const QString &mode) override;
};

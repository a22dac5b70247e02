#pragma once

#include "shell/SidebarItem.h"

#include <QObject>

/// Stands where a screen will be that the program does not have yet: its title, its symbol and what it will hold.
class UpcomingView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(QString description READ description CONSTANT)

public:
    explicit UpcomingView(SidebarItem item)
        : item_(item)
    {
    }

    QString title() const { return sidebar::title(item_); }
    QString symbol() const { return sidebar::symbol(item_); }
    QString description() const;

private:
    SidebarItem item_;
};

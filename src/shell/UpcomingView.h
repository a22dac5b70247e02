#pragma once

#include "shell/SidebarItem.h"

#include <QObject>

#include <map>

/// Stands where a screen will be that the program does not have yet: its title, its symbol and what it will hold.
class UpcomingView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(QString description READ description CONSTANT)

public:
    /// What each of the screens that are to come will hold. The program has the others.
    static const std::map<SidebarItem, QString> &descriptions();

    /// `item` is one of those.
    explicit UpcomingView(SidebarItem item)
        : item_(item)
    {
    }

    QString title() const { return sidebar::title(item_); }
    QString symbol() const { return sidebar::symbol(item_); }
    QString description() const { return descriptions().at(item_); }

private:
    SidebarItem item_;
};

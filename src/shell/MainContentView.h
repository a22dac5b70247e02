#pragma once

#include "shell/ContentView.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>

/// Makes the model of the selected screen, anew at each selection, and tells which QML draws it. Also the title bar's
/// search pill. Main thread.
class MainContentView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *screen READ screen NOTIFY screenChanged)
    Q_PROPERTY(QString screenSource READ screenSource NOTIFY screenChanged)
    Q_PROPERTY(QString screenTitle READ screenTitle NOTIFY screenChanged)
    Q_PROPERTY(QString titleBarName READ titleBarName CONSTANT)
    Q_PROPERTY(QString searchPlaceholder READ searchPlaceholder CONSTANT)
    Q_PROPERTY(QString searchHint READ searchHint CONSTANT)
    Q_PROPERTY(QString searchTip READ searchTip CONSTANT)
    Q_PROPERTY(QString searchSequence READ searchSequence CONSTANT)

public:
    /// How a screen comes into being.
    struct Screen
    {
        QString source; ///< its QML file, relative to the look's folder
        std::function<std::shared_ptr<QObject>()>
            make;         ///< its model, which a command under way may keep alive
        QStringList keys; ///< the key equivalents that are its own while it is on view
    };
    using Screens = std::map<SidebarItem, Screen>;

    /// `screens` has all nine.
    MainContentView(const Platform &platform, ContentView &content, Screens screens);
    ~MainContentView() override;

    QObject *screen() const { return screen_.get(); }
    QString screenSource() const;
    QString screenTitle() const { return sidebar::title(content_.selectedItem()); }
    QString titleBarName() const { return QStringLiteral("Title bar"); } ///< for assistive technology
    QString searchPlaceholder() const { return QStringLiteral("Search files..."); }
    QString searchHint() const; ///< the pill's key
    QString searchTip() const;
    QString searchSequence() const; ///< the same key for the look's shortcut

    /// True when a key equivalent ("⌘R") belongs to the screen on view, so that the menu leaves it alone.
    bool claimsKey(const QString &keySigns) const;

    /// The screen on view has been seen, so what it loads may begin. Told once for each; later calls do nothing.
    void appear();

    bool hasAppeared() const { return hasAppeared_; }

    Q_INVOKABLE void openSearch();

signals:
    void screenChanged();
    void screenOpened(); ///< by whatever way, also when it is the one on view already

private:
    void showSelected();
    const Screen &selected() const;

    const Platform &platform_;
    ContentView &content_;
    const Screens screens_;
    std::shared_ptr<QObject> screen_;
    bool hasAppeared_ = false; // the screen on view
};

#pragma once

#include "program/FallbackPanel.h"
#include "support/TestPlatform.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQuickTest/quicktest.h>
#include <QtTest>

#include <functional>
#include <memory>
#include <optional>

#include <gtest/gtest.h>

/// The panels in a window that nobody sees, over a home of their own. The test turns their queues, so what they ask of
/// the disk is answered at once.
class FallbackPanelFixture : public ::testing::Test
{
public:
    ~FallbackPanelFixture() override
    {
        panel_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // sheets before their engine
    }

protected:
    static void SetUpTestSuite()
    {
        if (QQuickWindow::graphicsApi() != QSGRendererInterface::Software)
            QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }

    FallbackPanelFixture()
    {
        engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
        window_ = std::make_unique<QQuickWindow>();
        window_->resize(900, 700);
        window_->show();
        window_->requestActivate(); // or it gets no keys
        EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        panel_ = std::make_unique<FallbackPanel>();
        panel_->attach(engine_, *window_, home_.platform);
    }

    Workspace::PathChosen taker()
    {
        return [this](const std::optional<QString> &path) {
            ++answers_;
            path_ = path;
        };
    }
    void chooseFolder(const Workspace::FolderRequest &request)
    {
        panel_->chooseFolder(request, taker());
        settle();
    }
    void choosePath(const Workspace::SaveRequest &request)
    {
        panel_->chooseSavePath(request, taker());
        settle();
    }

    /// Until nothing is left to do and everything has its place.
    void settle()
    {
        home_.settle();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        home_.settle();
        if (QQuickTest::qIsPolishScheduled(window_.get()))
            QQuickTest::qWaitForPolish(window_.get());
    }

    /// What is drawn below `item` and passes `isWanted`; null when nothing does.
    static QQuickItem *findVisible(QQuickItem *item, const std::function<bool(QQuickItem *)> &isWanted)
    {
        if (!item->isVisible())
            return nullptr;
        if (isWanted(item))
            return item;
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = findVisible(child, isWanted))
                return found;
        }
        return nullptr;
    }

    QQuickItem *shown(const QString &text) const
    {
        return findVisible(window_->contentItem(),
                           [&](QQuickItem *item) { return item->property("text") == text; });
    }
    QQuickItem *named(const QString &name) const
    {
        return findVisible(window_->contentItem(),
                           [&](QQuickItem *item) { return item->objectName() == name; });
    }
    bool shows(const QString &text) const { return shown(text) != nullptr; }

    bool click(QQuickItem *item, bool isDouble = false)
    {
        if (!item || !item->isEnabled())
            return false;
        const QPoint middle = item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, middle);
        if (isDouble)
            QTest::mouseDClick(window_.get(), Qt::LeftButton, {}, middle);
        settle();
        return true;
    }
    /// The second click of two that the system takes for a double click.
    void clickASecondTime(QPoint where)
    {
        for (const auto type :
             {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            const bool isUp = type == QEvent::MouseButtonRelease;
            QMouseEvent event(type, where, window_->mapToGlobal(where), Qt::LeftButton,
                              isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(window_.get(), &event);
        }
    }
    bool clickOn(const QString &name) { return click(named(name)); }
    bool clickText(const QString &text) { return click(shown(text)); }
    bool doubleClickText(const QString &text) { return click(shown(text), true); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window_.get(), key, modifiers);
        settle();
    }
    void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(window_.get(), character.toLatin1());
        settle();
    }
    QString field() const { return named(QStringLiteral("panelName"))->property("text").toString(); }

    QString at(const QString &relative) const { return home_.home + QLatin1Char('/') + relative; }
    QString folder(const QString &relative) const
    {
        return home_.temp.folder(QStringLiteral("home/") + relative);
    }
    QString file(const QString &relative) const
    {
        return home_.temp.file(QStringLiteral("home/") + relative, "old");
    }

    TestPlatform home_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    std::unique_ptr<FallbackPanel> panel_;
    int answers_ = 0;
    std::optional<QString> path_;
};

#include "screens/ProgramUnderTest.h"

#include "screens/Contrast.h"
#include "screens/Scene.h"
#include "screens/Warnings.h"
#include "shell/UpcomingView.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQuickTest/quicktest.h>

#include <stdexcept>

namespace {

/// QML would take an item that it gets from a call for its own and delete it.
QQuickItem *lent(QQuickItem *item)
{
    if (item)
        QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    return item;
}

QString menuLine(const QQuickItem *item)
{
    if (item->property("isDivider").toBool())
        return QStringLiteral("-");
    QString line = item->property("text").toString();
    if (const QString keys = item->property("keysText").toString(); !keys.isEmpty())
        line += QStringLiteral(" (%1)").arg(keys);
    return item->isEnabled() ? line : line + QStringLiteral(" off");
}

bool isControl(const QQuickItem *item)
{
    for (const char *type :
         {"QQuickAbstractButton", "QQuickMouseArea", "QQuickTextInput", "QQuickTextEdit"}) {
        if (item->inherits(type))
            return true;
    }
    return item->activeFocusOnTab();
}

} // namespace

ProgramUnderTest::ProgramUnderTest(Surroundings &surroundings)
    : surroundings_(surroundings)
    , composition_(std::make_unique<Composition>(
          surroundings.platform(), surroundings.appearance(),
          feedback::Program{QStringLiteral("support@quillmere.example"), QStringLiteral("1.0.0"),
                            QStringLiteral("7")},
          [this] { ++exits_; }, Relaunch{QStringLiteral("/opt/quillmere"), [this] { ++lettings_; }}))
{
}

ProgramUnderTest::~ProgramUnderTest()
{
    composition_->sizeProbes().cancelProbes();
}

void ProgramUnderTest::show()
{
    if (!composition_->show())
        throw std::runtime_error("the window can't be loaded");
    firstScreen_ = selectedScreen();
    beganEarly_ = watchesDisk();
    composition_->attach(panel_);
}

void ProgramUnderTest::forget()
{
    surroundings_.forget();
    exits_ = 0;
    lettings_ = 0;
    panelAnswers_.clear();
}

QQuickItem *ProgramUnderTest::rootOf(QQuickItem *under) const
{
    return under ? under : window()->contentItem();
}

QQuickItem *ProgramUnderTest::named(const QString &name, QQuickItem *under) const
{
    return lent(scene::item(rootOf(under), [&name](QQuickItem *item) { return item->objectName() == name; }));
}

QQuickItem *ProgramUnderTest::textItem(const QString &text, QQuickItem *under) const
{
    return lent(scene::item(rootOf(under), [&text](QQuickItem *item) {
        return scene::isText(item) && item->property("text").toString() == text;
    }));
}

QQuickItem *ProgramUnderTest::itemWith(const QString &property, QQuickItem *under,
                                       const QVariant &value) const
{
    return lent(scene::item(rootOf(under), [name = property.toLatin1(), &value](QQuickItem *item) {
        const QVariant found = item->property(name.constData());
        return found.isValid() && (!value.isValid() || found == value);
    }));
}

QVariantList ProgramUnderTest::itemsWith(const QString &property, QQuickItem *under) const
{
    QVariantList found;
    for (QQuickItem *item : scene::items(rootOf(under), [name = property.toLatin1()](QQuickItem *candidate) {
             return candidate->property(name.constData()).isValid();
         }))
        found << QVariant::fromValue(lent(item));
    return found;
}

QString ProgramUnderTest::texts(QQuickItem *under) const
{
    QStringList lines;
    for (const QQuickItem *item : scene::texts(rootOf(under)))
        lines << item->property("text").toString();
    return lines.join(u'\n');
}

QString ProgramUnderTest::menuLines() const
{
    QStringList lines;
    for (const QQuickItem *item : scene::items(window()->contentItem(), [](QQuickItem *candidate) {
             return candidate->inherits("QQuickMenuItem");
         }))
        lines << menuLine(item);
    return lines.join(u'\n');
}

int ProgramUnderTest::controlCount(QQuickItem *under) const
{
    return static_cast<int>(scene::items(under, isControl).size());
}

QString ProgramUnderTest::focusPath() const
{
    QStringList path;
    for (const QQuickItem *item = window()->activeFocusItem(); item; item = item->parentItem())
        path << QString::fromLatin1(item->metaObject()->className()) + u' '
                    + item->property("text").toString();
    return path.join(u'\n');
}

bool ProgramUnderTest::settle() const
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return QQuickTest::qWaitForPolish(window());
}

QString ProgramUnderTest::faintTexts() const
{
    const contrast::Measure measure = contrast::measure(*window());
    return measure.texts > 0 ? measure.offenders.join(u'\n') : QStringLiteral("no text is on view");
}

void ProgramUnderTest::picture(const QString &name) const
{
    const QString folder = qEnvironmentVariable("QUILLMERE_PICTURES");
    if (!folder.isEmpty() && !window()->grabWindow().save(folder + u'/' + name + QStringLiteral(".png")))
        qWarning("The picture could not be saved.");
}

QStringList ProgramUnderTest::upcomingScreens() const
{
    QStringList titles;
    for (const auto &[item, description] : UpcomingView::descriptions())
        titles << sidebar::title(item);
    return titles;
}

QString ProgramUnderTest::selectedScreen() const
{
    return sidebar::title(composition_->content().selectedItem());
}

bool ProgramUnderTest::isSheetUp() const
{
    const ContentView &content = composition_->content();
    return content.showSettings() || content.showShortcuts() || content.showHistory();
}

QString ProgramUnderTest::takeWarnings() const
{
    return warnings::take();
}

void ProgramUnderTest::watchWarnings() const
{
    warnings::watch();
}

QQuickItem *ProgramUnderTest::addTextField(const QString &text)
{
    QQmlComponent component(&composition_->engine());
    component.setData(
        "import QtQuick\nTextInput { x: 500; y: 300; z: 9; width: 200; height: 30; color: \"gray\" }", {});
    textField_.reset(
        qobject_cast<QQuickItem *>(component.createWithInitialProperties({{QStringLiteral("text"), text}})));
    // Inside what gets the keyboard back when a menu closes, as the screens are.
    textField_->setParentItem(scene::item(
        window()->contentItem(), [](QQuickItem *item) { return item->inherits("QQuickContentItem"); }));
    return lent(textField_.get());
}

bool ProgramUnderTest::drag(const QString &step, const QStringList &addresses, QQuickItem *over)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &address : addresses)
        urls << QUrl(address);
    data.setUrls(urls);
    const QPointF middle = over->mapToScene(QPointF(over->width() / 2, over->height() / 2));
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragLeaveEvent leave;
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QEvent *event = &enter;
    if (step != QStringLiteral("enter"))
        event = step == QStringLiteral("leave") ? static_cast<QEvent *>(&leave) : &drop;
    QCoreApplication::sendEvent(window(), event);
    return event->isAccepted();
}

void ProgramUnderTest::repeatKey(int key, int modifiers) const
{
    // The way of the toolkit's own tests, which do not hand through that a key is held.
    const Qt::KeyboardModifiers held(modifiers);
    if (!qt_sendShortcutOverrideEvent(window(), 0, key, held, {}, true, 1))
        qt_handleKeyEvent(window(), QEvent::KeyPress, key, held, {}, true, 1);
}

void ProgramUnderTest::setActive(bool isActive)
{
    emit qGuiApp->applicationStateChanged(isActive ? Qt::ApplicationActive : Qt::ApplicationInactive);
}

void ProgramUnderTest::askForFolder(const QString &message)
{
    panel_.chooseFolder({message, {}, false}, answerTaker());
}

void ProgramUnderTest::askForSavePath(const QString &message, const QString &name)
{
    panel_.chooseSavePath({message, name, {}}, answerTaker());
}

Workspace::PathChosen ProgramUnderTest::answerTaker()
{
    return [this](const std::optional<QString> &path) {
        panelAnswers_ << path.value_or(QStringLiteral("none"));
    };
}

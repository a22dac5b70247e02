#include "screens/ProgramUnderTest.h"

#include "base/Paths.h"
#include "screens/Scene.h"
#include "screens/Warnings.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQuickTest/quicktest.h>

#include <stdexcept>

namespace {

constexpr double gigabyte = 1024.0 * 1024 * 1024;

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

ProgramUnderTest::ProgramUnderTest()
{
    fillHome();
    setVolume(500 * gigabyte, 200 * gigabyte, QStringLiteral("Disk"));
    connect(&notifications_, &NotificationCenter::posted, this,
            [this](const QString &name) { posted_ << name; });
    const feedback::Program program{QStringLiteral("support@quillmere.example"), QStringLiteral("1.0.0"),
                                    QStringLiteral("7")};
    composition_ = std::make_unique<Composition>(platform_, appearance_, program, [this] { ++exits_; });
    if (!composition_->show())
        throw std::runtime_error("the window can't be loaded");
    firstScreen_ = selectedScreen();
}

ProgramUnderTest::~ProgramUnderTest()
{
    textField_.reset();
    du_.open();
    composition_->disk().cancelProbes();
    composition_.reset();
}

/// The Mac's places, with one difference: the folders that only a program with full access can read would stand in the
/// home folder that the tests look at, so the home folder itself, which is readable, stands for them.
Locations ProgramUnderTest::locations() const
{
    Locations locations = macLocations(home_, temp_.at(QStringLiteral("Applications")));
    locations.accessProbeFolders = {home_};
    return locations;
}

/// Sizes of files count as they are told, so the room is not taken: only what lies three levels down is measured.
void ProgramUnderTest::fillHome() const
{
    constexpr qint64 kilobyte = 1024;
    constexpr qint64 megabyte = 1024 * kilobyte;
    temp_.sparseFile(QStringLiteral("home/Movies/birthday.mov"), 6 * megabyte);
    temp_.sparseFile(QStringLiteral("home/Movies/clip.mp4"), 2 * megabyte);
    temp_.sparseFile(QStringLiteral("home/Documents/thesis.pdf"), 3 * megabyte);
    temp_.file(QStringLiteral("home/Documents/Invoices/2026/january.pdf"), QByteArray(40 * kilobyte, 'j'));
    temp_.file(QStringLiteral("home/Documents/Invoices/summary.txt"), QByteArray(20 * kilobyte, 's'));
    for (int i = 10; i < 30; ++i)
        temp_.sparseFile(QStringLiteral("home/Equal/part-%1.bin").arg(i), 100 * kilobyte);
    temp_.sparseFile(QStringLiteral("home/notes.txt"), megabyte);
    temp_.sparseFile(QStringLiteral("home/tiny.txt"), 50 * kilobyte);
    temp_.folder(QStringLiteral("home/Empty"));
    temp_.sparseFile(QStringLiteral("home/.hidden"), megabyte);
    temp_.folder(QStringLiteral("hollow"));

    temp_.sparseFile(QStringLiteral("odd/line\nbreak/inside"), 9 * megabyte);
    temp_.sparseFile(QStringLiteral("odd/\"quoted\" & <b>bold/inside"), 8 * megabyte);
    temp_.sparseFile(QStringLiteral("odd/emoji \U0001F980/inside"), 7 * megabyte);
    temp_.sparseFile(QStringLiteral("odd/") + QString(255, u'w') + QStringLiteral("/inside"), 6 * megabyte);
    const QString notUtf8 = paths::fromBytes("bytes \xff\xfe");
    temp_.sparseFile(QStringLiteral("odd/") + notUtf8 + QStringLiteral("/inside"), 5 * megabyte);
    temp_.sparseFile(QStringLiteral("odd/") + notUtf8 + QStringLiteral("/") + notUtf8, megabyte);
    temp_.link(QStringLiteral("odd/loop"), QStringLiteral("."));
    temp_.link(QStringLiteral("odd/nowhere"), QStringLiteral("missing"));
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

void ProgramUnderTest::picture(const QString &name) const
{
    const QString folder = qEnvironmentVariable("QUILLMERE_PICTURES");
    if (!folder.isEmpty() && !window()->grabWindow().save(folder + u'/' + name + QStringLiteral(".png")))
        qWarning("The picture could not be saved.");
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

bool ProgramUnderTest::isScanning() const
{
    return composition_->disk().isScanningAnalyzer();
}

int ProgramUnderTest::probeCount() const
{
    size_t count = 0;
    for (const auto &[context, processes] : composition_->disk().liveSizeProbes())
        count += processes.size();
    return static_cast<int>(count);
}

QString ProgramUnderTest::takeWarnings() const
{
    return warnings::take();
}

void ProgramUnderTest::watchWarnings() const
{
    warnings::watch();
}

void ProgramUnderTest::forget()
{
    workspace_.calls.clear();
    workspace_.clipboard.clear();
    workspace_.address.clear();
    workspace_.folderRequest = {};
    posted_.clear();
    exits_ = 0;
}

QString ProgramUnderTest::encoded(const QString &path) const
{
    return QString::fromLatin1(paths::toBytes(path).toPercentEncoding("/"));
}

void ProgramUnderTest::setVolume(double total, double available, const QString &name)
{
    systemInfo_.volume = SystemInfo::Volume{static_cast<qint64>(total), static_cast<qint64>(available), name};
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

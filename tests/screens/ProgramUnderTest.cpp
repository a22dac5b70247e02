#include "screens/ProgramUnderTest.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "screens/EqualFiles.h"
#include "screens/Scene.h"
#include "screens/Warnings.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQuickTest/quicktest.h>

#include <filesystem>
#include <stdexcept>

namespace {

constexpr double gigabyte = 1024.0 * 1024 * 1024;
const QString protectedFolder = QStringLiteral("protected");

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
    diskGate_.open();
    composition_->disk().cancelProbes();
    composition_.reset();
}

/// The Mac's places, with one difference: the folders that only a program with full access can read would stand in the
/// home folder that the tests look at, so one beside it stands for them.
Locations ProgramUnderTest::locations() const
{
    Locations locations = macLocations(home_, temp_.at(QStringLiteral("Applications")));
    locations.accessProbeFolders = {temp_.at(protectedFolder)};
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
    setFullAccess(true);

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
    workspace_.settingsPage.clear();
    recycler_.recycled.clear();
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

bool ProgramUnderTest::exists(const QString &path) const
{
    return files::exists(path);
}

void ProgramUnderTest::remove(const QString &path) const
{
    std::filesystem::remove(path.toStdString());
}

void ProgramUnderTest::setFullAccess(bool isFull) const
{
    temp_.folder(protectedFolder);
    // A name that is no folder can't be listed, whoever the tests run as.
    if (!isFull)
        std::filesystem::remove(temp_.at(protectedFolder).toStdString());
}

void ProgramUnderTest::duringNextRecycle(const QJSValue &doing)
{
    trash_.duringNext([doing] {
        const QJSValue result = doing.call();
        if (result.isError())
            qWarning("during a move to the Trash: %ls", qUtf16Printable(result.toString()));
    });
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

QString ProgramUnderTest::makeTwins()
{
    const auto folder = [this] { return QStringLiteral("twins-%1").arg(twins_); };
    std::filesystem::remove_all(temp_.at(folder()).toStdString());
    ++twins_;
    equalfiles::fill(temp_, folder());
    return temp_.at(folder());
}

QString ProgramUnderTest::makePairs(int pairs) const
{
    const QString folder = QStringLiteral("pairs");
    equalfiles::fillPairs(temp_, folder, pairs);
    return temp_.at(folder);
}

void ProgramUnderTest::scanOnly(const QStringList &folders, int minSize)
{
    DuplicateService &service = composition_->duplicates();
    for (const QStringList before = service.scanPaths(); const QString &path : before)
        service.removeScanPath(path);
    for (const QString &folder : folders)
        service.addScanPath(folder);
    service.setMinFileSize(minSize);
}

void ProgramUnderTest::record(const QVariantMap &entry)
{
    const auto value = [&entry](const char *name) { return entry.value(QLatin1StringView(name)); };
    HistoryEntry record;
    record.id = QUuid::createUuid();
    record.timestamp = clock_.now();
    record.kind = history::kindNamed(value("kind").toString()).value();
    record.title = value("title").toString();
    record.paths = value("paths").toStringList();
    record.bytesAffected = value("bytes").toLongLong();
    record.success = !value("isFailed").toBool();
    if (value("detail").isValid())
        record.detail = value("detail").toString();
    composition_->history().record(record);
}

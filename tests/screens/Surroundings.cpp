#include "screens/Surroundings.h"

#include "base/FileRemoval.h"
#include "base/Files.h"
#include "base/Paths.h"

#include <filesystem>

namespace {
constexpr double gigabyte = 1024.0 * 1024 * 1024;
}

const QString Surroundings::protectedFolder = QStringLiteral("protected");

Surroundings::Surroundings()
{
    fillHome();
    setVolume(500 * gigabyte, 200 * gigabyte, QStringLiteral("Disk"));
    connect(&notifications_, &NotificationCenter::posted, this,
            [this](const QString &name) { posted_ << name; });
}

Surroundings::~Surroundings()
{
    du_.open();
    diskGate_.open();
}

/// The Mac's places, with one difference: the folders that only a program with full access can read would stand in the
/// home folder that the tests look at, so one beside it stands for them.
Locations Surroundings::locations() const
{
    Locations locations = macLocations(home_, temp_.at(QStringLiteral("Applications")));
    locations.accessProbeFolders = {temp_.at(protectedFolder)};
    return locations;
}

/// Sizes of files count as they are told, so the room is not taken: only what lies three levels down is measured.
void Surroundings::fillHome() const
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
    temp_.folder(protectedFolder);
}

void Surroundings::forget()
{
    workspace_.calls.clear();
    workspace_.clipboard.clear();
    workspace_.address.clear();
    workspace_.folderRequest = {};
    workspace_.settingsPage.clear();
    recycler_.recycled.clear();
    posted_.clear();
}

QString Surroundings::encoded(const QString &path) const
{
    return QString::fromLatin1(paths::toBytes(path).toPercentEncoding("/"));
}

bool Surroundings::exists(const QString &path) const
{
    return files::exists(path);
}

void Surroundings::remove(const QString &path) const
{
    std::filesystem::remove(path.toStdString());
}

QString Surroundings::saveRequest() const
{
    return workspace_.saveRequest.message + u'\n' + workspace_.saveRequest.suggestedName;
}

void Surroundings::administratorAgrees()
{
    recycler_.administrator = [](const QString &path) {
        files::removeTree(path);
        return std::optional<Recycler::AdminFailure>();
    };
}

void Surroundings::administratorFails(int number, const QString &message)
{
    recycler_.administrator = [number, message](const QString &) {
        return std::optional(Recycler::AdminFailure{.number = number, .message = message});
    };
}

void Surroundings::setVolume(double total, double available, const QString &name)
{
    systemInfo_.volume = SystemInfo::Volume{static_cast<qint64>(total), static_cast<qint64>(available), name};
}

void Surroundings::duringNextRecycle(const QJSValue &doing)
{
    trash_.duringNext([doing] {
        const QJSValue result = doing.call();
        if (result.isError())
            qWarning("during a move to the Trash: %ls", qUtf16Printable(result.toString()));
    });
}

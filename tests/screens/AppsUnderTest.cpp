#include "screens/AppsUnderTest.h"

#include "base/FileRemoval.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "makers/MadeBundle.h"
#include "screens/ToolHelpers.h"

#include <QBuffer>
#include <QImage>
#include <QJsonObject>
#include <QStringList>

namespace {

const toolhelpers::Registration<AppsUnderTest> appsHelper;

const QStringList watchedPlaces = {QStringLiteral("Applications"), QStringLiteral("home/Library")};

QByteArray picture()
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray content;
    QBuffer buffer(&content);
    image.save(&buffer, "png");
    return content;
}

} // namespace

AppsUnderTest::AppsUnderTest(Composition &composition, Surroundings &surroundings)
    : composition_(composition)
    , temp_(surroundings.temp())
{
}

void AppsUnderTest::bundle(const QString &name, const QString &identifier, int kilobytes,
                           const QString &picture) const
{
    QJsonObject description{{QStringLiteral("CFBundleName"), name},
                            {QStringLiteral("CFBundleIdentifier"), identifier},
                            {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.2")}};
    if (!picture.isEmpty())
        description.insert(QStringLiteral("CFBundleIconFile"), picture);
    MadeBundle{.path = temp_.at(QStringLiteral("Applications/%1.app").arg(name)),
               .description = description,
               .size = qint64(kilobytes) * 1024,
               .days = 3000} // ahead of the tests' clock
        .make();
}

void AppsUnderTest::file(const QString &relative, int kilobytes) const
{
    temp_.file(QStringLiteral("home/Library/") + relative, QByteArray(qsizetype(kilobytes) * 1024, 'a'));
}

void AppsUnderTest::fill() const
{
    for (const QString &place : watchedPlaces) {
        if (files::attributes(temp_.at(place)))
            files::removeTree(temp_.at(place));
        temp_.folder(place);
    }
    bundle(QStringLiteral("Alpha"), QStringLiteral("net.first.alpha"), 900);
    bundle(QStringLiteral("Beta"), QStringLiteral("net.second.beta"), 600, QStringLiteral("Icon.png"));
    temp_.file(QStringLiteral("Applications/Beta.app/Contents/Resources/Icon.png"), picture());
    bundle(QStringLiteral("Gamma"), QStringLiteral("net.third.gamma"), 300);
    file(QStringLiteral("Caches/net.first.alpha/data"), 100);
    file(QStringLiteral("Preferences/net.first.alpha.plist"), 2);
    file(QStringLiteral("Application Support/Alpha/state"), 50);
    file(QStringLiteral("Caches/org.vanished.tool/data"), 200);
    file(QStringLiteral("WebKit/org.vanished.tool/data"), 60);
    file(QStringLiteral("Preferences/org.vanished.tool.plist"), 3);
    file(QStringLiteral("Containers/org.departed.beta/data"), 80);
}

void AppsUnderTest::makeApps(int count) const
{
    for (int i = 1; i <= count; ++i)
        bundle(QStringLiteral("Small %1").arg(i), QStringLiteral("net.small.app%1").arg(i), 4);
}

void AppsUnderTest::removeGhosts() const
{
    files::removeTree(temp_.at(QStringLiteral("home/Library")));
    temp_.folder(QStringLiteral("home/Library"));
}

QString AppsUnderTest::content(const QString &path) const
{
    return QString::fromUtf8(files::readAll(path, qint64(1) << 20));
}

bool AppsUnderTest::isBusy() const
{
    const AppService &apps = composition_.apps();
    return apps.isLoading() || apps.isScanningGhosts() || apps.isRemoving();
}

void AppsUnderTest::rescanAll() const
{
    composition_.apps().scanInstalledApps();
    composition_.apps().scanGhosts();
}

#include "platform/linux/LinuxWorkspace.h"

#include "base/Paths.h"
#include "StandInService.h"
#include "WaitUntil.h"
#include "WorkspaceFixture.h"

#include <QClipboard>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QGuiApplication>

#include <algorithm>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString fileManager = u"org.freedesktop.FileManager1"_s;
const QString fileManagerPath = u"/org/freedesktop/FileManager1"_s;
const QString previewer = u"org.gnome.NautilusPreviewer"_s;
const QString previewerPath = u"/org/gnome/NautilusPreviewer"_s;
const QString portal = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;

/// Names that a shell, an address, a text or a terminal could take apart.
const QByteArrayList hostileNames = {
    "line\nbreak", "quote\"'`$(x)",      "50%25 #? &;", "-rf",     "\\x41\\n",
    "emoji 🗂",  "bytes \xFF\xC3\x28", " ",           "[::]:80",
};

class LinuxWorkspaceTest : public WorkspaceFixture
{
protected:
    /// True when what was asked for so far starts no program: the next one to start is the only one.
    bool opensNothing()
    {
        const bool isDone = workQueue_.waitUntilIdle();
        workspace().openAddress("next:one");
        return isDone && onlyStart().mid(2) == QByteArrayList{"next:one"};
    }
};

/// Answers with an error to each call.
QDBusMessage refuse(const QDBusMessage &call)
{
    return call.createErrorReply(u"org.freedesktop.DBus.Error.Failed"_s, u"no"_s);
}

bool isTheFile(const QVariant &descriptor, const QString &path)
{
    struct stat handed = {};
    struct stat wanted = {};
    return fstat(descriptor.value<QDBusUnixFileDescriptor>().fileDescriptor(), &handed) == 0
           && stat(paths::toBytes(path).constData(), &wanted) == 0 && handed.st_ino == wanted.st_ino
           && handed.st_dev == wanted.st_dev;
}

} // namespace

TEST_F(LinuxWorkspaceTest, opensByXdgOpen)
{
    addProgram(u"xdg-open"_s);
    workspace().open(home("bytes \xFF\n%"));
    const QByteArrayList start = onlyStart();
    EXPECT_EQ(start.mid(2), QByteArrayList{paths::fileUrl(home()) + "/bytes%20%FF%0A%25"});
}

TEST_F(LinuxWorkspaceTest, opensAddressesAsTheyStand)
{
    addProgram(u"xdg-open"_s);
    workspace().openAddress("mailto:a@example.org?subject=x%20y&body=%F0%9F%97%82");
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{"mailto:a@example.org?subject=x%20y&body=%F0%9F%97%82"});
}

TEST_F(LinuxWorkspaceTest, opensNothingThatIsNoAddress)
{
    addProgram(u"xdg-open"_s);
    for (const QByteArray &text :
         {QByteArray(), QByteArray("--help"), QByteArray("-x:y"), QByteArray("/etc/passwd"),
          QByteArray("a b:c"), QByteArray(":"), QByteArray("http\0:x", 7)})
        workspace().openAddress(text);
    workspace().openAddress("https://example.org/");
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{"https://example.org/"});
}

TEST_F(LinuxWorkspaceTest, survivesADesktopWithoutAnyProgram)
{
    hasBus_ = false;
    workspace().open(home());
    workspace().openAddress("https://example.org/");
    workspace().reveal(home("x"));
    workspace().showFolder(home());
    workspace().quickLook(home("x"));
    workspace().openTerminal(home());
    ASSERT_TRUE(workQueue_.waitUntilIdle());
    addProgram(u"xdg-open"_s);
    workspace().open(home("now"));
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{addressOf("now")});
}

TEST_F(LinuxWorkspaceTest, revealsByTheFileManager)
{
    addProgram(u"xdg-open"_s);
    StandInService service(bus_.connect(), fileManager, fileManagerPath);
    for (const QByteArray &name : hostileNames)
        workspace().reveal(home(name));
    ASSERT_TRUE(waitUntil([&] { return service.calls.size() == hostileNames.size(); }));
    QByteArrayList revealed;
    for (const QDBusMessage &call : service.calls) {
        EXPECT_EQ(call.interface(), fileManager);
        EXPECT_EQ(call.path(), fileManagerPath);
        EXPECT_EQ(call.member(), u"ShowItems"_s);
        EXPECT_EQ(call.signature(), u"ass"_s);
        EXPECT_EQ(call.arguments().value(1).toString(), QString());
        revealed.append(call.arguments().value(0).toStringList().join(u' ').toLatin1());
    }
    QByteArrayList expected;
    for (const QByteArray &name : hostileNames)
        expected.append(addressOf(name));
    std::sort(revealed.begin(), revealed.end()); // each runs on its own
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(revealed, expected);
    EXPECT_TRUE(opensNothing());
}

TEST_F(LinuxWorkspaceTest, returnsAtOnceFromAFileManagerThatIsSlow)
{
    bool isTaken = false;
    StandInService service(bus_.connect(), fileManager, fileManagerPath, [&](const QDBusMessage &call) {
        isTaken = true;
        return call.createReply();
    });
    workspace().reveal(home("x"));
    EXPECT_FALSE(isTaken); // it answers on this thread, so to wait for it here would never end
    EXPECT_TRUE(waitUntil([&] { return isTaken; }));
}

TEST_F(LinuxWorkspaceTest, revealsByThePortalWithoutAFileManager)
{
    addProgram(u"xdg-open"_s);
    StandInService service(bus_.connect(), portal, portalPath, [](const QDBusMessage &call) {
        return call.createReply(QVariant::fromValue(QDBusObjectPath(portalPath + u"/request/1/2"_s)));
    });
    const QString path = temp_.file(u"home/file"_s, "x");
    workspace().reveal(path);
    ASSERT_TRUE(waitUntil([&] { return !service.calls.empty(); }));
    const QDBusMessage call = service.calls.first();
    EXPECT_EQ(call.interface(), u"org.freedesktop.portal.OpenURI"_s);
    EXPECT_EQ(call.member(), u"OpenDirectory"_s);
    EXPECT_EQ(call.signature(), u"sha{sv}"_s);
    EXPECT_TRUE(isTheFile(call.arguments().value(1), path));
    EXPECT_TRUE(opensNothing());
}

TEST_F(LinuxWorkspaceTest, revealsByOpeningTheFolderWhenAllElseRefuses)
{
    addProgram(u"xdg-open"_s);
    StandInService manager(bus_.connect(), fileManager, fileManagerPath, refuse);
    StandInService service(bus_.connect(), portal, portalPath, refuse);
    workspace().reveal(temp_.file(u"home/file"_s, "x"));
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{paths::fileUrl(home())});
    EXPECT_EQ(manager.calls.size(), 1);
    EXPECT_EQ(service.calls.size(), 1);
}

TEST_F(LinuxWorkspaceTest, revealsByOpeningTheFolderWithoutABus)
{
    hasBus_ = false;
    addProgram(u"xdg-open"_s);
    workspace().reveal(home("gone"));
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{paths::fileUrl(home())});
}

TEST_F(LinuxWorkspaceTest, showsFoldersByTheFileManager)
{
    StandInService service(bus_.connect(), fileManager, fileManagerPath);
    workspace().showFolder(home("bytes \xFF"));
    ASSERT_TRUE(waitUntil([&] { return !service.calls.empty(); }));
    EXPECT_EQ(service.calls.first().member(), u"ShowFolders"_s);
    EXPECT_EQ(service.calls.first().arguments().value(0).toStringList(),
              QStringList{QString::fromLatin1(addressOf("bytes \xFF"))});
}

TEST_F(LinuxWorkspaceTest, showsFoldersByOpeningThemWithoutAFileManager)
{
    addProgram(u"xdg-open"_s);
    workspace().showFolder(home("a folder"));
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{addressOf("a folder")});
}

TEST_F(LinuxWorkspaceTest, showsAQuickLookByThePreviewer)
{
    addProgram(u"xdg-open"_s);
    StandInService service(bus_.connect(), previewer, previewerPath);
    workspace().quickLook(home("line\nbreak \xFF %"));
    EXPECT_TRUE(service.calls.empty())
        << "It answers on this thread, so to wait for it here would never end.";
    ASSERT_TRUE(waitUntil([&] { return !service.calls.empty(); }));
    const QDBusMessage call = service.calls.first();
    EXPECT_EQ(call.path(), previewerPath);
    EXPECT_EQ(call.interface(), u"org.gnome.NautilusPreviewer2"_s);
    EXPECT_EQ(call.member(), u"ShowFile"_s);
    EXPECT_EQ(call.signature(), u"ssb"_s);
    EXPECT_EQ(call.arguments().value(0).toString().toLatin1(), addressOf("line\nbreak \xFF %"));
    EXPECT_EQ(call.arguments().value(1).toString(), QString());
    EXPECT_EQ(call.arguments().value(2), QVariant(false)) << "It would close what is on view.";
    EXPECT_TRUE(opensNothing());
}

TEST_F(LinuxWorkspaceTest, showsAQuickLookByOpeningWithoutAPreviewer)
{
    addProgram(u"xdg-open"_s);
    workspace().quickLook(home("a file"));
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{addressOf("a file")});
}

TEST_F(LinuxWorkspaceTest, showsAQuickLookByOpeningWhenThePreviewerRefuses)
{
    addProgram(u"xdg-open"_s);
    StandInService service(bus_.connect(), previewer, previewerPath, refuse);
    workspace().quickLook(home("a file"));
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{addressOf("a file")});
    EXPECT_EQ(service.calls.size(), 1);
}

TEST_F(LinuxWorkspaceTest, showsAQuickLookByOpeningWithoutABus)
{
    hasBus_ = false;
    addProgram(u"xdg-open"_s);
    workspace().quickLook(home("a file"));
    EXPECT_EQ(onlyStart().mid(2), QByteArrayList{addressOf("a file")});
}

TEST_F(LinuxWorkspaceTest, opensTheUsersTerminalInTheFolder)
{
    addProgram(u"xdg-terminal-exec"_s);
    addProgram(u"x-terminal-emulator"_s);
    workspace().openTerminal(home());
    EXPECT_EQ(onlyStart(), (QByteArrayList{"xdg-terminal-exec", paths::toBytes(home())}));
}

TEST_F(LinuxWorkspaceTest, opensTheSystemsTerminalWhereTheUsersCantBeStarted)
{
    temp_.file(u"bin/xdg-terminal-exec"_s, "#!/bin/sh\n"); // no program: it has no leave to run
    addProgram(u"x-terminal-emulator"_s);
    const QByteArray name = "line\nbreak \xFF \"$(x)\"";
    ASSERT_EQ(mkdir(paths::toBytes(home(name)).constData(), 0777), 0);
    workspace().openTerminal(home(name));
    EXPECT_EQ(onlyStart(), (QByteArrayList{"x-terminal-emulator", paths::toBytes(home(name))}));
}

TEST_F(LinuxWorkspaceTest, copiesTextWithoutBytesThatAreNotUtf8)
{
    workspace().copyText(paths::fromBytes("/home/ada/\xFF\n🗂"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"/home/ada/\uFFFD\n🗂"_s);
    workspace().copyText({});
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
}

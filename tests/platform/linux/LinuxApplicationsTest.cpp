#include "platform/linux/LinuxApplications.h"

#include "base/ChildProcess.h"
#include "base/Paths.h"
#include "platform/linux/DesktopEntry.h"
#include "support/FifoLine.h"
#include "support/TempHome.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class LinuxApplicationsTest : public testing::Test
{
protected:
    TempHome temp;
    Lazy<Locations> locations{[this] {
        Locations made;
        made.desktopEntryFolders = {temp.at(u"own"_s), temp.at(u"system"_s)};
        return made;
    }};
    const LinuxApplications applications{locations, {temp.at(u"bin"_s)}, temp.at(u"proc"_s)};

    void entry(const QString &relative, const QByteArray &lines) const
    {
        temp.file(relative + u".desktop"_s, "[Desktop Entry]\nType=Application\nName=App\n" + lines);
    }

    QStringList known(const QString &identifier) const { return applications.knownPaths(identifier); }
};

const QString id = u"org.example.Tides"_s;

} // namespace

TEST_F(LinuxApplicationsTest, tellsThePathsOfRunningPrograms)
{
    temp.link(u"proc/1/exe"_s, u"/usr/lib/systemd"_s);
    temp.link(u"proc/23/exe"_s, u"/opt/Tides.app/Contents/MacOS/Tides"_s);
    temp.link(u"proc/24/exe"_s, u"/opt/Tides.app/Contents/MacOS/Tides"_s);
    temp.link(u"proc/self/exe"_s, u"/bin/self"_s);
    temp.link(u"proc/4x/exe"_s, u"/bin/no/process"_s);
    temp.link(u"proc/55/exe"_s, u"/opt/Updated (deleted)"_s);
    temp.link(u"proc/56/exe"_s, paths::fromBytes("/opt/\xff"));
    temp.folder(u"proc/77"_s);
    temp.file(u"proc/78/exe"_s);
    QStringList running = applications.runningPaths();
    running.sort();
    EXPECT_EQ(running, (QStringList{u"/opt/Tides.app/Contents/MacOS/Tides"_s, u"/opt/Updated (deleted)"_s,
                                    paths::fromBytes("/opt/\xff"), u"/usr/lib/systemd"_s}));
}

TEST_F(LinuxApplicationsTest, tellsOfAProgramThatReallyRuns)
{
    const LinuxApplications real(locations, {});
    const QString program = temp.at(u"Tides.app/Contents/MacOS/Tides"_s);
    temp.folder(u"Tides.app/Contents/MacOS"_s);
    std::filesystem::copy_file("/bin/sh", program.toStdString());
    EXPECT_FALSE(real.runningPaths().contains(program));

    const FifoLine told(temp.at(u"told"_s));
    const FifoLine awaited(temp.at(u"awaited"_s));
    ChildProcess child(
        program, {u"-c"_s, u"echo up >\"$1\"; read line <\"$2\""_s, u"sh"_s, told.path(), awaited.path()});
    child.launch();
    EXPECT_EQ(told.read(), "up");
    EXPECT_TRUE(real.runningPaths().contains(program));
    EXPECT_TRUE(real.runningPaths().contains(
        QString::fromStdString(std::filesystem::read_symlink("/proc/self/exe"))));

    child.terminate();
    child.waitUntilExit();
    EXPECT_FALSE(real.runningPaths().contains(program));
}

TEST_F(LinuxApplicationsTest, tellsOfNoneWithoutAProcessFolder)
{
    EXPECT_EQ(applications.runningPaths(), QStringList());
}

TEST_F(LinuxApplicationsTest, knowsAnIdentifierByItsEntrysProgram)
{
    const QString program = temp.script(u"bin/tides"_s, "");
    entry(u"system/org.example.Tides"_s, "Exec=tides --open %U\n");
    EXPECT_EQ(known(id), QStringList(program));
    EXPECT_EQ(known(u"org.example.tides"_s), QStringList());
    EXPECT_EQ(known(u"org.example"_s), QStringList());
    EXPECT_EQ(known(u"org.example.Tides.helper"_s), QStringList());
}

TEST_F(LinuxApplicationsTest, tellsAPathAsTheEntryNamesIt)
{
    entry(u"own/org.example.Tides"_s, "Exec=\"/opt/Tide Tables/tides\" %U\n");
    EXPECT_EQ(known(id), QStringList(u"/opt/Tide Tables/tides"_s));
}

TEST_F(LinuxApplicationsTest, knowsNoneWhoseProgramIsNotThere)
{
    entry(u"own/org.example.Tides"_s, "Exec=tides\n");
    EXPECT_EQ(known(id), QStringList());
    temp.file(u"bin/tides"_s); // no program
    EXPECT_EQ(known(id), QStringList());
    temp.script(u"bin/tides"_s, "");
    EXPECT_EQ(known(id).size(), 1);
    entry(u"own/org.example.Tides"_s, "Exec=tides\nTryExec=missing\n");
    EXPECT_EQ(known(id), QStringList());
    entry(u"own/org.example.Tides"_s, "Exec=bin/tides\n");
    EXPECT_EQ(known(id), QStringList());
}

TEST_F(LinuxApplicationsTest, believesTheFirstFolderThatHasTheEntry)
{
    temp.script(u"bin/tides"_s, "");
    entry(u"system/org.example.Tides"_s, "Exec=tides\n");
    entry(u"own/org.example.Tides"_s, "Exec=/home/own\n");
    EXPECT_EQ(known(id), QStringList(u"/home/own"_s));
    entry(u"own/org.example.Tides"_s, "Exec=/home/own\nHidden=true\n");
    EXPECT_EQ(known(id), QStringList());
}

TEST_F(LinuxApplicationsTest, knowsOneThatIsStartedByAMessageAlone)
{
    entry(u"own/org.example.Tides"_s, "DBusActivatable=true\n");
    EXPECT_EQ(known(id), QStringList(temp.at(u"own/org.example.Tides.desktop"_s)));
    entry(u"own/org.example.Tides"_s, "");
    EXPECT_EQ(known(id), QStringList());
}

TEST_F(LinuxApplicationsTest, looksForAnIdentifierInsideItsFoldersAlone)
{
    temp.script(u"bin/tides"_s, "");
    entry(u"elsewhere"_s, "Exec=tides\n");
    entry(u"own/inner/entry"_s, "Exec=tides\n");
    entry(u"own/"_s, "Exec=tides\n"); // ".desktop"
    for (const QString &identifier :
         {u"../elsewhere"_s, u"inner/entry"_s, u""_s, u"."_s, u".."_s, QString(100000, u'x')})
        EXPECT_EQ(known(identifier), QStringList()) << identifier.left(50).toStdString();
}

TEST(DesktopEntry, isOfAnApplicationAndWhole)
{
    const QByteArray head = "[Desktop Entry]\n";
    EXPECT_EQ(DesktopEntry::parse("# comment\n" + head
                                  + "Type=Application\nExec=tides %U\n[Desktop Action New]\nExec=other\n"),
              (DesktopEntry{u"tides"_s, {}, false}));
    EXPECT_EQ(DesktopEntry::parse(
                  head + "Type=Application\nExec=\"a\\\\\\\\b\" c\nTryExec=t\nDBusActivatable=true\n"),
              (DesktopEntry{u"a\\b"_s, u"t"_s, true}));
    EXPECT_EQ(DesktopEntry::parse(head + "Type=Application\nExec=\"not closed\n"), DesktopEntry());
    for (const QByteArray &content :
         {QByteArray(), head, head + "Type=Link\nURL=x\n", head + "Exec=tides\n",
          QByteArray("Type=Application\n"), head + "Type=Application\nExec=tides\nnonsense\n",
          QByteArray(1000, '\0'), head + "Type=Application\nHidden=true\n"})
        EXPECT_EQ(DesktopEntry::parse(content), std::nullopt) << content.toStdString();
}

#include "apps/AppServices.h"
#include "base/Files.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AssociatedFilesTest : public testing::Test
{
protected:
    /// An application of that name and identifier, with what a scan finds of it.
    RealInstalledApp scanned(const QString &name, const QString &identifier)
    {
        const QString path = services.bundle(
            u"Notes.app"_s, {{u"CFBundleName"_s, name}, {u"CFBundleIdentifier"_s, identifier}});
        services.scan();
        return services.at(path).value_or(RealInstalledApp());
    }

    /// "category path", from the library on.
    QStringList told(const RealInstalledApp &app) const
    {
        QStringList lines;
        for (const AssociatedFile &file : app.associatedFiles)
            lines << file.category + u' ' + file.path.mid(services.inLibrary({}).size());
        return lines;
    }

    qint64 measured(const QString &relative)
    {
        return services.test.probes.probeSize(services.inLibrary(relative), ProbeContext::generic);
    }

    AppServices services;
    const QString id = u"com.example.notes"_s;
};

} // namespace

TEST_F(AssociatedFilesTest, areFoundInTheOrderOfTheTable)
{
    for (const QString &folder : {u"WebKit"_s, u"HTTPStorages"_s, u"Group Containers"_s, u"Containers"_s,
                                  u"Application Support"_s, u"Caches"_s})
        services.file(folder + u'/' + id + u"/data"_s);
    services.file(u"Saved Application State/com.example.notes.savedState/data"_s);
    services.file(u"Application Support/Notes/data"_s);
    services.file(u"Preferences/com.example.notes.plist"_s, 321);
    const RealInstalledApp app = scanned(u"Notes"_s, id);
    EXPECT_EQ(
        told(app),
        (QStringList{
            u"Cache Caches/com.example.notes"_s, u"Preferences Preferences/com.example.notes.plist"_s,
            u"Support Application Support/Notes"_s, u"Support Application Support/com.example.notes"_s,
            u"Container Containers/com.example.notes"_s, u"Container Group Containers/com.example.notes"_s,
            u"Other Saved Application State/com.example.notes.savedState"_s,
            u"Other HTTPStorages/com.example.notes"_s, u"Other WebKit/com.example.notes"_s}));
    for (const AssociatedFile &file : app.associatedFiles) {
        EXPECT_TRUE(file.selected);
        EXPECT_FALSE(file.id.isNull());
    }
}

TEST_F(AssociatedFilesTest, countForTheSizeOfTheirKind)
{
    services.file(u"Caches/com.example.notes/data"_s, 10000);
    services.file(u"Preferences/com.example.notes.plist"_s, 321);
    services.file(u"Application Support/Notes/data"_s, 20000);
    services.file(u"Application Support/com.example.notes/data"_s, 30000);
    services.file(u"Containers/com.example.notes/data"_s, 40000);
    services.file(u"Group Containers/com.example.notes/data"_s, 50000);
    services.file(u"WebKit/com.example.notes/data"_s, 60000);
    const RealInstalledApp app = scanned(u"Notes"_s, id);
    EXPECT_EQ(app.cacheSize, measured(u"Caches/com.example.notes"_s));
    EXPECT_EQ(app.preferencesSize, 321);
    EXPECT_EQ(app.supportSize, measured(u"Application Support/Notes"_s)
                                   + measured(u"Application Support/com.example.notes"_s));
    EXPECT_EQ(app.containerSize, measured(u"Containers/com.example.notes"_s)
                                     + measured(u"Group Containers/com.example.notes"_s));
    EXPECT_EQ(app.totalSize(),
              app.size + app.cacheSize + app.preferencesSize + app.supportSize + app.containerSize);
    ASSERT_EQ(app.associatedFiles.size(), 7U);
    EXPECT_EQ(app.associatedFiles.back().size, measured(u"WebKit/com.example.notes"_s));
    EXPECT_GE(app.associatedFiles.back().size, 60000);
}

TEST_F(AssociatedFilesTest, bearExactlyTheNameOrTheIdentifier)
{
    for (const QString &name :
         {u"com.example.notes.extra"_s, u"com.example"_s, u"Com.Example.Notes"_s, u"notes"_s, u"Notes 2"_s})
        services.file(u"Application Support/"_s + name + u"/data"_s);
    services.file(u"Group Containers/ABCDE12345.com.example.notes/data"_s);
    services.file(u"Preferences/com.example.notes.helper.plist"_s);
    services.file(u"Caches/Notes/data"_s); // named after the name, where identifiers alone count
    EXPECT_EQ(told(scanned(u"Notes"_s, id)), QStringList());
}

TEST_F(AssociatedFilesTest, areAtLeastAByteLarge)
{
    services.test.useDu("case $2 in *Caches*) echo \"0\t$2\";; *) exec /usr/bin/du \"$@\";; esac");
    services.test.temp.folder(u"home/Library/Caches/com.example.notes"_s);
    services.file(u"Preferences/com.example.notes.plist"_s, 0);
    EXPECT_EQ(told(scanned(u"Notes"_s, id)), QStringList());
    services.file(u"Preferences/com.example.notes.plist"_s, 1);
    EXPECT_EQ(told(scanned(u"Notes"_s, id)),
              QStringList(u"Preferences Preferences/com.example.notes.plist"_s));
}

TEST_F(AssociatedFilesTest, areFoundTwiceWhereNameAndIdentifierAreOne)
{
    services.file(u"Application Support/com.example.notes/data"_s);
    const RealInstalledApp app = scanned(id, id);
    EXPECT_EQ(told(app), (QStringList{u"Support Application Support/com.example.notes"_s,
                                      u"Support Application Support/com.example.notes"_s}));
    EXPECT_EQ(app.supportSize, 2 * measured(u"Application Support/com.example.notes"_s));
    EXPECT_NE(app.associatedFiles[0].id, app.associatedFiles[1].id);
}

TEST_F(AssociatedFilesTest, areLookedForUnderTheWordUnknownWithoutAnIdentifier)
{
    services.file(u"Caches/unknown/data"_s);
    const QString path = services.bundle(u"Plain.app"_s);
    services.scan();
    EXPECT_EQ(told(*services.at(path)), QStringList(u"Cache Caches/unknown"_s));
}

TEST_F(AssociatedFilesTest, areNotThereWhereALinkLeadsNowhere)
{
    services.test.temp.link(u"home/Library/Caches/com.example.notes"_s, u"missing"_s);
    services.test.temp.link(u"home/Library/Preferences/com.example.notes.plist"_s, u"missing"_s);
    EXPECT_EQ(told(scanned(u"Notes"_s, id)), QStringList());
}

// Whoever made the application chose these names: one that led elsewhere would offer the user's own files for removal.
TEST_F(AssociatedFilesTest, lieDirectlyInsideTheirFolderWhateverTheApplicationCallsItself)
{
    services.file(u"Caches/data"_s);
    services.file(u"Caches/com.example.notes/data"_s);
    services.file(u"Application Support/data"_s);
    services.file(u"Application Support/a/b/data"_s);
    services.file(u"Application Support/Other/data"_s);
    services.file(u"Preferences/.plist"_s);
    services.file(u"Preferences/..plist"_s);
    services.file(u"Saved Application State/.savedState/data"_s);
    services.test.temp.file(u"home/Documents/own"_s, QByteArray(9000, 'x'));
    services.test.temp.file(u"home/Documents.plist"_s, QByteArray(9000, 'x'));
    const QStringList names = {u""_s,
                               u"."_s,
                               u".."_s,
                               u"../../Documents"_s,
                               u"../Application Support/Other"_s,
                               u"a/b"_s,
                               u"/"_s,
                               u"./Other"_s,
                               u"Other/"_s,
                               u"Other/."_s,
                               u"Other/.."_s,
                               services.test.home,
                               QString(100000, u'n')};
    for (const QString &name : names) {
        EXPECT_EQ(told(scanned(name, name)), QStringList()) << name.left(100).toStdString();
        EXPECT_EQ(scanned(name, name).name, name);
        EXPECT_EQ(scanned(name, name).bundleID, name);
        // The sound one of the two finds its file all the same.
        EXPECT_EQ(told(scanned(name, id)), QStringList(u"Cache Caches/com.example.notes"_s));
        EXPECT_EQ(told(scanned(u"Other"_s, name)), QStringList(u"Support Application Support/Other"_s));
    }
}

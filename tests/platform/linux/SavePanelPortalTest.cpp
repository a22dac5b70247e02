#include "base/Paths.h"
#include "PanelAnswer.h"
#include "platform/linux/PanelPortal.h"
#include "StandInPanelPortal.h"
#include "WaitUntil.h"
#include "WorkspaceFixture.h"

#include <QDBusArgument>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class SavePanelPortalTest : public WorkspaceFixture
{
};

} // namespace

TEST_F(SavePanelPortalTest, asksThePortalWhereToSave)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseSavePath({u"Export"_s, u"größe \n%.csv"_s, home("start \xFF")}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    const QDBusMessage call = service.calls().first();
    EXPECT_EQ(call.interface(), u"org.freedesktop.portal.FileChooser"_s);
    EXPECT_EQ(call.member(), u"SaveFile"_s);
    EXPECT_EQ(call.signature(), u"ssa{sv}"_s);
    EXPECT_EQ(call.arguments().value(0), QVariant(QString()));
    EXPECT_EQ(service.title, u"Export"_s);
    EXPECT_EQ(service.options.value(u"current_name"_s), QVariant(u"größe \n%.csv"_s));
    EXPECT_EQ(service.options.value(u"current_folder"_s),
              QVariant(paths::toBytes(home("start \xFF")) + '\0'));
    EXPECT_EQ(service.options.value(u"modal"_s), QVariant(true));
    EXPECT_FALSE(service.options.contains(u"directory"_s)) << "It would ask for a folder.";
    EXPECT_EQ(answer.count, 0);
    service.respond(0, {QString::fromLatin1(addressOf("line\nbreak \xFF 🗂.csv"))});
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, home("line\nbreak \xFF 🗂.csv"));
    EXPECT_TRUE(saveRequests_.empty());
}

TEST_F(SavePanelPortalTest, asksOnlyForWhatItIsTold)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseSavePath({u"Export"_s, {}, {}}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    EXPECT_FALSE(service.options.contains(u"current_folder"_s));
    EXPECT_FALSE(service.options.contains(u"current_name"_s));
    EXPECT_FALSE(service.options.contains(u"filters"_s));
}

TEST_F(SavePanelPortalTest, tellsThePortalOfTheTypeOfTheFile)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseSavePath({u"Export"_s, u"a.csv"_s, {}, Workspace::FileType::commaSeparatedText},
                               answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    const auto filters = service.options.value(u"filters"_s).value<QDBusArgument>();
    ASSERT_EQ(filters.currentSignature(), u"a(sa(us))"_s);
    QStringList told;
    filters.beginArray();
    while (!filters.atEnd()) {
        QString name;
        filters.beginStructure();
        filters >> name;
        told << name;
        filters.beginArray();
        while (!filters.atEnd()) {
            uint kind = 0;
            QString pattern;
            filters.beginStructure();
            filters >> kind >> pattern;
            filters.endStructure();
            told << u"%1 %2"_s.arg(kind).arg(pattern);
        }
        filters.endArray();
        filters.endStructure();
    }
    filters.endArray();
    EXPECT_EQ(told, QStringList({u"CSV"_s, u"0 *.csv"_s, u"1 text/csv"_s}));
}

TEST_F(SavePanelPortalTest, suggestsNoBytesThatAreNotUtf8)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseSavePath({paths::fromBytes("Export \xFF"), paths::fromBytes("a\xFF.csv"), {}},
                               answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    EXPECT_EQ(service.title, u"Export \uFFFD"_s);
    EXPECT_EQ(service.options.value(u"current_name"_s), QVariant(u"a\uFFFD.csv"_s));
}

TEST_F(SavePanelPortalTest, givesNoPathWhenItIsCancelled)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    service.respond(1, {});
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, std::nullopt);
    EXPECT_TRUE(saveRequests_.empty());
}

TEST_F(SavePanelPortalTest, showsTheFallbackPanelWithoutAPortal)
{
    PanelAnswer answer;
    workspace().chooseSavePath({u"Export"_s, u"a.csv"_s, u"/start"_s}, answer.taker());
    EXPECT_EQ(answer.count, 0) << "The answer comes in a later turn.";
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/saved by the fallback"_s);
    ASSERT_EQ(saveRequests_.size(), 1U);
    EXPECT_EQ(saveRequests_[0].message, u"Export"_s);
    EXPECT_EQ(saveRequests_[0].suggestedName, u"a.csv"_s);
    EXPECT_EQ(saveRequests_[0].start, u"/start"_s);
    EXPECT_TRUE(panelRequests_.empty());
}

TEST_F(SavePanelPortalTest, showsTheFallbackPanelWithoutABus)
{
    hasBus_ = false;
    PanelAnswer answer;
    workspace().chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, answer.taker());
    EXPECT_EQ(answer.count, 0) << "The answer comes in a later turn.";
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/saved by the fallback"_s);
}

TEST_F(SavePanelPortalTest, showsTheFallbackPanelWhenThePortalCantShowItsOwn)
{
    StandInPanelPortal service(bus_.connect());
    service.immediateCode = 2;
    PanelAnswer answer;
    workspace().chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, answer.taker());
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/saved by the fallback"_s);
    EXPECT_EQ(service.calls().size(), 1);
    EXPECT_EQ(saveRequests_.size(), 1U);
}

TEST_F(SavePanelPortalTest, givesNoPathWithoutAPortalAndAFallback)
{
    LinuxWorkspace bare({.bus = bus_.connect(), .searchPath = {}}, workQueue_);
    PanelAnswer folder;
    bare.chooseFolder({u"Choose"_s, {}}, folder.taker());
    ASSERT_TRUE(folder.waitFor());
    EXPECT_EQ(folder.path, std::nullopt);
    PanelAnswer file;
    bare.chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, file.taker());
    ASSERT_TRUE(file.waitFor());
    EXPECT_EQ(file.path, std::nullopt);
}

TEST_F(SavePanelPortalTest, takesThePlaceOfAFolderPanel)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer folder;
    PanelAnswer file;
    workspace().chooseFolder({u"Choose"_s, {}}, folder.taker());
    ASSERT_TRUE(service.waitForRequest());
    const QString folderRequest = service.requestPath;
    workspace().chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, file.taker());
    ASSERT_TRUE(waitUntil([&] { return service.title == u"Export"_s; }));
    EXPECT_EQ(service.closed, QStringList{folderRequest});
    service.respond(0, {u"file:///saved.csv"_s});
    ASSERT_TRUE(file.waitFor());
    EXPECT_EQ(file.path, u"/saved.csv"_s);
    EXPECT_EQ(folder.count, 0);
}

#include "WorkspaceFixture.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "WaitUntil.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

WorkspaceFixture::WorkspaceFixture()
{
    temp_.folder(u"bin"_s);
    temp_.folder(u"starts"_s);
    temp_.folder(u"home"_s);
}

LinuxWorkspace &WorkspaceFixture::workspace()
{
    if (!workspace_) {
        LinuxDesktop desktop{.bus = hasBus_ ? bus_.connect() : PrivateBus::none(),
                             .searchPath = {u"bin"_s, {}, temp_.at(u"missing"_s), temp_.at(u"bin"_s)},
                             .fallbackFolderPanel =
                                 [this](const auto &request, const auto &chosen) {
                                     panelRequests_.push_back(request);
                                     chosen(u"/from the fallback"_s);
                                 },
                             .fallbackSavePanel =
                                 [this](const auto &request, const auto &chosen) {
                                     saveRequests_.push_back(request);
                                     chosen(u"/saved by the fallback"_s);
                                 }};
        workspace_ = std::make_unique<LinuxWorkspace>(std::move(desktop), workQueue_);
    }
    return *workspace_;
}

void WorkspaceFixture::addProgram(const QString &name)
{
    const QByteArray note = paths::toBytes(temp_.at(u"starts"_s));
    const QByteArray script = "#!/bin/sh\nprintf '%s\\0' '" + name.toUtf8() + "' \"$PWD\" \"$@\" >" + note
                              + "/.$$ && mv " + note + "/.$$ " + note + "/$$\n";
    const QString path = temp_.file(u"bin/"_s + name, script);
    ASSERT_EQ(chmod(paths::toBytes(path).constData(), 0755), 0);
}

std::vector<QByteArrayList> WorkspaceFixture::starts() const
{
    std::vector<QByteArrayList> found;
    const QString folder = temp_.at(u"starts"_s);
    const auto names = files::list(folder).value_or(std::vector<QString>());
    for (const QString &name : names) {
        if (name.startsWith(u'.')) // still being written
            continue;
        const auto content = files::readPrefix(paths::join(folder, name), 65536);
        QByteArrayList words = content.value_or(QByteArray()).split('\0');
        words.removeLast(); // a NUL ends each word, the last one too
        found.push_back(words);
    }
    return found;
}

QByteArrayList WorkspaceFixture::onlyStart() const
{
    EXPECT_TRUE(waitUntil([this] { return !starts().empty(); })) << "No program was started.";
    const auto found = starts();
    EXPECT_EQ(found.size(), 1U);
    return found.size() == 1 ? found.front() : QByteArrayList();
}

QString WorkspaceFixture::home(const QByteArray &name) const
{
    const QString folder = temp_.at(u"home"_s);
    return name.isEmpty() ? folder : paths::join(folder, paths::fromBytes(name));
}

QByteArray WorkspaceFixture::addressOf(const QByteArray &name) const
{
    return paths::fileUrl(home(name));
}

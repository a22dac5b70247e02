#include "VirtualDisplay.h"

#include <QFile>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds
constexpr qsizetype pixels = qsizetype(1280) * 800;

} // namespace

VirtualDisplay::VirtualDisplay()
{
    server_.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-fbdir"_s, folder_.path(), u"-screen"_s, u"0"_s,
                              u"1280x800x24"_s});
    EXPECT_TRUE(server_.waitForStarted(patience)) << "This test needs Xvfb.";
    while (!server_.canReadLine() && server_.waitForReadyRead(patience)) {}
    if (const QByteArray number = server_.readLine().trimmed(); !number.isEmpty())
        name_ = u':' + QString::fromLatin1(number);
}

VirtualDisplay::~VirtualDisplay()
{
    server_.terminate();
    server_.waitForFinished(patience);
}

double VirtualDisplay::shareOf(const QColor &color) const
{
    QFile memory(folder_.at(u"Xvfb_screen0"_s)); // a header, then four bytes a pixel, blue first
    if (!memory.open(QFile::ReadOnly))
        return 0;
    const QByteArray content = memory.readAll().right(pixels * 4);
    qsizetype found = 0;
    for (qsizetype at = 0; at + 4 <= content.size(); at += 4) {
        const auto pixel = qFromLittleEndian<quint32>(content.constData() + at);
        found += (pixel & 0xFFFFFFU) == (color.rgb() & 0xFFFFFFU);
    }
    return static_cast<double>(found) / pixels;
}

#include "shell/FeedbackMail.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace {

const feedback::Program program{QStringLiteral("help@quillmere.example"), QStringLiteral("1.4"),
                                QStringLiteral("27")};

/// The block of `FakeSystemInfo`.
const QString block = QStringLiteral("---\n"
                                     "System info (don't edit):\n"
                                     "Quillmere 1.4 (build 27)\n"
                                     "macOS 14.2.1\n"
                                     "Mac model: Model One\n"
                                     "Locale: en_US\n"
                                     "---");

struct Parts
{
    QByteArray address;
    QString subject;
    QString body;
};

/// The parts of a "mailto:" address as a mail program takes them.
Parts read(const QByteArray &text)
{
    const qsizetype subject = text.indexOf("?subject=");
    const qsizetype body = text.indexOf("&body=");
    const auto decoded = [](const QByteArray &part) {
        return QString::fromUtf8(QByteArray::fromPercentEncoding(part));
    };
    return {text.left(subject), decoded(text.mid(subject + 9, body - subject - 9)),
            decoded(text.mid(body + 6))};
}

} // namespace

TEST(FeedbackMail, tellsProgramAndMachine)
{
    EXPECT_EQ(feedback::systemInfoBlock(program, FakeSystemInfo()), block);
}

TEST(FeedbackMail, marksWhatIsNotKnown)
{
    FakeSystemInfo system;
    system.model.reset();
    system.version = {6, 1, 0};
    system.locale = QStringLiteral("de_CH");
    const feedback::Program unknown{program.supportAddress, QStringLiteral("?"), QStringLiteral("?")};
    EXPECT_EQ(feedback::systemInfoBlock(unknown, system),
              QStringLiteral("---\nSystem info (don't edit):\nQuillmere ? (build ?)\nmacOS 6.1.0\n"
                             "Mac model: Unknown\nLocale: de_CH\n---"));
}

TEST(FeedbackMail, takesAModelsNameAsItStands)
{
    FakeSystemInfo system;
    system.model = QStringLiteral("Box %1 & Söhne %7");
    EXPECT_TRUE(
        feedback::systemInfoBlock(program, system).contains(QStringLiteral("model: Box %1 & Söhne %7\n")));
    const Parts parts = read(feedback::mailAddress(feedback::Kind::bug, program, system));
    EXPECT_TRUE(parts.body.endsWith(feedback::systemInfoBlock(program, system)));
}

TEST(FeedbackMail, takesTheProgramsVersionAsItStands)
{
    const feedback::Program marked{program.supportAddress, QStringLiteral("%3 %6"), QStringLiteral("%1")};
    EXPECT_TRUE(feedback::systemInfoBlock(marked, FakeSystemInfo())
                    .contains(QStringLiteral("Quillmere %3 %6 (build %1)\nmacOS 14.2.1\n")));
}

TEST(FeedbackMail, asksForTheBug)
{
    const Parts parts = read(feedback::mailAddress(feedback::Kind::bug, program, FakeSystemInfo()));
    EXPECT_EQ(parts.address, "mailto:help@quillmere.example");
    EXPECT_EQ(parts.subject, QStringLiteral("[Bug] "));
    EXPECT_EQ(parts.body, QStringLiteral("Please describe the bug below this line:\n\n\n\n"
                                         "Steps to reproduce (if you can):\n\n\n\n")
                              + block);
}

TEST(FeedbackMail, asksForTheFeature)
{
    const Parts parts = read(feedback::mailAddress(feedback::Kind::feature, program, FakeSystemInfo()));
    EXPECT_EQ(parts.address, "mailto:help@quillmere.example");
    EXPECT_EQ(parts.subject, QStringLiteral("[Feature Request] "));
    EXPECT_EQ(parts.body, QStringLiteral("Please describe the feature you'd like below this line:\n\n\n\n"
                                         "Why it would be useful:\n\n\n\n")
                              + block);
}

TEST(FeedbackMail, isPercentEncodedWhole)
{
    EXPECT_EQ(feedback::mailAddress(feedback::Kind::bug, program, FakeSystemInfo()).toStdString(),
              "mailto:help@quillmere.example?subject=%5BBug%5D%20&body="
              "Please%20describe%20the%20bug%20below%20this%20line%3A%0A%0A%0A%0A"
              "Steps%20to%20reproduce%20%28if%20you%20can%29%3A%0A%0A%0A%0A"
              "---%0ASystem%20info%20%28don%27t%20edit%29%3A%0AQuillmere%201.4%20%28build%2027%29%0A"
              "macOS%2014.2.1%0AMac%20model%3A%20Model%20One%0ALocale%3A%20en_US%0A---");
}

// quenfor-cli interpolate: the window's calculation, input rule and messages in a script.
#include "clitest.h"

using namespace Qt::StringLiterals;

namespace {

class InterpolateCliTest : public CliTestBase {};

TEST_F(InterpolateCliTest, PrintsBAsTheWindowShowsIt) {
    // The differences are added, not multiplied: 11,5 where the textbook gives 5.
    CliRun r = run({u"interpolate"_s, u"0"_s, u"0"_s, u"10"_s, u"10"_s, u"5"_s});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, "11,5\n");
    EXPECT_TRUE(r.err.isEmpty());

    // A point counts as the decimal comma, as the window turns a typed "." into ",".
    r = run({u"interpolate"_s, u"1,5"_s, u"2"_s, u"3.5"_s, u"4"_s, u"2.5"_s});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, "5,5\n"); // ((2,5 − 3,5) + (2 − 4)) ÷ (1,5 − 3,5) + 4
}

TEST_F(InterpolateCliTest, RefusesWhatTheWindowRefusesWithItsMessages) {
    struct Case {
        QStringList values;
        QString message;
    };
    const Case cases[] = {
        {{u"0"_s, u"0"_s, u"10"_s, u"10"_s, u"5a"_s}, u"Bitte nur Zahlen eingeben."_s},
        {{u"0"_s, u"0"_s, u"10"_s, u"10"_s, u"-5"_s}, u"Bitte nur Zahlen eingeben."_s},
        {{u"--"_s, u"0"_s, u"-1"_s, u"10"_s, u"10"_s, u"5"_s}, u"Bitte nur Zahlen eingeben."_s},
        {{u"3"_s, u"0"_s, u"3,0"_s, u"10"_s, u"5"_s},
         u"x1 und x2 sind gleich: durch x1 − x2 = 0 kann nicht geteilt werden."_s},
    };
    for (const Case& c : cases) {
        const CliRun r = run(QStringList{u"interpolate"_s} + c.values);
        EXPECT_EQ(r.status, 1) << c.values.join(u' ').toStdString();
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_TRUE(r.err.startsWith(c.message)) << r.err.toStdString();
    }
}

TEST_F(InterpolateCliTest, WrongNumberOfValuesIsAUsageError) {
    const CliRun r = run({u"interpolate"_s, u"0"_s, u"0"_s, u"10"_s, u"10"_s});
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.contains(u"interpolate X1 Y1 X2 Y2 A"_s)) << r.err.toStdString();
}

} // namespace

// The screenshot tool's rules: file names, the input filter, the rectangle, the settings and the
// file writer.
#include "desktools/screenshotnames.h"
#include "desktools/screenshotsettings.h"
#include "desktools/shotcounter.h"
#include "desktools/shotfieldfilter.h"
#include "desktools/shotrectangle.h"
#include "desktools/windowplacement.h"

#include "../common/qstringprinting.h"
#include "../settings/storesandbox.h"
#include "settings/settingsstore.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QString native(const QString& path) {
    return QDir::toNativeSeparators(path);
}

TEST(ShotNames, RectangleAndWholeScreenShotsAreNumberedApart) {
    ShotCounter counter;
    counter.next();
    counter.next();
    const QString folder = native(u"/tmp/shots"_s);
    EXPECT_EQ(rectangleShotFileName(folder, u"shot"_s, counter.next()), native(u"/tmp/shots/shot_3.bmp"_s));
    EXPECT_EQ(wholeScreenShotFileName(folder, u"shot"_s, 12), native(u"/tmp/shots/shot12.bmp"_s));
    const QString root = native(QDir::rootPath());
    EXPECT_EQ(rectangleShotFileName(root, u"s"_s, 1), root + u"s_1.bmp"_s);
    counter.setValue(65535);
    EXPECT_EQ(counter.next(), 0);
}

TEST(ShotNames, BaseNamesThatCannotBeFileNamesAreRefused) {
    for (const QString& bad : {u"a/b"_s, u"a\\b"_s, u"c:shot"_s, u"shot?"_s, u"x\ty"_s})
        EXPECT_FALSE(shotBaseNameProblem(bad).isEmpty()) << bad.toStdString();
    for (const QString& good : {u"Bild 1"_s, u"Übersicht-ä"_s, QString()})
        EXPECT_TRUE(shotBaseNameProblem(good).isEmpty()) << good.toStdString();
}

TEST(ShotFieldFilter, OnlyDigitsAndTheCommaPassTypedOrPasted) {
    for (const QChar c : QStringView(u"0123456789,\b"))
        EXPECT_TRUE(isShotFieldCharacter(c)) << int(c.unicode());
    for (const QChar c : QStringView(u"aZ.- +\u00e4"))
        EXPECT_FALSE(isShotFieldCharacter(c)) << int(c.unicode());
    EXPECT_TRUE(isShotFieldText(u"12,5"));
    EXPECT_FALSE(isShotFieldText(u"12a"));
    EXPECT_FALSE(isShotFieldText(u"1\b2"));
}

struct RectangleCase {
    const char16_t* fields[4];
    QRect rect;
    const char16_t* error;
};

class ShotRectangleTest : public ::testing::TestWithParam<RectangleCase> {};

TEST_P(ShotRectangleTest, ReadsTheFourFields) {
    const RectangleCase& c = GetParam();
    const ShotRectangle parsed = parseShotRectangle(QString::fromUtf16(c.fields[0]), QString::fromUtf16(c.fields[1]),
                                                    QString::fromUtf16(c.fields[2]), QString::fromUtf16(c.fields[3]));
    EXPECT_EQ(parsed.error, QString::fromUtf16(c.error));
    EXPECT_EQ(parsed.rect, c.rect);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, ShotRectangleTest,
    ::testing::Values(
        RectangleCase{{u"200", u"007", u"930", u"800"}, QRect(200, 7, 930, 800), u""},
        // The comma is the decimal comma; halves round up to the next pixel.
        RectangleCase{{u"12,5", u"12,4", u"1,", u",5"}, QRect(13, 12, 1, 1), u""},
        RectangleCase{{u"", u"1", u"1", u"1"}, {}, u"Bitte im Feld X eine Zahl eingeben."},
        RectangleCase{{u"1", u"1,2,3", u"1", u"1"}, {}, u"Im Feld Y steht keine brauchbare Zahl: \"1,2,3\"."},
        RectangleCase{{u"1", u"1", u",", u"1"}, {}, u"Im Feld BREITE steht keine brauchbare Zahl: \",\"."},
        RectangleCase{{u"1", u"1", u"\u0661", u"1"}, {}, u"Im Feld BREITE steht keine brauchbare Zahl: \"\u0661\"."},
        RectangleCase{{u"1", u"1", u"0", u"1"}, {}, u"BREITE muss mindestens 1 Pixel betragen."},
        RectangleCase{{u"1", u"1", u"1", u"0,4"}, {}, u"HOEHE muss mindestens 1 Pixel betragen."},
        RectangleCase{{u"99999999999999999999", u"1", u"1", u"1"},
                      {},
                      u"Der Wert im Feld X ist zu groß: \"99999999999999999999\"."}));

TEST(ShotRectangle, APartOffTheScreenIsCutAndSaid) {
    const QRect screen(0, 0, 1024, 768);
    EXPECT_EQ(visiblePartOfShot(QRect(200, 200, 300, 100), screen).note, QString());
    const VisibleShot cut = visiblePartOfShot(QRect(200, 200, 930, 800), screen);
    EXPECT_EQ(cut.rect, QRect(200, 200, 824, 568));
    EXPECT_EQ(cut.note, u"Bildausschnitt auf den Bildschirm gekürzt: 824 x 568 Pixel."_s);
    const VisibleShot outside = visiblePartOfShot(QRect(2000, 0, 10, 10), screen);
    EXPECT_TRUE(outside.rect.isEmpty());
    EXPECT_EQ(outside.note, u"Der Bildausschnitt liegt außerhalb des Bildschirms (1024 x 768 Pixel)."_s);
}

TEST(WindowPlacement, AStoredPlaceIsKeptOnlyWhenTheTitleCanBeGrabbed) {
    const QList<QRect> screens{QRect(0, 0, 1920, 1080), QRect(1920, 0, 1280, 1024)};
    EXPECT_EQ(visibleWindowPosition(QPoint(2500, 900), QSize(500, 400), screens), QPoint(2500, 900));
    // The second screen was unplugged, or the store holds a place far away.
    EXPECT_EQ(visibleWindowPosition(QPoint(3300, 100), QSize(500, 400), screens), QPoint(0, 0));
    EXPECT_EQ(visibleWindowPosition(QPoint(100, 1075), QSize(500, 400), screens), QPoint(0, 0));
    EXPECT_EQ(visibleWindowPosition(QPoint(9, 9), QSize(500, 400), {QRect(-1280, 0, 1280, 1024)}), QPoint(-1280, 0));
}

class ScreenshotSettingsTest : public StoreSandbox {};

TEST_F(ScreenshotSettingsTest, SixKeysUnderQuenforOptionen) {
    ASSERT_TRUE((ScreenshotSettings{u"1"_s, u"2,5"_s, u"3"_s, u"4"_s, 50, -20}.save()));
    SettingsStore store(u"quenfor"_s);
    for (const auto& [key, value] :
         {std::pair{u"X.Text"_s, u"1"_s}, std::pair{u"Y.Text"_s, u"2,5"_s}, std::pair{u"HOEHE.Text"_s, u"3"_s},
          std::pair{u"BREITE.Text"_s, u"4"_s}, std::pair{u"TOPFORM"_s, u"50"_s}, std::pair{u"LEFTFORM"_s, u"-20"_s}})
        EXPECT_EQ(store.value(u"Optionen"_s, key, {}), value) << key.toStdString();

    // A damaged place falls back to the corner.
    store.setValue(u"Optionen"_s, u"TOPFORM"_s, u"oben"_s);
    EXPECT_EQ(ScreenshotSettings::load().top, 0);
    EXPECT_EQ(ScreenshotSettings::load().left, -20);
}

} // namespace

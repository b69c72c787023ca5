#include "storesandbox.h"

#include "settings/settingsreset.h"
#include "settings/settingsstore.h"
#include "settings/systemerrortext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

const QStringList allApplications{u"quenfor"_s,   u"vistrel"_s,  u"Skribb"_s,  u"DrFegel"_s,
                                  u"Kauzblick"_s, u"Tastomat"_s, u"Pfadolin"_s};

class SettingsResetTest : public StoreSandbox {
protected:
    static void fill(const QString& application) {
        ASSERT_TRUE(SettingsStore(application).setValue(u"Optionen"_s, u"k"_s, application));
    }
    static bool holdsValue(const QString& application) {
        return SettingsStore(application).value(u"Optionen"_s, u"k"_s, {}) == application;
    }
    static QStringList failedApplications(const QList<ResetFailure>& failures) {
        QStringList names;
        for (const ResetFailure& f : failures) {
            names.append(f.application);
        }
        return names;
    }
};

TEST_F(SettingsResetTest, RemovesAllSevenAndKeepsTheMessenger) {
    for (const QString& application : allApplications) {
        fill(application);
    }
    fill(u"Rufpost"_s);

    EXPECT_TRUE(resetAllSettings().isEmpty());

    for (const QString& application : allApplications) {
        EXPECT_FALSE(holdsValue(application)) << application.toStdString();
        EXPECT_FALSE(QFileInfo::exists(iniFile(application))) << application.toStdString();
    }
    EXPECT_TRUE(holdsValue(u"Rufpost"_s));
}

TEST_F(SettingsResetTest, MissingStoresFailSilentlyInResetOrder) {
    fill(u"vistrel"_s);
    fill(u"Tastomat"_s);

    const QList<ResetFailure> failures = resetAllSettings();

    EXPECT_EQ(failedApplications(failures),
              (QStringList{u"quenfor"_s, u"Skribb"_s, u"DrFegel"_s, u"Kauzblick"_s, u"Pfadolin"_s}));
    for (const ResetFailure& f : failures) {
        EXPECT_EQ(f.errorText, systemErrorText(ENOENT)) << f.application.toStdString();
    }
    EXPECT_FALSE(holdsValue(u"vistrel"_s));
    EXPECT_FALSE(holdsValue(u"Tastomat"_s));
}

TEST_F(SettingsResetTest, GoesOnAfterAStoreThatCannotBeDeleted) {
    for (const QString& application : allApplications) {
        fill(application);
    }
    // A non-empty folder in place of the INI file cannot be removed, not even by root.
    const QString blocked = iniFile(u"Skribb"_s);
    ASSERT_TRUE(QFile::remove(blocked));
    ASSERT_TRUE(QDir().mkpath(blocked + u"/inhalt"_s));

    const QList<ResetFailure> failures = resetAllSettings();

    EXPECT_EQ(failedApplications(failures), QStringList{u"Skribb"_s});
    for (const QString& application : allApplications) {
        EXPECT_FALSE(holdsValue(application)) << application.toStdString();
    }
}

} // namespace
} // namespace quenfor

// Qt's own buttons and dialogs speak German: the question boxes say "Ja"/"Nein", not "Yes"/"No".
#include "common/qttranslations.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

TEST(QtTranslations, QtsOwnButtonsSpeakGerman) {
    int argc = 1;
    char name[] = "qttranslations_test";
    char* argv[] = {name, nullptr};
    QCoreApplication app(argc, argv);
    ASSERT_TRUE(quenfor::installGermanQtTranslations(app))
        << "Qt's German translations are missing: install qt6-translations-l10n";
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&Yes"), QStringLiteral("&Ja"));
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
}

} // namespace

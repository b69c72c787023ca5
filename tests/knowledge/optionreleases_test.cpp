// Which release knows, documents or hides an option: read from the built-in release lists, asked
// by the check against a target release and by the picker that marks hidden options.
#include "../common/qstringprinting.h"
#include "knowledge/optionreleases.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QString shippedText(const char* name) {
    QFile f(QStringLiteral(QUENFOR_DATA_FOLDER "/") + QString::fromLatin1(name));
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

int release(const char16_t* name) {
    const std::optional<int> index = cadReleaseIndex(QStringView(name));
    EXPECT_TRUE(index.has_value()) << QString::fromUtf16(name).toStdString();
    return index.value_or(-1);
}

} // namespace

TEST(OptionReleases, NamesAreFoundInAnyCaseAndOnlyWhenKnown) {
    EXPECT_EQ(cadReleaseIndex(u"cp6"), cadReleaseIndex(u"CP6"));
    EXPECT_LT(release(u"WF4"), release(u"CP2"));
    EXPECT_LT(release(u"CP9"), release(u"CP10")); // by age, not by spelling
    for (const char16_t* bad : {u"", u"CP1", u"CP12", u"Creo 6", u"CP6 "})
        EXPECT_FALSE(cadReleaseIndex(bad).has_value()) << QString::fromUtf16(bad).toStdString();
}

TEST(OptionReleases, StatusPerRelease) {
    const OptionReleases lists = OptionReleases::parse(u"neu_ab_cp8\tCP8,CP9,CP10,CP11\t\r\n"
                                                       "versteckt\t\tWF4,CP2\n"
                                                       "umstritten\tCP5\tCP5,CP6\n"
                                                       "kaputt\n"
                                                       "\tCP5\t\n"_s);
    EXPECT_EQ(lists.size(), 3); // a line without its columns and one without a name are skipped
    EXPECT_EQ(lists.status(u"neu_ab_cp8", release(u"CP7")), ReleaseStatus::Unknown);
    EXPECT_EQ(lists.status(u"NEU_AB_CP8", release(u"CP8")), ReleaseStatus::Documented);
    EXPECT_EQ(lists.status(u"versteckt", release(u"WF4")), ReleaseStatus::Hidden);
    EXPECT_EQ(lists.status(u"versteckt", release(u"CEP5")), ReleaseStatus::Unknown);
    // Where the sources disagree, the documented release wins; the next one hides it.
    EXPECT_EQ(lists.status(u"umstritten", release(u"CP5")), ReleaseStatus::Documented);
    EXPECT_EQ(lists.status(u"umstritten", release(u"CP6")), ReleaseStatus::Hidden);
    EXPECT_EQ(lists.status(u"nirgends", release(u"CP6")), ReleaseStatus::NoData);
    EXPECT_EQ(lists.status(u"versteckt", -1), ReleaseStatus::NoData);
    EXPECT_EQ(lists.status(u"versteckt", int(cadReleases().size())), ReleaseStatus::NoData);
}

TEST(OptionReleases, PickerNoteForHiddenOptions) {
    const OptionReleases lists = OptionReleases::parse(u"alt_versteckt\t\tCP4\nspaet_versteckt\tCP4\tCP11\n"_s);
    // Without a chosen release the latest decides.
    EXPECT_EQ(hiddenOptionNote(lists, u"spaet_versteckt  yes", std::nullopt),
              u"Versteckte Option: Creo Parametric 11.0 liest sie, dokumentiert sie aber nicht."_s);
    EXPECT_TRUE(hiddenOptionNote(lists, u"alt_versteckt yes", std::nullopt).isEmpty());
    EXPECT_FALSE(hiddenOptionNote(lists, u"alt_versteckt", release(u"CP4")).isEmpty());
    EXPECT_TRUE(hiddenOptionNote(lists, u"spaet_versteckt", release(u"CP4")).isEmpty());
    EXPECT_TRUE(hiddenOptionNote(lists, u"! KOMMENTAR", std::nullopt).isEmpty());
    EXPECT_TRUE(hiddenOptionNote(lists, u"", std::nullopt).isEmpty());
}

// Every line of both shipped lists: each release named there is one the program knows, and the
// built-in table answers for every release exactly what the line says.
TEST(OptionReleases, EveryShippedLineIsReadAsWritten) {
    const struct {
        const char* file;
        const OptionReleases& lists;
    } shipped[] = {{"config_option_releases.txt", OptionReleases::config()},
                   {"dtl_option_releases.txt", OptionReleases::drawingSetup()}};
    for (const auto& [file, lists] : shipped) {
        const QString text = shippedText(file);
        const QList<QStringView> lines = QStringView(text).split(u'\n', Qt::SkipEmptyParts);
        ASSERT_GT(lines.size(), 100) << file;
        EXPECT_EQ(lists.size(), lines.size()) << file;
        for (QStringView line : lines) {
            const QList<QStringView> fields = line.split(u'\t');
            ASSERT_EQ(fields.size(), 3) << line.toString().toStdString();
            const QList<QStringView> documented = fields[1].split(u',', Qt::SkipEmptyParts);
            const QList<QStringView> hidden = fields[2].split(u',', Qt::SkipEmptyParts);
            ASSERT_FALSE(documented.isEmpty() && hidden.isEmpty()) << line.toString().toStdString();
            for (QStringView name : documented + hidden)
                ASSERT_TRUE(cadReleaseIndex(name)) << file << ": " << name.toString().toStdString();
            for (int r = 0; r < cadReleases().size(); ++r) {
                const QString& name = cadReleases()[r].name;
                const ReleaseStatus expected = documented.contains(name) ? ReleaseStatus::Documented
                                               : hidden.contains(name)   ? ReleaseStatus::Hidden
                                                                         : ReleaseStatus::Unknown;
                ASSERT_EQ(lists.status(fields[0], r), expected)
                    << line.toString().toStdString() << " in " << name.toStdString();
            }
        }
    }
}

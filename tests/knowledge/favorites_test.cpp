// Taking favourite lines apart decides what lands in the constructor's fields and what a script
// gets from "favorite"; a wrong cut loses part of a folder name or takes a slip for a name.
#include "../common/qstringprinting.h"
#include "document/documentfile.h"
#include "knowledge/favorites.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

struct TakeApartCase {
    const char* label;
    QString line;
    bool isFavorite;
    QString entryLine; // the entry line afterwards
    QString path;
    QString name;
};

// Names the case instead of dumping its bytes when one fails.
void PrintTo(const TakeApartCase& c, std::ostream* out) {
    *out << c.label;
}

class TakeFavoriteApart : public ::testing::TestWithParam<TakeApartCase> {};

TEST_P(TakeFavoriteApart, CutsPathAndName) {
    const TakeApartCase& c = GetParam();
    const FavoriteParts parts = takeFavoriteApart(c.line);
    EXPECT_EQ(parts.isFavorite, c.isFavorite);
    EXPECT_EQ(parts.entryLine, c.entryLine);
    EXPECT_EQ(parts.path, c.path);
    EXPECT_EQ(parts.name, c.name);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, TakeFavoriteApart,
    ::testing::Values(
        TakeApartCase{"blanks_in_path", u"browser_favorite C:\\Program Files\\parts Teile"_s, true,
                      u"browser_favorite C:\\Program Files\\parts Teile"_s, u"C:\\Program Files\\parts"_s, u"Teile"_s},
        TakeApartCase{"two_blanks_in_path", u"browser_favorite C:\\a b\\c d Xy"_s, true,
                      u"browser_favorite C:\\a b\\c d Xy"_s, u"C:\\a b\\c d"_s, u"Xy"_s},
        TakeApartCase{"trailing_blank_removed", u"browser_favorite C:\\parts Teile "_s, true,
                      u"browser_favorite C:\\parts Teile"_s, u"C:\\parts"_s, u"Teile"_s},
        // Only one blank goes; the next one then ends the path and no name follows it.
        TakeApartCase{"two_trailing_blanks", u"browser_favorite C:\\parts Teile  "_s, true,
                      u"browser_favorite C:\\parts Teile "_s, u"C:\\parts Teile"_s, QString()},
        TakeApartCase{"one_character_name", u"browser_favorite C:\\parts T"_s, true, u"browser_favorite C:\\parts T"_s,
                      u"C:\\parts"_s, QString()},
        TakeApartCase{"two_character_name", u"browser_favorite C:\\parts Te"_s, true,
                      u"browser_favorite C:\\parts Te"_s, u"C:\\parts"_s, u"Te"_s},
        TakeApartCase{"upper_case", u"BROWSER_FAVORITE D:\\Norm Normteile"_s, true,
                      u"BROWSER_FAVORITE D:\\Norm Normteile"_s, u"D:\\Norm"_s, u"Normteile"_s},
        TakeApartCase{"no_name", u"browser_favorite C:\\parts"_s, true, u"browser_favorite C:\\parts"_s, u"C:\\parts"_s,
                      QString()},
        TakeApartCase{"keyword_only", u"browser_favorite"_s, true, u"browser_favorite"_s, QString(), QString()},
        TakeApartCase{"keyword_and_blank", u"browser_favorite "_s, true, u"browser_favorite"_s, QString(), QString()},
        TakeApartCase{"unix_path", u"browser_favorite /home/cad/Norm teile Norm"_s, true,
                      u"browser_favorite /home/cad/Norm teile Norm"_s, u"/home/cad/Norm teile"_s, u"Norm"_s},
        TakeApartCase{"mixed_case_is_no_favourite", u"Browser_Favorite C:\\x ab "_s, false,
                      u"Browser_Favorite C:\\x ab "_s, QString(), QString()},
        TakeApartCase{"indented_is_no_favourite", u" browser_favorite C:\\x ab"_s, false,
                      u" browser_favorite C:\\x ab"_s, QString(), QString()},
        TakeApartCase{"option_line", u"pro_format_dir C:\\3d\\Format "_s, false, u"pro_format_dir C:\\3d\\Format "_s,
                      QString(), QString()}),
    [](const ::testing::TestParamInfo<TakeApartCase>& info) { return std::string(info.param.label); });

TEST(Favorites, MarksPathsThatAreNoFolder) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString folder = dir.filePath(u"Norm teile"_s);
    ASSERT_TRUE(QDir().mkpath(folder));

    EXPECT_TRUE(takeFavoriteApart(u"browser_favorite "_s + folder + u" Norm"_s).pathIsFolder);
    EXPECT_FALSE(takeFavoriteApart(u"browser_favorite "_s + folder + u"x Norm"_s).pathIsFolder);
    EXPECT_FALSE(takeFavoriteApart(u"browser_favorite"_s).pathIsFolder);
}

TEST(Favorites, BuildsLowerCaseLinesThatTakeApartAgain) {
    EXPECT_EQ(favoriteLine(u"C:\\Program Files\\parts"_s, u"Teile"_s),
              u"browser_favorite C:\\Program Files\\parts Teile"_s);
    // No check of the parts: empty ones give the bare frame of a line.
    EXPECT_EQ(favoriteLine(QString(), QString()), u"browser_favorite  "_s);

    const FavoriteParts parts = takeFavoriteApart(favoriteLine(u"D:\\a b\\c"_s, u"Abc"_s));
    EXPECT_EQ(parts.path, u"D:\\a b\\c"_s);
    EXPECT_EQ(parts.name, u"Abc"_s);
}

} // namespace

namespace quenfor {
namespace {

// The shipped sample teaches users the line's shape: every favourite in it must take apart into a
// folder path and a name, not the other way round.
TEST(Favorites, ShippedSampleNamesTheFolderBeforeTheName) {
    const ReadResult sample =
        readDocumentFile(QStringLiteral(QUENFOR_TEST_DATA_DIR "/../../data/samples/config.pro"), {});
    ASSERT_TRUE(sample.ok) << sample.error.toStdString();
    int favourites = 0;
    for (const QString& line : sample.lines) {
        const FavoriteParts parts = takeFavoriteApart(line);
        if (!parts.isFavorite)
            continue;
        ++favourites;
        SCOPED_TRACE(line.toStdString());
        EXPECT_TRUE(parts.path.contains(u'\\') || parts.path.contains(u'/'));
        EXPECT_FALSE(parts.name.contains(u'\\') || parts.name.contains(u'/'));
        EXPECT_GE(parts.name.size(), 2);
    }
    EXPECT_GT(favourites, 0);
}

} // namespace
} // namespace quenfor

#include "../common/qstringprinting.h"
#include "categorysortoracle.h"
#include "document/cleanuptools.h"
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

CategoryTable tableFrom(const QString& body) {
    QString text;
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k)
        text += u'[' + CategoryTable::names()[k] + u"]\n"_s + (k == 2 || k == 6 ? body : u"! X\n"_s) + u'\n';
    QString error;
    auto table = CategoryTable::fromText(text, &error);
    EXPECT_TRUE(table.has_value()) << error.toStdString();
    return *table;
}

} // namespace

TEST(CategorySort, MatchesTheLiteralNestedLoop) {
    const CategoryTable table = tableFrom(u"! KOPF\ncolor\ncolor_windows\ndisp\ndisplay\nsave\n"_s);
    const QStringList pieces = {u"color 1"_s,
                                u"color_windows all"_s,
                                u"display shade"_s,
                                u"disp"_s,
                                u"save_objects x"_s,
                                u"mapkey a"_s,
                                u"mapkey(continued) b"_s,
                                u""_s,
                                u"! c"_s,
                                u" color 2"_s,
                                u"browser_favorite f"_s,
                                u"zzz"_s,
                                u"! Baugruppe -----------------------"_s};
    QRandomGenerator rng(42);
    for (int round = 0; round < 2000; ++round) {
        QStringList doc;
        const int n = rng.bounded(0, 25);
        for (int i = 0; i < n; ++i)
            doc.append(pieces[rng.bounded(pieces.size())]);
        ASSERT_EQ(sortByCategory(doc, table), quenfor::testing::literalCategorySort(doc, table))
            << doc.join(u'|').toStdString();
    }
}

TEST(CategorySort, SectionsAndTheLastOne) {
    const CategoryTable table = tableFrom(u"! KOPF\ncolor\ncolor_windows\n"_s);
    const QStringList sorted =
        sortByCategory({u"mapkey a"_s, u"color_windows all"_s, u" color 2"_s, u"zzz"_s, u"color 1"_s}, table);
    // Baugruppe (index 2) claims both lines by "color"; Color (index 6) then has nothing new.
    EXPECT_EQ(sorted.mid(0, 5),
              QStringList({u"! Anwendung -----------------------"_s, u"! Baugruppe -----------------------"_s,
                           u"color_windows all"_s, u"color 1"_s, u"! Baugruppenprozess -----------------------"_s}));
    EXPECT_EQ(sorted.mid(sorted.size() - 4),
              QStringList({u"! nicht zugeornete Schalter, Mapkeys, Favoriten : ----------"_s, u"mapkey a"_s,
                           u" color 2"_s, u"zzz"_s}));
    // An empty document: 31 bare headers and the last header.
    EXPECT_EQ(sortByCategory({}, table).size(), 32);
}

TEST(CategoryTable, BuiltInListsHaveTheirHeadersAndBounds) {
    const struct {
        int index;
        const char16_t* header;
        const char16_t* first;
        const char16_t* last;
    } expected[] = {
        {1, u"! ANWENDUNGSPROGRAMMIERSCHNITTSTELLE", u"add_java_class_path", u"web_link_security_autoprompt"},
        {4, u"! BENUTZEROBRERFLÄCHE", u"af_copy_references_flag", u"windows_scale"},
        {7, u"! HIDDEN OPTIONS", u"18_plus", u"zip_gaps_keep_srfs"},
        {17, u"! KE's", u"activate_sketch_with_dflt", u"user_defined_grid_interval"},
        {18, u"! KONSTRUKTIONS-MANAGER", u"dont_show_symbol_nodes", u"dont_show_symbol_nodes"},
        {30, u"! VERSCHIEDENES ", u"conf_mouse_anim", u"show_cav_fit_loc_sys"},
        {31, u"! ZEICHNUNG", u"allow_move_attach_in_dtl_move", u"variant_drawing_item_sizes"},
    };
    const CategoryTable& table = CategoryTable::builtIn();
    for (const auto& e : expected) {
        const QStringList& list = table.strings(e.index);
        ASSERT_GE(list.size(), 2) << e.index;
        EXPECT_EQ(list.first(), QString::fromUtf16(e.header));
        EXPECT_EQ(list[1], QString::fromUtf16(e.first));
        EXPECT_EQ(list.last(), QString::fromUtf16(e.last));
        EXPECT_TRUE(std::is_sorted(list.begin() + 1, list.end())) << e.index;
    }
    QString error;
    EXPECT_FALSE(CategoryTable::fromText(u"[Nirgendwo]\n! X\n"_s, &error).has_value());
    EXPECT_FALSE(error.isEmpty());
}

#include "../common/qstringprinting.h"
#include "categorysortoracle.h"
#include "document/cleanuptools.h"
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"

#include <QRandomGenerator>

#include <numeric>
#include <set>

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

TEST(CategorySort, EveryBuiltInListClaimsItsOptions) {
    // Each option of every list, as a line with a value, and the sort against the literal rule.
    const CategoryTable& table = CategoryTable::builtIn();
    QStringList doc;
    for (int k = CategoryTable::kCategoryCount; k >= 1; --k) {
        for (const QString& option : table.strings(k).mid(1))
            doc.append(option + u" wert"_s);
    }
    doc.append({u"mapkey a @MAPKEY_LABEL"_s, u"unbekannte_option 1"_s, u"! alt"_s});
    QList<int> seen;
    const QStringList sorted = sortByCategory(doc, table, [&seen](int index) { seen.append(index); });
    EXPECT_EQ(sorted, quenfor::testing::literalCategorySort(doc, table));
    QList<int> all(CategoryTable::kCategoryCount);
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(seen, all);
    // Every option line lands in a section before the last header; only the three others follow it.
    const qsizetype last = sorted.indexOf(QString::fromUtf16(kCategorySortLastHeader));
    EXPECT_EQ(sorted.mid(last + 1), QStringList({u"mapkey a @MAPKEY_LABEL"_s, u"unbekannte_option 1"_s, u"! alt"_s}));
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k) {
        const qsizetype header = sorted.indexOf(categoryHeader(k));
        ASSERT_GE(header, 0) << k;
        // The first option of each list is in its own section unless an earlier section claimed it.
        const QString line = table.strings(k)[1] + u" wert"_s;
        const qsizetype at = sorted.indexOf(line);
        EXPECT_TRUE(at > 0 && at < last) << line.toStdString();
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

TEST(CategoryTable, AllBuiltInListsHaveTheirSizeHeaderAndBounds) {
    const struct {
        const char16_t* name;
        qsizetype options;
        const char16_t* header;
        const char16_t* first;
        const char16_t* last;
    } expected[] = {
        {u"Anwendung", 13, u"! ANWENDUNGSPROGRAMMIERSCHNITTSTELLE", u"add_java_class_path",
         u"web_link_security_autoprompt"},
        {u"Baugruppe", 33, u"! BAUGRUPPE", u"advanced_intersection", u"use_new_intchg"},
        {u"Baugruppenprozess", 7, u"! BAUGRUPPENPROZESS", u"curr_proc_comp_def_color", u"prev_proc_comp_def_font"},
        {u"Benutzeroberfläche", 40, u"! BENUTZEROBRERFLÄCHE", u"af_copy_references_flag", u"windows_scale"},
        {u"Blech", 14, u"! BLECH", u"initial_bend_y_factor", u"smt_outside_mold_lines"},
        {u"Color", 19, u"! FARBEN", u"color", u"use_part_color_for_hidden_lines"},
        {u"Confighidden", 1057, u"! HIDDEN OPTIONS", u"18_plus", u"zip_gaps_keep_srfs"},
        {u"Dateien", 48, u"! DATEIEN SPEICHERN & AUFRUFEN", u"compress_output_files", u"verify_on_save_by_default"},
        {u"Datenaustausch", 171, u"! DATENAUSTAUSCH", u"acis_out_version", u"www_tree_location"},
        {u"Datenverwaltung", 14, u"! DATENVERWALTUNG", u"bitmap_size", u"save_unchanged_pdm_object"},
        {u"DruckenPlotten", 32, u"! DRUCKEN & PLOTTEN", u"adobe_distiller", u"versatec_cutter_installed"},
        {u"Elektromechanisch", 17, u"! ELEKTROMECHANISCH", u"align_cable_bundles", u"update_pre_16_cable_layers"},
        {u"FEM", 27, u"! FEM", u"fem_allow_named_mesh_files", u"std_nastran_template"},
        {u"Fertigung", 36, u"! FERTIGUNG", u"assy_mfg_open_mode", u"store_tool_path_file"},
        {u"Folien", 71, u"! FOLIEN", u"add_lower_level_comps_to_layer", u"highlight_layer_items"},
        {u"GussSpritzguss", 9, u"! GUSS & SPRITZGUSS", u"allow_shrink_dim_before", u"shrinkage_value_display"},
        {u"KEs", 18, u"! KE's", u"activate_sketch_with_dflt", u"user_defined_grid_interval"},
        {u"Konstruktions_manager", 1, u"! KONSTRUKTIONS-MANAGER", u"dont_show_symbol_nodes", u"dont_show_symbol_nodes"},
        {u"Mechanismus", 4, u"! MECHANISMUS", u"mdo_cl_executable", u"mdo_spring_wire_radius"},
        {u"Modelldarstellung", 52, u"! MODELLDARSTELLUNG", u"blended_transparency", u"y_angle"},
        {u"Photorender", 6, u"! PHOTORENDER", u"photorender_capability_warnings", u"pro_texture_library"},
        {u"Referenzsteuerung", 22, u"! REFERENZSTEUERUNG", u"allow_ref_scope_change", u"scope_invalid_refs"},
        {u"Rohrverlegung", 48, u"! ROHRVERLEGUNG", u"aec_parameter_file", u"units_system_dic_file"},
        {u"Schweissen", 17, u"! SCHWEISSEN", u"add_weld_mp", u"weld_ui_standard"},
        {u"Simulation", 77, u"! SIMULATION", u"motion_envlp_alert", u"simulation_product"},
        {u"Skizzierer", 35, u"! SKIZZIERER", u"grid_snap", u"sketcher_undo_stack_limit"},
        {u"System", 19, u"! SYSTEM", u"allow_float_opt_checkout", u"web_browser_homepage"},
        {u"Toleranzen", 36, u"! BEMASSUNGEN & TOLERANZEN", u"allow_rfs_default_gtols_always", u"use_major_units"},
        {u"Umgebung", 33, u"! UMGEBUNG", u"accuracy_lower_bound", u"start_appmgr"},
        {u"Verschiedenes", 5, u"! VERSCHIEDENES ", u"conf_mouse_anim", u"show_cav_fit_loc_sys"},
        {u"Zeichnung", 46, u"! ZEICHNUNG", u"allow_move_attach_in_dtl_move", u"variant_drawing_item_sizes"},
    };
    static_assert(std::size(expected) == CategoryTable::kCategoryCount);
    // Lists whose shipped data still lacks options or holds a wrong one (Baugruppe ends early,
    // Baugruppenprozess has 4 of 7, DruckenPlotten lacks adobe_distiller, Folien has 20 of 71).
    // They are checked to still differ, so filling one in makes this test ask to drop it here.
    const std::set<int> knownGaps = {2, 3, 11, 15};
    const CategoryTable& table = CategoryTable::builtIn();
    qsizetype strings = 0;
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k) {
        const auto& e = expected[k - 1];
        strings += e.options + 1;
        EXPECT_EQ(CategoryTable::names()[k], QString::fromUtf16(e.name));
        const QStringList& list = table.strings(k);
        ASSERT_GE(list.size(), 2) << k;
        EXPECT_EQ(list.first(), QString::fromUtf16(e.header)) << k;
        EXPECT_TRUE(std::is_sorted(list.begin() + 1, list.end())) << k;
        // Option names only: a blank or a comment would claim lines no category means.
        for (const QString& option : list.mid(1))
            EXPECT_TRUE(!option.isEmpty() && !option.contains(u' ') && !option.startsWith(u'!')) << k;
        const bool complete = list.size() == e.options + 1 && list[1] == QString::fromUtf16(e.first) &&
                              list.last() == QString::fromUtf16(e.last);
        if (knownGaps.contains(k)) {
            EXPECT_FALSE(complete) << k << ": the list is complete now, take it out of knownGaps";
            continue;
        }
        EXPECT_EQ(list.size(), e.options + 1) << k;
        EXPECT_EQ(list[1], QString::fromUtf16(e.first)) << k;
        EXPECT_EQ(list.last(), QString::fromUtf16(e.last)) << k;
    }
    EXPECT_EQ(strings, 2058); // the table above itself
    QString error;
    EXPECT_FALSE(CategoryTable::fromText(u"[Nirgendwo]\n! X\n"_s, &error).has_value());
    EXPECT_FALSE(error.isEmpty());
}

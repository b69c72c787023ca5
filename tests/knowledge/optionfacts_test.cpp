// Defaults and allowed values of the config options: read from the built-in table, shown under
// the explanation and offered by the picker.
#include "../common/qstringprinting.h"
#include "knowledge/explanation.h"
#include "knowledge/optionfacts.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QString shippedFile(const char* name) {
    return QStringLiteral(QUENFOR_DATA_FOLDER "/") + QString::fromLatin1(name);
}

QString readText(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

} // namespace

TEST(OptionFacts, ParsedLinesAndWhatIsShown) {
    const OptionFacts facts =
        OptionFacts::parse(u"grid_snap\tno\tyes,no\r\naccuracy_lower_bound\t0.0001\t\ndef_layer\t\tlayer_axis,"
                           "layer_csys\nkaputt\n\n"_s);
    EXPECT_EQ(facts.size(), 3); // a line without a tab is no fact
    const OptionFact* snap = facts.find(u"GRID_Snap");
    ASSERT_TRUE(snap);
    EXPECT_EQ(optionFactLines(*snap), QStringList({u"Vorgabe: no"_s, u"Erlaubte Werte: yes, no"_s}));
    EXPECT_EQ(optionFactLines(*facts.find(u"accuracy_lower_bound")), QStringList{u"Vorgabe: 0.0001"_s});
    EXPECT_EQ(optionFactLines(*facts.find(u"def_layer")), QStringList{u"Erlaubte Werte: layer_axis, layer_csys"_s});
    EXPECT_FALSE(facts.find(u"grid"));
    EXPECT_EQ(allowedValueLines(facts, u"grid_snap  yes  ! Raster"),
              QStringList({u"grid_snap yes"_s, u"grid_snap no"_s}));
    EXPECT_TRUE(allowedValueLines(facts, u"accuracy_lower_bound 0.01").isEmpty());
}

TEST(OptionFacts, EveryShippedFactIsShownUnderItsExplanation) {
    const QString table = readText(shippedFile("config_option_facts.txt"));
    const QString configKb = shippedFile("config_opts.txt");
    const OptionFacts& facts = OptionFacts::builtIn();
    qsizetype lines = 0;
    int checked = 0;
    for (QStringView line : QStringView(table).split(u'\n', Qt::SkipEmptyParts)) {
        const QList<QStringView> fields = line.split(u'\t');
        ASSERT_EQ(fields.size(), 3) << line.toString().toStdString();
        const QString name = fields[0].toString();
        const OptionFact* fact = facts.find(name);
        ASSERT_TRUE(fact) << name.toStdString();
        EXPECT_EQ(fact->defaultValue, fields[1].toString());
        EXPECT_EQ(fact->allowedValues.join(u','), fields[2].toString());
        ++lines;

        const Explanation explanation = explainEntryLine(name + u" wert"_s, configKb);
        if (explanation.kind != Explanation::Kind::Option)
            continue; // mapkey and favourite names have their fixed texts
        ++checked;
        EXPECT_TRUE(explanation.text.endsWith(u'\n' + optionFactLines(*fact).join(u'\n')))
            << explanation.text.toStdString();
    }
    EXPECT_EQ(facts.size(), lines); // no line lost, none read twice
    EXPECT_GT(checked, 0);
}

TEST(OptionFacts, OnlyTheConfigKnowledgeBaseShowsThem) {
    // An option without an explanation record still gets its facts under the heading.
    EXPECT_EQ(explainEntryLine(u"comp_assemble_start x"_s, shippedFile("config_opts.txt")).text,
              u"*** Erklärung zur Option: ***\nErlaubte Werte: package, constrain_in_window, default, "
              "move_then_place"_s);
    EXPECT_FALSE(explainEntryLine(u"grid_snap yes"_s, shippedFile("dtl_opts.txt")).text.contains(u"Vorgabe"_s));
    EXPECT_EQ(explainEntryLine(u"zz_unbekannt 1"_s, shippedFile("config_opts.txt")).text,
              u"*** Erklärung zur Option: ***"_s);
}

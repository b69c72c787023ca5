// The built-in proposal is what hundreds of new config.pro files start from: its lines must be
// well-formed option and mapkey lines in the promised order, and the document must get them
// only when the user agrees.
#include "../common/qstringprinting.h"
#include "document/linecollator.h"
#include "document/linekind.h"
#include "knowledge/pathoptions.h"
#include "knowledge/proposal.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QStringList optionPart() {
    return proposalLines().mid(0, kProposalOptionLineCount);
}

QStringList mapkeyPart() {
    return proposalLines().mid(kProposalOptionLineCount);
}

QString nameOf(const QString& line) {
    return line.section(u' ', 0, 0);
}

} // namespace

// The option lines come first, the mapkeys after them, as the two counts say.
TEST(Proposal, OptionsThenMapkeys) {
    const QStringList& lines = proposalLines();
    ASSERT_EQ(lines.size(), kProposalOptionLineCount + kProposalMapkeyLineCount);
    EXPECT_FALSE(lines[kProposalOptionLineCount - 1].startsWith(u"mapkey"_s));
    EXPECT_TRUE(lines[kProposalOptionLineCount].startsWith(u"mapkey "_s));
}

TEST(Proposal, OptionLinesAreNameBlankValue) {
    const QRegularExpression shape(u"^[a-z0-9_.]+ \\S+$"_s);
    QSet<QString> names;
    for (const QString& line : optionPart()) {
        EXPECT_TRUE(shape.match(line).hasMatch()) << line.toStdString();
        EXPECT_EQ(classifyLine(line), LineKind::Option) << line.toStdString();
        EXPECT_FALSE(names.contains(nameOf(line))) << "twice: " << line.toStdString();
        names.insert(nameOf(line));
    }
}

TEST(Proposal, OptionLinesAreInAlphabeticalOrder) {
    // Ascending both by character code and in the order of the window's own sort, so that sorting
    // a fresh proposal moves nothing.
    const QStringList options = optionPart();
    const LineCollator german{QLocale(QLocale::German, QLocale::Germany)};
    for (qsizetype i = 1; i < options.size(); ++i) {
        EXPECT_LT(nameOf(options[i - 1]), nameOf(options[i])) << i;
        EXPECT_LT(german.compare(options[i - 1], options[i]), 0)
            << options[i - 1].toStdString() << " / " << options[i].toStdString();
    }
}

TEST(Proposal, LeavesPathAndGhostOptionsToTheirOwnTools) {
    // The path options window and the ghost options add these lines; the proposal must not set
    // them already, with values that would then stand twice in the file.
    QSet<QString> names;
    for (const QString& line : optionPart())
        names.insert(nameOf(line));
    for (const PathOption& option : pathOptions())
        EXPECT_FALSE(names.contains(option.option)) << option.option.toStdString();
    for (const QString& ghost : ghostLines())
        EXPECT_FALSE(names.contains(nameOf(ghost))) << ghost.toStdString();
}

TEST(Proposal, MapkeyLinesFormCompleteMapkeys) {
    const QStringList mapkeys = mapkeyPart();
    ASSERT_EQ(mapkeys.size(), kProposalMapkeyLineCount);
    bool continues = false;
    QSet<QString> names;
    for (const QString& line : mapkeys) {
        const LineKind kind = classifyLine(line);
        // A continuation follows exactly a line that ends in a backslash.
        EXPECT_EQ(kind, continues ? LineKind::Continuation : LineKind::Mapkey) << line.toStdString();
        if (kind == LineKind::Mapkey) {
            const QString name = line.section(u' ', 1, 1);
            EXPECT_FALSE(names.contains(name)) << "twice: " << name.toStdString();
            names.insert(name);
        }
        continues = line.endsWith(u'\\');
    }
    EXPECT_FALSE(continues) << "the last mapkey is not finished";

    // "mapkey +" runs other mapkeys by name: each of them must be there.
    const QString plus = u"mapkey + %@regen-drw;%@regen-bgr;%@regen-prt;"_s;
    ASSERT_TRUE(mapkeys.contains(plus));
    for (const QString& call : plus.mid(9).split(u';', Qt::SkipEmptyParts))
        EXPECT_TRUE(names.contains(call.mid(1))) << call.toStdString();
}

TEST(Proposal, FunctionKeyMapkeysStandVerbatim) {
    struct Case {
        QString name;
        int lineCount;
    };
    const QList<Case> cases = {{u"$F1"_s, 2}, {u"$F2"_s, 2}, {u"$F3"_s, 2}, {u"$F4"_s, 3}};
    const QStringList mapkeys = mapkeyPart();
    for (const Case& c : cases) {
        const auto first = std::find_if(mapkeys.begin(), mapkeys.end(), [&](const QString& line) {
            return line.startsWith(u"mapkey "_s + c.name + u' ');
        });
        ASSERT_NE(first, mapkeys.end()) << c.name.toStdString();
        const qsizetype at = first - mapkeys.begin();
        int length = 1;
        while (at + length < mapkeys.size() && isContinuationLine(mapkeys[at + length]))
            ++length;
        EXPECT_EQ(length, c.lineCount) << c.name.toStdString();
    }
    // The first mapkey with its typo, exactly as users know it.
    EXPECT_EQ(mapkeys.mid(0, 2),
              QStringList({u"mapkey $F1 @MAPKEY_NAMEZoom Fenster;@MAPKEY_LABELZomm_fenster_auf;\\"_s,
                           u"mapkey(continued) ~ Activate `main_dlg_cur` `ProCmdViewZoomIn.view`;"_s}));
    EXPECT_TRUE(mapkeys.join(u'\n').contains(u"ProCmdViewZoomOut"_s));
    EXPECT_TRUE(mapkeys.join(u'\n').contains(u"ProCmdViewRefit"_s));
}

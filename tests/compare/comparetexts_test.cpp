// A value of hundreds of megabytes goes out in slices while the texts are built; what comes out
// must be what building them whole gives.
#include "compare/comparetexts.h"
#include "compare/configdiff.h"
#include "compare/effectiveconfig.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// Characters beyond the basic plane, tabs shown as ^I, a lone surrogate as it came from the file.
const QString kValue = u"a😀\tä😀😀b"_s + QChar(char16_t(0xD83D)) + u"c\u007f😀"_s;

// Builds the text with a drain of every slice length. The pieces go out as UTF-8 one by one, as
// the command line prints them: a piece ending in half a character would print a wrong one.
template <typename Append> void expectSameForEverySlice(const QString& whole, Append&& append) {
    for (qsizetype slice = 1; slice <= kValue.size() + 1; ++slice) {
        QByteArray printed;
        QString out = u"vorher\n"_s;
        int flushes = 0;
        const TextDrain drain{[&](QString& text) {
                                  ++flushes;
                                  printed += text.toUtf8();
                                  text.clear();
                              },
                              slice};
        append(out, drain);
        ASSERT_EQ(printed + out.toUtf8(), (u"vorher\n"_s + whole).toUtf8()) << "slice " << slice;
        EXPECT_EQ(flushes > 0, slice < kValue.size()) << "slice " << slice;
    }
}

TEST(CompareTexts, ALongValueGoesOutInSlicesUnchanged) {
    const std::vector<ConfigSource> sources = {
        {u"a.pro"_s, {u"bell "_s + kValue, u"mapkey $F2 "_s + kValue, u"search_path "_s + kValue}, false},
        {u"b.pro"_s, {u"bell no"_s, u"mapkey $F2 #b;"_s, u"search_path "_s + kValue}, false}};
    const QStringList files = {u"a.pro"_s, u"b.pro"_s};
    const EffectiveConfig config = effectiveConfig(sources, {u"search_path"_s});
    ASSERT_EQ(config.settings.size(), 3u);
    for (const EffectiveSetting& s : config.settings) {
        SCOPED_TRACE(s.key.toString().toStdString());
        QString text;
        appendEffectiveText(text, s, files);
        expectSameForEverySlice(text, [&](QString& out, const TextDrain& d) { appendEffectiveText(out, s, files, d); });
        QString tsv;
        appendEffectiveTsv(tsv, s, files);
        expectSameForEverySlice(tsv, [&](QString& out, const TextDrain& d) { appendEffectiveTsv(out, s, files, d); });
    }

    const std::vector<DiffEntry> diff = diffConfigs(sources[0].lines, sources[1].lines, {u"search_path"_s});
    ASSERT_EQ(diff.size(), 2u);
    for (const DiffEntry& d : diff) {
        SCOPED_TRACE(d.name.toStdString());
        QString text;
        appendDiffText(text, d, u"a.pro"_s, u"b.pro"_s);
        expectSameForEverySlice(
            text, [&](QString& out, const TextDrain& drain) { appendDiffText(out, d, u"a.pro"_s, u"b.pro"_s, drain); });
        QString tsv;
        appendDiffTsv(tsv, d);
        expectSameForEverySlice(tsv, [&](QString& out, const TextDrain& drain) { appendDiffTsv(out, d, drain); });
    }
}

} // namespace

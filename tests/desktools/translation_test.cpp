// The translation asks a web service for every line and reads the answer as a browser would; a
// wrong address loses every line, and a hostile or broken answer must neither crash nor hang.
#include "../common/qstringprinting.h"
#include "desktools/htmlinnertext.h"
#include "desktools/translationanswer.h"
#include "desktools/translationrequest.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

TEST(TranslationRequest, AddressForBothDirectionsWithTheApostrophes) {
    EXPECT_EQ(translationAddress(u"http://127.0.0.1:8080/"_s, u"Guten Tag"_s, TranslationDirection::GermanToEnglish),
              u"http://127.0.0.1:8080/translate_t?text='Guten Tag'&langpair=de|en&hl=en"_s);
    EXPECT_EQ(
        translationAddress(u"https://translate.google.com/"_s, u"good day"_s, TranslationDirection::EnglishToGerman),
        u"https://translate.google.com/translate_t?text='good day'&langpair=en|de&hl=de"_s);
    // The line goes in as it stands, not encoded.
    EXPECT_EQ(translationAddress(u"http://h/"_s, u"Öl & Wasser 100%"_s, TranslationDirection::GermanToEnglish),
              u"http://h/translate_t?text='Öl & Wasser 100%'&langpair=de|en&hl=en"_s);
}

TEST(TranslationRequest, DirectionsAndEndpoints) {
    EXPECT_EQ(translationDirectionNames(), (QStringList{u"deutsch-englisch"_s, u"englisch-deutsch"_s}));
    EXPECT_EQ(translationDirectionOf(u"deutsch-englisch"_s), TranslationDirection::GermanToEnglish);
    EXPECT_EQ(translationDirectionOf(u"englisch-deutsch"_s), TranslationDirection::EnglishToGerman);
    EXPECT_EQ(translationDirectionOf(u"Translate"_s), std::nullopt);

    for (const QString& good : {u"https://translate.google.com/"_s, u"http://127.0.0.1:8080/"_s, u"HTTP://host/x/"_s})
        EXPECT_TRUE(translationEndpointProblem(good).isEmpty()) << good.toStdString();
    for (const QString& bad : {QString(), u"translate.google.com"_s, u"ftp://host/"_s, u"http://"_s, u"http://a b/"_s})
        EXPECT_FALSE(translationEndpointProblem(bad).isEmpty()) << bad.toStdString();
}

TEST(TranslationRequest, LinesByTheReadersRuleAndEveryResultEnded) {
    EXPECT_EQ(translationSourceLines(u"eins\r\n\r\nzwei\rdrei\nvier\r\n"_s),
              (QStringList{u"eins"_s, QString(), u"zwei"_s, u"drei\nvier"_s}));
    EXPECT_TRUE(translationSourceLines(QString()).isEmpty());
    EXPECT_EQ(translatedText({u"one"_s, QString(), u"two"_s}), u"one\r\n\r\ntwo\r\n"_s);
    EXPECT_EQ(translatedText({}), QString());
    EXPECT_TRUE(translationShortfall(0, 4).isEmpty());
    EXPECT_TRUE(translationShortfall(2, 4).startsWith(u"2 von 4 Zeilen"_s));
}

struct AnswerCase {
    const char* label;
    QByteArray page;
    QString translation;
};

QByteArray googleLikePage(const QByteArray& resultBox) {
    return "<!DOCTYPE html><html><head><meta charset=\"UTF-8\"><title>Google \xC3\x9C"
           "bersetzer</title>"
           "<script>var t = '<span id=result_box>falsch</span>';</script>"
           "<style>#result_box{color:red}</style></head><body class=\"gt\">"
           "<div id=gt-text-top><textarea id=source name=text>'Guten Tag'</textarea></div>"
           "<div id=gt-res-content><div dir=ltr style=\"zoom:1\">" +
           resultBox + "</div></div><div id=footer>&copy; Google</div></body></html>";
}

TEST(TranslationAnswer, ReadsTheResultBoxLikeABrowser) {
    const AnswerCase cases[] = {
        {"typical answer",
         googleLikePage("<span id=result_box class=\"short_text\" lang=\"en\"><span title=\"'Guten Tag'\" "
                        "onmouseover=\"this.style.backgroundColor='#ebeff9'\">'Good day'</span></span>"),
         u"Good day"_s},
        {"nested tags and entities",
         googleLikePage(
             "<span id=\"result_box\"><span>&#39;Fish &amp; <b>chips</b>&nbsp;&auml;&#x20AC;</span>'</span>"),
         u"Fish & chips\u00A0ä€"_s},
        {"blanks and line ends collapse",
         googleLikePage("<span id=result_box>\n   'Hello\n\t  <i>wide</i>   world'  \n</span>"), u"Hello wide world"_s},
        // One line in, one line out: breaks become blanks (found by fuzzing a broken table page).
        {"br and blocks stay on one line", googleLikePage("<div id=result_box>'one<br>two<div>three</div>four'</div>"),
         u"one two three four"_s},
        {"a table swallowed by an unclosed box", "<span id=result_box><b>'a<i>b</b>c'</sqan><table><td>x<td>y</table>",
         u"abc' \tx\t"_s},
        {"pre keeps its blanks", googleLikePage("<pre id=result_box>'a   b'</pre>"), u"a   b"_s},
        {"scripts, styles and hidden parts are not text",
         googleLikePage("<span id=result_box>'A<script>x()</script><style>b{}</style><span hidden>no</span>B'</span>"),
         u"AB"_s},
        {"the first of two boxes",
         googleLikePage("<span id=result_box>'first'</span><span id=result_box>'second'</span>"), u"first"_s},
        {"attribute name in capitals", "<P ID=result_box>'x y'</P>", u"x y"_s},
        {"unclosed tags", "<body><span id=result_box><b>'offen", u"offe"_s},
        {"just the fragment", "<span id=result_box>'ok'</span>", u"ok"_s},
        {"code page answer", "<span id=result_box>'gr\xFC\xDF'</span>", u"grüß"_s},
        {"no result box", googleLikePage("<span id=result>'Good day'</span>"), QString()},
        {"id differs in case", googleLikePage("<span id=Result_Box>'Good day'</span>"), QString()},
        {"only in a script", "<script>document.write(\"<span id=result_box>'x'</span>\")</script>", QString()},
        {"empty box", googleLikePage("<span id=result_box></span>"), QString()},
        {"one character", googleLikePage("<span id=result_box>'</span>"), QString()},
        {"two characters", googleLikePage("<span id=result_box>''</span>"), QString()},
        {"empty answer", QByteArray(), QString()},
        {"cut off in the middle", "<html><body><div id=gt-res-content><span id=\"resu", QString()},
        {"tag soup is read as a browser reads it", "<<<>>><span id=\"result_box\"<b>>'x'", u"'x"_s},
        {"garbage", QByteArray("\x00\xFF\xFE<\x01\x02\x03 id=result_box \x89PNG\r\n\x1A\n", 26), QString()},
        {"json instead of html", "{\"result_box\": \"'Good day'\"}", QString()},
    };
    for (const AnswerCase& c : cases) {
        SCOPED_TRACE(c.label);
        EXPECT_EQ(translationFromAnswer(c.page), c.translation);
    }
}

TEST(TranslationAnswer, HostileAnswersEndQuicklyAndEmpty) {
    QElapsedTimer timer;
    timer.start();
    // Thousands of nested elements would cost the parser seconds and gigabytes.
    const QByteArray deep = QByteArray("<div>").repeated(20000) + "<span id=result_box>'x'</span>";
    EXPECT_GT(estimatedHtmlNesting(deep), kMaxHtmlNesting);
    EXPECT_EQ(translationFromAnswer(deep), QString());
    const QByteArray deepFormatting = QByteArray("<b>").repeated(20000) + "<span id=result_box>'x'</span>";
    EXPECT_EQ(translationFromAnswer(deepFormatting), QString());
    // A page beyond the answer limit is no translation of one line.
    QByteArray huge = "<span id=result_box>'x'</span>" + QByteArray(kMaxTranslationAnswerBytes, ' ');
    EXPECT_EQ(translationFromAnswer(huge), QString());
    EXPECT_LT(timer.elapsed(), 20000) << "generous: only a hang fails";

    // Many elements side by side are an ordinary big page and still read.
    const QByteArray wide = QByteArray("<p>Absatz<li>Punkt<td>Zelle<br><img src=x><input/>").repeated(5000) +
                            "<span id=result_box>'wide'</span>";
    EXPECT_LT(estimatedHtmlNesting(wide), 10);
    EXPECT_EQ(translationFromAnswer(wide), u"wide"_s);
}

struct NestingCase {
    const char* html;
    int depth;
};

TEST(TranslationAnswer, NestingEstimate) {
    const NestingCase cases[] = {
        {"", 0},
        {"<div><span>a</span></div>", 2},
        {"<div><div><div></div></div></div>", 3},
        {"<br><br/><img src='>'><hr>", 0},
        {"<!-- <div><div> --><div>", 1},
        {"<script>if (a<b) { x = '<div><div><div>'; }</script><p>", 1},
        {"<!DOCTYPE html><?xml x?><i>", 1},
        {"</div></div><b>", 1},
    };
    for (const NestingCase& c : cases)
        EXPECT_EQ(estimatedHtmlNesting(c.html), c.depth) << c.html;
}

} // namespace

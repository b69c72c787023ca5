#include "desktools/translationrequest.h"

#include "document/linesplit.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace quenfor {

QStringList translationDirectionNames() {
    return {u"deutsch-englisch"_s, u"englisch-deutsch"_s};
}

std::optional<TranslationDirection> translationDirectionOf(const QString& name) {
    if (name == u"deutsch-englisch")
        return TranslationDirection::GermanToEnglish;
    if (name == u"englisch-deutsch")
        return TranslationDirection::EnglishToGerman;
    return std::nullopt;
}

QString translationAddress(const QString& endpoint, const QString& line, TranslationDirection direction) {
    const QString languages =
        direction == TranslationDirection::GermanToEnglish ? u"'&langpair=de|en&hl=en"_s : u"'&langpair=en|de&hl=de"_s;
    return endpoint + u"translate_t?text='"_s + line + languages;
}

QString translationEndpointProblem(const QString& endpoint) {
    const QUrl url(endpoint, QUrl::StrictMode);
    const QString scheme = url.scheme().toLower();
    if (!url.isValid() || (scheme != u"http" && scheme != u"https") || url.host().isEmpty())
        return u"Die Adresse des Übersetzungsdienstes \"%1\" ist keine http- oder https-Adresse. Sie steht in der "
               u"Einstellung \"Uebersetzungsdienst\" des Text-Editors."_s.arg(endpoint);
    return {};
}

QStringList translationSourceLines(const QString& text) {
    return splitLines(text);
}

QString translatedText(const QStringList& results) {
    QString text;
    for (const QString& result : results)
        text += result + u"\r\n"_s;
    return text;
}

QString translationShortfall(qsizetype failed, qsizetype asked) {
    if (failed == 0)
        return {};
    return u"%1 von %2 Zeilen kamen ohne Übersetzung zurück und blieben leer (Strg+Z stellt den Text von vorher "
           u"wieder her)."_s.arg(failed)
               .arg(asked);
}

QString translationCancelledText(qsizetype done, qsizetype total) {
    return u"Übersetzung abgebrochen: %1 von %2 Zeilen übersetzt, die übrigen stehen unverändert darunter."_s.arg(done)
        .arg(total);
}

} // namespace quenfor

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

// Translating the editor's text line by line through a web translation service.

enum class TranslationDirection { GermanToEnglish, EnglishToGerman };

// The entries of the direction box: "deutsch-englisch", "englisch-deutsch".
QStringList translationDirectionNames();
std::optional<TranslationDirection> translationDirectionOf(const QString& name);

// endpoint + "translate_t?text='" + line + "'&langpair=de|en&hl=en" (German to English) or
// "...'&langpair=en|de&hl=de" (English to German). The line goes in as it is, not URL-encoded,
// with the apostrophes around it: the service has always been asked like this, and the answer
// carries the apostrophes back, which the answer reading takes off again.
QString translationAddress(const QString& endpoint, const QString& line, TranslationDirection direction);

// Why an endpoint cannot be asked (German), or empty: it must be an http or https address
// with a host.
QString translationEndpointProblem(const QString& endpoint);

// The lines of the text by the reader's rule; each is asked for on its own, empty lines stay
// empty without asking.
QStringList translationSourceLines(const QString& text);
// The translated text: every result followed by CR LF, the last one too.
QString translatedText(const QStringList& results);

// What the status adds after a run in which some lines came back empty, and after a cancel.
QString translationShortfall(qsizetype failed, qsizetype asked);
QString translationCancelledText(qsizetype done, qsizetype total);

inline constexpr char16_t kTranslationQuestion[] =
    u"Sie benötigen für diese Funktion eine Internet Verbindung ! Soll dieser Text übersetzt werden ?";
inline constexpr char16_t kTranslationStarted[] =
    u"temporäre Datei gespeichert. Die Funktion wird ausgeführt. Bitte warten...";
inline constexpr char16_t kTranslationFileDeleted[] = u"temporäre Datei wurde gelöscht";

} // namespace quenfor

#pragma once

#include <QString>

namespace quenfor {

// The text editor keeps its settings under its own application "Skribb", section "Optionen":
// "dir1" and "drive1" (folder and drive of the file boxes), "Filter" (pattern of the open box),
// the explain check box and "lbl_schwarzweissblau" (background colour word), as it always has.
// Three keys of our own join them: "Uebersetzungsdienst" (address of the translation service),
// "Uebersetzungszeitlimit" (seconds one line may take) and "Hilfeseite" (the help page).
struct SkribbSettings {
    QString folder;
    QString drive;
    QString filter;
    bool explain = false;
    QString colourWord;
};

SkribbSettings loadSkribbSettings();
// Returns false when the store could not be written.
bool storeSkribbSettings(const SkribbSettings& settings);

// Where translations are asked for: the stored address, else kDefaultTranslationEndpoint.
QString translationEndpoint();
// The stored time limit of one translation request in seconds (1 to 300), else 15.
int translationTimeoutSeconds();
// The stored help page (a web address or a file), else the page that lies beside the program.
QString skribbHelpPage();

inline constexpr char16_t kDefaultTranslationEndpoint[] = u"https://translate.google.com/";
inline constexpr int kDefaultTranslationTimeoutSeconds = 15;

} // namespace quenfor

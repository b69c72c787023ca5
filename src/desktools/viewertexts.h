#pragma once

#include <QString>

namespace quenfor {

// The picture viewer's fixed texts.
inline constexpr char16_t kConsoleStartHint[] =
    u"Befehle hier eingeben, z.B. info und <ENTER> . Doppelklick löscht Zeileninhalt";
inline constexpr char16_t kPrintingText[] = u"Druckausgabe auf Standarddrucker...";
inline constexpr char16_t kWindowResetText[] = u"Fenster zurückgesetzt";
inline constexpr char16_t kShowingInfoText[] = u"*** INFO Anzeigen ***";
inline constexpr char16_t kCopiedText[] = u"Bild wurde in die Zwischenablage kopiert";
inline constexpr char16_t kPastedText[] = u"Zwischenablage eingefügt";

// Commands that need a picture when none is shown.
inline constexpr char16_t kNoPictureShown[] = u"Es wird kein Bild angezeigt.";
inline constexpr char16_t kNoDefaultPrinter[] = u"Kein Standarddrucker eingerichtet: das Bild wurde nicht gedruckt.";
inline constexpr char16_t kPrintFailed[] =
    u"Der Drucker hat den Auftrag nicht angenommen: das Bild wurde nicht gedruckt.";
inline constexpr char16_t kNoTerminal[] =
    u"Kein Terminalprogramm gefunden: bitte x-terminal-emulator (oder xterm) installieren.";

inline constexpr char16_t kInfoCloseCaption[] = u"Schließen";

// Choosing a drive or folder that is not there (a drive without a medium, a folder removed).
QString driveNotAvailableText(const QString& drive);
QString folderMissingText(const QString& folder);
// What the console line shows after a picture was loaded.
QString pictureShownText(const QString& path, int width, int height);
// "list" when the written list cannot be opened.
QString listNotOpenedText(const QString& path);

// "paste" when the clipboard holds no picture: the prefix and the clipboard's text.
QString noClipboardPictureText(const QString& clipboardText);

// "autor", the information box and "type".
QString authorText();
QString viewerInfoText();
QString pictureTypesText();

// "viewer": the page about the picture formats the viewer reads, and what it says when no
// browser opens it.
QString viewerWebPage();
QString webPageFailedText(const QString& address);

} // namespace quenfor

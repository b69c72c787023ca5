#pragma once

#include <QString>

namespace quenfor {

// The messenger keeps its settings under its own application "Rufpost", section "Optionen":
// "user" (the last recipient, "myfriend" at first), "Text1" (the last message) and "Text2" (the
// remembered recipients, the whole multi-line text). Before the first use the two texts hold
// their controls' names, "Text1" and "Text2", as they always have.
struct NetSendSettings {
    QString recipient;
    QString message;
    QString recipients;
};

NetSendSettings loadNetSendSettings();
// Returns false when the store could not be written.
bool storeNetSendSettings(const NetSendSettings& settings);

} // namespace quenfor

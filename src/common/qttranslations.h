#pragma once

class QCoreApplication;

namespace quenfor {

// Loads Qt's own German texts (the buttons of message boxes, the file, colour and print dialogs)
// from the system's Qt translations, so nothing of the program speaks English. False when they
// are not installed; the program then still works, with Qt's English texts.
bool installGermanQtTranslations(QCoreApplication& app);

} // namespace quenfor

#pragma once

#include <QString>

namespace quenfor {

// What the screenshot window keeps between runs: the texts of its four rectangle fields and its
// place on the screen (in pixels), under the program's own application "quenfor", section
// "Optionen". Read when the window opens, all six written when it closes.
struct ScreenshotSettings {
    QString x = QStringLiteral("200");      // X.Text
    QString y = QStringLiteral("200");      // Y.Text
    QString height = QStringLiteral("800"); // HOEHE.Text
    QString width = QStringLiteral("930");  // BREITE.Text
    int top = 0;                            // TOPFORM
    int left = 0;                           // LEFTFORM

    static ScreenshotSettings load();
    // Where shots go until the user picks a folder: the user's pictures folder, else the home
    // folder. The folder itself is not kept between runs.
    static QString defaultFolder();
    bool save() const; // false when the store could not be written
};

} // namespace quenfor

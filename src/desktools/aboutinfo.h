#pragma once

#include <QString>

namespace quenfor {

// What the about box tells: the program, its version and its licence with the full text.
struct AboutInfo {
    QString programName;
    QString version;
    QString description;
    QString copyright;
    QString licenceName; // the licence's short name
    QString licenceText; // the LICENSE file built into the program
};

AboutInfo aboutInfo();

} // namespace quenfor

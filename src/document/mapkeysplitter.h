#pragma once

#include <QString>

namespace quenfor {

class ConfigDocument;

// Splits a long mapkey line in two so the CAD system reads it: the head ends with "\" after the
// last ";" at or before position 79, the tail continues as "mapkey(continued) ...". Head and tail
// are placed by the insert rule, tail first: with the long line marked and selected they replace
// it in place; with no marked line both are appended, tail before head.
struct MapkeySplitResult {
    bool refused = false; // not a mapkey line: the window shows `message` in a box
    bool placed = false;  // false: the line was shorter than 80 characters and nothing happened
    QString message;      // "this function is for mapkeys only !"
    QString status;       // "check your mapkey !"
    QString entryLine;    // what the entry line holds afterwards: the head
};

MapkeySplitResult splitMapkeyLine(ConfigDocument& doc, const QString& entry);

} // namespace quenfor

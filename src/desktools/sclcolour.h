#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace quenfor {

// The CAD system's colour values: red, green and blue as percentages from 0 to 100, written in
// colour files (.scl) with six decimals behind a point, optionally after the colour's name:
//     SYSTEM_BACKGROUND_COLOR 0.000000 7.058824 19.607843
enum class ColourChannel { Red, Green, Blue };
inline constexpr int kColourChannels = 3;
using Percentages = std::array<double, kColourChannels>;

QString channelName(ColourChannel channel); // "Rot", "Grün", "Blau"

// 0 … 100 to 0 … 255, rounded to the nearest step; out-of-range values are clamped.
int percentToRgb(double percent);
// 0 … 255 to 0 … 100; out-of-range values are clamped.
double rgbToPercent(int value);

// A field of the colour box: the value, or the German reason it is refused.
struct ChannelValue {
    std::optional<double> value;
    QString error;
};
// A percentage as the user types it (decimal comma or point), 0 … 100.
ChannelValue parsePercent(ColourChannel channel, const QString& text);
// An RGB value: a whole number 0 … 255.
ChannelValue parseRgb(ColourChannel channel, const QString& text);

// A percentage for a field of the window: up to six decimals, decimal comma.
QString percentFieldText(double percent);

// A colour line of an .scl file: an optional name and three percentages.
struct SclColourLine {
    QString name;
    Percentages percent{};
};
// Reads "NAME r g b" or "r g b"; anything else (a comment, "UI_TEXT_COLOR default", values
// outside 0 … 100) is no colour line.
std::optional<SclColourLine> parseSclColourLine(const QString& line);
// The line as the colour file holds it: the name (when given), a blank, the three values.
QString sclColourLine(const QString& name, const Percentages& percent);
// A name must be one word: empty (no name) or without blanks.
QString checkColourName(const QString& name);

// Why the main window's marked line cannot be taken into the colour box; empty when it can.
QString colourLineRefusal(const std::optional<QString>& markedLine);

// The system colour names of a colour file, for the name box.
const QStringList& knownColourNames();

} // namespace quenfor

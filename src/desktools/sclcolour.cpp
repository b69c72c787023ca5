#include "desktools/sclcolour.h"

#include "desktools/decimalnumber.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kFileDecimals = 6;

QString notAColourNumber(ColourChannel channel, const QString& text) {
    return u"%1: „%2“ ist keine Zahl."_s.arg(channelName(channel), text.trimmed());
}

} // namespace

QString channelName(ColourChannel channel) {
    switch (channel) {
    case ColourChannel::Red:
        return u"Rot"_s;
    case ColourChannel::Green:
        return u"Grün"_s;
    case ColourChannel::Blue:
        break;
    }
    return u"Blau"_s;
}

int percentToRgb(double percent) {
    return int(std::lround(std::clamp(percent, 0.0, 100.0) * 255 / 100));
}

double rgbToPercent(int value) {
    return std::clamp(value, 0, 255) * 100.0 / 255;
}

ChannelValue parsePercent(ColourChannel channel, const QString& text) {
    const std::optional<double> value = parseDecimal(text);
    if (!value)
        return {std::nullopt, notAColourNumber(channel, text)};
    if (*value < 0 || *value > 100)
        return {std::nullopt, u"%1: Prozentwerte liegen zwischen 0 und 100."_s.arg(channelName(channel))};
    return {value, {}};
}

ChannelValue parseRgb(ColourChannel channel, const QString& text) {
    const std::optional<double> value = parseDecimal(text);
    if (!value)
        return {std::nullopt, notAColourNumber(channel, text)};
    if (*value < 0 || *value > 255 || *value != std::floor(*value))
        return {std::nullopt, u"%1: RGB-Werte sind ganze Zahlen von 0 bis 255."_s.arg(channelName(channel))};
    return {value, {}};
}

QString percentFieldText(double percent) {
    return formatDecimal(percent, kFileDecimals);
}

std::optional<SclColourLine> parseSclColourLine(const QString& line) {
    static const QRegularExpression blanks(u"\\s+"_s);
    const QStringList words = line.split(blanks, Qt::SkipEmptyParts);
    if (words.size() != kColourChannels && words.size() != kColourChannels + 1)
        return std::nullopt;
    SclColourLine colour;
    const qsizetype first = words.size() - kColourChannels;
    if (first == 1)
        colour.name = words[0];
    for (int i = 0; i < kColourChannels; ++i) {
        const std::optional<double> value = parseDecimal(words[first + i]);
        if (!value || *value < 0 || *value > 100)
            return std::nullopt;
        colour.percent[i] = *value;
    }
    return colour;
}

QString sclColourLine(const QString& name, const Percentages& percent) {
    QStringList words;
    if (!name.trimmed().isEmpty())
        words.append(name.trimmed());
    for (double value : percent)
        words.append(QString::number(value, 'f', kFileDecimals));
    return words.join(u' ');
}

QString checkColourName(const QString& name) {
    static const QRegularExpression blank(u"\\s"_s);
    if (name.trimmed().contains(blank))
        return u"Der Farbname „%1“ darf keine Leerzeichen enthalten."_s.arg(name.trimmed());
    return {};
}

QString colourLineRefusal(const std::optional<QString>& markedLine) {
    if (!markedLine)
        return u"Im Hauptfenster ist keine Zeile markiert."_s;
    if (!parseSclColourLine(*markedLine))
        return u"Die markierte Zeile ist keine Farbzeile (Name und drei Prozentwerte von 0 bis 100): „%1“"_s.arg(
            *markedLine);
    return {};
}

const QStringList& knownColourNames() {
    static const QStringList names = {
        u"SYSTEM_BACKGROUND_COLOR"_s,   u"SYSTEM_LETTER_COLOR"_s,
        u"SYSTEM_HIGHLIGHT_COLOR"_s,    u"SYSTEM_GEOMETRY_COLOR"_s,
        u"SYSTEM_HIDDEN_COLOR"_s,       u"SYSTEM_EDGE_HIGH_COLOR"_s,
        u"SYSTEM_DIMMED_MENU_COLOR"_s,  u"SYSTEM_SHEETMETAL_COLOR"_s,
        u"SYSTEM_CURVES_COLOR"_s,       u"SYSTEM_VOLUME_COLOR"_s,
        u"SYSTEM_SECTION_COLOR"_s,      u"SYSTEM_PRESEL_HIGHLIGHT_COLOR"_s,
        u"SYSTEM_SELECTED_COLOR"_s,     u"SYSTEM_SECONDARY_SELECTED_COLOR"_s,
        u"SYSTEM_PREVIEW_GEOM_COLOR"_s, u"SYSTEM_SECONDARY_PREVIEW_COLOR"_s,
        u"SYSTEM_DATUM_COLOR"_s,        u"SYSTEM_QUILT_COLOR"_s,
        u"SYSTEM_TOP_BLENDING_COLOR"_s, u"SYSTEM_BOTTOM_BLENDING_COLOR"_s,
    };
    return names;
}

} // namespace quenfor

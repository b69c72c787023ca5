#include "cli/interpolatecommand.h"

#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "desktools/interpolation.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

// The window drops a character it does not take; a script gets told instead, so no value changes
// behind its back.
void reportRefused(const CliStreams& io, const QString& field, const QString& text) {
    io.message(onlyNumbersMessage());
    io.message(u"Im Feld „%1“ steht „%2“; erlaubt sind Ziffern, „,“ und „.“ (kein Vorzeichen)."_s.arg(field, text));
}

} // namespace

int runInterpolateCommand(const CliArgs& args, const CliStreams& io) {
    const std::array<QString, 5> names = {u"x1"_s, u"y1"_s, u"x2"_s, u"y2"_s, u"a"_s};
    // The window takes no minus sign either.
    for (const QString& value : args.positional) {
        if (value.startsWith(u'-')) {
            io.message(onlyNumbersMessage());
            io.message(u"„%1“: ein Minuszeichen nimmt die Interpolation nicht an."_s.arg(value));
            return kFailed;
        }
    }
    if (args.positional.size() != qsizetype(names.size()) || args.inPlace || args.outFile || args.kbFile)
        return usageOf(io, args.command);

    std::array<QString, 5> fields;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QString& text = args.positional[qsizetype(i)];
        const FilteredNumberText filtered = filterNumberText(text, 0);
        if (filtered.refused) {
            reportRefused(io, names[i], text);
            return kFailed;
        }
        fields[i] = filtered.text;
    }
    const InterpolationResult result = interpolate({fields[0], fields[1], fields[2], fields[3], fields[4]});
    if (!result.ok) {
        io.message(result.error);
        return kFailed;
    }
    io.print(result.text + u'\n');
    return kOk;
}

QString interpolateCommandHelp() {
    return u"  \"lineare Interpolation\": gibt b aus, wie das Fenster es zeigt:\n"
           "  b = ((a − x2) + (y1 − y2)) ÷ (x1 − x2) + y2 (die Differenzen werden addiert).\n"
           "  Zahlen mit Dezimalkomma; ein Punkt gilt als Komma, Vorzeichen und andere Zeichen\n"
           "  werden abgelehnt (\"Bitte nur Zahlen eingeben.\"). Beispiel: interpolate 0 0 10 10 5 gibt 11,5.\n"_s;
}

} // namespace quenfor::cli

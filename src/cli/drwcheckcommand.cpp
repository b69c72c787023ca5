#include "cli/drwcheckcommand.h"

#include "cadfiles/drawingfoldercheck.h"
#include "cadfiles/drawingmodel.h"
#include "cadfiles/drawingmodellist.h"
#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "common/fileexists.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

// Binary garbage read as a model name must not break the tab-separated line: control characters
// are printed in caret notation (^@, ^I, ^?), as cat -v does.
QString printable(const QString& text) {
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        if (c.unicode() < 0x20) {
            out += u'^';
            out += QChar(c.unicode() + 0x40);
        } else if (c.unicode() == 0x7f) {
            out += u"^?"_s;
        } else {
            out += c;
        }
    }
    return out;
}

void printCheck(const DrawingCheck& check, const CliStreams& io) {
    io.print(printable(check.drawingName) + u'\t' + printable(check.modelName) + u'\t' +
             (check.matches ? u"OK"_s : u"NICHT"_s) + u'\t' + printable(check.listedModels.join(u',')) + u'\n');
    if (check.read == DrawingRead::Unreadable)
        io.message(drawingCheckNote(check));
}

} // namespace

int runDrwCheckCommand(const CliArgs& args, const CliStreams& io) {
    if (args.positional.isEmpty() || args.inPlace || args.outFile || args.kbFile)
        return usageOf(io, args.command);
    const QString codepage = encodingChoiceFor(args).codepage;

    int status = kOk;
    qsizetype shortHeaders = 0;
    qsizetype checked = 0;
    const auto count = [&](const DrawingCheck& check) {
        ++checked;
        if (check.read == DrawingRead::ShortHeader)
            ++shortHeaders;
    };
    for (const QString& path : args.positional) {
        if (folderExists(path)) {
            const DrawingFolderCheck folder = checkDrawingFolder(path, codepage);
            for (const DrawingCheck& check : folder.checks) {
                printCheck(check, io);
                count(check);
            }
        } else if (fileExists(path)) {
            const DrawingCheck check = checkDrawingWithModelList(path, codepage);
            // A pipe or device named by mistake is no drawing: it gets no result line.
            if (check.read == DrawingRead::NotAFile) {
                io.message(drawingCheckNote(check));
                status = kFailed;
                continue;
            }
            printCheck(check, io);
            count(check);
        } else {
            io.message(u"Die Datei oder das Verzeichnis \"%1\" gibt es nicht."_s.arg(QDir::toNativeSeparators(path)));
            status = kFailed;
        }
    }
    // Drawings of current releases start with a short line; say why they all read as "NICHT".
    if (shortHeaders > 0)
        io.message(u"Hinweis: Bei %1 von %2 Zeichnungen ist die erste Zeile kürzer als %3 Zeichen; "
                   "ihr Modellname bleibt leer."_s.arg(shortHeaders)
                       .arg(checked)
                       .arg(kModelNamePosition));
    return status;
}

QString drwCheckCommandHelp() {
    return u"  \"Ist das Modell auch in der Zeichnung ?\": liest aus jeder Zeichnung den Namen des\n"
           "  Modells, der in ihrer ersten Zeile ab Zeichen 725 steht, und vergleicht ihn mit dem\n"
           "  Zeichnungsnamen (Dateiname bis zum ersten Punkt, groß geschrieben). PFAD ist eine\n"
           "  Zeichnung oder ein Verzeichnis (dann alle Dateien \"*.drw*\" darin, nach Namen sortiert).\n"
           "  Ausgabe je Zeichnung: Zeichnungsname, Tab, gelesener Modellname, Tab, OK oder NICHT,\n"
           "  Tab, die Modelle, die die Zeichnung selbst auflistet (Abschnitt Dwg_Models, durch Kommas\n"
           "  getrennt; leer, wenn sie keine nennt). Die ersten drei Spalten folgen allein der Regel\n"
           "  mit Zeichen 725; die vierte hilft bei Zeichnungen neuerer Versionen.\n"
           "  Steuerzeichen im Modellnamen erscheinen als ^@ ... ^_ und ^?.\n"
           "  Nur gewöhnliche Dateien werden gelesen; eine Pipe oder ein Gerät wird abgelehnt.\n"
           "  Exit-Status 1, wenn ein PFAD nicht existiert oder keine gewöhnliche Datei ist; die\n"
           "  übrigen werden trotzdem geprüft.\n"_s;
}

} // namespace quenfor::cli

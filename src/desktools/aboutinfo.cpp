#include "desktools/aboutinfo.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace quenfor {

AboutInfo aboutInfo() {
    AboutInfo info;
    info.programName = u"quenfor"_s;
    info.version = QStringLiteral(QUENFOR_VERSION);
    info.description = u"Werkbank für die Konfigurationsdateien von Pro/ENGINEER: config.pro, config.sup, "
                       u"Zeichnungs-Setup (.dtl), Plotter (.pcf), search.pro und Farbdateien (.scl)."_s;
    info.copyright = u"Copyright © 2026 Die quenfor-Entwickler"_s;
    info.licenceName = u"MIT-Lizenz"_s;
    QFile licence(u":/about/LICENSE"_s);
    if (licence.open(QIODevice::ReadOnly))
        info.licenceText = QString::fromUtf8(licence.readAll());
    else
        info.licenceText = u"Der Lizenztext fehlt in diesem Programm. Es steht unter der MIT-Lizenz."_s;
    return info;
}

} // namespace quenfor

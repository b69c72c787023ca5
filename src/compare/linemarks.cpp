#include "compare/linemarks.h"

#include "compare/comparetexts.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

QHash<int, LineMark> lineMarksOf(const EffectiveConfig& config, const std::vector<ConfigSource>& sources, int file) {
    QHash<int, LineMark> marks;
    for (const EffectiveSetting& s : config.settings) {
        for (const SettingPlace& p : s.refused) {
            if (p.file == file)
                marks.insert(p.line - 1, {LineMark::Kind::Locked, lockedLineText(s, sources)});
        }
        for (const SettingPlace& p : s.overridden) {
            // An earlier mark of the same line (a Unix line of pieces) stays: locked says more.
            if (p.file == file && !marks.contains(p.line - 1))
                marks.insert(p.line - 1, {LineMark::Kind::Overridden, overriddenLineText(s, sources)});
        }
    }
    return marks;
}

QString lineMarkSummary(const QString& supPath, const QHash<int, LineMark>& marks) {
    qsizetype locked = 0;
    for (const LineMark& m : marks)
        locked += m.kind == LineMark::Kind::Locked ? 1 : 0;
    const qsizetype overridden = marks.size() - locked;
    const auto count = [](qsizetype n) { return QString::number(n) + (n == 1 ? u" Zeile"_s : u" Zeilen"_s); };
    return u"config.sup %1: %2 gesperrt, %3 überschrieben"_s.arg(QDir::toNativeSeparators(supPath), count(locked),
                                                                 count(overridden));
}

} // namespace quenfor

#include "desktools/screenshotnames.h"

#include "common/pathsplit.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr QStringView kForbidden = u"\\/:*?\"<>|";

} // namespace

QString rectangleShotFileName(const QString& folder, const QString& baseName, quint16 counter) {
    return joinFolderAndName(folder, baseName + u'_' + QString::number(counter) + u".bmp"_s);
}

QString wholeScreenShotFileName(const QString& folder, const QString& baseName, quint16 counter) {
    return joinFolderAndName(folder, baseName + QString::number(counter) + u".bmp"_s);
}

QString shotBaseNameProblem(const QString& baseName) {
    for (const QChar c : baseName) {
        if (kForbidden.contains(c) || c.unicode() < 32)
            return u"Der Dateiname darf keines dieser Zeichen enthalten: \\ / : * ? \" < > |"_s;
    }
    return {};
}

} // namespace quenfor

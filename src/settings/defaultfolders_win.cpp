#include "settings/defaultfolders.h"

using namespace Qt::StringLiterals;

namespace quenfor {

QString defaultConfigFile() {
    return u"D:\\config.pro"_s;
}

QString defaultFolder() {
    return u"C:\\"_s;
}

QString defaultDrive() {
    return u"C:"_s;
}

QString defaultTempFolder() {
    return u"C:\\"_s;
}

} // namespace quenfor

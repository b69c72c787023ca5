#include "desktools/screenshotsettings.h"

#include "common/fileexists.h"
#include "settings/settingsstore.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kScreenshotApplication = u"quenfor"_s;
const QString kScreenshotSection = u"Optionen"_s;

// A damaged number puts the window at its default place instead of somewhere unreachable.
int storedNumber(const SettingsStore& store, const QString& key) {
    bool ok = false;
    const int value = store.value(kScreenshotSection, key, u"0"_s).trimmed().toInt(&ok);
    return ok ? value : 0;
}

} // namespace

ScreenshotSettings ScreenshotSettings::load() {
    const SettingsStore store(kScreenshotApplication);
    ScreenshotSettings settings;
    settings.x = store.value(kScreenshotSection, u"X.Text"_s, settings.x);
    settings.y = store.value(kScreenshotSection, u"Y.Text"_s, settings.y);
    settings.height = store.value(kScreenshotSection, u"HOEHE.Text"_s, settings.height);
    settings.width = store.value(kScreenshotSection, u"BREITE.Text"_s, settings.width);
    settings.top = storedNumber(store, u"TOPFORM"_s);
    settings.left = storedNumber(store, u"LEFTFORM"_s);
    return settings;
}

QString ScreenshotSettings::defaultFolder() {
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir::toNativeSeparators(folderExists(pictures) ? pictures : QDir::homePath());
}

bool ScreenshotSettings::save() const {
    SettingsStore store(kScreenshotApplication);
    bool saved = store.setValue(kScreenshotSection, u"X.Text"_s, x);
    saved = store.setValue(kScreenshotSection, u"Y.Text"_s, y) && saved;
    saved = store.setValue(kScreenshotSection, u"HOEHE.Text"_s, height) && saved;
    saved = store.setValue(kScreenshotSection, u"BREITE.Text"_s, width) && saved;
    saved = store.setValue(kScreenshotSection, u"TOPFORM"_s, QString::number(top)) && saved;
    return store.setValue(kScreenshotSection, u"LEFTFORM"_s, QString::number(left)) && saved;
}

} // namespace quenfor

#include "settings/settingsstore.h"

#include "settings/inistore.h"
#include "settings/systemerrortext.h"
#include "settings/userstore.h"

#include <QSettings>
#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QString& rootFolder() {
    static QString folder;
    return folder;
}

QString groupKey(const QString& section, const QString& key) {
    return section + u'/' + key;
}

} // namespace

SettingsStore::SettingsStore(QString application) : m_application(std::move(application)) {}

QString SettingsStore::value(const QString& section, const QString& key, const QString& defaultValue) const {
    const QVariant stored = open()->value(groupKey(section, key));
    if (!stored.isValid()) {
        return defaultValue;
    }
    // A hand-edited INI line with commas and no quotes reads back as a list; the user meant text.
    if (stored.userType() == QMetaType::QStringList) {
        return stored.toStringList().join(u", "_s);
    }
    return stored.toString();
}

bool SettingsStore::setValue(const QString& section, const QString& key, const QString& value) {
    const auto store = open();
    store->setValue(groupKey(section, key), value);
    store->sync();
    return store->status() == QSettings::NoError;
}

QString SettingsStore::remove() {
    const int code =
        storeRoot().isEmpty() ? userstore::remove(organisation(), m_application) : removeIniStore(iniFileUnderRoot());
    return code == 0 ? QString() : systemErrorText(code);
}

QString SettingsStore::location() const {
    return storeRoot().isEmpty() ? userstore::location(organisation(), m_application) : iniFileUnderRoot();
}

QString SettingsStore::organisation() {
    return u"VB and VBA Program Settings"_s;
}

void SettingsStore::setStoreRoot(const QString& folder) {
    rootFolder() = folder;
}

QString SettingsStore::storeRoot() {
    return rootFolder();
}

std::unique_ptr<QSettings> SettingsStore::open() const {
    // A fresh QSettings per access: nothing stays open that could write old values back after
    // another part of the program (the reset) deleted the store.
    return storeRoot().isEmpty() ? userstore::open(organisation(), m_application) : openIniStore(iniFileUnderRoot());
}

QString SettingsStore::iniFileUnderRoot() const {
    return storeRoot() + u'/' + organisation() + u'/' + m_application + u".ini"_s;
}

} // namespace quenfor

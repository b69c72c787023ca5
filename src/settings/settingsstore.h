#pragma once

#include <QString>

#include <memory>

class QSettings;

namespace quenfor {

// The settings of one application of the program (the main window, each tool), addressed by
// section and key. On Windows they are the registry values under
// HKCU\Software\VB and VBA Program Settings\<application>\<section>\<key>, where users and older
// installations expect them; elsewhere an INI file per application under the user's config folder.
class SettingsStore {
public:
    explicit SettingsStore(QString application);

    QString application() const { return m_application; }

    // The stored text, or defaultValue when the key was never written.
    QString value(const QString& section, const QString& key, const QString& defaultValue) const;
    // Returns false when the store could not be written.
    bool setValue(const QString& section, const QString& key, const QString& value);

    // Deletes the whole store of the application: every section and key. Returns the system's
    // error text of a failure (a store that never existed counts), empty on success.
    QString remove();

    // Where the store lives: its INI file, or its registry key on Windows.
    QString location() const;

    // "VB and VBA Program Settings": the parent of every application's store.
    static QString organisation();

    // Puts the INI files of all applications under folder instead of the user's own store
    // (tests, portable installations). An empty folder returns to the user's store.
    static void setStoreRoot(const QString& folder);
    static QString storeRoot();

private:
    std::unique_ptr<QSettings> open() const;
    QString iniFileUnderRoot() const;

    QString m_application;
};

} // namespace quenfor

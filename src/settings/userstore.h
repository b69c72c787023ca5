#pragma once

#include <QString>

#include <memory>

class QSettings;

// The user's own settings store of an application: the registry on Windows, an INI file under
// the user's config folder elsewhere. One implementation file per platform.
namespace quenfor::userstore {

std::unique_ptr<QSettings> open(const QString& organisation, const QString& application);

// The registry key or INI file, for messages and tests.
QString location(const QString& organisation, const QString& application);

// Deletes the application's whole store. Returns 0, or the system's error code.
int remove(const QString& organisation, const QString& application);

} // namespace quenfor::userstore

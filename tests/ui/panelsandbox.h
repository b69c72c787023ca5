#pragma once

#include "settings/settingsstore.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// Runs a Qt test object with the settings store and the user's config folder both pointed at
// temporary folders, set before anything can read a setting, so the user's settings stay untouched.
template <typename TestObject> int runInSettingsSandbox(int argc, char** argv) {
    QTemporaryDir configHome;
    QTemporaryDir storeRoot;
    if (!configHome.isValid() || !storeRoot.isValid())
        return 1;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configHome.path()));
    quenfor::SettingsStore::setStoreRoot(storeRoot.path());

    QApplication app(argc, argv);
    TestObject test;
    return QTest::qExec(&test, argc, argv);
}

// Files for the window tests: written whole (the test stops when that fails) and read whole.
inline void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    QCOMPARE(f.write(bytes), bytes.size());
}

inline QByteArray readFile(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The named control of a window; a test that names a control the window lacks stops at once.
template <typename T> T* child(const QObject& parent, const QString& name) {
    T* found = parent.findChild<T*>(name);
    if (!found)
        qFatal("no control %s", qPrintable(name));
    return found;
}
